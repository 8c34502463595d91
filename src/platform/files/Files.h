#pragma once

#include <QString>

// The file functions of the program, failing as the classic runtime does, with a VbError:
// 53 file not found, 76 path not found, 70 permission denied (also: the file is held by an open
// database), 75 path/file access error (a folder, a read-only file or medium), 58 file already exists,
// 61 disk full.

// The name (without its folder) of the first normal file that `chemin` names, or "" when there is
// none. The name part may hold the wildcards * and ?. Folders and hidden files are not seen.
QString Dir(const QString& chemin);

// Deletes a file. A read-only file is refused with 75, as on the system the users know.
void Kill(const QString& chemin);

// Copies a file over whatever the target holds. The copy is written aside, flushed to the disk and put
// in place at the end (dao::SideFile), so a failure, a kill or a power cut never leaves a half-written
// target; the copy that such an interruption left aside goes at the next copy to the same target. The
// source is held for the copy: nobody opens it to write meanwhile, and a source in use is refused (70).
void FileCopy(const QString& source, const QString& cible);

// Makes one folder; its parent must exist. 75 when the name is taken.
void MkDir(const QString& chemin);

// Removes an empty folder.
void RmDir(const QString& chemin);

// Renames or moves a file; 58 when the new name is taken.
void Name(const QString& ancien, const QString& nouveau);

// Whether an open database of this program, or of another running copy, holds the file. Every open
// database holds a shared dao::FileLock on its file, and Kill and FileCopy are refused with 70 while
// one does.
bool fichier_verrouillé(const QString& chemin);
