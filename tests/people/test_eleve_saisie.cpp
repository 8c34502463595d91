// Typing on the pupil screen: the Tab key's walk, the pages that follow the focus, the matricule padding
// and the date of the day.
#include "people/feuille_élève.h"
#include "platform/forms/Module1.h"
#include "support/Fixtures.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <memory>

namespace {

QString u(const char* utf8) {
    return QString::fromUtf8(utf8);
}

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
    void focus(QWidget* w) {
        w->setFocus(Qt::OtherFocusReason);
        QApplication::processEvents();
    }
    void tab() {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QApplication::processEvents();
    }
};

TEST_F(SaisieEleve, TheTabKeyWalksTheFieldsAcrossThePagesInTheSchoolsOrder) {
    const struct {
        const char* champ;
        int onglet;
    } ordre[] = {
        {"matricule", 0},
        {"nom_enfant", 0},
        {"prénom_enfant", 0},
        {"code_nationalité", 0},
        {"date_naissance", 0},
        {"lieu_naissance", 0},
        {"date_inscription", 0},
        {"cursus_allongé_élève", 1},
        {"saisine_ccpe_élève", 1},
        {"nom_contact1", 2},
        {"prénom_contact1", 2},
        {"téléphone_contact1", 2},
        {"nom_contact2", 2},
        {"prénom_contact2", 2},
        {"téléphone_contact2", 2},
        {"nom_contact3", 2},
        {"prénom_contact3", 2},
        {"téléphone_contact3", 2},
        {"nom_contact4", 2},
        {"prénom_contact4", 2},
        {"téléphone_contact4", 2},
        {"nom_contact5", 2},
        {"prénom_contact5", 2},
        {"téléphone_contact5", 2},
        {"numéro_résidence", 3},
        {"adresse2_résidence", 3},
        {"téléphone1_résidence", 3},
        {"téléphone2_résidence", 3},
        {"vaccinations", 4},
        {"allergies", 4},
        {"contre_indications", 4},
        {"observations_médicales", 4},
        {"coopérative_scolaire", 4},
        {"restauration_scolaire", 4},
        {"participation_usep", 4},
        {"observations_générales", 4},
        {"champ_paramétable1", 5},
        {"champ_paramétable2", 5},
        {"champ_paramétable3", 5},
        {"champ_paramétable4", 5},
        {"champ_paramétable5", 5},
        {"champ_paramétable6", 6},
        {"champ_paramétable7", 6},
        {"champ_paramétable8", 6},
        {"champ_paramétable9", 6},
        {"champ_paramétable10", 6},
    };
    focus(f->matricule);
    for (const auto& étape : ordre) {
        SCOPED_TRACE(étape.champ);
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), u(étape.champ));
        EXPECT_EQ(f->SSTab1->currentIndex(), étape.onglet);
        tab();
    }
    // Neither the radiation fields nor a disabled lookup field come before the buttons.
    EXPECT_NE(QApplication::focusWidget()->objectName(), u("établissement_accueil"));
    EXPECT_TRUE(QApplication::focusWidget()->isEnabled());
}

TEST_F(SaisieEleve, LeavingAHeaderFieldBringsBackTheIdentityTab) {
    for (QLineEdit* entête : {f->matricule, f->nom_enfant, f->prénom_enfant}) {
        SCOPED_TRACE(entête->objectName().toStdString());
        focus(entête);
        f->SSTab1->setCurrentIndex(4);
        focus(f->Combo1);
        EXPECT_EQ(f->SSTab1->currentIndex(), 0);
    }
}

TEST_F(SaisieEleve, NamesAreLeftAsTyped) {
    focus(f->nom_enfant);
    QTest::keyClicks(f->nom_enfant, u(" dupont "));
    focus(f->prénom_enfant);
    QTest::keyClicks(f->prénom_enfant, u("eLODIE"));
    focus(f->Combo1);
    EXPECT_EQ(f->nom_enfant->text(), u(" dupont "));
    EXPECT_EQ(f->prénom_enfant->text(), u("eLODIE"));
}

TEST_F(SaisieEleve, LeavingTheMatriculePadsANumberAndKeepsAnythingElse) {
    const struct {
        const char* tapé;
        const char* après;
    } cas[] = {{"42", "000042"}, {"abc", "abc"}, {"000042", "000042"}, {"1234567", "1234567"}, {"", ""}};
    for (const auto& c : cas) {
        SCOPED_TRACE(c.tapé);
        f->matricule->clear();
        focus(f->matricule);
        QTest::keyClicks(f->matricule, u(c.tapé));
        focus(f->nom_enfant);
        EXPECT_EQ(f->matricule->text(), u(c.après));
    }
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(SaisieEleve, TheInscriptionButtonWritesTodayOverWhatStood) {
    module1().horloge().fixer(QDateTime(QDate(2026, 9, 3), QTime(8, 30)));
    f->date_inscription->setText(u("01/01/2020"));
    QTest::mouseClick(f->Command15, Qt::LeftButton);
    EXPECT_EQ(f->date_inscription->text(), u("03/09/2026"));
}

} // namespace

namespace {
TEST_F(SaisieEleve, AFocusGivenByCodeToAFieldOfAHiddenPageTurnsToThatPage) {
    const struct {
        const char* champ;
        int onglet;
    } cas[] = {{"date_naissance", 0},         {"cursus_allongé_élève", 1},
               {"adresse2_résidence", 3},     {"téléphone1_résidence", 3},
               {"nom_contact3", 2},           {"champ_paramétable9", 6},
               {"observations_générales", 4}, {"Check1", 7}};
    for (const auto& c : cas) {
        SCOPED_TRACE(c.champ);
        f->SSTab1->setCurrentIndex(c.onglet == 5 ? 4 : 5);
        auto* champ = f->findChild<QWidget*>(u(c.champ));
        champ->setFocus(Qt::OtherFocusReason);
        QApplication::processEvents();
        EXPECT_EQ(f->SSTab1->currentIndex(), c.onglet);
        EXPECT_EQ(QApplication::focusWidget(), champ);
    }
}
} // namespace

namespace {
// A click on a tab shows that page, also when the focus stood in a field of the page it leaves: the
// field's neighbour in the school's order must not pull the old page back over the new one.
TEST_F(SaisieEleve, AClickOnATabShowsItsPageWhereverTheFocusStood) {
    const struct {
        const char* champ;
        int onglet_cliqué;
    } cas[] = {{"cursus_allongé_élève", 0},
               {"lieu_naissance", 3},
               {"nom_contact2", 1},
               {"champ_paramétable4", 7},
               {"observations_générales", 2}};
    QTabBar* barre = f->SSTab1->tabBar();
    for (const auto& c : cas) {
        SCOPED_TRACE(c.champ);
        focus(f->findChild<QWidget*>(u(c.champ)));
        QTest::mouseClick(barre, Qt::LeftButton, {}, barre->tabRect(c.onglet_cliqué).center());
        QApplication::processEvents();
        EXPECT_EQ(f->SSTab1->currentIndex(), c.onglet_cliqué);
        EXPECT_EQ(barre->currentIndex(), c.onglet_cliqué);
        EXPECT_TRUE(f->SSTab1->widget(c.onglet_cliqué)->isVisible());
    }
}
} // namespace
