#include "support/Programme.h"

#include "people/feuille_eleve.h"
#include "people/feuille_famille.h"
#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"
#include "reference/feuille_equipe.h"
#include "shell/commandes.h"
#include "store/Module1.h"
#include "support/Donnees.h"
#include "support/PiloteEcran.h"

#include <QApplication>
#include <QTest>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

template <class F> F& chargée_ou_échec(const char* quoi) {
    auto* f = module1().feuilles().siChargée<F>();
    if (!f)
        throw std::runtime_error(quoi);
    return *f;
}

QPoint centre(DBGrid& grille, int ligne, int colonne) {
    return grille.visualRect(grille.model()->index(ligne, colonne)).center();
}

} // namespace

void ProgrammeSurModèle::SetUp() {
    WorkFolderTest::SetUp();
    base = copie_du_modèle(folder);
    module1().base_en_cours = base;
    mdi = std::make_unique<MDIForm1>();
    mdi->show();
    QApplication::setActiveWindow(mdi.get());
}

void ProgrammeSurModèle::TearDown() {
    WorkFolderTest::TearDown();
    mdi.reset();
}

void ProgrammeSurModèle::menu(const char* nom) {
    exécuter_commande(*mdi, u(nom));
}

feuille_élève& ProgrammeSurModèle::ouvrir_élève(bool activer) {
    menu("menuenfantsindex1");
    auto& f = chargée_ou_échec<feuille_élève>("la fiche élève ne s'est pas ouverte");
    if (activer)
        montrer_active(f);
    return f;
}

feuille_équipe& ProgrammeSurModèle::ouvrir_équipe() {
    menu("menuparamètresindex3");
    return chargée_ou_échec<feuille_équipe>("la fiche enseignant ne s'est pas ouverte");
}

FeuilleFiche* ProgrammeSurModèle::chargée(const QString& nom) {
    for (Feuille* f : module1().feuilles().chargées())
        if (f->objectName() == nom)
            return dynamic_cast<FeuilleFiche*>(f);
    return nullptr;
}

void ProgrammeSurModèle::ajouter_élève(const QString& matricule, const QString& nom, const QString& prénom,
                                       const QString& référence) const {
    auto texte = [](const QString& v) {
        return v.isNull() ? u"NULL"_s : u'\'' + QString(v).replace(u'\'', u"''"_s) + u'\'';
    };
    exécuter_par_le_moteur(
        base,
        u"INSERT INTO élèves (matricule, nom_élève, prénom_élève, référence_famille) "
        u"VALUES (%1, %2, %3, %4)"_s.arg(texte(matricule), texte(nom), texte(prénom), texte(référence)));
}

void ProgrammeSurModèle::remplir_consultations() const {
    for (const QStringList& instruction : table_de_données(u"consultations_lignes.tsv"_s))
        exécuter_par_le_moteur(base, instruction[0]);
}

void cliquer_cellule(DBGrid& grille, int ligne, int colonne) {
    QTest::mouseClick(grille.viewport(), Qt::LeftButton, {}, centre(grille, ligne, colonne));
}

void double_cliquer_cellule(DBGrid& grille, int ligne, int colonne) {
    cliquer_cellule(grille, ligne, colonne);
    QTest::mouseDClick(grille.viewport(), Qt::LeftButton, {}, centre(grille, ligne, colonne));
}

void ProgrammeSurModèle::ajouter_ligne(const QString& table, const QString& valeurs) const {
    QStringList colonnes, textes;
    for (const QString& paire : valeurs.split(u'|')) {
        colonnes << paire.section(u'=', 0, 0);
        textes << u"'"_s + paire.section(u'=', 1).replace(u"'"_s, u"''"_s) + u"'"_s;
    }
    exécuter_par_le_moteur(base, u"INSERT INTO "_s + table + u" ("_s + colonnes.join(u", "_s) +
                                     u") VALUES ("_s + textes.join(u", "_s) + u")"_s);
}

feuille_famille& ProgrammeSurModèle::ouvrir_familles() {
    menu("menuenfantsindex2");
    auto* f = module1().feuilles().siChargée<feuille_famille>();
    if (!f)
        throw std::runtime_error("la fiche famille ne s'est pas ouverte");
    return *f;
}
