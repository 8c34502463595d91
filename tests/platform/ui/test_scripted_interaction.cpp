// The scripted user is the safety net of every screen test: what it records and answers is used by all
// of them; here, only that a box, a screen or an answer the test did not foresee makes the test fail.
#include "support/Fixtures.h"

#include <gtest/gtest-spi.h>

using namespace Qt::StringLiterals;

TEST(ScriptedInteraction, AnUnexpectedBoxFailsTheTestAndIsAnsweredWithItsFirstButtonOrCancel) {
    ScriptedInteraction ui;
    int answer = 0;
    EXPECT_NONFATAL_FAILURE(answer = ui.MsgBox(u"Question"_s, vbYesNo + vbQuestion),
                            "inattendue : « Question »");
    EXPECT_EQ(answer, vbYes);
    EXPECT_EQ(ui.boxes().size(), 1u);
    QString typed = u"x"_s;
    EXPECT_NONFATAL_FAILURE(typed = ui.InputBox(u"Nom ?"_s), "Nom ?");
    EXPECT_TRUE(typed.isEmpty()) << "an unexpected input box reads as Cancel";
}

// Unused answers fail the test at the end of the session.
TEST(ScriptedSession, UnusedAnswersFailTheTestAtItsEnd) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedSession session;
            session.ui().expectMsgBox(vbOK).expectInputBox(u"x"_s);
        },
        "2 réponse(s) préparée(s) jamais demandée(s)");
}
