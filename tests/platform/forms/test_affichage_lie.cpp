// A move sets only the bound controls whose value changed: one the user typed into and whose edit was
// given up still shows the stored row again, though that row's value is the one it showed before.
#include "EcransEssai.h"

using namespace Qt::StringLiterals;

TEST_F(ÉcransEssaiTest, an_edit_given_up_by_rafraichir_leaves_every_box_showing_the_stored_row) {
    auto& f = ouvrir_sur<feuille_essai>(u"SELECT * FROM fiches"_s);
    sql_direct(base, "UPDATE fiches SET libellé = 'autre' WHERE nom = 'Alpha'");
    f.nom->setText("Alphonse"); // a write by code leaves no undo history
    taper(f.notes, "y");
    f.actif->setChecked(false);
    ui().expectMsgBox();
    cliquer(f, "cmdMettreàjour"); // refused: another user changed the row
    cliquer(f, "cmdRafraîchir");
    EXPECT_EQ(f.nom->text(), "Alpha");
    EXPECT_EQ(f.notes->toPlainText(), "première");
    EXPECT_TRUE(f.actif->isChecked());
    EXPECT_EQ(f.libellé->text(), "autre");
    EXPECT_FALSE(f.datPrimaryRS->DataChanged());

    // Typed back to the shown text, the box is set again all the same: Ctrl+Z finds no edit to undo.
    taper(f.nom, "z");
    QTest::keyClick(f.nom, Qt::Key_Backspace);
    cliquer(f, "cmdRafraîchir");
    QTest::keyClick(f.nom, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(f.nom->text(), "Alpha");
}
