#include "platform/forms/Placement.h"

#include "platform/forms/Feuille.h"
#include "platform/ui/ErrorBoxes.h"

#include <QGuiApplication>
#include <QScreen>
#include <cmath>

int en_pixels(double twips) {
    return static_cast<int>(std::lround(twips / twips_par_pixel));
}

PositionTwips position_centrée(double largeur_écran, double hauteur_écran, double largeur, double hauteur) {
    return {(hauteur_écran - hauteur) / 2 - 500, (largeur_écran - largeur) / 2};
}

PositionTwips position_centrée_haute(double largeur_écran, double hauteur_écran, double largeur,
                                     double hauteur) {
    return {(hauteur_écran - hauteur) / 2 - 1500, (largeur_écran - largeur) / 2 - 1000};
}

QSizeF taille_écran_twips() {
    const QScreen* écran = QGuiApplication::primaryScreen();
    const QSize pixels = écran ? écran->geometry().size() : QSize(0, 0);
    return {en_twips(pixels.width()), en_twips(pixels.height())};
}

namespace {

// A screen is measured at the size it will be shown at. A window never given a size takes the one
// its layout asks for when it is first shown (a child screen loaded while the main window is still
// hidden is such a one); measured before that, it is a default of a few pixels and lands far from
// where the rule puts it. So it takes that size now, as showing it would.
void mettre_en_page(QWidget& fenêtre) {
    if (!fenêtre.testAttribute(Qt::WA_Resized))
        fenêtre.adjustSize();
}

void placer(Feuille& feuille, PositionTwips (*règle)(double, double, double, double)) {
    QWidget& fenêtre = feuille.conteneur();
    mettre_en_page(fenêtre);
    fenêtre.move(position_sur_l_écran(fenêtre.frameGeometry().size(), règle));
}

} // namespace

QPoint position_sur_l_écran(QSize taille, PositionTwips (*règle)(double, double, double, double)) {
    const QSizeF écran = taille_écran_twips();
    const PositionTwips p =
        règle(écran.width(), écran.height(), en_twips(taille.width()), en_twips(taille.height()));
    return {en_pixels(p.left), en_pixels(p.top)};
}

void centrer_feuille(Feuille& feuille) {
    avec_piège(ErrorBoxKind::données, [&] { placer(feuille, position_centrée); });
}

void centrer_feuille_haute(Feuille& feuille) {
    avec_piège(ErrorBoxKind::données, [&] { placer(feuille, position_centrée_haute); });
}
