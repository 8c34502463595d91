// Typing on the pupil screen: the Tab key's walk, the pages that follow the focus, the matricule padding
// and the date of the day.
#include "people/feuille_eleve.h"
#include "store/Module1.h"
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
    // Page by page, the fields in the order the Tab key reaches them.
    const struct {
        int onglet;
        const char* champs;
    } ordre[] = {
        {0, "matricule nom_enfant prénom_enfant code_nationalité date_naissance lieu_naissance "
            "date_inscription"},
        {1, "cursus_allongé_élève saisine_ccpe_élève"},
        {2, "nom_contact1 prénom_contact1 téléphone_contact1 nom_contact2 prénom_contact2 téléphone_contact2 "
            "nom_contact3 prénom_contact3 téléphone_contact3 nom_contact4 prénom_contact4 téléphone_contact4 "
            "nom_contact5 prénom_contact5 téléphone_contact5"},
        {3, "numéro_résidence adresse2_résidence téléphone1_résidence téléphone2_résidence"},
        {4, "vaccinations allergies contre_indications observations_médicales coopérative_scolaire "
            "restauration_scolaire participation_usep observations_générales"},
        {5, "champ_paramétable1 champ_paramétable2 champ_paramétable3 champ_paramétable4 champ_paramétable5"},
        {6,
         "champ_paramétable6 champ_paramétable7 champ_paramétable8 champ_paramétable9 champ_paramétable10"},
    };
    focus(f->matricule);
    for (const auto& page : ordre) {
        for (const QString& champ : u(page.champs).split(u' ')) {
            SCOPED_TRACE(champ.toStdString());
            ASSERT_NE(QApplication::focusWidget(), nullptr);
            EXPECT_EQ(QApplication::focusWidget()->objectName(), champ);
            EXPECT_EQ(f->SSTab1->currentIndex(), page.onglet);
            tab();
        }
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
