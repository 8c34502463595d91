#include "platform/forms/Clignotement.h"
#include "platform/forms/Feuille.h"
#include "platform/forms/Placement.h"
#include "store/Module1.h"
#include "support/Fixtures.h"

#include <QGuiApplication>
#include <QLabel>
#include <QMdiArea>
#include <QScreen>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

// Centred: 500 twips above the middle; high: 1500 above and 1000 left of it. Halves stay, and a
// screen taller than the display gets a negative top rather than being clipped.
TEST(Placement, PositionsInTwips) {
    const struct {
        PositionTwips (*place)(double, double, double, double);
        double écran_l, écran_h, l, h, top, left;
    } cas[] = {
        {position_centrée, 15360, 11520, 6000, 4000, 3260, 4680},
        {position_centrée_haute, 15360, 11520, 6000, 4000, 2260, 3680},
        {position_centrée, 15361, 11521, 6000, 4000, 3260.5, 4680.5},
        {position_centrée, 15360, 11520, 20000, 12000, -740, -2320},
        {position_centrée_haute, 15360, 11520, 6000, 11520, -1500, 3680},
    };
    for (const auto& c : cas) {
        const PositionTwips p = c.place(c.écran_l, c.écran_h, c.l, c.h);
        EXPECT_DOUBLE_EQ(p.top, c.top) << c.l << "x" << c.h;
        EXPECT_DOUBLE_EQ(p.left, c.left) << c.l << "x" << c.h;
    }
}

TEST(Placement, FifteenTwipsToAPixel) {
    EXPECT_DOUBLE_EQ(en_twips(81), 1215);
    EXPECT_EQ(en_pixels(1455), 97);
    EXPECT_EQ(en_pixels(-740), -49);
    EXPECT_EQ(en_pixels(7.4), 0);
    EXPECT_EQ(en_pixels(7.6), 1);
}

namespace {

class feuille_placée : public Feuille {
public:
    feuille_placée() : Feuille(u"feuille_placée"_s, Genre::haut_niveau) { resize(400, 300); }
};

using PlacingAScreen = ScriptedTest;

} // namespace

// Measured against the whole display: the high place is higher and further left.
TEST_F(PlacingAScreen, CentrerFeuilleMeasuresTheWholeDisplayAndTheHighOneIsHigherAndFurtherLeft) {
    auto& f = module1().feuilles().get<feuille_placée>();
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    const QSize own = f.frameGeometry().size();
    centrer_feuille(f);
    EXPECT_NEAR(f.y(), (screen.height() - own.height()) / 2.0 - 500 / twips_par_pixel, 0.5);
    EXPECT_NEAR(f.x(), (screen.width() - own.width()) / 2.0, 0.5);
    const QPoint centred = f.pos();
    centrer_feuille_haute(f);
    EXPECT_NEAR(centred.x() - f.x(), 1000 / twips_par_pixel, 1);
    EXPECT_NEAR(centred.y() - f.y(), 1000 / twips_par_pixel, 1);
}

TEST(Colours, StoredWithBlueInTheHighByteAndShownBehindALabel) {
    EXPECT_EQ(couleur_vb(0x80FFFF), QColor(255, 255, 128)); // pale yellow
    EXPECT_EQ(couleur_vb(0xFF0000), QColor(0, 0, 255));     // pure blue
    EXPECT_EQ(valeur_vb(QColor(0, 0, 255)), 0xFF0000u);
    EXPECT_EQ(valeur_vb(couleur_vb(0x123456)), 0x123456u);
    QLabel label;
    fixer_BackColor(label, 0x80FFFF);
    EXPECT_TRUE(label.autoFillBackground()) << "without it a label's back colour does not show";
}
