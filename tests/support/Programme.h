#pragma once

#include "platform/forms/DataControl.h"
#include "platform/forms/FeuilleFiche.h"
#include "shell/MDIForm1.h"
#include "store/Module1.h"
#include "support/BaseDirecte.h"
#include "support/Fixtures.h"
#include "support/PiloteEcran.h"

#include <memory>

class DBGrid;
class feuille_élève;
class feuille_famille;
class feuille_équipe;

// The program on a fresh copy of the template (no pupil, no teacher, the template's lookups and
// letters), its main window up.
class ProgrammeSurModèle : public WorkFolderTest {
protected:
    void SetUp() override;
    void TearDown() override;

    // A menu command, as the user picks it.
    void menu(const char* nom);
    // "Gestion du fichier des &Elèves"; `activer` also brings its window in front and active.
    feuille_élève& ouvrir_élève(bool activer = false);
    feuille_équipe& ouvrir_équipe();
    // A screen by its name, loaded or nullptr.
    static FeuilleFiche* chargée(const QString& nom);

    // The file, behind the program's back.
    void sql(const char* jet) const { exécuter_par_le_moteur(base, u(jet)); }
    QStringList fichier(const char* table, const char* colonne) const {
        return colonne_du_fichier(base, u(table), u(colonne));
    }
    void ajouter_élève(const QString& matricule, const QString& nom = {}, const QString& prénom = {},
                       const QString& référence = {}) const;
    // A row of any table, as "colonne=valeur|colonne=valeur"; a family, so written.
    void ajouter_ligne(const QString& table, const QString& valeurs) const;
    void ajouter_famille(const QString& valeurs) const { ajouter_ligne(u("familles"), valeurs); }
    // "Gestion du fichier des &Familles".
    feuille_famille& ouvrir_familles();
    // The rows of tests/data/consultations_lignes.tsv: a few known values in the lookups, one pupil and
    // one teacher.
    void remplir_consultations() const;

    QString base;
    std::unique_ptr<MDIForm1> mdi;
};

// A click on the cell of a grid, and a double click.
void cliquer_cellule(DBGrid& grille, int ligne, int colonne = 0);
void double_cliquer_cellule(DBGrid& grille, int ligne, int colonne = 0);
