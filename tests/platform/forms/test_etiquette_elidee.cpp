// A long path in a label: both ends stay in sight, the whole text stays the label's own.
#include "platform/forms/EtiquetteElidee.h"

#include <QFontMetrics>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString chemin = QStringLiteral("/srv/Année scolaire 2025-2026 — école maternelle et élémentaire des "
                                      "Tilleuls/archives des inscriptions/base des élèves 2025.mdb");

TEST(ÉtiquetteÉlidée, UnCheminTropLongGardeSesDeuxBoutsEtSonTexteEntier) {
    ÉtiquetteÉlidée étiquette(chemin);
    étiquette.resize(étiquette.fontMetrics().horizontalAdvance(chemin) / 2, 24);
    const QString affiché = étiquette.texteAffiché();
    EXPECT_NE(affiché, chemin);
    EXPECT_TRUE(affiché.contains(u"…"_s));
    EXPECT_TRUE(affiché.startsWith(u"/srv/Ann"_s));
    EXPECT_TRUE(affiché.endsWith(u"élèves 2025.mdb"_s));
    EXPECT_LE(étiquette.fontMetrics().horizontalAdvance(affiché), étiquette.width());
    EXPECT_EQ(étiquette.text(), chemin);
}

TEST(ÉtiquetteÉlidée, UnCheminQuiTientEstMontréEntierEtNeFaitPasGrandirLaFenêtre) {
    ÉtiquetteÉlidée étiquette(chemin);
    EXPECT_LT(étiquette.minimumSizeHint().width(), 40);
    étiquette.resize(étiquette.fontMetrics().horizontalAdvance(chemin) + 20, 24);
    EXPECT_EQ(étiquette.texteAffiché(), chemin);
    étiquette.setText(QString());
    EXPECT_EQ(étiquette.texteAffiché(), "");
}

} // namespace
