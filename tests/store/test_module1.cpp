#include "platform/ui/QtInteraction.h"
#include "store/Module1.h"
#include "support/Fixtures.h"

using namespace Qt::StringLiterals;

// The start state: empty paths, 0, the real clock and the real dialogs.
TEST(Module1, ResetBringsBackTheStartState) {
    module1().base_en_cours = u"/bases/école.mdb"_s;
    module1().chemin_application = u"/travail/"_s;
    module1().chemin_choisi = u"/bases/"_s;
    module1().chemin_image_choisie = u"/photos/a.jpg"_s;
    module1().origine_appel = 7;
    module1().horloge().fixer(QDateTime(QDate(2024, 9, 2), QTime(8, 30)));
    module1().setInteraction(std::make_shared<ScriptedInteraction>());
    module1().réinitialiser();
    EXPECT_TRUE(module1().base_en_cours.isEmpty());
    EXPECT_TRUE(module1().chemin_application.isEmpty());
    EXPECT_TRUE(module1().chemin_choisi.isEmpty());
    EXPECT_TRUE(module1().chemin_image_choisie.isEmpty());
    EXPECT_EQ(module1().origine_appel, 0);
    EXPECT_NE(module1().horloge().aujourdhui(), QDate(2024, 9, 2));
    EXPECT_NE(dynamic_cast<QtInteraction*>(&module1().interaction()), nullptr);
}
