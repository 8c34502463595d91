#include "Consultations.h"

#include "people/feuille_eleve.h"
#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"
#include "reference/feuille_equipe.h"
#include "shell/commandes.h"
#include "store/Module1.h"
#include "support/BaseDirecte.h"

#include <QApplication>
#include <QTest>

void ConsultationsTest::SetUp() {
    WorkFolderTest::SetUp();
    base = copie_du_modèle(folder);
    module1().base_en_cours = base;
    // Two known towns in place of the template's thousands, so that a grid row names a known town.
    for (const char* sql : {
             "DELETE * FROM villes",
             "INSERT INTO adresses (détails) VALUES (\"rue des Écoles\")",
             "INSERT INTO adresses (détails) VALUES (\"allée des Tilleuls\")",
             "INSERT INTO assurances (détails) VALUES (\"Mutuelle des Écoles\")",
             "INSERT INTO assurances (détails) VALUES (\"Assurance du Val\")",
             "INSERT INTO villes (code_postal, détails) VALUES (\"31000\", \"Toulouse\")",
             "INSERT INTO villes (code_postal, détails) VALUES (\"81100\", \"Castres\")",
             "INSERT INTO hôpitaux (nom, téléphone, adresse, ville) VALUES (\"Purpan\", \"0561000001\", "
             "\"place du Docteur Baylac\", \"Toulouse\")",
             "INSERT INTO hôpitaux (nom, téléphone, adresse, ville) VALUES (\"Rangueil\", \"0561000002\", "
             "\"avenue Jean Poulhès\", \"Toulouse\")",
             "INSERT INTO médecins (nom, téléphone, adresse, ville) VALUES (\"Dr Aubert\", \"0563000001\", "
             "\"rue Villegoudou\", \"Castres\")",
             "INSERT INTO médecins (nom, téléphone, adresse, ville) VALUES (\"Dr Bru\", \"0563000002\", "
             "\"rue Sabatier\", \"Castres\")",
             "INSERT INTO élèves (matricule, nom_élève, prénom_élève) VALUES (\"000001\", \"MARTIN\", "
             "\"Léa\")",
             "INSERT INTO équipe (nom_enseignant, référence_classe_enseignant, niveau_classe_enseignant, "
             "cycle_classe_enseignant) VALUES (\"DURAND\", \"12\", \"CE1\", \"2\")",
         })
        exécuter_par_le_moteur(base, u(sql));
    mdi = std::make_unique<MDIForm1>();
    mdi->show();
    QApplication::setActiveWindow(mdi.get());
}

void ConsultationsTest::TearDown() {
    WorkFolderTest::TearDown();
    mdi.reset();
}

void ConsultationsTest::menu(const char* nom) {
    exécuter_commande(*mdi, u(nom));
}

feuille_élève& ConsultationsTest::ouvrir_élève() {
    menu("menuenfantsindex1");
    auto* f = module1().feuilles().siChargée<feuille_élève>();
    if (!f)
        throw std::runtime_error("la fiche élève ne s'est pas ouverte");
    return *f;
}

feuille_équipe& ConsultationsTest::ouvrir_équipe() {
    menu("menuparamètresindex3");
    auto* f = module1().feuilles().siChargée<feuille_équipe>();
    if (!f)
        throw std::runtime_error("la fiche enseignant ne s'est pas ouverte");
    return *f;
}

FeuilleFiche* ConsultationsTest::chargée(const QString& nom) {
    for (Feuille* f : module1().feuilles().chargées())
        if (f->objectName() == nom)
            return dynamic_cast<FeuilleFiche*>(f);
    return nullptr;
}

namespace {

QPoint centre(DBGrid& grille, int ligne, int colonne) {
    return grille.visualRect(grille.model()->index(ligne, colonne)).center();
}

} // namespace

void cliquer_cellule(DBGrid& grille, int ligne, int colonne) {
    QTest::mouseClick(grille.viewport(), Qt::LeftButton, {}, centre(grille, ligne, colonne));
}

void double_cliquer_cellule(DBGrid& grille, int ligne, int colonne) {
    cliquer_cellule(grille, ligne, colonne);
    QTest::mouseDClick(grille.viewport(), Qt::LeftButton, {}, centre(grille, ligne, colonne));
}
