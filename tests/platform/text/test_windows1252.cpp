#include "platform/text/Windows1252.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Windows1252, LesLettresFrançaisesEtLesSignesDeLaPage) {
    const QString texte = u"Élève àéèêëîïôùûüç ÀÇ œŒ € « » …"_s;
    const QByteArray octets = vers_windows1252(texte);
    EXPECT_EQ(octets.size(), texte.size());
    EXPECT_EQ(octets[0], '\xC9');
    EXPECT_TRUE(octets.contains('\x9C')); // œ
    EXPECT_TRUE(octets.contains('\x80')); // €
    EXPECT_EQ(depuis_windows1252(octets), texte);
}

TEST(Windows1252, CeQueLaPageNePeutTenirDevientUnPointDInterrogation) {
    EXPECT_EQ(vers_windows1252(u"Łódź"_s), QByteArray("?\xF3"
                                                      "d?"));
    EXPECT_EQ(vers_windows1252(u"a😀b"_s), QByteArray("a?b"));
    QByteArray octets("x");
    EXPECT_EQ(ajouter_en_windows1252(octets, u"?Ł😀é"_s), 2);
    EXPECT_EQ(octets, QByteArray("x???\xE9"));
}

TEST(Windows1252, LesOctetsInutilisésRestentLisibles) {
    EXPECT_EQ(depuis_windows1252(QByteArray("\x81\x8D", 2)), QString(QChar(0x81)) + QChar(0x8D));
}
