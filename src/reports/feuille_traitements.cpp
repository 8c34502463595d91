#include "reports/feuille_traitements.h"

#include "platform/forms/Placement.h"
#include "platform/report/ReportJob.h"
#include "platform/ui/ErrorBoxes.h"
#include "platform/ui/Relier.h"
#include "reports/catalogue.h"
#include "reports/etat.h"
#include "store/Module1.h"

#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* aide_listes = "Cliquez pour modifier l'ordre d'apparition des fiches";
constexpr const char* aide_ok = "Cliquez pour accepter ces données et les insérer dans la fiche d'origine";

// The number at the start of a text, as the classic Val reads it (blanks skipped, "." the decimal
// point), taken to the nearest whole number; 0 when the text does not start with one. Past what a
// copy count holds, 6 "Dépassement de capacité".
int nombre_d_exemplaires(const QString& texte) {
    qsizetype i = 0;
    while (i < texte.size() && texte[i].isSpace())
        ++i;
    const qsizetype début = i;
    if (i < texte.size() && (texte[i] == u'+' || texte[i] == u'-'))
        ++i;
    while (i < texte.size() && (texte[i].isDigit() || texte[i] == u'.'))
        ++i;
    bool ok = false;
    const double valeur = texte.mid(début, i - début).toDouble(&ok);
    if (!ok)
        return 0;
    const double arrondi = std::nearbyint(valeur);
    if (arrondi < -32768 || arrondi > 32767)
        throw VbError(6);
    return static_cast<int>(arrondi);
}

// The proposal of the file prompt: the same name in the user's folder where there is no drive C:.
QString proposition_de_fichier() {
#ifdef Q_OS_WIN
    return u"C:\\export_norv2.rtf"_s;
#else
    return QDir::toNativeSeparators(QDir::home().filePath(u"export_norv2.rtf"_s));
#endif
}

QLineEdit* champ(QGroupBox* cadre, const char* nom, const char* texte, const char* aide) {
    auto* boîte = new QLineEdit(QString::fromUtf8(texte), cadre);
    boîte->setObjectName(QString::fromUtf8(nom));
    boîte->setToolTip(QString::fromUtf8(aide));
    auto* disposition = new QVBoxLayout(cadre);
    disposition->addWidget(boîte);
    return boîte;
}

QGroupBox* cadre(QWidget* parent, const char* nom, const char* titre) {
    auto* c = new QGroupBox(QString::fromUtf8(titre), parent);
    c->setObjectName(QString::fromUtf8(nom));
    return c;
}

} // namespace

feuille_traitements::feuille_traitements() : Feuille(u"feuille_traitements"_s) {
    setWindowTitle(u"Exploitation de la base"_s);
    construire();
}

void feuille_traitements::construire() {
    auto* colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(12, 10, 12, 10);
    colonne->setSpacing(8);

    auto* choix = new QHBoxLayout;
    Frame1 = cadre(this, "Frame1", "Choix du cycle");
    Text1 = champ(Frame1, "Text1", "TOUS", "Indiquez le cycle choisi : 1, 2, 3 ou TOUS");
    Frame2 = cadre(this, "Frame2", "Choix du niveau");
    Text2 =
        champ(Frame2, "Text2", "TOUS",
              "Indiquez le niveau choisi (en fonction des niveaux définis dans la table des niveaux) : TPS, "
              "PS, MS, GS, CP, CE1, .... ou TOUS");
    Frame3 = cadre(this, "Frame3", "Choix de la classe");
    Text3 = champ(Frame3, "Text3", "TOUTES", "Indiquez le numéro de la classe choisie ou TOUTES");
    for (QGroupBox* c : {Frame1, Frame2, Frame3})
        choix->addWidget(c, 1);
    colonne->addLayout(choix);

    auto* sortie = new QHBoxLayout;
    Frame4 = cadre(this, "Frame4", "Edition");
    auto* options = new QHBoxLayout(Frame4);
    const char* légendes_options[] = {"Ecran", "Imprimante", "Fichier"};
    const char* aides_options[] = {
        "Cliquez pour obtenir le traitement sur l'écran de l'ordinateur",
        "Cliquez pour imprmer le traitement",
        "Cliquez pour exporter le traitement sous un format de fichier compatible"};
    for (int i = 0; i < 3; ++i) {
        Option1[i] = new QRadioButton(QString::fromUtf8(légendes_options[i]), Frame4);
        Option1[i]->setObjectName(u"Option1(%1)"_s.arg(i));
        Option1[i]->setToolTip(QString::fromUtf8(aides_options[i]));
        options->addWidget(Option1[i]);
    }
    Option1[0]->setChecked(true);
    Frame5 = cadre(this, "Frame5", "Nb d'exemplaires");
    auto* copies = new QHBoxLayout(Frame5);
    Text4 = new QLineEdit(u"1"_s, Frame5);
    Text4->setObjectName(u"Text4"_s);
    Text4->setToolTip(u"Indiquez le nombre d'exemplaires que vous souhaitez imprimer"_s);
    Text4->setMaximumWidth(48);
    HScroll1 = new QScrollBar(Qt::Horizontal, Frame5);
    HScroll1->setObjectName(u"HScroll1"_s);
    HScroll1->setRange(1, 99);
    HScroll1->setSingleStep(1);
    HScroll1->setPageStep(10);
    HScroll1->setValue(1);
    HScroll1->setMinimumWidth(90);
    HScroll1->setToolTip(Text4->toolTip());
    copies->addWidget(Text4);
    copies->addWidget(HScroll1, 1);
    sortie->addWidget(Frame4, 3);
    sortie->addWidget(Frame5, 2);
    colonne->addLayout(sortie);

    auto* listes = new QGridLayout;
    listes->setColumnStretch(0, 1);
    const char* titres[] = {"Statistiques", "Listes", "Etiquettes", "Documents"};
    QComboBox** combos[] = {&Combo1, &Combo2, &Combo3, &Combo4};
    QPushButton** boutons[] = {&Command1, &Command2, &Command3, &Command4};
    for (int i = 0; i < 4; ++i) {
        légendes[i] = new QLabel(QString::fromUtf8(titres[i]), this);
        QComboBox* combo = *combos[i] = new QComboBox(this);
        combo->setObjectName(u"Combo%1"_s.arg(i + 1));
        combo->setToolTip(QString::fromUtf8(aide_listes));
        combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        légendes[i]->setBuddy(combo);
        QPushButton* bouton = *boutons[i] = new QPushButton(u"OK"_s, this);
        bouton->setObjectName(u"Command%1"_s.arg(i + 1));
        bouton->setToolTip(QString::fromUtf8(aide_ok));
        bouton->setAutoDefault(false);
        listes->addWidget(légendes[i], 2 * i, 0, 1, 2);
        listes->addWidget(combo, 2 * i + 1, 0);
        listes->addWidget(bouton, 2 * i + 1, 1);
    }
    colonne->addLayout(listes);

    auto* bas = new QHBoxLayout;
    bas->addStretch(1);
    cmdFermer = new QPushButton(u"&Fermer"_s, this);
    cmdFermer->setObjectName(u"cmdFermer"_s);
    cmdFermer->setToolTip(u"Cliquez pour fermer cette fenêtre"_s);
    cmdFermer->setAutoDefault(false);
    bas->addWidget(cmdFermer);
    colonne->addLayout(bas);

    relier(Command1, &QPushButton::clicked, this, &feuille_traitements::Command1_Click);
    relier(Command2, &QPushButton::clicked, this, &feuille_traitements::Command2_Click);
    relier(Command3, &QPushButton::clicked, this, &feuille_traitements::Command3_Click);
    relier(Command4, &QPushButton::clicked, this, &feuille_traitements::Command4_Click);
    relier(cmdFermer, &QPushButton::clicked, this, &feuille_traitements::cmdFermer_Click);
    relier(HScroll1, &QScrollBar::valueChanged, this, &feuille_traitements::HScroll1_Change);
}

void feuille_traitements::Form_Load() {
    avec_piège(ErrorBoxKind::standard, [this] {
        centrer_feuille(*this);
        QComboBox* combos[] = {Combo1, Combo2, Combo3, Combo4};
        for (int liste = 1; liste <= 4; ++liste) {
            for (const EntréeCatalogue& e : catalogue(liste))
                combos[liste - 1]->addItem(QString::fromUtf8(e.libellé));
            combos[liste - 1]->setCurrentIndex(-1);
        }
    });
}

void feuille_traitements::Command1_Click() {
    lancer_la_liste(1, Combo1);
}
void feuille_traitements::Command2_Click() {
    lancer_la_liste(2, Combo2);
}
void feuille_traitements::Command3_Click() {
    lancer_la_liste(3, Combo3);
}
void feuille_traitements::Command4_Click() {
    lancer_la_liste(4, Combo4);
}

void feuille_traitements::lancer_la_liste(int liste, QComboBox* combo) {
    avec_piège(ErrorBoxKind::standard, [&] {
        ReportJob& job = CrystalReport1();
        job.DataFiles(0) = module1().base_en_cours;
        const EntréeCatalogue* entrée = entrée_du_catalogue(liste, combo->currentText());
        if (entrée == nullptr || entrée->fichier == nullptr)
            return;
        QString fichier = QString::fromUtf8(entrée->fichier);
        if (entrée->message != nullptr) {
            const QString message = QString::fromUtf8(entrée->message);
            if (entrée->fichier_si_non != nullptr) {
                if (interaction().MsgBox(message, vbYesNo + vbExclamation) == vbNo)
                    fichier = QString::fromUtf8(entrée->fichier_si_non);
            } else {
                interaction().MsgBox(message, vbOKOnly + vbInformation);
            }
        }
        job.ReportFileName = module1().chemin_application + fichier;
        if (entrée->formule == nullptr)
            lancer_état();
        else
            job.SelectionFormula = QString::fromUtf8(entrée->formule);
        bloc_de_sortie(job);
        terminer_édition(job);
    });
}

void feuille_traitements::bloc_de_sortie(ReportJob& job) {
    if (Option1[0]->isChecked()) {
        job.Destination = ReportJob::toWindow;
        job.WindowState = ReportJob::maximised;
        job.CopiesToPrinter = 1;
    } else if (Option1[1]->isChecked()) {
        job.Destination = ReportJob::toPrinter;
        job.CopiesToPrinter = nombre_d_exemplaires(Text4->text());
    } else if (Option1[2]->isChecked()) {
        job.Destination = ReportJob::toFile;
        job.PrintFileType = ReportJob::richTextFile;
        // No guard: Cancel gives "", which becomes ".RTF" in the current folder.
        QString chemin =
            interaction()
                .InputBox(u"Entrez le chemin et le nom du fichier que vous souhaitez créer :"_s,
                          u"Exportation du traitement vers un fichier"_s, proposition_de_fichier())
                .trimmed();
        if (chemin.endsWith(QDir::separator()))
            chemin.chop(1);
        if (chemin.right(4).toUpper() != u".RTF")
            chemin += u".RTF"_s;
        job.PrintFileName = chemin;
        job.CopiesToPrinter = 1;
    }
}

void feuille_traitements::cmdFermer_Click() {
    interaction().setMousePointer(vbDefault);
    Hide();
}

void feuille_traitements::HScroll1_Change() {
    Text4->setText(QString::number(HScroll1->value()));
}
