#include "platform/forms/Feuille.h"
#include "support/ScriptedInteraction.h"

#include <QLineEdit>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

TEST(ScriptedInteraction, RecordsEveryBoxAndAnswersInOrderAndThePointerWithItsHistory) {
    ScriptedInteraction ui;
    ui.expectMsgBox(vbNo).expectMsgBox(vbYes);
    EXPECT_EQ(ui.MsgBox(QStringLiteral("Voulez-vous quitter le logiciel?"), vbYesNo + vbQuestion), vbNo);
    EXPECT_EQ(ui.MsgBox(QStringLiteral("Encore?"), vbYesNo + vbQuestion, QStringLiteral("Autre titre")),
              vbYes);
    EXPECT_EQ(ui.boxes(), (std::vector<ScriptedInteraction::Box>{
                              {"Voulez-vous quitter le logiciel?", "Norvane v2", vbYesNo + vbQuestion},
                              {"Encore?", "Autre titre", vbYesNo + vbQuestion}}));
    EXPECT_EQ(ui.pending(), 0u);
    EXPECT_EQ(ui.mousePointer(), vbDefault);
    ui.setMousePointer(vbHourglass);
    EXPECT_EQ(ui.mousePointer(), vbHourglass);
    ui.setMousePointer(vbDefault);
    EXPECT_EQ(ui.pointerHistory(), (std::vector<int>{vbHourglass, vbDefault}));
}

TEST(ScriptedInteraction, AnUnexpectedBoxFailsTheTestAndIsAnsweredWithItsFirstButtonOrCancel) {
    ScriptedInteraction ui;
    int answer = 0;
    EXPECT_NONFATAL_FAILURE(answer = ui.MsgBox(QStringLiteral("Question"), vbYesNo + vbQuestion),
                            "inattendue : « Question »");
    EXPECT_EQ(answer, vbYes);
    EXPECT_EQ(ui.boxes().size(), 1u);
    QString typed = QStringLiteral("x");
    EXPECT_NONFATAL_FAILURE(typed = ui.InputBox(QStringLiteral("Nom ?")), "Nom ?");
    EXPECT_TRUE(typed.isEmpty()) << "an unexpected input box reads as Cancel";
}

TEST(ScriptedInteraction, AnswersNeverAskedForFailTheTest) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedInteraction ui;
            ui.expectMsgBox(vbOK).expectInputBox(QStringLiteral("x"));
        },
        "2 réponse(s)");
}

TEST(ScriptedInteraction, InputBoxRecordsPromptTitleAndDefault) {
    ScriptedInteraction ui;
    ui.expectInputBox(QStringLiteral("Dupont")).expectInputBox(QString());
    EXPECT_EQ(ui.InputBox(QStringLiteral("Nom de la base"), QStringLiteral("Titre"), QStringLiteral("base1")),
              QStringLiteral("Dupont"));
    EXPECT_EQ(ui.InputBox(QStringLiteral("Encore")), QString());
    ASSERT_EQ(ui.inputs().size(), 2u);
    EXPECT_EQ(ui.inputs()[0].prompt, QStringLiteral("Nom de la base"));
    EXPECT_EQ(ui.inputs()[0].title, QStringLiteral("Titre"));
    EXPECT_EQ(ui.inputs()[0].defaultValue, QStringLiteral("base1"));
    EXPECT_EQ(ui.inputs()[1].title, QStringLiteral("Norvane v2"));
}

namespace {

class feuille_essai : public Feuille {
public:
    feuille_essai() : Feuille(QStringLiteral("feuille_essai"), Genre::haut_niveau) {
        code = new QLineEdit(this);
        code->setObjectName(QStringLiteral("code"));
    }
    QLineEdit* code;
};

} // namespace

TEST(ScriptedInteraction, ModalScreenIsShownAndThePlayedUserActsOnIt) {
    ScriptedInteraction ui;
    feuille_essai f;
    bool was_visible = false;
    ui.expectModal([&](Feuille& shown) {
        was_visible = shown.isVisible();
        shown.findChild<QLineEdit*>(QStringLiteral("code"))->setText(QStringLiteral("secret"));
        shown.Hide();
    });
    ui.showModal(f);
    EXPECT_TRUE(was_visible);
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(f.code->text(), QStringLiteral("secret"));
    EXPECT_EQ(ui.modals(), (std::vector<QString>{QStringLiteral("feuille_essai")}));
}

TEST(ScriptedInteraction, AnUnexpectedModalScreenFailsTheTest) {
    ScriptedInteraction ui;
    feuille_essai f;
    EXPECT_NONFATAL_FAILURE(ui.showModal(f), "feuille_essai");
}

#include "platform/forms/Module1.h"
#include "support/Fixtures.h"

TEST(ScriptedSession, InstallsTheScriptedUserForItsLifetimeOnly) {
    {
        ScriptedSession session;
        EXPECT_EQ(&module1().interaction(), &session.ui());
        session.ui().expectMsgBox(vbYes);
        EXPECT_EQ(module1().interaction().MsgBox(QStringLiteral("Sûr ?"), vbYesNo), vbYes);
    }
    EXPECT_EQ(dynamic_cast<ScriptedInteraction*>(&module1().interaction()), nullptr);
}

TEST(ScriptedSession, UnusedAnswersFailTheTestAtItsEnd) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedSession session;
            session.ui().expectMsgBox(vbOK);
        },
        "jamais demandée");
}
