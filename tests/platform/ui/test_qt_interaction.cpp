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

// French buttons, the program's title, the icon of the code, the text shown as typed, and the vb code of
// the button clicked.
TEST(QtInteraction, AMessageBoxHasFrenchButtonsAndReturnsTheVbCode) {
    QtInteraction ui;
    QString title;
    QStringList buttons;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    Qt::TextFormat format = Qt::AutoText;
    whenDialogUp([&](QWidget& d) {
        title = d.windowTitle();
        icon = static_cast<QMessageBox&>(d).icon();
        format = static_cast<QMessageBox&>(d).textFormat();
        for (auto* b : d.findChildren<QPushButton*>())
            buttons << b->text();
        clickButton(d, u"&Non"_s);
    });
    EXPECT_EQ(ui.MsgBox(u"<b>Quitter</b>?"_s, vbYesNo + vbExclamation), vbNo);
    EXPECT_EQ(title, u"Norvane v2"_s);
    EXPECT_EQ(icon, QMessageBox::Warning);
    EXPECT_EQ(format, Qt::PlainText);
    buttons.sort();
    EXPECT_EQ(buttons, (QStringList{u"&Non"_s, u"&Oui"_s}));
    whenDialogUp([&](QWidget& d) { clickButton(d, u"Annuler"_s); });
    EXPECT_EQ(ui.MsgBox(u"x"_s, vbOKCancel), vbCancel);
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

    whenDialogUp([](QWidget& d) { clickButton(d, u"Annuler"_s); });
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

// Showing a screen modally waits until the screen is hidden or unloads itself.
TEST(QtInteraction, ShowModalWaitsUntilTheScreenIsHiddenOrUnloaded) {
    ScriptedSession session; // a clean registry; the dialogs under test are the real ones below
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
    auto& chargée = module1().feuilles().get<feuille_modale>();
    QTimer::singleShot(0, [&] { chargée.Unload(); });
    ui.showModal(chargée);
    EXPECT_FALSE(module1().feuilles().isLoaded<feuille_modale>());
}
