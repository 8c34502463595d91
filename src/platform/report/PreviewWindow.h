#pragma once

#include "platform/report/RenderedReport.h"

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>

class QLabel;
class QPrinter;
class QScrollArea;
class QToolBar;

// A report on screen, one page at a time: page through (PgUp, PgDn, Home, End), zoom (Ctrl++, Ctrl+-,
// fit the width), print through the system's dialog (Ctrl+P), save as PDF (Ctrl+S), close (Esc).
class PreviewWindow : public QWidget {
    Q_OBJECT
public:
    explicit PreviewWindow(std::shared_ptr<const RenderedReport> report, QWidget* parent = nullptr);
    ~PreviewWindow() override;

    const RenderedReport& report() const { return *report_; }
    int currentPage() const { return current_; } // 0-based
    double zoom() const { return zoom_; }

    void showPage(int index);
    void nextPage() { showPage(current_ + 1); }
    void previousPage() { showPage(current_ - 1); }
    void setZoom(double zoom);
    void zoomIn();
    void zoomOut();
    void fitWidth();

    // The system's print dialog, then the printer it gives.
    void print();
    // A file name asked for, then the PDF written whole.
    void saveAsPdf();
    void saveAsPdf(const QString& path);

    // Closes the preview's window: its sub-window in the main window's area, or itself.
    void closeWindow();

    // The page on screen, laid out once while it stays there.
    const ReportPage& page() const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    class PageView;
    void addButton(const QString& name, const QString& text, const QString& tip,
                   std::function<void()> action);
    void update_();

    std::shared_ptr<const RenderedReport> report_;
    int current_ = 0;
    double zoom_ = 1.0;
    bool fitting_ = true; // the zoom follows the window's width until the user chooses one
    mutable std::optional<std::pair<int, ReportPage>> cached_;
    QScrollArea* scroll_ = nullptr;
    PageView* view_ = nullptr;
    QLabel* position_ = nullptr;
    QLabel* zoomLabel_ = nullptr;
    QToolBar* bar_ = nullptr;
};
