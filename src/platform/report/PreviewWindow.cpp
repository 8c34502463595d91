#include "platform/report/PreviewWindow.h"

#include "platform/files/SafeSave.h"
#include "platform/report/Destination.h"
#include "platform/report/PagePainter.h"
#include "platform/report/Writers.h"
#include "platform/ui/ErrorBoxes.h"
#include "platform/ui/Relier.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr double min_zoom = 0.25, max_zoom = 5.0, zoom_step = 1.25;
constexpr int gutter = 16; // grey around the page, in pixels

} // namespace

// The sheet of paper at the zoom, drawn straight from the page's elements.
class PreviewWindow::PageView : public QWidget {
public:
    explicit PageView(PreviewWindow& owner) : QWidget(nullptr), owner_(owner) {
        setObjectName(u"page"_s);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

    QSizeF paperPixels(double zoom) const {
        const QSizeF mm = owner_.report().pageLayout.fullRect(QPageLayout::Millimeter).size();
        return mm * dotsPerMm(zoom);
    }
    double dotsPerMm(double zoom) const { return logicalDpiX() / 25.4 * zoom; }

    void resizeToPaper() {
        const QSizeF paper = paperPixels(owner_.zoom());
        resize(static_cast<int>(paper.width()) + 2 * gutter, static_cast<int>(paper.height()) + 2 * gutter);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(0x80, 0x80, 0x80));
        const QSizeF paper = paperPixels(owner_.zoom());
        const QRectF sheet(gutter, gutter, paper.width(), paper.height());
        painter.fillRect(sheet.translated(3, 3), QColor(0x50, 0x50, 0x50));
        painter.fillRect(sheet, Qt::white);
        painter.translate(sheet.topLeft());
        painter.setClipRect(QRectF(QPointF(0, 0), paper));
        paintPage(painter, owner_.page(), dotsPerMm(owner_.zoom()), owner_.zoom());
    }

private:
    PreviewWindow& owner_;
};

PreviewWindow::PreviewWindow(std::shared_ptr<const RenderedReport> report, QWidget* parent)
    : QWidget(parent), report_(std::move(report)) {
    setObjectName(u"aperçu"_s);
    setWindowTitle(u"Aperçu - %1"_s.arg(report_->title));
    setFocusPolicy(Qt::StrongFocus);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    // A tool bar folds what does not fit into its extension menu: nothing is cut on a small display.
    bar_ = new QToolBar(this);
    bar_->setObjectName(u"barre"_s);
    bar_->setFocusPolicy(Qt::NoFocus);
    column->addWidget(bar_);
    addButton(u"première"_s, u"|◀"_s, u"Première page (Origine)"_s, [this] { showPage(0); });
    addButton(u"précédente"_s, u"◀"_s, u"Page précédente (Page préc.)"_s, [this] { previousPage(); });
    position_ = new QLabel(bar_);
    position_->setObjectName(u"position"_s);
    position_->setMinimumWidth(100);
    position_->setAlignment(Qt::AlignCenter);
    bar_->addWidget(position_);
    addButton(u"suivante"_s, u"▶"_s, u"Page suivante (Page suiv.)"_s, [this] { nextPage(); });
    addButton(u"dernière"_s, u"▶|"_s, u"Dernière page (Fin)"_s,
              [this] { showPage(report_->pageCount() - 1); });
    bar_->addSeparator();
    addButton(u"réduire"_s, u"−"_s, u"Réduire (Ctrl+-)"_s, [this] { zoomOut(); });
    zoomLabel_ = new QLabel(bar_);
    zoomLabel_->setObjectName(u"zoom"_s);
    zoomLabel_->setMinimumWidth(50);
    zoomLabel_->setAlignment(Qt::AlignCenter);
    bar_->addWidget(zoomLabel_);
    addButton(u"agrandir"_s, u"+"_s, u"Agrandir (Ctrl++)"_s, [this] { zoomIn(); });
    addButton(u"pleine_largeur"_s, u"Largeur"_s, u"Ajuster à la largeur de la fenêtre (Ctrl+0)"_s,
              [this] { fitWidth(); });
    bar_->addSeparator();
    addButton(u"imprimer"_s, u"Imprimer..."_s, u"Imprimer (Ctrl+P)"_s, [this] { print(); });
    addButton(u"enregistrer"_s, u"PDF..."_s, u"Enregistrer en PDF (Ctrl+S)"_s, [this] { saveAsPdf(); });
    bar_->addSeparator();
    addButton(u"fermer"_s, u"Fermer"_s, u"Fermer l'aperçu (Échap)"_s, [this] { closeWindow(); });

    scroll_ = new QScrollArea(this);
    scroll_->setObjectName(u"défilement"_s);
    scroll_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    scroll_->setBackgroundRole(QPalette::Dark);
    scroll_->setFocusPolicy(Qt::NoFocus);
    view_ = new PageView(*this);
    scroll_->setWidget(view_);
    column->addWidget(scroll_, 1);

    const std::pair<QKeySequence, std::function<void()>> keys[] = {
        {QKeySequence(Qt::Key_PageDown), [this] { nextPage(); }},
        {QKeySequence(Qt::Key_PageUp), [this] { previousPage(); }},
        {QKeySequence(Qt::Key_Home), [this] { showPage(0); }},
        {QKeySequence(Qt::Key_End), [this] { showPage(report_->pageCount() - 1); }},
        {QKeySequence(QKeySequence::ZoomIn), [this] { zoomIn(); }},
        {QKeySequence(Qt::CTRL | Qt::Key_Equal), [this] { zoomIn(); }},
        {QKeySequence(QKeySequence::ZoomOut), [this] { zoomOut(); }},
        {QKeySequence(Qt::CTRL | Qt::Key_0), [this] { fitWidth(); }},
        {QKeySequence(QKeySequence::Print), [this] { print(); }},
        {QKeySequence(QKeySequence::Save), [this] { saveAsPdf(); }},
        {QKeySequence(Qt::Key_Escape), [this] { closeWindow(); }},
    };
    for (const auto& [sequence, action] : keys) {
        auto* shortcut = new QShortcut(sequence, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        relier(shortcut, &QShortcut::activated, this, action);
    }
    view_->resizeToPaper();
    update_();
}

PreviewWindow::~PreviewWindow() = default;

void PreviewWindow::addButton(const QString& name, const QString& text, const QString& tip,
                              std::function<void()> action) {
    QAction* a = bar_->addAction(text);
    a->setObjectName(name);
    a->setToolTip(tip);
    relier(a, &QAction::triggered, this, std::move(action));
}

const ReportPage& PreviewWindow::page() const {
    if (!cached_ || cached_->first != current_)
        cached_.emplace(current_, report_->page(current_));
    return cached_->second;
}

void PreviewWindow::showPage(int index) {
    const int clamped = std::clamp(index, 0, report_->pageCount() - 1);
    if (clamped == current_)
        return;
    current_ = clamped;
    scroll_->verticalScrollBar()->setValue(0);
    update_();
}

void PreviewWindow::setZoom(double zoom) {
    zoom_ = std::clamp(zoom, min_zoom, max_zoom);
    view_->resizeToPaper();
    update_();
}

void PreviewWindow::zoomIn() {
    fitting_ = false;
    setZoom(zoom_ * zoom_step);
}

void PreviewWindow::zoomOut() {
    fitting_ = false;
    setZoom(zoom_ / zoom_step);
}

void PreviewWindow::fitWidth() {
    fitting_ = true;
    // The room the page has once the vertical scroll bar, which a page taller than the window brings, is
    // there.
    const double room = scroll_->width() - 2 * scroll_->frameWidth() -
                        scroll_->verticalScrollBar()->sizeHint().width() - 2 * gutter - 2;
    const double paper = view_->paperPixels(1.0).width();
    if (room > 50 && paper > 0)
        setZoom(room / paper);
}

void PreviewWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (fitting_)
        fitWidth();
}

void PreviewWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (fitting_)
        fitWidth();
}

void PreviewWindow::update_() {
    position_->setText(u"Page %1 / %2"_s.arg(current_ + 1).arg(report_->pageCount()));
    zoomLabel_->setText(u"%1 %"_s.arg(std::lround(zoom_ * 100)));
    for (QAction* a : bar_->actions()) {
        if (a->objectName() == u"précédente" || a->objectName() == u"première")
            a->setEnabled(current_ > 0);
        else if (a->objectName() == u"suivante" || a->objectName() == u"dernière")
            a->setEnabled(current_ + 1 < report_->pageCount());
    }
    view_->update();
}

void PreviewWindow::closeWindow() {
    // Inside the main window's area the window is the sub-window, not the main window.
    if (auto* sub = qobject_cast<QMdiSubWindow*>(parentWidget()))
        sub->close();
    else
        close();
}

void PreviewWindow::print() {
    avec_piège(ErrorBoxKind::standard, [this] {
        QPrinter printer(QPrinter::HighResolution);
        printer.setPageLayout(report_->pageLayout);
        QPrintDialog dialog(&printer, this);
        dialog.setWindowTitle(u"Imprimer - %1"_s.arg(report_->title));
        if (dialog.exec() == QDialog::Accepted)
            printReport(*report_, printer, printer.copyCount());
    });
}

void PreviewWindow::saveAsPdf() {
    const QString proposal =
        QDir::home().filePath(report_->title.isEmpty() ? u"état.pdf"_s : report_->title + u".pdf"_s);
    const QString path =
        QFileDialog::getSaveFileName(this, u"Enregistrer en PDF"_s, proposal, u"Documents PDF (*.pdf)"_s);
    if (!path.isEmpty())
        saveAsPdf(path);
}

void PreviewWindow::saveAsPdf(const QString& path) {
    avec_piège(ErrorBoxKind::standard,
               [&] { saveWhole(path, [this](QIODevice& d) { writePdf(*report_, d); }); });
}
