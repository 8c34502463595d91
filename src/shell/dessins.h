#pragma once

#include <QPixmap>

// The program's own pictures, drawn rather than shipped, so that they stay sharp at any scale.
QPixmap dessin_école(const QSize& taille);   // the splash: a village school under a morning sky
QPixmap dessin_cahier(const QSize& taille);  // the splash's small emblem: an exercise book and a pencil
QPixmap dessin_cadenas(const QSize& taille); // the access code box: a padlock
QPixmap dessin_clé(const QSize& taille);     // the access code box: a key
