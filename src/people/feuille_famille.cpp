#include "people/feuille_famille.h"

#include "people/apprentissage.h"
#include "people/feuille_eleve.h"
#include "people/numerotation.h"
#include "people/recherches.h"

#include "platform/forms/Clignotement.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/Placement.h"
#include "platform/ui/ErrorBoxes.h"
#include "platform/ui/Relier.h"
#include "platform/vb/Conversions.h"
#include "reference/retours.h"
#include "reports/fiches.h"
#include "store/Module1.h"
#include "store/ouvrir_table.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const QString ordre_alphabétique =
    u"SELECT * FROM familles ORDER BY nom_responsable_légal ASC, prénom_responsable_légal ASC"_s;
const QString ordre_des_références = u"SELECT * FROM familles ORDER BY référence_famille ASC"_s;

constexpr Recherche par_référence{
    "Entrez la REFERENCE EXACTE de la famille dont vous voulez voir la fiche...", "référence_famille like '",
    "'"};
constexpr Recherche par_responsable{
    "Entrez le nom du Responsable légal (entier OU partiel) dont vous voulez voir la fiche...",
    "nom_responsable_légal like '", "*'"};
constexpr Recherche par_conjoint{
    "Entrez le nom du Conjoint (entier OU partiel) dont vous voulez voir la fiche...", "nom_conjoint like '",
    "*'"};

constexpr uint32_t rouge = 0x0000FF;      // stored as 0xBBGGRR
constexpr uint32_t jaune_pâle = 0xC0FFFF; // the same

ConfigurationFiche configuration_famille() {
    ConfigurationFiche c;
    c.nom = u"feuille_famille"_s;
    c.titre = u"Fiche famille"_s;
    c.source_de_conception = u"familles"_s;
    c.légende = LégendePosition::numérotée;
    c.ajout = FormeAjout::à_part;
    c.suppression = FormeSuppression::piégée;
    return c;
}

QString texte(const char* utf8) {
    return QString::fromUtf8(utf8);
}

QPushButton* nouveau_bouton(QWidget* parent, const char* nom, const char* légende, const char* aide) {
    QPushButton* b = namedButton(parent, nom, légende, aide);
    fitButtonToCaption(*b);
    return b;
}

// The record source of an entry of the list; any other text gives the alphabetical order.
QString requête_de_l_ordre(const QString& entrée) {
    const QString sources[] = {
        ordre_alphabétique,
        u"SELECT * FROM familles ORDER BY nom_responsable_légal DESC, prénom_responsable_légal DESC"_s,
        ordre_des_références,
        u"SELECT * FROM familles ORDER BY référence_famille DESC"_s,
    };
    for (std::size_t i = 0; i < feuille_famille::ordres.size(); ++i)
        if (entrée == texte(feuille_famille::ordres[i]))
            return sources[i];
    return ordre_alphabétique;
}

} // namespace

feuille_famille::feuille_famille() : FeuilleFiche(configuration_famille()) {
    construire();
    brancher_handlers();
}

feuille_famille::~feuille_famille() = default;

void feuille_famille::construire() {
    FieldBuilder disposition(
        *datPrimaryRS, {.fitBoxWidths = true, .tightButtons = true, .textLines = 3, .fixedTextHeight = true});
    auto* colonne = new QVBoxLayout(corps());
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->addWidget(construire_bandeau(disposition));
    SSTab1 = new QTabWidget(this);
    SSTab1->setObjectName(u"SSTab1"_s);
    colonne->addWidget(SSTab1, 1);
    construire_onglets(disposition);
    disposition.build(*this, champs());
    disposition.chainTabOrder();
    finir_disposition(disposition);
    Timer1 = minuterie_clignotante(*this, 500, [this] { Timer1_Timer(); });
}

// The reference stays in view above the tabs, beside the list of orders; under them the navigator, the
// frame's buttons, the printing of the sheet and the way to the children.
QWidget* feuille_famille::construire_bandeau(FieldBuilder& disposition) {
    auto* bandeau = new QWidget(this);
    auto* lignes = new QVBoxLayout(bandeau);
    lignes->setContentsMargins(0, 0, 0, 0);

    auto* haut = new QHBoxLayout;
    haut->addWidget(disposition.addGroupBox(u"Frame10"_s, this, Qt::AlignCenter));
    Combo1 = new QComboBox(bandeau);
    Combo1->setObjectName(u"Combo1"_s);
    for (const char* ordre : ordres)
        Combo1->addItem(texte(ordre));
    Combo1->setToolTip(u"Cliquez pour modifier l'ordre d'apparition des fiches"_s);
    Combo1->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    haut->addWidget(Combo1, 0, Qt::AlignVCenter);
    haut->addStretch(1);
    lignes->addLayout(haut);

    auto* Frame1 = new QGroupBox(bandeau);
    Frame1->setObjectName(u"Frame1"_s);
    auto* rangée = new QHBoxLayout(Frame1);
    ranger_navigation(*rangée);
    Command3 = nouveau_bouton(Frame1, "Command3", "&Imprimer", "Cliquez pour imprimer la fiche");
    Command4 = nouveau_bouton(Frame1, "Command4", "Enfants",
                              "Cliquez pour accéder aux fiches des enfants de la famille en cours");
    rangée->addStretch(1);
    rangée->addWidget(Command3);
    rangée->addWidget(Command4);
    lignes->addWidget(Frame1);
    relier(Command3, &QPushButton::clicked, this, [this] { Command3_Click(); });
    return bandeau;
}

// The sheet of the family as stored, read by the reference that the screen shows now.
void feuille_famille::Command3_Click() {
    imprimer_la_fiche(u"fiche_famille.rpt"_s, sélection_de_la_famille(Text13->text()));
}

void feuille_famille::construire_onglets(FieldBuilder& disposition) {
    const char* légendes[] = {"Parent &1", "Parent &2", "&Divers"};
    for (const char* légende : légendes) {
        auto* page = new QWidget(SSTab1);
        new QVBoxLayout(page);
        SSTab1->addTab(page, texte(légende));
    }
    auto page = [this](int i) { return static_cast<QVBoxLayout*>(SSTab1->widget(i)->layout()); };
    QGroupBox* Frame11 = disposition.addGroupBox(u"Frame11"_s, this);
    Frame11->setTitle(u"Parent 1"_s);
    page(0)->addWidget(Frame11);
    QGroupBox* Frame12 = disposition.addGroupBox(u"Frame12"_s, this);
    Frame12->setTitle(u"Parent 2"_s);
    page(1)->addWidget(Frame12);
    Command16 = nouveau_bouton(
        SSTab1->widget(1), "Command16", "Adresse du Parent 2 identique à celle du Parent 1",
        "Cliquez pour accepter automatiquement l'adresse du parent 1 en tant qu'adresse du Parent 2");
    page(1)->addWidget(Command16, 0, Qt::AlignLeft);

    page(2)->addWidget(disposition.addGroupBox(u"Frame8"_s, this));
    page(2)->addWidget(disposition.addGroupBox(u"Frame6"_s, this));
    auto* autorisation_ligne = new QGridLayout;
    page(2)->addLayout(autorisation_ligne);
    disposition.addGroup(QString(), autorisation_ligne);
    for (int i = 0; i < SSTab1->count(); ++i)
        page(i)->addStretch(1);
}

void feuille_famille::finir_disposition(FieldBuilder&) {
    fixer_ForeColor(*Text13, rouge);
    fixer_BackColor(*Text13, jaune_pâle);
    Text13->setFixedWidth(Text13->fontMetrics().horizontalAdvance(u"0000000000"_s) + 16);
    // The blinking face must not make the row jump: the button keeps the width of its longer face.
    Command19->setMinimumWidth(Command19->fontMetrics().horizontalAdvance(texte(autorisation)) + 24);
}

void feuille_famille::brancher_handlers() {
    relier(Combo1, &QComboBox::activated, this, [this] { Combo1_Click(); });
    surLostFocus(Text13, [this] { Text13_LostFocus(); });
    surDblClick(Text13, [this] { Text13_DblClick(); });
    surDblClick(nom_responsable_légal, [this] { nom_responsable_légal_DblClick(); });
    surDblClick(nom_conjoint, [this] { nom_conjoint_DblClick(); });
    relier(Command1, &QPushButton::clicked, this, [this] { Text13_DblClick(); });
    relier(Command23, &QPushButton::clicked, this, [this] { nom_responsable_légal_DblClick(); });
    relier(Command22, &QPushButton::clicked, this, [this] { nom_conjoint_DblClick(); });
    relier(Command4, &QPushButton::clicked, this, [this] { Command4_Click(); });
    relier(Command16, &QPushButton::clicked, this, [this] { Command16_Click(); });
    brancher_consultations(*this);
    brancher_apprentissage(*this);
    followPages(*this, *SSTab1);
}

// This screen alone stands higher and further left than the others.
void feuille_famille::Form_Load() {
    avec_piège(ErrorBoxKind::standard, [this] { centrer_feuille_haute(*this); });
    fixer_ordre(0);
}

void feuille_famille::fixer_ordre(int index) {
    Combo1->setCurrentIndex(index);
    Combo1_Click();
}

// A change of order points the source afresh, on the first family of the new order.
void feuille_famille::Combo1_Click() {
    avec_piège(ErrorBoxKind::standard, [this] {
        datPrimaryRS->setDatabaseName(module1().base_en_cours);
        datPrimaryRS->setRecordSource(requête_de_l_ordre(Combo1->currentText()));
        datPrimaryRS->Refresh();
    });
}

// A new family numbered one above the highest reference, in the alphabetical order afterwards. Nothing
// is written until a save or a move.
void feuille_famille::cmdAjouter_Click() {
    avec_piège(ErrorBoxKind::standard, [this] {
        fixer_ordre(0);
        const QString nouvelle = format_zéros(numéro_suivant(*datPrimaryRS, ordre_des_références, *Text13));
        datPrimaryRS->setRecordSource(ordre_alphabétique);
        datPrimaryRS->Refresh();
        datPrimaryRS->Recordset().AddNew();
        Text13->setText(nouvelle);
    });
}

void feuille_famille::cmdRafraîchir_Click() {
    avec_piège(ErrorBoxKind::standard, [this] { datPrimaryRS->Refresh(); });
}

// A typed 42 leaves the field as 000042; a text that holds no number stays as typed.
void feuille_famille::Text13_LostFocus() {
    avec_piège(ErrorBoxKind::standard, [this] {
        if (Text13->text().isEmpty())
            return;
        const QString formée = format_zéros(Text13->text());
        if (formée != Text13->text())
            Text13->setText(formée);
    });
}

void feuille_famille::Text13_DblClick() {
    positionner(*datPrimaryRS, module1().interaction(), par_référence);
}

void feuille_famille::nom_responsable_légal_DblClick() {
    positionner(*datPrimaryRS, module1().interaction(), par_responsable);
}

void feuille_famille::nom_conjoint_DblClick() {
    positionner(*datPrimaryRS, module1().interaction(), par_conjoint);
}

// The pupil screen then holds the family's children alone; with none, the user may start one, which
// gets the family's reference and no matricule.
void feuille_famille::Command4_Click() {
    avec_piège(ErrorBoxKind::standard, [this] {
        if (Text13->text().isEmpty())
            return;
        ouvrir_table_documents();
        feuille_élève& élève = module1().feuilles().get<feuille_élève>();
        pointer_source(*élève.Data2, u"SELECT * FROM documents"_s);
        ouvrir_table_élèves();
        élève.datPrimaryRS->setRecordSource(u"SELECT * FROM élèves WHERE référence_famille LIKE \""_s +
                                            Text13->text() + u"\""_s);
        élève.datPrimaryRS->Refresh();
        DataRecordset& enfants = élève.datPrimaryRS->Recordset();
        if (enfants.isEOF() && enfants.isBOF()) {
            const int réponse = module1().interaction().MsgBox(
                u"Aucune fiche 'enfant' n'existe dans la famille en cours...\n\nVoulez-vous en créer une?"_s,
                vbYesNo + vbQuestion, texte(titre_programme));
            if (réponse != vbYes)
                return;
            enfants.AddNew();
            élève.référence_famille->setText(Text13->text());
        }
        élève.Show();
        élève.ZOrder();
    });
}

// Parent 2's address is replaced whole, empty fields included; the row keeps it at its next save.
void feuille_famille::Command16_Click() {
    avec_piège(ErrorBoxKind::standard, [this] {
        Text8->setText(Text3->text());
        Text7->setText(Text2->text());
        Text6->setText(Text1->text());
        Text10->setText(Text5->text());
        Text9->setText(Text4->text());
    });
}

// The stored face begins with a small letter, so the first tick shows the capitalised one; the two
// then alternate, the button usable all along.
void feuille_famille::Timer1_Timer() {
    const QString face = texte(autorisation);
    Command19->setText(Command19->text() == face ? QString() : face);
}

void étapes_en_plus_familles(feuille_famille& famille, bool table_vide) {
    if (table_vide)
        famille.Text13->setText(u"000001"_s);
}
