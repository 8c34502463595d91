#pragma once

#include "support/Fixtures.h"

#include <QString>
#include <QStringList>
#include <memory>

class QPrinter;
class ReportJob;

// The reports' tests: a work folder that is chemin_application, with the shipped layouts and a copy of
// the demonstration school (200 pupils) as the open base, and the main window that owns the job.
class ÉtatsTest : public WorkFolderTest {
protected:
    void SetUp() override;
    static ReportJob& job();
    // A printer that prints into a PDF of the work folder, as the job's printer.
    QString imprimer_dans_un_pdf();
    QString base;
};

// What the readers of the formats read in a file: pdftotext's text (pages apart by a form feed), the
// text of a rich-text file, the cells of a workbook's sheet (the first unless told) as tab-separated
// lines (a date as JJ/MM/AAAA, a number as written); "<illisible: …>" when the reader refuses the file.
QString texte_pdf(const QString& chemin);
QString texte_rtf(const QString& chemin);
QStringList cellules_xls(const QString& chemin, int feuille = 0);
