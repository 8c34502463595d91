#pragma once

#include "platform/report/RenderedReport.h"

#include <QString>
#include <array>
#include <functional>
#include <memory>

class QPrinter;

// The one report job of the program (CrystalReport1): what the callers set, kept from run to run until
// they set it again, and the two ways to start a run. A run reads the layout file, opens the work
// database named by DataFiles(0), keeps the records that SelectionFormula selects, lays out the pages
// and sends them where Destination says.
class ReportJob {
public:
    // Destination
    static constexpr int toWindow = 0, toPrinter = 1, toFile = 2;
    // PrintFileType
    static constexpr int spreadsheetFile = 10, richTextFile = 15, pdfFile = 31;
    // WindowState
    static constexpr int maximised = 2;

    ReportJob();
    ~ReportJob();
    ReportJob(const ReportJob&) = delete;
    ReportJob& operator=(const ReportJob&) = delete;

    QString ReportFileName;
    QString SelectionFormula;
    int Destination = toWindow;
    int WindowState = 0;
    int CopiesToPrinter = 1;
    int PrintFileType = 0;
    QString PrintFileName;

    // Indexed properties; an index out of range raises 9.
    QString& DataFiles(int index);
    QString& Formulas(int index); // 0 to 20

    // Starts a run; 0 when it went through, else the number of what stopped it.
    int PrintReport();
    // Assigning 1 starts a run whose failure is raised as a VbError.
    void setAction(int value);

    // The layout file read and its records laid out, as every destination receives them.
    std::shared_ptr<RenderedReport> render() const;

    // Where printing goes: the system's default printer, unless a test puts another in place.
    using PrinterFactory = std::function<std::unique_ptr<QPrinter>()>;
    void setPrinterFactory(PrinterFactory factory);

private:
    void run();

    std::array<QString, 1> dataFiles_;
    std::array<QString, 21> formulas_;
    PrinterFactory printerFactory_;
};
