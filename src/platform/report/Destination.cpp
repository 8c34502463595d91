#include "platform/report/Destination.h"

#include "platform/errors/VbError.h"
#include "platform/files/SafeSave.h"
#include "platform/forms/Feuilles.h"
#include "platform/report/PagePainter.h"
#include "platform/report/PreviewWindow.h"
#include "platform/report/ReportErrors.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPrinter>

using namespace Qt::StringLiterals;

void PreviewDestination::deliver(std::shared_ptr<const RenderedReport> report) {
    auto* preview = new PreviewWindow(std::move(report));
    preview->setAttribute(Qt::WA_DeleteOnClose);
    QMdiArea* area = feuilles().mdiArea();
    QWidget* window = preview;
    if (area != nullptr) {
        QMdiSubWindow* sub = area->addSubWindow(preview);
        sub->setAttribute(Qt::WA_DeleteOnClose);
        window = sub;
    }
    if (maximised_)
        window->showMaximized();
    else
        window->show();
    if (area != nullptr)
        area->setActiveSubWindow(static_cast<QMdiSubWindow*>(window));
    preview->setFocus();
}

PrinterDestination::PrinterDestination(std::unique_ptr<QPrinter> printer, int copies)
    : printer_(std::move(printer)), copies_(copies) {}

PrinterDestination::~PrinterDestination() = default;

void PrinterDestination::deliver(std::shared_ptr<const RenderedReport> report) {
    if (copies_ < 1)
        throw VbError(report_error::destination_failed, u"Aucun exemplaire à imprimer."_s);
    if (!printer_ || !printer_->isValid())
        throw VbError(report_error::destination_failed, u"Aucune imprimante n'est disponible."_s);
    printReport(*report, *printer_, copies_);
}

void printReport(const RenderedReport& report, QPrinter& printer, int copies) {
    printer.setDocName(report.title);
    // The pages are drawn from the paper's corner, their margins in their elements: a printer that
    // kept the layout's margins would shift every page by them and cut its right side.
    QPageLayout paper = report.pageLayout;
    paper.setMinimumMargins(QMarginsF());
    paper.setMargins(QMarginsF());
    printer.setPageLayout(paper);
    printer.setFullPage(true);
    printer.setCopyCount(copies);
    const int passes = printer.supportsMultipleCopies() ? 1 : copies;
    QPainter painter;
    if (!painter.begin(&printer))
        throw VbError(report_error::destination_failed, u"L'impression n'a pas pu commencer."_s);
    const double dotsPerMm = printer.resolution() / 25.4;
    for (int copy = 0; copy < passes; ++copy)
        for (int i = 0; i < report.pageCount(); ++i) {
            if (copy > 0 || i > 0)
                printer.newPage();
            paintPage(painter, report.page(i), dotsPerMm, 1.0);
        }
    if (!painter.end())
        throw VbError(report_error::destination_failed, u"L'impression n'a pas pu se terminer."_s);
}

void FileDestination::deliver(std::shared_ptr<const RenderedReport> report) {
    saveWhole(path_, [&](QIODevice& device) { writer_(*report, device); });
}
