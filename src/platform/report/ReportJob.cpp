#include "platform/report/ReportJob.h"

#include "platform/errors/VbError.h"
#include "platform/forms/Horloge.h"
#include "platform/report/Composer.h"
#include "platform/report/Destination.h"
#include "platform/report/Formula.h"
#include "platform/report/Layout.h"
#include "platform/report/ReportErrors.h"
#include "platform/report/Writers.h"

#include <QPrinter>
#include <QPrinterInfo>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<QPrinter> defaultPrinter() {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull())
        return nullptr;
    return std::make_unique<QPrinter>(info, QPrinter::HighResolution);
}

} // namespace

ReportJob::ReportJob() : printerFactory_(defaultPrinter) {}

ReportJob::~ReportJob() = default;

QString& ReportJob::DataFiles(int index) {
    if (index < 0 || index >= static_cast<int>(dataFiles_.size()))
        throw VbError(9);
    return dataFiles_[index];
}

QString& ReportJob::Formulas(int index) {
    if (index < 0 || index >= static_cast<int>(formulas_.size()))
        throw VbError(9);
    return formulas_[index];
}

void ReportJob::setPrinterFactory(PrinterFactory factory) {
    printerFactory_ = factory ? std::move(factory) : PrinterFactory(defaultPrinter);
}

std::shared_ptr<RenderedReport> ReportJob::render() const {
    const Layout layout = readLayout(ReportFileName);
    std::map<QString, QString> formulas;
    for (const QString& text : formulas_)
        if (const std::optional<NamedFormula> f = parseNamedFormula(text))
            formulas[f->name] = f->value;
    return composeReport(layout, dataFiles_[0], SelectionFormula, formulas, horloge().aujourdhui());
}

void ReportJob::run() {
    const std::shared_ptr<RenderedReport> report = render();
    std::unique_ptr<class Destination> destination;
    switch (Destination) {
    case toWindow:
        destination = std::make_unique<PreviewDestination>(WindowState == maximised);
        break;
    case toPrinter:
        destination = std::make_unique<PrinterDestination>(printerFactory_(), CopiesToPrinter);
        break;
    case toFile:
        if (PrintFileType == richTextFile)
            destination = std::make_unique<FileDestination>(PrintFileName, &writeRtf);
        else if (PrintFileType == spreadsheetFile)
            destination = std::make_unique<FileDestination>(PrintFileName, &writeXls);
        else if (PrintFileType == pdfFile)
            destination = std::make_unique<FileDestination>(PrintFileName, &writePdf);
        else
            throw VbError(report_error::destination_failed,
                          u"Le type de fichier %1 n'est pas connu."_s.arg(PrintFileType));
        break;
    default:
        throw VbError(report_error::destination_failed,
                      u"La destination %1 n'est pas connue."_s.arg(Destination));
    }
    destination->deliver(report);
}

int ReportJob::PrintReport() {
    try {
        run();
        return 0;
    } catch (const VbError& e) {
        return e.number() != 0 ? e.number() : report_error::destination_failed;
    } catch (const std::exception&) {
        return report_error::destination_failed;
    }
}

void ReportJob::setAction(int value) {
    if (value == 1)
        run();
}
