#pragma once

#include <QImage>
#include <QSize>
#include <QString>

class Database;

// A child's portrait drawn from a number, the same number giving the same face: a plain background,
// shoulders, a face with its hair, eyes and smile. Made for the demonstration, not taken from anyone.
QImage portrait(int numéro, QSize taille, bool garçon);

// The first `combien` pupils in matricule order get a portrait, saved as JPEG in `dossier` under
// their matricule, and its full path in chemin_photo.
void photographier_élèves(Database& base, const QString& dossier, int combien);
