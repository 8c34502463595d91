#pragma once

#include "support/BaseDirecte.h"
#include "support/Fixtures.h"

#include <QString>
#include <QStringList>
#include <initializer_list>
#include <memory>

class MDIForm1;
class feuille_élève;
class feuille_famille;

// A fresh work base for the pupil screens, copied from the template: no pupil, no parameters, the
// template's letters.
QString créer_base_élèves(const WorkFolder& dossier);

// A pupil written into the file behind the program's back.
void ajouter_élève(const QString& chemin, const QString& matricule, const QString& nom = {},
                   const QString& prénom = {}, const QString& référence = {});
// Pupils known by their matricule alone, each named "NOM" and the matricule.
void ajouter_élèves(const QString& chemin, std::initializer_list<const char*> matricules);

// A row written into the file behind the program's back, as "colonne=valeur|colonne=valeur".
void ajouter_ligne(const QString& chemin, const QString& table, const QString& valeurs);
// A family, so written.
void ajouter_famille(const QString& chemin, const QString& valeurs);

// The pupil screen over a fresh work base, in the main window, as the user reaches it.
class ÉcranÉlèveTest : public WorkFolderTest {
protected:
    QString base;
    std::unique_ptr<MDIForm1> mdi;
    bool activer = false; // ouvrir() also brings the screen's window in front and active

    ÉcranÉlèveTest();
    ~ÉcranÉlèveTest() override;
    void SetUp() override;
    void TearDown() override;

    // "Gestion du fichier des &Elèves", as the user picks it in the menu.
    feuille_élève& ouvrir();
    // "Gestion du fichier des &Familles".
    feuille_famille& ouvrir_familles();
    QStringList matricules() const;
};
