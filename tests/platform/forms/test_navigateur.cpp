// The navigator's arrows as the user reads them: |< < > >|.
#include "platform/forms/DataControl.h"

#include <QIcon>
#include <QImage>
#include <QToolButton>
#include <gtest/gtest.h>

namespace {

TEST(Navigateur, LesFlèchesDisentOùEllesMènentEnImageEtEnMots) {
    DataControl navigateur;
    const char* const mots[][2] = {{"premier", "Première fiche"},
                                   {"précédent", "Fiche précédente"},
                                   {"suivant", "Fiche suivante"},
                                   {"dernier", "Dernière fiche"}};
    QList<QImage> images;
    for (const auto& [nom, texte] : mots) {
        const auto* b = navigateur.findChild<QToolButton*>(QString::fromUtf8(nom));
        ASSERT_NE(b, nullptr) << nom;
        EXPECT_EQ(b->accessibleName(), QString::fromUtf8(texte));
        EXPECT_EQ(b->toolTip(), QString::fromUtf8(texte));
        images << b->icon().pixmap(b->iconSize()).toImage();
        EXPECT_FALSE(images.back().isNull()) << nom;
    }
    // The pictures of the two ends, and of the two steps, mirror each other; an end is no step.
    EXPECT_EQ(images[0], images[3].mirrored(true, false));
    EXPECT_EQ(images[1], images[2].mirrored(true, false));
    EXPECT_NE(images[0], images[1]);
}

} // namespace
