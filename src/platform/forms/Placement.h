#pragma once

#include <QPoint>
#include <QSize>

class Feuille;
class QWidget;

// Lengths are in twips, 1440 to the inch. The program counts 15 twips to a pixel whatever the display:
// a Qt pixel is a device-independent pixel of 1/96 inch, and 1440 / 96 = 15.
inline constexpr double twips_par_pixel = 15.0;

inline double en_twips(int pixels) {
    return pixels * twips_par_pixel;
}
int en_pixels(double twips); // to the nearest pixel

struct PositionTwips {
    double top = 0;
    double left = 0;
};

// The placing rules, in floating point and not clipped: a screen taller than the display gets a
// negative top.
PositionTwips position_centrée(double largeur_écran, double hauteur_écran, double largeur, double hauteur);
PositionTwips position_centrée_haute(double largeur_écran, double hauteur_écran, double largeur,
                                     double hauteur);

// The whole display (not its free area, not the main window), in twips.
QSizeF taille_écran_twips();

// Where a rule puts a window of that size (in pixels) against the whole display, in pixels.
QPoint position_sur_l_écran(QSize taille, PositionTwips (*règle)(double, double, double, double));

// Place a screen against the whole display: 500 twips above centre; or, for the family screen,
// 1500 twips above and 1000 to the left of centre.
void centrer_feuille(Feuille& feuille);
void centrer_feuille_haute(Feuille& feuille);
