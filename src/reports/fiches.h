#pragma once

#include <QString>

// The sheet of the record on a screen: the layout, beside the program, selected on the record's key,
// in the preview maximised (a direct run, so that nothing is saved first and the sheet shows the record
// as stored). A failure, such as a key that breaks the formula, shows the data error box.
void imprimer_la_fiche(const QString& fichier, const QString& sélection);

// The selections of the two sheets: the key compared as text, quoted as it stands.
QString sélection_de_l_élève(const QString& matricule);
QString sélection_de_la_famille(const QString& référence_famille);
