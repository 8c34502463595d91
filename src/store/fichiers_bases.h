#pragma once

#include <QString>

// The file steps of the commands on bases, without their boxes: what the chooser's buttons do to the
// files once the user has answered. Each step is one of the runtime's file functions (Dir, Kill,
// FileCopy, CompactDatabase), each of them complete or without effect.

// The files with a fixed name that the commands use beside the bases.
inline const QString nom_modèle = QStringLiteral("basevide.mdz");
inline const QString nom_copie_avant_compactage = QStringLiteral("sauvegarde_avant_compactage.mdb");
inline const QString nom_compactage = QStringLiteral("compactage.cpg");
inline const QString nom_sauvegarde = QStringLiteral("sauvegarde.mdb");
inline const QString nom_restauration = QStringLiteral("sauvegarde_restaurée.mdb");

// A name typed in a prompt, trimmed, with ".mdb" added unless it ends so already, in any case.
QString nom_complété(const QString& saisi);

// The file `nom` in `dossier`, with one separator between them even at the root of a drive.
QString dans_le_dossier(const QString& dossier, const QString& nom);

// A folder as a backup or restore works with it: trimmed, ending with one separator.
QString chemin_avec_séparateur(const QString& dossier);

// Whether the file exists, as Dir sees it (a normal file).
bool existe(const QString& fichier);

// The compaction of `base` in its folder: a byte copy of it kept as the safety copy, the compacted
// copy made aside as "compactage.cpg", then the base replaced by that copy. Both copies stay.
void compacter_sur_place(const QString& dossier_bases, const QString& base);

// A compacted copy of `source` at `cible`, put in place of whatever `cible` was.
void compacter_en_remplaçant(const QString& source, const QString& cible);
