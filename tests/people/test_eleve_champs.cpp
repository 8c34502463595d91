// What a user reads and may type on the pupil screen: its fields, buttons and tabs as tests/data describes
// them, and what the tables cannot say.
#include "people/feuille_eleve.h"
#include "support/Donnees.h"
#include "support/Fixtures.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class FicheEleve : public ::testing::Test {
protected:
    std::unique_ptr<feuille_élève> f = std::make_unique<feuille_élève>();
};

TEST_F(FicheEleve, FieldsButtonsAndTabsAsTheTablesSay) {
    jouer_table_des_champs(*f, u"eleve_champs.tsv"_s);
    jouer_table_des_boutons(*f, u"eleve_boutons.tsv"_s);
    for (const QStringList& o : table_de_données(u"eleve_onglets.tsv"_s))
        EXPECT_EQ(f->SSTab1->tabText(o[0].toInt()), o[1]);
    EXPECT_EQ(f->SSTab1->count(), 8);
    EXPECT_EQ(f->windowTitle(), u("Fiche élève"));
    EXPECT_EQ(f->Check1->text(), u("Impression directe sans prévisualisation"));
    EXPECT_EQ(f->Check2->toolTip(), u("indication de l'aîné dans l'école, dont le nom servira en particulier "
                                      "pour les opérations électorales"));
    EXPECT_EQ(f->Combo1->toolTip(), u("Cliquez pour modifier l'ordre d'apparition des fiches"));
    EXPECT_TRUE(f->référence_famille->alignment() & Qt::AlignRight);
}

TEST_F(FicheEleve, ThePathAndTheHelpCarriersAreHidden) {
    f->show();
    EXPECT_FALSE(f->chemin_photo->isVisible());
    EXPECT_TRUE(f->Command14->isVisible());
    for (int i = 2; i <= 11; ++i) {
        f->SSTab1->setCurrentIndex(i <= 6 ? 5 : 6);
        auto* porteur = f->findChild<QLabel*>(u"Label%1"_s.arg(i));
        ASSERT_NE(porteur, nullptr) << i;
        EXPECT_FALSE(porteur->isVisible()) << i;
        EXPECT_EQ(porteur->text(), u("infobulle"));
    }
}

TEST_F(FicheEleve, TheEldestCaptionBlinksWhateverTheBoxHolds) {
    EXPECT_EQ(f->Timer1->interval(), 500);
    EXPECT_TRUE(f->Timer1->isActive());
    const QString aîné = u("Aîné dans l'école");
    EXPECT_EQ(f->Check2->text(), aîné);
    f->Check2->setChecked(true);
    f->Timer1_Timer();
    EXPECT_EQ(f->Check2->text(), QString());
    f->Timer1_Timer();
    EXPECT_EQ(f->Check2->text(), aîné);
    EXPECT_TRUE(f->Check2->isChecked());
}

// On a display 1024 pixels wide the screen, in its window of the main window, still shows every order
// of the list and every caption of the buttons whole.
TEST_F(FicheEleve, AtItsSmallestTheScreenFitsA1024DisplayAndShowsEveryOrderWhole) {
    f->show();
    const QSize plus_petite = f->minimumSizeHint().expandedTo(f->minimumSize());
    EXPECT_LE(plus_petite.width(), 1000);
    f->resize(plus_petite);
    QApplication::processEvents();
    EXPECT_EQ(f->Combo1->count(), 13);
    for (int i = 0; i < f->Combo1->count(); ++i) {
        f->Combo1->setCurrentIndex(i);
        QStyleOptionComboBox option;
        option.initFrom(f->Combo1);
        option.currentText = f->Combo1->currentText();
        const QRect texte = f->Combo1->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                               QStyle::SC_ComboBoxEditField, f->Combo1);
        EXPECT_GE(texte.width(), f->Combo1->fontMetrics().horizontalAdvance(option.currentText))
            << option.currentText.toStdString();
    }
    for (QPushButton* b : f->findChildren<QPushButton*>()) {
        if (!b->isVisibleTo(f.get()) || f->SSTab1->isAncestorOf(b))
            continue;
        EXPECT_GE(b->width(), b->fontMetrics().horizontalAdvance(b->text().remove(u'&')) + 8)
            << b->objectName().toStdString();
    }
}

} // namespace
