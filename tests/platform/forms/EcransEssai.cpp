#include "EcransEssai.h"

#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"

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
        CREATE TABLE journal (quoi TEXT);
        CREATE TRIGGER fiches_maj AFTER UPDATE ON fiches BEGIN INSERT INTO journal VALUES ('maj'); END;
        CREATE TRIGGER fiches_ajout AFTER INSERT ON fiches BEGIN INSERT INTO journal VALUES ('ajout'); END;
        CREATE TRIGGER valeurs_maj AFTER UPDATE ON valeurs BEGIN INSERT INTO journal VALUES ('maj'); END;
    )"));
    return chemin;
}

ConfigurationFiche feuille_essai::configuration_par_défaut() {
    ConfigurationFiche c;
    c.nom = QStringLiteral("feuille_essai");
    c.titre = QStringLiteral("Fiches");
    c.source_de_conception = QStringLiteral("fiches");
    return c;
}

feuille_essai::feuille_essai(ConfigurationFiche configuration) : FeuilleFiche(std::move(configuration)) {
    auto* disposition = new QVBoxLayout(corps());
    SSTab1 = new QTabWidget(corps());
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    auto* page0 = new QWidget;
    auto* page1 = new QWidget;
    SSTab1->addTab(page0, QStringLiteral("&Identité"));
    SSTab1->addTab(page1, QStringLiteral("&Notes"));
    disposition->addWidget(SSTab1);

    auto* identité = new QVBoxLayout(page0);
    nom = new QLineEdit(page0);
    nom->setObjectName(QStringLiteral("nom"));
    nom->setMaxLength(30);
    naissance = new QLineEdit(page0);
    naissance->setObjectName(QStringLiteral("naissance"));
    actif = new QCheckBox(QStringLiteral("actif"), page0);
    actif->setObjectName(QStringLiteral("actif"));
    identité->addWidget(nom);
    identité->addWidget(naissance);
    identité->addWidget(actif);

    auto* suite = new QVBoxLayout(page1);
    notes = new QPlainTextEdit(page1);
    notes->setObjectName(QStringLiteral("notes"));
    notes->setTabChangesFocus(true);
    libellé = new QLabel(page1);
    libellé->setObjectName(QStringLiteral("libellé"));
    suite->addWidget(notes);
    suite->addWidget(libellé);
    naissance_affichée = new QLabel(page1);
    naissance_affichée->setObjectName(QStringLiteral("naissance_affichée"));
    suite->addWidget(naissance_affichée);

    datPrimaryRS->bind(nom, QStringLiteral("nom"));
    datPrimaryRS->bind(naissance, QStringLiteral("naissance"));
    datPrimaryRS->bind(actif, QStringLiteral("actif"));
    datPrimaryRS->bind(notes, QStringLiteral("notes"));
    datPrimaryRS->bind(libellé, QStringLiteral("libellé"));
    datPrimaryRS->bind(naissance_affichée, QStringLiteral("naissance"));
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
