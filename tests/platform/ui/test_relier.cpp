#include "platform/ui/Relier.h"
#include "support/Fixtures.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

using Relier = ScriptedTest;

TEST_F(Relier, UnÉchecDuHandlerMontreLaBoîteStandardLàEtNeRemontePasDansQt) {
    QLineEdit zone;
    QString reçu;
    relier(&zone, &QLineEdit::textChanged, &zone, [&](const QString& texte) {
        reçu = texte;
        throw VbError(53);
    });
    ui().expectMsgBox(vbOK);
    EXPECT_NO_THROW(zone.setText(u"abc"_s));
    EXPECT_EQ(reçu, "abc");
    EXPECT_TRUE(une_boîte(ui(), "Le logiciel a rencontré l'erreur : 53\n\nFichier introuvable"));
}

} // namespace
