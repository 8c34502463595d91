#include "EcransEssai.h"

#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/LimiteSaisie.h"

#include "support/BaseDirecte.h"
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QVBoxLayout>

QString créer_base_essai(const WorkFolder& dossier) {
    const QString chemin = dossier.file(QStringLiteral("essai.mdb"));
    sql_direct(chemin, QStringLiteral(R"(
        CREATE TABLE fiches (nom TEXT(30), naissance DATE, actif BOOLEAN, notes MEMO, libellé TEXT(20));
        INSERT INTO fiches VALUES ('Alpha', '2015-02-01', 1, 'première', 'un');
        INSERT INTO fiches VALUES ('Bravo', '2016-03-02', 0, 'deuxième', 'deux');
        INSERT INTO fiches VALUES ('Charlie', NULL, 1, NULL, 'trois');
        CREATE TABLE valeurs (code TEXT(5), détails TEXT(50));
        INSERT INTO valeurs VALUES ('A', 'Ananas');
        INSERT INTO valeurs VALUES ('B', 'Banane');
        INSERT INTO valeurs VALUES ('C', 'Cerise');
    )"));
    journaliser_écritures(chemin, {QStringLiteral("fiches"), QStringLiteral("valeurs")});
    return chemin;
}

ConfigurationFiche feuille_essai::configuration_par_défaut() {
    ConfigurationFiche c;
    c.nom = QStringLiteral("feuille_essai");
    c.titre = QStringLiteral("Fiches");
    c.source_de_conception = QStringLiteral("fiches");
    return c;
}

namespace {

// A control named after its column, laid out on its page and bound to that column.
template <class W> W* lié(DataControl& données, QWidget* page, const char* nom, const char* colonne) {
    auto* w = new W(page);
    w->setObjectName(QString::fromUtf8(nom));
    page->layout()->addWidget(w);
    données.bind(w, QString::fromUtf8(colonne));
    return w;
}

} // namespace

feuille_essai::feuille_essai(ConfigurationFiche configuration) : FeuilleFiche(std::move(configuration)) {
    auto* disposition = new QVBoxLayout(corps());
    SSTab1 = new QTabWidget(corps());
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    auto* identité = new QWidget;
    auto* suite = new QWidget;
    new QVBoxLayout(identité);
    new QVBoxLayout(suite);
    SSTab1->addTab(identité, QStringLiteral("&Identité"));
    SSTab1->addTab(suite, QStringLiteral("&Notes"));
    disposition->addWidget(SSTab1);

    nom = lié<QLineEdit>(*datPrimaryRS, identité, "nom", "nom");
    limiter_saisie(*nom, 30);
    naissance = lié<QLineEdit>(*datPrimaryRS, identité, "naissance", "naissance");
    actif = lié<QCheckBox>(*datPrimaryRS, identité, "actif", "actif");
    notes = lié<QPlainTextEdit>(*datPrimaryRS, suite, "notes", "notes");
    notes->setTabChangesFocus(true);
    libellé = lié<QLabel>(*datPrimaryRS, suite, "libellé", "libellé");
    naissance_affichée = lié<QLabel>(*datPrimaryRS, suite, "naissance_affichée", "naissance");
}

void feuille_essai::datPrimaryRS_Validate(int& Action, bool& Save) {
    actions.push_back(Action);
    FeuilleFiche::datPrimaryRS_Validate(Action, Save);
}

feuille_grille_essai::feuille_grille_essai()
    : FeuilleFiche(table_de_consultation(QStringLiteral("feuille_grille_essai"),
                                         QStringLiteral("Table des valeurs"), QStringLiteral("valeurs"),
                                         {{QStringLiteral("code"), QStringLiteral("code")},
                                          {QStringLiteral("détails"), QStringLiteral("détails")}})) {}

void feuille_grille_essai::bouton_accepter_Click() {
    grdDataGrid->setCol(1);
    acceptés << grdDataGrid->Text();
}
