#include "platform/forms/Feuille.h"
#include "store/Module1.h"
#include "support/Fixtures.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QStringList>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class feuille_saisie : public Feuille {
public:
    feuille_saisie() : Feuille(u"feuille_saisie"_s, Genre::haut_niveau) {
        nom = new QLineEdit(this);
        prénom = new QLineEdit(this);
        prénom->move(0, 40);
        File1 = new QListWidget(this);
        File1->move(0, 80);
        File1->addItems({u"a.mdb"_s, u"b.mdb"_s});
        resize(300, 300);
        surGotFocus(nom, [this] { journal << u"nom_GotFocus"_s; });
        surLostFocus(nom, [this] { journal << u"nom_LostFocus"_s; });
        surGotFocus(prénom, [this] { journal << u"prénom_GotFocus"_s; });
        surDblClick(File1, [this] { journal << u"File1_DblClick "_s + File1->currentItem()->text(); });
    }
    QLineEdit* nom;
    QLineEdit* prénom;
    QListWidget* File1;
    QStringList journal;
};

class EventFilter : public ScriptedTest {
protected:
    void SetUp() override {
        ScriptedTest::SetUp();
        f = &module1().feuilles().get<feuille_saisie>();
        f->Show();
        QApplication::setActiveWindow(f);
        ASSERT_TRUE(QTest::qWaitForWindowActive(f));
    }
    feuille_saisie* f = nullptr;
};

} // namespace

TEST_F(EventFilter, DoubleClickOnAListReachesItsHandlerThroughTheViewport) {
    const QRect second = f->File1->visualItemRect(f->File1->item(1));
    QTest::mouseClick(f->File1->viewport(), Qt::LeftButton, {}, second.center());
    QTest::mouseDClick(f->File1->viewport(), Qt::LeftButton, {}, second.center());
    EXPECT_EQ(f->journal.filter(u"DblClick"_s), (QStringList{"File1_DblClick b.mdb"}));
}

TEST_F(EventFilter, AFailureInAHandlerIsShownAndTheFocusStillMoves) {
    ui().expectMsgBox();
    f->surGotFocus(f->prénom, [] { throw VbError(13); });
    f->prénom->setFocus();
    QCoreApplication::processEvents();
    EXPECT_TRUE(f->prénom->hasFocus());
    EXPECT_EQ(ui().lastBox().text,
              QString::fromUtf8("Le logiciel a rencontré l'erreur : 13\n\nType incompatible"));
}
