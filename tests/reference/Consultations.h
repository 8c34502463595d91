#pragma once

#include "platform/forms/FeuilleFiche.h"
#include "shell/MDIForm1.h"
#include "support/BaseDirecte.h"
#include "support/Fixtures.h"

#include <QString>
#include <QStringList>
#include <memory>

class DBGrid;
class feuille_élève;
class feuille_équipe;

// The program started on a copy of the template, with its main window up and a few rows in the
// lookup tables the template leaves empty, one pupil and one teacher.
class ConsultationsTest : public WorkFolderTest {
protected:
    void SetUp() override;
    void TearDown() override;

    // A menu command, as the user picks it.
    void menu(const char* nom);
    feuille_élève& ouvrir_élève();
    feuille_équipe& ouvrir_équipe();
    // A screen by its name, loaded or nullptr.
    static FeuilleFiche* chargée(const QString& nom);

    QStringList fichier(const char* table, const char* colonne) const {
        return colonne_du_fichier(base, u(table), u(colonne));
    }

    QString base;
    std::unique_ptr<MDIForm1> mdi;
};

// A click on the cell of a grid, and a double click.
void cliquer_cellule(DBGrid& grille, int ligne, int colonne = 0);
void double_cliquer_cellule(DBGrid& grille, int ligne, int colonne = 0);
