#include "platform/ui/ErrorBoxes.h"
#include "store/Module1.h"
#include "support/Fixtures.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTimer>
#include <gtest/gtest-spi.h>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

class ErrorBoxes : public ScriptedTest {};

// The bytes the user reads, in UTF-8.
std::string bytes(const QString& s) {
    return s.toUtf8().toStdString();
}

} // namespace

// Each of the three boxes, its words byte for byte: an exclamation with OK and the program's title,
// which puts the default pointer back.
TEST_F(ErrorBoxes, TheThreeBoxesByteForByte) {
    const struct {
        void (*show)(const VbError&);
        int number;
        std::string text;
    } boxes[] = {
        {[](const VbError& e) { message_erreur_standard(e); }, 53,
         "Le logiciel a rencontr\xc3\xa9 l'erreur : 53\n\nFichier introuvable"},
        {[](const VbError& e) { message_erreur_données(e); }, 3021,
         "Le gestionnaire d'erreurs des donn\xc3\xa9"
         "es a rencontr\xc3\xa9 l'erreur : 3021\n\nAucun enregistrement en cours."},
        {[](const VbError& e) { message_erreur_logiciel_données(e); }, 76,
         "Le logiciel des donn\xc3\xa9"
         "es a rencontr\xc3\xa9 l'erreur : 76\n\nChemin introuvable"},
    };
    for (const auto& box : boxes) {
        ui().expectMsgBox(vbOK);
        module1().interaction().setMousePointer(vbHourglass);
        box.show(VbError(box.number));
        EXPECT_EQ(bytes(ui().lastBox().text), box.text);
        EXPECT_EQ(ui().lastBox().buttons, vbExclamation + vbOKOnly);
        EXPECT_EQ(ui().lastBox().title, u"Norvane v2"_s);
        EXPECT_EQ(module1().interaction().mousePointer(), vbDefault);
    }
}

// A trap ends its body at the failure, keeps what was done, shows the box it is named for and then runs
// its tidying; when nothing fails it is silent and tidies nothing. The silent trap never shows a box.
TEST_F(ErrorBoxes, TrapEndsTheBodyAtTheFailureShowsItsBoxAndTidiesAfterIt) {
    ui().expectMsgBox().expectMsgBox();
    QStringList ordre;
    const bool fini = avec_piège(
        ErrorBoxKind::données,
        [&] {
            ordre << "corps";
            module1().interaction().setMousePointer(vbHourglass);
            throw VbError(3024);
            ordre << "suite";
        },
        [&] { ordre << u"après %1 boîte(s)"_s.arg(ui().boxes().size()); });
    EXPECT_FALSE(fini);
    EXPECT_EQ(ordre, (QStringList{"corps", "après 1 boîte(s)"}));
    EXPECT_TRUE(ui().lastBox().text.startsWith(
        u"Le gestionnaire d'erreurs des données a rencontré l'erreur : 3024"_s));
    EXPECT_EQ(module1().interaction().mousePointer(), vbDefault);
    avec_piège(ErrorBoxKind::logiciel_données, [] { throw std::out_of_range("x"); });
    EXPECT_TRUE(ui().lastBox().text.startsWith(u"Le logiciel des données a rencontré l'erreur : 51"_s));

    ordre.clear();
    EXPECT_TRUE(avec_piège(
        ErrorBoxKind::standard, [&] { ordre << "corps"; }, [&] { ordre << "après"; }));
    EXPECT_EQ(ordre, QStringList{"corps"});
    EXPECT_FALSE(en_silence([] { throw VbError(3021); }));
    EXPECT_TRUE(en_silence([] {}));
    EXPECT_EQ(ui().boxes().size(), 2u);
}

// A failure no handler traps reaches the top of the event loop, is shown with the standard box's
// words, and the program goes on with its next event.
TEST_F(ErrorBoxes, UntrappedFailureInATimerSlotIsShownAndTheProgramGoesOn) {
    ui().expectMsgBox();
    bool next_event_ran = false;
    QTimer::singleShot(0, [] { throw VbError(3021); });
    QTimer::singleShot(0, [&] { next_event_ran = true; });
    QCoreApplication::processEvents();
    ASSERT_EQ(ui().boxes().size(), 1u);
    EXPECT_EQ(ui().lastBox().text,
              QString::fromUtf8("Le logiciel a rencontré l'erreur : 3021\n\nAucun enregistrement en cours."));
    EXPECT_EQ(ui().lastBox().buttons, vbExclamation);
    EXPECT_TRUE(next_event_ran);

    ui().expectMsgBox(); // a failure of no known kind is shown too
    QTimer::singleShot(0, [] { throw 42; });
    QCoreApplication::processEvents();
    ASSERT_EQ(ui().boxes().size(), 2u);
    EXPECT_TRUE(ui().lastBox().text.startsWith(QString::fromUtf8("Le logiciel a rencontré l'erreur : 51")));
}
