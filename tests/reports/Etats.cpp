#include "Etats.h"

#include "generator/Demonstration.h"
#include "generator/MisesEnPage.h"
#include "platform/dao/Database.h"
#include "platform/forms/Feuilles.h"
#include "platform/report/ReportJob.h"
#include "shell/MDIForm1.h"
#include "store/Module1.h"
#include "support/BaseDirecte.h"

#include <QPrinter>
#include <QProcess>
#include <QTextDocument>

using namespace Qt::StringLiterals;

void ÉtatsTest::SetUp() {
    WorkFolderTest::SetUp();
    feuilles().get<MDIForm1>();
    processDeletions();
    écrire_mises_en_page(folder.path());
    base = copie_du_modèle(folder);
    remplir_démonstration(*Database::open(base), Démonstration{});
    module1().base_en_cours = base;
}

ReportJob& ÉtatsTest::job() {
    return feuilles().get<MDIForm1>().CrystalReport1();
}

QString ÉtatsTest::imprimer_dans_un_pdf() {
    const QString chemin = folder.file(u"imprimante.pdf"_s);
    job().setPrinterFactory([chemin] {
        auto imprimante = std::make_unique<QPrinter>(QPrinter::HighResolution);
        imprimante->setOutputFormat(QPrinter::PdfFormat);
        imprimante->setOutputFileName(chemin);
        return imprimante;
    });
    return chemin;
}

namespace {

QString sortie_de(const QString& programme, const QStringList& arguments) {
    QProcess p;
    p.start(programme, arguments);
    if (!p.waitForFinished(60000) || p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0)
        return u"<illisible: %1>"_s.arg(QString::fromUtf8(p.readAllStandardError()));
    return QString::fromUtf8(p.readAllStandardOutput());
}

} // namespace

QString texte_pdf(const QString& chemin) {
    return sortie_de(u"pdftotext"_s, {u"-layout"_s, chemin, u"-"_s});
}

QString texte_rtf(const QString& chemin) {
    // The HTML output keeps every letter, as entities; the text output of this reader drops accents.
    QTextDocument document;
    document.setHtml(sortie_de(u"unrtf"_s, {u"--html"_s, chemin}));
    return document.toPlainText();
}

QStringList cellules_xls(const QString& chemin, int feuille) {
    const QString script = uR"(
import sys, xlrd
livre = xlrd.open_workbook(sys.argv[1])
feuille = livre.sheet_by_index(int(sys.argv[2]))
for r in range(feuille.nrows):
    cases = []
    for c in feuille.row(r):
        if c.ctype == xlrd.XL_CELL_DATE:
            a, m, j = xlrd.xldate_as_tuple(c.value, livre.datemode)[:3]
            cases.append('%02d/%02d/%04d' % (j, m, a))
        elif c.ctype == xlrd.XL_CELL_NUMBER:
            cases.append('%g' % c.value)
        else:
            cases.append(str(c.value))
    print('\t'.join(cases))
)"_s;
    return sortie_de(u"/usr/bin/python3"_s, {u"-c"_s, script, chemin, QString::number(feuille)})
        .split(u'\n', Qt::SkipEmptyParts);
}
