#pragma once

#include "support/Fixtures.h"

#include <QString>
#include <QStringList>

// A work base for the pupil screens, and direct reads and writes of its file that bypass the program.
QString créer_base_élèves(const WorkFolder& dossier);

void sql_direct(const QString& chemin, const QString& sql);
// The values of a column, in the file's row order; "<null>" for a null.
QStringList colonne_du_fichier(const QString& chemin, const QString& table, const QString& colonne);
// A pupil written straight into the file.
void ajouter_élève(const QString& chemin, const QString& matricule, const QString& nom = {},
                   const QString& prénom = {}, const QString& référence = {});
