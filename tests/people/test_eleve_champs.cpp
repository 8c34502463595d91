// What a user reads and may type on the pupil screen: captions, entry limits and help texts of every tab.
#include "people/feuille_eleve.h"
#include "platform/forms/LimiteSaisie.h"
#include "support/Donnees.h"
#include "support/Fixtures.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabWidget>
#include <QTimer>
#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

// The fields of the tabs and the buttons are in tests/data: eleve_champs.tsv and eleve_boutons.tsv.

class FicheEleve : public ::testing::Test {
protected:
    std::unique_ptr<feuille_élève> f = std::make_unique<feuille_élève>();

    template <class T> T* trouve(const char* nom) const { return f->findChild<T*>(u(nom)); }

    // The caption a user reads beside a field: the label that names it as its buddy.
    QString étiquette_de(QWidget* champ) const {
        for (QLabel* l : f->findChildren<QLabel*>())
            if (l->buddy() == champ)
                return l->text();
        return u"<aucune>"_s;
    }
};

TEST_F(FicheEleve, EveryFieldOfTheTabsHasItsCaptionLimitHelpAndPage) {
    for (const QStringList& a : table_de_données(u"eleve_champs.tsv"_s)) {
        const QString &nom = a[0], &légende = a[2], &bouton = a[3], &longueur = a[4], &aide = a[5];
        SCOPED_TRACE(nom.toStdString());
        auto* champ = f->findChild<QWidget*>(nom);
        ASSERT_NE(champ, nullptr);
        EXPECT_TRUE(f->SSTab1->widget(a[1].toInt())->isAncestorOf(champ));
        EXPECT_EQ(champ->toolTip(), aide);
        if (!bouton.isEmpty())
            EXPECT_EQ(f->findChild<QPushButton*>(bouton)->text(), légende);
        else if (!légende.isEmpty())
            EXPECT_EQ(étiquette_de(champ), légende);
        if (longueur == u"plusieurs lignes"_s) {
            auto* zone = qobject_cast<QPlainTextEdit*>(champ);
            ASSERT_NE(zone, nullptr);
            EXPECT_EQ(zone->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
        } else {
            auto* ligne = qobject_cast<QLineEdit*>(champ);
            ASSERT_NE(ligne, nullptr);
            EXPECT_EQ(limite_saisie(*ligne), longueur == u"sans limite"_s ? 32767 : longueur.toInt());
        }
    }
}

TEST_F(FicheEleve, ButtonsCarryTheirCaptionsAndHelpTexts) {
    for (const QStringList& b : table_de_données(u"eleve_boutons.tsv"_s)) {
        SCOPED_TRACE(b[0].toStdString());
        auto* bouton = f->findChild<QPushButton*>(b[0]);
        ASSERT_NE(bouton, nullptr);
        EXPECT_EQ(bouton->text(), b[1]);
        EXPECT_EQ(bouton->toolTip(), b[2]);
    }
    EXPECT_EQ(f->Check1->text(), u("Impression directe sans prévisualisation"));
    EXPECT_EQ(f->Check2->toolTip(), u("indication de l'aîné dans l'école, dont le nom servira en particulier "
                                      "pour les opérations électorales"));
}

TEST_F(FicheEleve, TheBandAboveTheTabs) {
    EXPECT_EQ(f->windowTitle(), u("Fiche élève"));
    EXPECT_FALSE(f->SSTab1->isAncestorOf(f->matricule));
    EXPECT_EQ(limite_saisie(*f->matricule), 10);
    EXPECT_EQ(limite_saisie(*f->nom_enfant), 30);
    EXPECT_EQ(limite_saisie(*f->prénom_enfant), 30);
    EXPECT_EQ(étiquette_de(f->prénom_enfant), u("prénom"));
    EXPECT_EQ(étiquette_de(f->référence_famille), u("Référence famille"));
    EXPECT_EQ(limite_saisie(*f->référence_famille), 32767);
    EXPECT_EQ(f->référence_famille->toolTip(), u("Référence de la famille : ne pas modifier..."));
    EXPECT_TRUE(f->référence_famille->alignment() & Qt::AlignRight);
    EXPECT_EQ(f->Combo1->toolTip(), u("Cliquez pour modifier l'ordre d'apparition des fiches"));
    // The entries of the list, each with its order, are walked on a base of pupils.
    EXPECT_EQ(f->Combo1->count(), 13);
}

TEST_F(FicheEleve, TheEightTabsInOrder) {
    const char* onglets[] = {"&Identité",       "&Classe",     "&Personnes autorisées", "&Résidence",
                             "&Santé / Divers", "Autres (&1)", "Autres (&2)",           "&Documents"};
    ASSERT_EQ(f->SSTab1->count(), 8);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(f->SSTab1->tabText(i), u(onglets[i]));
}

TEST_F(FicheEleve, LookupFieldsAreDisabledAndThePathAndHelpCarriersHidden) {
    f->show();
    const QStringList fermés = u("sexe nationalité adresse_résidence code_postal_résidence ville_résidence "
                                 "référence_classe_élève niveau_classe_élève cycle_classe_élève "
                                 "langue_vivante_élève")
                                   .split(u' ');
    int désactivés = 0;
    for (auto* e : f->findChildren<QLineEdit*>())
        désactivés += e->isEnabled() ? 0 : 1;
    EXPECT_EQ(désactivés, 9);
    for (const QString& nom : fermés)
        EXPECT_FALSE(f->findChild<QLineEdit*>(nom)->isEnabled()) << nom.toStdString();
    EXPECT_TRUE(f->code_nationalité->isEnabled());

    f->SSTab1->setCurrentIndex(0);
    EXPECT_FALSE(f->chemin_photo->isVisible());
    EXPECT_TRUE(f->Command14->isVisible());
    f->SSTab1->setCurrentIndex(5);
    for (int i = 2; i <= 11; ++i) {
        f->SSTab1->setCurrentIndex(i <= 6 ? 5 : 6);
        auto* porteur = trouve<QLabel>(u"Label%1"_s.arg(i).toUtf8().constData());
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
    EXPECT_TRUE(f->Check2->isChecked());
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
