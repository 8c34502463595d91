#pragma once

#include <QPixmap>

// The splash's pictures, drawn rather than shipped, so that they stay sharp at any scale.
QPixmap dessin_école(const QSize& taille);  // the splash: a village school under a morning sky
QPixmap dessin_cahier(const QSize& taille); // the splash's small emblem: an exercise book and a pencil
