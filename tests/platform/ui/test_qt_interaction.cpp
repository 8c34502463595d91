#include "platform/forms/Feuille.h"
#include "platform/ui/QtInteraction.h"
#include "store/Module1.h"
#include "support/Fixtures.h"

#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Acts on the dialog once it is up, as the user would.
void whenDialogUp(std::function<void(QWidget&)> act) {
    QTimer::singleShot(0, [act] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
    });
}

void clickButton(QWidget& dialog, const QString& text) {
    for (auto* b : dialog.findChildren<QPushButton*>())
        if (b->text() == text) {
            b->click();
            return;
        }
    ADD_FAILURE() << "Bouton absent : " << text.toStdString();
}

} // namespace

TEST(QtInteraction, YesNoBoxHasFrenchButtonsAndReturnsTheVbCode) {
    QtInteraction ui;
    QString title, text;
    QStringList buttons;
    whenDialogUp([&](QWidget& d) {
        title = d.windowTitle();
        text = static_cast<QMessageBox&>(d).text();
        for (auto* b : d.findChildren<QPushButton*>())
            buttons << b->text();
        clickButton(d, u"&Non"_s);
    });
    EXPECT_EQ(ui.MsgBox(u"Voulez-vous quitter le logiciel?"_s, vbYesNo + vbQuestion), vbNo);
    EXPECT_EQ(title, u"Norvane v2"_s);
    EXPECT_EQ(text, u"Voulez-vous quitter le logiciel?"_s);
    buttons.sort();
    EXPECT_EQ(buttons, (QStringList{u"&Non"_s, u"&Oui"_s}));
}

TEST(QtInteraction, IconFollowsTheCodeTextIsShownAsTypedAndCancelReturnsCancel) {
    QtInteraction ui;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    Qt::TextFormat format = Qt::AutoText;
    whenDialogUp([&](QWidget& d) {
        icon = static_cast<QMessageBox&>(d).icon();
        format = static_cast<QMessageBox&>(d).textFormat();
        clickButton(d, u"Annuler"_s);
    });
    EXPECT_EQ(ui.MsgBox(u"<b>/bases/a<b>.mdb</b>"_s, vbOKCancel + vbExclamation), vbCancel);
    EXPECT_EQ(icon, QMessageBox::Warning);
    EXPECT_EQ(format, Qt::PlainText);
}

TEST(QtInteraction, InputBoxReturnsTheTypedTextOrEmptyOnCancel) {
    QtInteraction ui;
    QString shownDefault;
    whenDialogUp([&](QWidget& d) {
        auto* edit = d.findChild<QLineEdit*>();
        shownDefault = edit->text();
        edit->setText(QString::fromUtf8("école"));
        static_cast<QInputDialog&>(d).accept();
    });
    EXPECT_EQ(ui.InputBox(u"Nom"_s, u"Norvane v2"_s, u"base"_s), QString::fromUtf8("école"));
    EXPECT_EQ(shownDefault, u"base"_s);

    whenDialogUp([](QWidget& d) {
        d.findChild<QLineEdit*>()->setText(u"tapé"_s);
        clickButton(d, u"Annuler"_s);
    });
    EXPECT_EQ(ui.InputBox(u"Nom"_s, u"Norvane v2"_s, u"base"_s), QString());
}

TEST(QtInteraction, HourglassAndBack) {
    QtInteraction ui;
    ui.setMousePointer(vbHourglass);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    EXPECT_EQ(ui.mousePointer(), vbHourglass);
    ui.setMousePointer(vbHourglass); // twice still needs one reset
    ui.setMousePointer(vbDefault);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(ui.mousePointer(), vbDefault);
}

namespace {

class feuille_modale : public Feuille {
public:
    feuille_modale() : Feuille(u"feuille_modale"_s, Genre::haut_niveau) {}
};

} // namespace

TEST(QtInteraction, ShowModalWaitsUntilTheScreenIsHidden) {
    QtInteraction ui;
    feuille_modale f;
    bool modalWhileUp = false;
    QTimer::singleShot(0, [&] {
        modalWhileUp = QApplication::activeModalWidget() == &f && f.isVisible();
        f.Hide();
    });
    ui.showModal(f);
    EXPECT_TRUE(modalWhileUp);
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(f.windowModality(), Qt::NonModal);
}

TEST(QtInteraction, ShowModalEndsWhenTheScreenUnloadsItself) {
    ScriptedSession session; // a clean registry; the dialogs under test are the real ones below
    QtInteraction ui;
    auto& f = module1().feuilles().get<feuille_modale>();
    QTimer::singleShot(0, [&] { f.Unload(); });
    ui.showModal(f);
    EXPECT_FALSE(module1().feuilles().isLoaded<feuille_modale>());
}
