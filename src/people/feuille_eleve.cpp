#include "people/feuille_eleve.h"

#include "people/age.h"
#include "people/apprentissage.h"
#include "people/feuille_choix_famille.h"
#include "people/feuille_choix_photo.h"
#include "people/feuille_famille.h"
#include "people/numerotation.h"
#include "people/ordres_eleves.h"
#include "people/recherches.h"

#include "platform/forms/Clignotement.h"
#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/LimiteSaisie.h"
#include "platform/forms/Pictures.h"
#include "platform/ui/ErrorBoxes.h"
#include "platform/ui/Relier.h"
#include "platform/vb/Conversions.h"
#include "reference/retours.h"
#include "reports/feuille_documents.h"
#include "reports/fiches.h"
#include "store/Module1.h"
#include "store/ouvrir_table.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const QString aîné = u"Aîné dans l'école"_s;
const QString ordre_des_matricules = u"SELECT * FROM élèves ORDER BY matricule ASC"_s;
const QString ordre_alphabétique = u"SELECT * FROM élèves ORDER BY nom_élève ASC, prénom_élève ASC"_s;

ConfigurationFiche configuration_élève() {
    ConfigurationFiche c;
    c.nom = u"feuille_élève"_s;
    c.titre = u"Fiche élève"_s;
    c.source_de_conception = u"élèves"_s;
    c.légende = LégendePosition::numérotée;
    c.ajout = FormeAjout::à_part;
    c.suppression = FormeSuppression::piégée;
    return c;
}

// The Delete key would remove a template from the list; here the list is only read.
class SansSuppression : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        return event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete;
    }
};

QString texte(const char* utf8) {
    return QString::fromUtf8(utf8);
}

// A box that gathers controls without a caption of its own.
QGroupBox* cadre(QWidget* parent, const char* nom) {
    auto* g = new QGroupBox(parent);
    g->setObjectName(texte(nom));
    return g;
}

QPlainTextEdit* zone_de_texte(QWidget* parent) {
    auto* z = new QPlainTextEdit(parent);
    z->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    z->setTabChangesFocus(true);
    z->setMinimumHeight(4 * z->fontMetrics().lineSpacing());
    return z;
}

} // namespace

feuille_élève::feuille_élève() : FeuilleFiche(configuration_élève()) {
    construire();
    lier_colonnes();
    brancher_handlers();
}

feuille_élève::~feuille_élève() = default;

QWidget* feuille_élève::champ(const QString& nom) const {
    return findChild<QWidget*>(nom);
}

// The two sources besides datPrimaryRS work out of sight: the user never moves them.
void feuille_élève::construire_sources() {
    Data1 = new DataControl(this);
    Data1->setObjectName(u"Data1"_s);
    Data1->setRecordSource(u"paramètres"_s);
    Data1->hide();
    Data2 = new DataControl(this);
    Data2->setObjectName(u"Data2"_s);
    Data2->setRecordSource(u"documents"_s);
    Data2->hide();
}

void feuille_élève::construire() {
    construire_sources();
    FieldBuilder disposition(*datPrimaryRS, {.fitBoxWidths = true, .tightButtons = true});
    auto* colonne = new QVBoxLayout(corps());
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->addWidget(construire_bandeau(disposition));
    SSTab1 = new QTabWidget(this);
    SSTab1->setObjectName(u"SSTab1"_s);
    colonne->addWidget(SSTab1, 1);
    construire_onglets(disposition);
    disposition.build(*this, champs());
    finir_disposition(disposition);
    poser_tabulation();
    Timer1 = minuterie_clignotante(*this, 500, [this] { Timer1_Timer(); });
}

// The contacts and the configurable fields show their columns of the current pupil, as the rows do;
// the captions of the configurable fields come from the single row of paramètres.
void feuille_élève::lier_colonnes() {
    for (int i = 0; i < 5; ++i)
        for (QLineEdit* e : {nom_contact[i], prénom_contact[i], téléphone_contact[i]})
            datPrimaryRS->bind(e, e->objectName());
    for (QWidget* w : champ_paramétable) {
        if (auto* e = qobject_cast<QLineEdit*>(w))
            datPrimaryRS->bind(e, e->objectName());
        else
            datPrimaryRS->bind(static_cast<QPlainTextEdit*>(w), w->objectName());
    }
    Data1->Reposition = [this] { montrer_paramètres(); };
    // The two other sources let their files go with the screen, as datPrimaryRS does.
    avantDéchargement([this] {
        Data1->unload();
        Data2->unload();
    });
}

// The first row of paramètres, when there is one, gives the captions and the help texts; the screen
// never moves Data1. With no row, the stored defaults stay and no field gets a balloon.
void feuille_élève::montrer_paramètres() {
    DataRecordset& rs = Data1->Recordset();
    if (rs.isEOF() && rs.isBOF())
        return;
    for (int i = 0; i < 10; ++i) {
        const QString n = QString::number(i + 1);
        lblLabels[i]->setText(rs.field(u"intitulé_champ_paramétrable"_s + n).toString());
        const QString aide = rs.field(u"infobulle_champ_paramétrable"_s + n).toString();
        if (aide != porteurs_aide[i]->text()) {
            porteurs_aide[i]->setText(aide);
            porteur_aide_Change(i);
        }
    }
}

void feuille_élève::porteur_aide_Change(int index) {
    champ_paramétable[index]->setToolTip(porteurs_aide[index]->text());
}

void feuille_élève::brancher_handlers() {
    brancher_recherches_et_âge();
    QObject::connect(Combo1, &QComboBox::activated, this, [this] { Combo1_Click(); });
    surLostFocus(matricule, [this] { matricule_LostFocus(); });
    surLostFocus(nom_enfant, [this] { nom_enfant_LostFocus(); });
    surLostFocus(prénom_enfant, [this] { prénom_enfant_LostFocus(); });
    relier(Command4, &QPushButton::clicked, this, [this] { Command4_Click(); });
    relier(Command16, &QPushButton::clicked, this, [this] { Command16_Click(); });
    QObject::connect(Command15, &QPushButton::clicked, this, [this] { Command15_Click(); });
    relier(chemin_photo, &QLineEdit::textChanged, this, [this] { chemin_photo_Change(); });
    relier(Command14, &QPushButton::clicked, this, [this] { Command14_Click(); });
    relier(documents_suite, &QPushButton::clicked, this, [this] { documents_suite_Click(); });
    surDblClick(photo, [this] { Command14_Click(); });
    QObject::connect(Command6, &QPushButton::clicked, this, [this] { Command6_Click(); });
    brancher_consultations(*this);
    brancher_apprentissage(*this);
    followPages(*this, *SSTab1);
}

QWidget* feuille_élève::construire_bandeau(FieldBuilder& disposition) {
    auto* bandeau = new QWidget(this);
    auto* lignes = new QVBoxLayout(bandeau);
    lignes->setContentsMargins(0, 0, 0, 0);

    auto* haut = new QHBoxLayout;
    auto* Frame2 = disposition.addGroupBox(u"Frame2"_s, this);
    auto* Frame12 = disposition.addGroupBox(u"Frame12"_s, this);
    haut->addWidget(Frame2, 1);
    haut->addWidget(Frame12);
    lignes->addLayout(haut);

    auto* bas = new QHBoxLayout;
    Combo1 = new QComboBox(bandeau);
    Combo1->setObjectName(u"Combo1"_s);
    for (const char* ordre : ordres)
        Combo1->addItem(texte(ordre));
    Combo1->setToolTip(u"Cliquez pour modifier l'ordre d'apparition des fiches"_s);
    // As wide as its longest order, so that the order in force always reads whole.
    Combo1->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    bas->addWidget(Combo1, 0, Qt::AlignVCenter);
    bas->addWidget(construire_boutons(), 1);
    lignes->addLayout(bas);

    Command4 = namedButton(Frame12, "Command4", "Parents",
                           "Cliquez pour accéder à la fiche des parents de l'élève en cours");
    fitButtonToCaption(*Command4);
    return bandeau;
}

// Frame11: the navigator of datPrimaryRS, the frame's buttons and the printing of the sheet, above
// the tabs where the eye finds them before the fields.
QWidget* feuille_élève::construire_boutons() {
    auto* Frame11 = cadre(this, "Frame11");
    auto* rangée = new QHBoxLayout(Frame11);
    Command3 = namedButton(Frame11, "Command3", "&Imprimer", "Cliquez pour imprimer la fiche");
    // On a small display the buttons give up their spare width, not the list of orders its text.
    ranger_navigation(*rangée);
    fitButtonToCaption(*Command3);
    rangée->addStretch(1);
    rangée->addWidget(Command3);
    relier(Command3, &QPushButton::clicked, this, [this] { Command3_Click(); });
    return Frame11;
}

// The sheet of the pupil as stored, read by the matricule that the screen shows now.
void feuille_élève::Command3_Click() {
    imprimer_la_fiche(u"fiche_enfant.rpt"_s, sélection_de_l_élève(matricule->text()));
}

void feuille_élève::construire_onglets(FieldBuilder& disposition) {
    const char* légendes[] = {"&Identité",       "&Classe",     "&Personnes autorisées", "&Résidence",
                              "&Santé / Divers", "Autres (&1)", "Autres (&2)",           "&Documents"};
    for (const char* légende : légendes) {
        auto* page = new QWidget(SSTab1);
        new QVBoxLayout(page);
        SSTab1->addTab(page, texte(légende));
    }
    auto page = [this](int i) { return static_cast<QVBoxLayout*>(SSTab1->widget(i)->layout()); };
    page(0)->addWidget(disposition.addGroupBox(u"Frame3"_s, this));
    page(0)->addWidget(disposition.addGroupBox(u"Frame13"_s, this));
    // The picture stands on the right of the identity, its button under it.
    photo = new QLabel(disposition.grid(u"Frame3"_s)->parentWidget());
    photo->setObjectName(u"photo"_s);
    photo->setFrameShape(QFrame::Box);
    photo->setAlignment(Qt::AlignCenter);
    photo->setFixedSize(120, 150);
    photo->setScaledContents(false);

    page(1)->addWidget(disposition.addGroupBox(u"Frame4"_s, this));
    construire_contacts(SSTab1->widget(2));

    auto* Frame7 = disposition.addGroupBox(u"Frame7"_s, this);
    page(3)->addWidget(Frame7);
    Command16 =
        namedButton(Frame7, "Command16",
                    "CLIQUEZ ICI si l'adresse de résidence est identique à celle du responsable légal",
                    "Cliquez pour accepter automatiquement l'adresse du responsable légal en tant "
                    "qu'adresse du responsable légal");
    // The copy of the family's address comes first: it fills most of the fields below it.
    const QString résidence = u"Frame7"_s;
    disposition.grid(résidence)->addWidget(Command16, disposition.takeRow(résidence), 0, 1, -1);

    auto* côte_à_côte = new QHBoxLayout;
    côte_à_côte->addWidget(disposition.addGroupBox(u"Frame8"_s, this), 3);
    côte_à_côte->addWidget(disposition.addGroupBox(u"Frame6"_s, this), 2, Qt::AlignTop);
    page(4)->addLayout(côte_à_côte);
    auto* bas = new QGridLayout;
    page(4)->addLayout(bas);
    disposition.addGroup(QString(), bas);

    construire_paramétrables(SSTab1->widget(5), 0);
    construire_paramétrables(SSTab1->widget(6), 5);
    construire_documents(SSTab1->widget(7));
    for (int i = 0; i < SSTab1->count(); ++i)
        page(i)->addStretch(1);
}

void feuille_élève::construire_contacts(QWidget* page) {
    auto* Frame5 = cadre(page, "Frame5");
    page->layout()->addWidget(Frame5);
    auto* g = new QGridLayout(Frame5);
    const char* entêtes[] = {"Noms", "Prénoms", "Téléphones"};
    for (int c = 0; c < 3; ++c) {
        auto* entête = new QLabel(texte(entêtes[c]), Frame5);
        entête->setAlignment(Qt::AlignCenter);
        g->addWidget(entête, 0, c + 1);
    }
    auto ligne = [&](const QString& nom, int longueur, const char* aide) {
        auto* e = new QLineEdit(Frame5);
        e->setObjectName(nom);
        limiter_saisie(*e, longueur);
        e->setToolTip(texte(aide));
        return e;
    };
    for (int i = 0; i < 5; ++i) {
        const QString n = QString::number(i + 1);
        auto* numéro = new QLabel(n, Frame5);
        numéro->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        g->addWidget(numéro, i + 1, 0);
        nom_contact[i] = ligne(u"nom_contact"_s + n, 30, "Nom d'une personne à contacter");
        prénom_contact[i] = ligne(u"prénom_contact"_s + n, 30, "Prénom d'une personne à contacter");
        téléphone_contact[i] =
            ligne(u"téléphone_contact"_s + n, 20, "Coordonnées téléphoniques d'une personne à contacter");
        g->addWidget(nom_contact[i], i + 1, 1);
        g->addWidget(prénom_contact[i], i + 1, 2);
        g->addWidget(téléphone_contact[i], i + 1, 3);
    }
    g->setColumnStretch(1, 3);
    g->setColumnStretch(2, 3);
    g->setColumnStretch(3, 2);
}

void feuille_élève::construire_paramétrables(QWidget* page, int premier) {
    auto* cadre_page = cadre(page, premier == 0 ? "Frame9" : "Frame10");
    page->layout()->addWidget(cadre_page);
    auto* g = new QGridLayout(cadre_page);
    g->setColumnStretch(1, 1);
    for (int i = premier; i < premier + 5; ++i) {
        const QString n = QString::number(i + 1);
        lblLabels[i] = new QLabel(u"champ paramétable "_s + n, cadre_page);
        lblLabels[i]->setObjectName(u"lblLabels"_s + n);
        porteurs_aide[i] = new QLabel(u"infobulle"_s, cadre_page);
        porteurs_aide[i]->setObjectName(u"Label"_s + QString::number(i + 2));
        porteurs_aide[i]->hide();

        const bool plusieurs_lignes = i == 4 || i == 8 || i == 9;
        QWidget* saisie = nullptr;
        if (plusieurs_lignes) {
            saisie = zone_de_texte(cadre_page);
        } else {
            auto* e = new QLineEdit(cadre_page);
            limiter_saisie(*e, 50);
            saisie = e;
        }
        saisie->setObjectName(u"champ_paramétable"_s + n);
        champ_paramétable[i] = saisie;
        lblLabels[i]->setBuddy(saisie);
        const int ligne = i - premier;
        g->addWidget(lblLabels[i], ligne, 0, plusieurs_lignes ? Qt::AlignTop : Qt::Alignment());
        g->addWidget(saisie, ligne, 1);
    }
}

void feuille_élève::construire_documents(QWidget* page) {
    auto* Frame1 = cadre(page, "Frame1");
    page->layout()->addWidget(Frame1);
    auto* pile = new QVBoxLayout(Frame1);

    // A list to pick from: the templates are written on their own screen, never here.
    grdDataGrid = new DBGrid(Frame1);
    grdDataGrid->setObjectName(u"grdDataGrid"_s);
    grdDataGrid->addColumn(u"intitulé_bouton"_s, u"documents existants"_s);
    grdDataGrid->setDataSource(Data2);
    grdDataGrid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grdDataGrid->horizontalHeader()->setStretchLastSection(true);
    grdDataGrid->installEventFilter(new SansSuppression(grdDataGrid));
    // Nor does it offer the grid's empty line for a new template below the last one.
    grdDataGrid->setAllowAddNew(false);
    pile->addWidget(grdDataGrid, 1);

    Check1 = new QCheckBox(u"Impression directe sans prévisualisation"_s, Frame1);
    Check1->setObjectName(u"Check1"_s);
    pile->addWidget(Check1);
    auto* boutons = new QHBoxLayout;
    documents_suite =
        namedButton(Frame1, "documents_suite", "Imprimer le document sélectionné",
                    "Cliquez pour imprimer le document sélectionné dans la liste ci-dessus pour "
                    "l'élève en cours");
    Command6 = namedButton(Frame1, "Command6", "Modifier  le document sélectionné",
                           "Cliquez pour modifier le document sélectionné dans la liste ci-dessus");
    boutons->addWidget(documents_suite);
    boutons->addWidget(Command6);
    boutons->addStretch(1);
    pile->addLayout(boutons);
}

// What the rows do not place: the family button beside its reference, the photo right of the identity
// with its button under it.
void feuille_élève::finir_disposition(const FieldBuilder& disposition) {
    disposition.grid(u"Frame12"_s)->addWidget(Command4, 0, 3);
    référence_famille->setAlignment(Qt::AlignRight);
    Label12->setFixedWidth(Label12->fontMetrics().horizontalAdvance(u"## 99 a - 12 m - 30 j ##"_s));
    const QString identité = u"Frame3"_s;
    QGridLayout* grille = disposition.grid(identité);
    const int dernière = disposition.nextRow(identité) - 1;
    grille->addWidget(photo, 0, disposition.columns(identité), dernière, 1, Qt::AlignTop | Qt::AlignHCenter);
    grille->addWidget(Command14, dernière, disposition.columns(identité));
}

// The Tab key walks the fields in the order the school has always typed them, then the buttons.
void feuille_élève::poser_tabulation() {
    QList<QWidget*> suite;
    for (const char* nom : ordre_tabulation)
        suite.append(champ(texte(nom)));
    suite << Combo1 << référence_famille << Command4 << Check2 << cmdAjouter << cmdSupprimer << cmdRafraîchir
          << cmdMettreàjour << cmdFermer << Command3 << établissement_accueil << date_radiation << Command2
          << Command13 << Command15 << Command7 << Command5 << Command14 << Command12 << Command11
          << Command16 << Command8 << Command9 << Command10 << findChild<QWidget*>(u"grdDataGrid"_s) << Check1
          << Command6 << documents_suite;
    // The school's order runs through all eight pages.
    tabuler_à_travers_onglets(SSTab1, suite);
}

void feuille_élève::Form_Load() {
    FeuilleFiche::Form_Load();
    fixer_ordre(0);
}

void feuille_élève::fixer_ordre(int index) {
    Combo1->setCurrentIndex(index);
    Combo1_Click();
}

// Points datPrimaryRS at the open base in the list's order, on the first record: nothing of the
// former position is kept.
void feuille_élève::Combo1_Click() {
    avec_piège(ErrorBoxKind::standard, [this] {
        datPrimaryRS->setDatabaseName(module1().base_en_cours);
        datPrimaryRS->setRecordSource(requête_de_l_ordre(Combo1->currentText()));
        datPrimaryRS->Refresh();
    });
}

// A new pupil: a sibling of the current one or not, numbered one above the highest matricule, in the
// alphabetical order afterwards. Nothing is written until a save or a move.
void feuille_élève::cmdAjouter_Click() {
    avec_piège(ErrorBoxKind::standard, [this] {
        const int réponse = module1().interaction().MsgBox(
            QStringLiteral(
                "Voulez-vous ajouter une fiche dans la fratrie en cours (OUI) ou ajouter une fiche "
                "sans référence à la fratrie en cours (NON)..."),
            vbYesNoCancel + vbQuestion, QString::fromUtf8(titre_programme));
        if (réponse == vbCancel)
            return;
        const QString fratrie = réponse == vbYes ? référence_famille->text() : QString();

        fixer_ordre(0);
        const QString nouveau = format_zéros(numéro_suivant(*datPrimaryRS, ordre_des_matricules, *matricule));

        datPrimaryRS->setRecordSource(ordre_alphabétique);
        datPrimaryRS->Refresh();
        datPrimaryRS->Recordset().AddNew();
        matricule->setText(nouveau);
        if (réponse == vbYes)
            référence_famille->setText(fratrie);
    });
}

// Unlike the frame's plain refresh, the pupil screen reports a failure.
void feuille_élève::cmdRafraîchir_Click() {
    avec_piège(ErrorBoxKind::standard, [this] { datPrimaryRS->Refresh(); });
}

void feuille_élève::matricule_LostFocus() {
    avec_piège(ErrorBoxKind::standard, [this] {
        SSTab1->setCurrentIndex(0);
        if (!matricule->text().isEmpty())
            matricule->setText(format_zéros(matricule->text()));
    });
}

void feuille_élève::nom_enfant_LostFocus() {
    SSTab1->setCurrentIndex(0);
}

void feuille_élève::prénom_enfant_LostFocus() {
    SSTab1->setCurrentIndex(0);
}

void feuille_élève::brancher_recherches_et_âge() {
    surDblClick(matricule, [this] { matricule_DblClick(); });
    surDblClick(nom_enfant, [this] { nom_enfant_DblClick(); });
    QObject::connect(Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
    QObject::connect(Command13, &QPushButton::clicked, this, [this] { Command13_Click(); });
    QObject::connect(date_naissance, &QLineEdit::textChanged, this, [this] { date_naissance_Change(); });
}

// No trap: a failure of the search goes up to the event loop, which reports it.
void feuille_élève::matricule_DblClick() {
    positionner_par_matricule(*datPrimaryRS, module1().interaction());
}

void feuille_élève::nom_enfant_DblClick() {
    positionner_par_nom(*datPrimaryRS, module1().interaction());
}

void feuille_élève::Command2_Click() {
    matricule_DblClick();
}

void feuille_élève::Command13_Click() {
    nom_enfant_DblClick();
}

// An empty or unreadable date leaves the former pupil's age on show.
void feuille_élève::date_naissance_Change() {
    avec_piège(ErrorBoxKind::données, [this] {
        if (const auto âge = âge_du_texte(date_naissance->text(), module1().horloge().aujourdhui()))
            Label12->setText(*âge);
    });
}

namespace {

const QString pas_encore_liée = u"La fiche de l'élève n'est pas encore liée à la fiche des parents."_s;

// The family screen, unseen, on the family of this reference (compared by `comparaison`), in edit
// mode; or, with none, on the row it was on, in edit mode too. True when the family was found.
bool chercher_la_famille(feuille_famille& famille, const QString& référence, const QString& comparaison) {
    famille.datPrimaryRS->setRecordSource(u"SELECT * FROM familles"_s);
    famille.datPrimaryRS->Refresh();
    DataRecordset& familles = famille.datPrimaryRS->Recordset();
    familles.FindFirst(u"référence_famille "_s + comparaison + u" \""_s + référence + u"\""_s);
    familles.Edit();
    return !familles.NoMatch();
}

int question(const QString& texte) {
    return module1().interaction().MsgBox(texte, vbYesNo + vbQuestion, QString::fromUtf8(titre_programme));
}

// The next family, numbered without zeros: they come only if the user passes through the reference.
void commencer_une_famille(feuille_famille& famille) {
    const QString numéro = numéro_suivant(
        *famille.datPrimaryRS, u"SELECT * FROM familles ORDER BY référence_famille ASC"_s, *famille.Text13);
    famille.datPrimaryRS->setRecordSource(
        u"SELECT * FROM familles ORDER BY nom_responsable_légal ASC, prénom_responsable_légal ASC"_s);
    famille.datPrimaryRS->Refresh();
    famille.datPrimaryRS->Recordset().AddNew();
    famille.Text13->setText(numéro);
    famille.Show();
    famille.ZOrder();
}

} // namespace

// The pupil's reference is read as it stands on the screen, saved or not.
void feuille_élève::Command4_Click() {
    avec_piège(ErrorBoxKind::standard, [this] {
        ouvrir_table_familles();
        ouvrir_table_choix_famille();
        feuille_famille& famille = module1().feuilles().get<feuille_famille>();
        if (!référence_famille->text().isEmpty()) {
            if (!chercher_la_famille(famille, référence_famille->text(), u"LIKE"_s)) {
                question(u"La fiche de la famille n'existe pas... Créez-la!"_s);
                return;
            }
            famille.Show();
            famille.ZOrder();
            return;
        }
        if (question(pas_encore_liée + u"\n\n La fiche des parents a t-elle déjà été créée lors d'une saisie "
                                       u"précédente?"_s) == vbYes) {
            feuille_choix_famille& choix = module1().feuilles().get<feuille_choix_famille>();
            choix.bouton_accepter->setVisible(true);
            module1().origine_appel = 1;
            choix.Show();
            choix.ZOrder();
            return;
        }
        commencer_une_famille(famille);
    });
}

// A one-time copy: later changes of the family's address do not reach the pupil, and the telephones
// stay the pupil's own.
void feuille_élève::Command16_Click() {
    avec_piège(ErrorBoxKind::standard, [this] {
        ouvrir_table_familles();
        ouvrir_table_choix_famille();
        if (référence_famille->text().isEmpty())
            return;
        feuille_famille& famille = module1().feuilles().get<feuille_famille>();
        if (!chercher_la_famille(famille, référence_famille->text(), u"="_s)) {
            question(pas_encore_liée);
            return;
        }
        numéro_résidence->setText(famille.Text3->text());
        adresse_résidence->setText(famille.Text2->text());
        adresse2_résidence->setText(famille.Text1->text());
        code_postal_résidence->setText(famille.Text5->text());
        ville_résidence->setText(famille.Text4->text());
    });
}

// No path, or a file gone: the empty frame, without a word.
void feuille_élève::chemin_photo_Change() {
    avec_piège(ErrorBoxKind::standard, [this] { showPicture(*photo, chemin_photo->text()); });
}

void feuille_élève::Command14_Click() {
    avec_piège(ErrorBoxKind::standard, [] {
        feuille_choix_photo& choix = module1().feuilles().get<feuille_choix_photo>();
        choix.Show();
        choix.ZOrder();
    });
}

void feuille_élève::Command15_Click() {
    date_inscription->setText(module1().horloge().aujourdhui().toString(u"dd/MM/yyyy"_s));
}

// The template picked in the list opens on its own screen, ready to be changed; a name the list no
// longer holds opens a new template.
void feuille_élève::Command6_Click() {
    avec_piège(ErrorBoxKind::standard, [this] {
        ouvrir_table_documents();
        feuille_documents& documents = module1().feuilles().get<feuille_documents>();
        DataRecordset& rs = documents.datPrimaryRS->Recordset();
        rs.FindFirst(u"intitulé_bouton = \""_s + grdDataGrid->Text() + u"\""_s);
        rs.Edit();
        if (rs.NoMatch())
            rs.AddNew();
        documents.Show();
        documents.ZOrder();
    });
}

// Twice a second, on every record alike: only the caption blinks, never the box's value.
void feuille_élève::Timer1_Timer() {
    Check2->setText(Check2->text() == aîné ? QString() : aîné);
}

void étapes_en_plus_élèves(feuille_élève& élève, bool table_vide) {
    if (table_vide)
        élève.matricule->setText(u"000001"_s);
    ouvrir_table_documents();
    pointer_source(*élève.Data2, u"SELECT * FROM documents"_s);
}
