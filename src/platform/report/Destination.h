#pragma once

#include "platform/report/RenderedReport.h"

#include <QString>
#include <functional>
#include <memory>

class QPrinter;
class QWidget;

// Where a laid-out report goes. A failure is raised as a VbError; a file is complete or absent.
class Destination {
public:
    virtual ~Destination() = default;
    virtual void deliver(std::shared_ptr<const RenderedReport> report) = 0;
};

// The preview: a child window of the main window's area, maximised or not, that keeps the report.
class PreviewDestination : public Destination {
public:
    explicit PreviewDestination(bool maximised) : maximised_(maximised) {}
    void deliver(std::shared_ptr<const RenderedReport> report) override;

private:
    bool maximised_;
};

// The printer, `copies` times; no copy is a failure, as is a printer that cannot start.
class PrinterDestination : public Destination {
public:
    PrinterDestination(std::unique_ptr<QPrinter> printer, int copies);
    ~PrinterDestination() override;
    void deliver(std::shared_ptr<const RenderedReport> report) override;

private:
    std::unique_ptr<QPrinter> printer_;
    int copies_;
};

// A file written whole through the safe-save writer by one of the writers of Writers.h.
class FileDestination : public Destination {
public:
    using Writer = void (*)(const RenderedReport&, QIODevice&);
    FileDestination(QString path, Writer writer) : path_(std::move(path)), writer_(writer) {}
    void deliver(std::shared_ptr<const RenderedReport> report) override;

private:
    QString path_;
    Writer writer_;
};

// Prints every page of the report on an open printer, as many times as asked, one copy after another
// where the printer does not make copies itself.
void printReport(const RenderedReport& report, QPrinter& printer, int copies);
