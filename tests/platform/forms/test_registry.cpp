#include "platform/forms/Feuille.h"
#include "store/Module1.h"
#include "support/Fixtures.h"

#include <QCheckBox>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QPushButton>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

// What happened to the test screens, in order.
QStringList journal;
const QStringList déchargement{u"Form_QueryUnload"_s, u"écriture"_s, u"Form_Unload"_s};

class feuille_options_essai : public Feuille {
public:
    feuille_options_essai() : Feuille(u"feuille_options_essai"_s) {
        Check3 = new QCheckBox(u"ouvrir le dernier fichier utilisé"_s, this);
        Label4 = new QLabel(this);
        avantDéchargement([] { journal << u"écriture"_s; });
    }
    void Form_Load() override {
        ++loads;
        Label4->setText(u"chargée"_s);
    }
    void Form_QueryUnload(int& cancel) override {
        journal << u"Form_QueryUnload"_s;
        cancel = refuseQuery;
    }
    void Form_Unload(int& cancel) override {
        journal << u"Form_Unload"_s;
        cancel = refuseUnload;
    }

    QCheckBox* Check3;
    QLabel* Label4;
    int loads = 0;
    int refuseQuery = 0;
    int refuseUnload = 0;
};

class feuille_login_essai : public Feuille {
public:
    feuille_login_essai() : Feuille(u"feuille_login_essai"_s, Genre::haut_niveau) {}
};

// A screen whose Form_Load touches another screen, as reading a closed screen's control does.
class feuille_appelante : public Feuille {
public:
    feuille_appelante() : Feuille(u"feuille_appelante"_s) {}
    void Form_Load() override {
        lu = module1().feuilles().get<feuille_options_essai>().Label4->text();
        module1().feuilles().get<feuille_appelante>(); // its own name, while loading
    }
    QString lu;
};

class Registry : public ScriptedTest {
protected:
    void SetUp() override {
        ScriptedTest::SetUp();
        journal.clear();
    }
    Feuilles& feuilles() { return module1().feuilles(); }
};

} // namespace

// The first touch loads a screen hidden and runs Form_Load once; shown and hidden it stays loaded; unloaded
// it runs its events in order and the next touch brings back the defaults.
TEST_F(Registry, FirstTouchLoadsHiddenOnceAndAfterAnUnloadTheDefaultsComeBack) {
    EXPECT_EQ(feuilles().siChargée<feuille_options_essai>(), nullptr);
    auto& f = feuilles().get<feuille_options_essai>();
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(f.Label4->text(), u"chargée"_s);
    EXPECT_EQ(&feuilles().get<feuille_options_essai>(), &f);
    EXPECT_EQ(f.loads, 1);
    f.Show();
    EXPECT_TRUE(f.isVisible());
    f.Hide();
    EXPECT_EQ(feuilles().siChargée<feuille_options_essai>(), &f);
    f.Check3->setChecked(true);
    QPointer<feuille_options_essai> old(&f);

    EXPECT_TRUE(feuilles().unload(f));
    EXPECT_EQ(journal, déchargement);
    EXPECT_FALSE(feuilles().isLoaded<feuille_options_essai>());
    processDeletions();
    EXPECT_TRUE(old.isNull());
    EXPECT_FALSE(feuilles().get<feuille_options_essai>().Check3->isChecked());
}

// Cancelled in QueryUnload the screen stays and nothing is written; cancelled in Form_Unload it stays
// too, but the write is done.
TEST_F(Registry, CancelInQueryUnloadOrFormUnloadKeepsTheScreen) {
    auto& f = feuilles().get<feuille_options_essai>();
    f.refuseQuery = 1;
    EXPECT_FALSE(feuilles().unload(f));
    EXPECT_EQ(journal, QStringList{u"Form_QueryUnload"_s});
    f.refuseQuery = 0;
    f.refuseUnload = 1;
    journal.clear();
    EXPECT_FALSE(f.Unload());
    EXPECT_EQ(journal, déchargement);
    processDeletions();
    EXPECT_EQ(&feuilles().get<feuille_options_essai>(), &f);
}

TEST_F(Registry, AFormLoadMayTouchOtherScreensAndItself) {
    EXPECT_EQ(feuilles().get<feuille_appelante>().lu, u"chargée"_s);
    EXPECT_EQ(feuilles().chargées().size(), 2u);
}

TEST_F(Registry, ChildScreensGoIntoTheMainWindowAreaWhereClosingTheirWindowUnloadsThem) {
    QMdiArea area;
    area.show();
    feuilles().setMdiArea(&area);
    auto& child = feuilles().get<feuille_options_essai>();
    auto& login = feuilles().get<feuille_login_essai>();
    ASSERT_EQ(area.subWindowList().size(), 1);
    EXPECT_EQ(&child.conteneur(), area.subWindowList().front());
    EXPECT_EQ(area.subWindowList().front()->widget(), &child);
    EXPECT_EQ(&login.conteneur(), &login);
    child.Show();
    EXPECT_EQ(area.activeSubWindow(), &child.conteneur());
    child.refuseQuery = 1;
    child.conteneur().close();
    EXPECT_TRUE(child.conteneur().isVisible());
    child.refuseQuery = 0;
    child.conteneur().close();
    EXPECT_FALSE(feuilles().isLoaded<feuille_options_essai>());
    processDeletions();
    EXPECT_TRUE(area.subWindowList().isEmpty());
    feuilles().toutDétruire();
}

// Every screen is asked first, then the last loaded goes first, until one cancels.
TEST_F(Registry, UnloadingEverythingAsksEveryScreenFirstThenUnloadsTheLastLoadedFirstUntilOneCancels) {
    auto& options = feuilles().get<feuille_options_essai>();
    feuilles().get<feuille_login_essai>();
    options.refuseQuery = 1;
    EXPECT_FALSE(feuilles().toutDécharger());
    EXPECT_EQ(feuilles().chargées().size(), 2u);
    options.refuseQuery = 0;
    journal.clear();
    EXPECT_TRUE(feuilles().toutDécharger());
    EXPECT_EQ(journal, déchargement);
    EXPECT_TRUE(feuilles().chargées().empty());

    feuilles().get<feuille_options_essai>().refuseUnload = 1;
    feuilles().get<feuille_login_essai>();
    EXPECT_FALSE(feuilles().toutDécharger());
    EXPECT_FALSE(feuilles().isLoaded<feuille_login_essai>());
    EXPECT_TRUE(feuilles().isLoaded<feuille_options_essai>());
}
