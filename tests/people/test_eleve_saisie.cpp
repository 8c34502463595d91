// Typing on the pupil screen: the Tab key's walk, the pages that follow the focus, the matricule padding
// and the date of the day.
#include "people/feuille_eleve.h"
#include "store/Module1.h"
#include "support/Donnees.h"
#include "support/Fixtures.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class SaisieEleve : public ScriptedTest {
protected:
    std::unique_ptr<feuille_élève> f;

    void SetUp() override {
        ScriptedTest::SetUp();
        f = std::make_unique<feuille_élève>();
        f->show();
        QApplication::setActiveWindow(f.get());
        ASSERT_TRUE(QTest::qWaitForWindowActive(f.get()));
    }
    void TearDown() override {
        f.reset();
        ScriptedTest::TearDown();
    }
    void focus(const QString& nom) { focus(f->findChild<QWidget*>(nom)); }
    void focus(QWidget* w) {
        w->setFocus(Qt::OtherFocusReason);
        QApplication::processEvents();
    }
};

TEST_F(SaisieEleve, TheTabKeyWalksTheFieldsAcrossThePagesInTheSchoolsOrder) {
    focus(f->matricule);
    for (const QStringList& c : table_de_données(u"eleve_tabulation.tsv"_s)) {
        SCOPED_TRACE(c[0].toStdString());
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), c[0]);
        EXPECT_EQ(f->SSTab1->currentIndex(), c[1].toInt());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QApplication::processEvents();
    }
    // Neither the radiation fields nor a disabled lookup field come before the buttons.
    EXPECT_NE(QApplication::focusWidget()->objectName(), u("établissement_accueil"));
    EXPECT_TRUE(QApplication::focusWidget()->isEnabled());
}

TEST_F(SaisieEleve, LeavingAHeaderFieldBringsBackTheIdentityTab) {
    for (QLineEdit* entête : {f->matricule, f->nom_enfant, f->prénom_enfant}) {
        focus(entête);
        f->SSTab1->setCurrentIndex(4);
        focus(f->Combo1);
        EXPECT_EQ(f->SSTab1->currentIndex(), 0) << entête->objectName().toStdString();
    }
}

TEST_F(SaisieEleve, LeavingTheMatriculePadsANumberAndKeepsAnythingElse) {
    for (const auto& [tapé, après] : {std::pair{"42", "000042"},
                                      {"abc", "abc"},
                                      {"000042", "000042"},
                                      {"1234567", "1234567"},
                                      {"", ""}}) {
        f->matricule->clear();
        focus(f->matricule);
        QTest::keyClicks(f->matricule, u(tapé));
        focus(f->nom_enfant);
        EXPECT_EQ(f->matricule->text(), u(après)) << tapé;
    }
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(SaisieEleve, TheInscriptionButtonWritesTodayOverWhatStood) {
    module1().horloge().fixer(QDateTime(QDate(2026, 9, 3), QTime(8, 30)));
    f->date_inscription->setText(u("01/01/2020"));
    QTest::mouseClick(f->Command15, Qt::LeftButton);
    EXPECT_EQ(f->date_inscription->text(), u("03/09/2026"));
}

TEST_F(SaisieEleve, AFocusGivenByCodeToAFieldOfAHiddenPageTurnsToThatPage) {
    for (const auto& [champ, onglet] : {std::pair{"date_naissance", 0},
                                        {"cursus_allongé_élève", 1},
                                        {"téléphone1_résidence", 3},
                                        {"nom_contact3", 2},
                                        {"champ_paramétable9", 6},
                                        {"observations_générales", 4},
                                        {"Check1", 7}}) {
        f->SSTab1->setCurrentIndex(5);
        focus(u(champ));
        EXPECT_EQ(f->SSTab1->currentIndex(), onglet) << champ;
        EXPECT_EQ(QApplication::focusWidget()->objectName(), u(champ));
    }
}

// A click on a tab shows that page, also when the focus stood in a field of the page it leaves: the
// field's neighbour in the school's order must not pull the old page back over the new one.
TEST_F(SaisieEleve, AClickOnATabShowsItsPageWhereverTheFocusStood) {
    QTabBar* barre = f->SSTab1->tabBar();
    for (const auto& [champ, onglet] : {std::pair{"cursus_allongé_élève", 0},
                                        {"lieu_naissance", 3},
                                        {"nom_contact2", 1},
                                        {"champ_paramétable4", 7},
                                        {"observations_générales", 2}}) {
        focus(u(champ));
        QTest::mouseClick(barre, Qt::LeftButton, {}, barre->tabRect(onglet).center());
        QApplication::processEvents();
        EXPECT_EQ(f->SSTab1->currentIndex(), onglet) << champ;
        EXPECT_TRUE(f->SSTab1->widget(onglet)->isVisible()) << champ;
    }
}

} // namespace
