#pragma once

#include <QString>
#include <QStringList>

// The work file as it lies on disk, read and changed behind the program's back with SQLite itself:
// what a screen wrote, another user's change, or a test's own change of the schema.

// Runs SQL statements straight on the file.
void sql_direct(const QString& chemin, const QString& sql);
// The values of one column in rowid order; a null reads "<null>".
QStringList colonne_du_fichier(const QString& chemin, const QString& table, const QString& colonne);
// Adds a table `journal` and triggers that log every UPDATE and INSERT on the tables named.
void journaliser_écritures(const QString& chemin, const QStringList& tables);
int écritures_journalisées(const QString& chemin);

// Runs a statement of the Jet dialect through the program's own engine (schema changes on tables
// whose text columns use the engine's collation).
void exécuter_par_le_moteur(const QString& chemin, const QString& sql);

class WorkFolder;
// A fresh copy of the template base in the work folder, named "travail.mdb".
QString copie_du_modèle(const WorkFolder& dossier);
