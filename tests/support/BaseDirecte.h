#pragma once

#include <QString>
#include <QStringList>
#include <optional>

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
// The template basevide.mdz that this build generated.
QString template_path();
// A fresh, writable copy of the template in the work folder.
QString copie_du_modèle(const WorkFolder& dossier, const QString& nom = QStringLiteral("travail.mdb"));

// A small work database for the opening tests: the table of the access code, and whatever `en_plus`
// creates. `code` empty gives a row with an empty code; no value gives an empty table.
QString créer_base_de_test(const QString& chemin, const std::optional<QString>& code = QString(),
                           const QString& en_plus = QString());

// Makes a folder the process's current one for as long as the object lives.
class DossierCourant {
public:
    explicit DossierCourant(const QString& dossier);
    ~DossierCourant();
    DossierCourant(const DossierCourant&) = delete;
    DossierCourant& operator=(const DossierCourant&) = delete;

private:
    QString ancien_;
};
