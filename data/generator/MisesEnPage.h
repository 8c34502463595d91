#pragma once

#include <QString>
#include <QStringList>

// The report layouts shipped with the program (data/layouts), and their guide.

// Their file names, the guide apart.
QStringList mises_en_page();

// Writes into `dossier` every layout that is not there yet, and the guide as LISEZMOI_ETATS.md: a
// layout the school changed stays as it is. Returns the names written; false in `ok` on a failed write.
QStringList écrire_mises_en_page(const QString& dossier, bool* ok = nullptr);
