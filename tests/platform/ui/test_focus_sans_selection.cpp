#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Fenêtre {
    QWidget fenêtre;
    QLineEdit* premier = new QLineEdit(u"DUPONT"_s, &fenêtre);
    QLineEdit* second = new QLineEdit(u"Marie"_s, &fenêtre);

    Fenêtre() {
        auto* disposition = new QVBoxLayout(&fenêtre);
        disposition->addWidget(premier);
        disposition->addWidget(second);
        fenêtre.show();
        fenêtre.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&fenêtre));
        premier->setFocus(Qt::OtherFocusReason);
    }
};

} // namespace

TEST(FocusParTabulation, LeTexteDUneZoneAtteinteParTabOuMajTabNestPasSélectionné) {
    Fenêtre f;
    QTest::keyClick(f.premier, Qt::Key_Tab);
    ASSERT_TRUE(f.second->hasFocus());
    EXPECT_FALSE(f.second->hasSelectedText());
    EXPECT_EQ(f.second->cursorPosition(), 0);

    QTest::keyClick(f.second, Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_TRUE(f.premier->hasFocus());
    EXPECT_FALSE(f.premier->hasSelectedText());

    // Typing after Tab adds to the text instead of replacing it; a selection made by code stays.
    QTest::keyClick(f.premier, Qt::Key_Tab);
    QTest::keyClicks(f.second, u"-Anne "_s);
    EXPECT_EQ(f.second->text(), u"-Anne Marie"_s);
    f.premier->selectAll();
    f.premier->setFocus(Qt::MouseFocusReason);
    EXPECT_TRUE(f.premier->hasSelectedText());
}
