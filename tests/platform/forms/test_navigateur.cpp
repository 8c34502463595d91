// The navigator's arrows as the user reads them: |< < > >|.
#include "platform/forms/DataControl.h"

#include <QImage>
#include <QToolButton>
#include <gtest/gtest.h>
#include <optional>

namespace {

// The picture of an arrow, as drawn on screen.
QImage image_de(const DataControl& navigateur, const char* bouton) {
    const auto* b = navigateur.findChild<QToolButton*>(QString::fromUtf8(bouton));
    if (b == nullptr || b->icon().isNull())
        return {};
    return b->icon().pixmap(b->iconSize()).toImage().convertToFormat(QImage::Format_ARGB32);
}

// Whether some column of the picture is inked over most of the inked height: the straight edge of a
// bar or of the triangle's base. `de` and `à` bound the columns looked at, as fractions of the width.
bool colonne_pleine(const QImage& image, double de, double à) {
    int haut = image.height(), bas = -1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > 128) {
                haut = std::min(haut, y);
                bas = std::max(bas, y);
            }
    if (bas < haut)
        return false;
    for (int x = int(de * image.width()); x < int(à * image.width()); ++x) {
        int encrés = 0;
        for (int y = haut; y <= bas; ++y)
            encrés += qAlpha(image.pixel(x, y)) > 128;
        if (encrés >= (bas - haut + 1) * 8 / 10)
            return true;
    }
    return false;
}

TEST(Navigateur, LesFlèchesDisentOùEllesMènentEnImageEtEnMots) {
    DataControl navigateur;
    const QImage premier = image_de(navigateur, "premier"), précédent = image_de(navigateur, "précédent"),
                 suivant = image_de(navigateur, "suivant"), dernier = image_de(navigateur, "dernier");
    for (const QImage* image : {&premier, &précédent, &suivant, &dernier})
        ASSERT_FALSE(image->isNull());
    EXPECT_TRUE(colonne_pleine(premier, 0.0, 0.35)) << "|< : the bar on the left";
    EXPECT_FALSE(colonne_pleine(précédent, 0.0, 0.35)) << "< : the tip alone on the left";
    EXPECT_TRUE(colonne_pleine(dernier, 0.65, 1.0)) << ">| : the bar on the right";
    EXPECT_FALSE(colonne_pleine(suivant, 0.65, 1.0)) << "> : the tip alone on the right";
    // And the triangles point the way: their straight base on the other side.
    EXPECT_TRUE(colonne_pleine(précédent, 0.6, 1.0));
    EXPECT_TRUE(colonne_pleine(suivant, 0.0, 0.4));
    // And in words, for the pointer and for a screen reader.
    const char* const mots[][2] = {{"premier", "Première fiche"},
                                   {"précédent", "Fiche précédente"},
                                   {"suivant", "Fiche suivante"},
                                   {"dernier", "Dernière fiche"}};
    for (const auto& [nom, texte] : mots) {
        const auto* b = navigateur.findChild<QToolButton*>(QString::fromUtf8(nom));
        EXPECT_EQ(b->accessibleName(), QString::fromUtf8(texte));
        EXPECT_EQ(b->toolTip(), QString::fromUtf8(texte));
    }
}

} // namespace
