// The letter templates on a copy of the template base: a screen of bound boxes and check boxes on the
// shared frame, with form A of add and the delete without a trap.
#include "platform/forms/DataControl.h"
#include "platform/forms/LimiteSaisie.h"
#include "reports/feuille_documents.h"
#include "store/Module1.h"
#include "support/BaseDirecte.h"
#include "support/Fixtures.h"
#include "support/PiloteEcran.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class FeuilleDocumentsTest : public WorkFolderTest {
protected:
    void SetUp() override {
        WorkFolderTest::SetUp();
        base = copie_du_modèle(folder);
        module1().base_en_cours = base;
    }

    // What the menu's command does before showing the screen.
    feuille_documents& ouvrir() {
        auto& f = module1().feuilles().get<feuille_documents>();
        f.pointer_sur(module1().base_en_cours, u"SELECT * FROM documents"_s);
        montrer_active(f);
        return f;
    }

    QStringList intitulés() const { return colonne_du_fichier(base, "documents", "intitulé_bouton"); }
    QString légende(feuille_documents& f) const { return f.datPrimaryRS->Caption(); }

    QString base;
};

} // namespace

// The frame's own behaviours (moves, Valider, Rafraîchir, Supprimer, refusals) are tested once on the
// test screens; here, what this screen adds: its limits, its two kept oddities and its check boxes.
TEST_F(FeuilleDocumentsTest, limits_of_the_boxes_and_the_two_odd_texts_it_keeps) {
    auto& f = module1().feuilles().get<feuille_documents>();
    EXPECT_EQ(f.datPrimaryRS->RecordSource(), "documents");
    const std::pair<QLineEdit*, int> limites[] = {
        {f.intitulé, 30}, {f.titre, 50}, {f.destinataire, 50}, {f.politesse, 254}, {f.post_scriptum, 254}};
    for (const auto& [boîte, limite] : limites)
        EXPECT_EQ(limite_saisie(*boîte), limite) << boîte->objectName().toStdString();
    for (QPlainTextEdit* p :
         {f.paragraphe1, f.paragraphe2, f.paragraphe3, f.paragraphe4, f.paragraphe5, f.paragraphe6})
        EXPECT_EQ(p->property("maxLength").toInt(), 254) << p->objectName().toStdString();
    EXPECT_EQ(f.Check3->toolTip(),
              "Cliquez pour afficher les coordonnées de l'élève (Monsieur X..., Directeur de "
              "l'école ... de ...) sur le document");
    EXPECT_EQ(f.cmdRafraîchir->toolTip(),
              "Cliquez pour rafraichir les données, dans le cas d'une utilisation multi-utilisateurs");
}

TEST_F(FeuilleDocumentsTest, the_current_template_fills_the_boxes_and_check_boxes) {
    auto& f = ouvrir();
    EXPECT_EQ(légende(f), "Fiche: 1");
    EXPECT_EQ(f.intitulé->text(), "Certificat de scolarité");
    EXPECT_EQ(f.titre->text(), "CERTIFICAT DE SCOLARITÉ");
    EXPECT_TRUE(f.paragraphe1->toPlainText().startsWith("Je soussigné(e)"));
    EXPECT_TRUE(f.Check1->isChecked());
    EXPECT_FALSE(f.Check2->isChecked());
    cliquer(*f.datPrimaryRS, "suivant");
    EXPECT_EQ(légende(f), "Fiche: 2");
    EXPECT_EQ(f.intitulé->text(), "Certificat de radiation");
    EXPECT_TRUE(f.Check2->isChecked());
}

TEST_F(FeuilleDocumentsTest, a_new_template_typed_and_saved_lands_in_the_file_with_its_check_boxes) {
    auto& f = ouvrir();
    cliquer(f, "cmdAjouter");
    EXPECT_EQ(légende(f), "Fiche: 0");
    EXPECT_EQ(f.paragraphe1->toPlainText(), "");
    EXPECT_FALSE(f.Check1->isChecked());
    taper(f.intitulé, "Sortie scolaire");
    taper(f.paragraphe1, "Une sortie est prévue.");
    f.Check1->setFocus();
    QTest::keyClick(f.Check1, Qt::Key_Space);
    f.Check5->setFocus();
    QTest::keyClick(f.Check5, Qt::Key_Space);
    cliquer(f, "cmdMettreàjour");
    ASSERT_EQ(intitulés().size(), 4);
    EXPECT_EQ(intitulés().last(), "Sortie scolaire");
    EXPECT_EQ(colonne_du_fichier(base, "documents", "paragraphe1_document").last(), "Une sortie est prévue.");
    EXPECT_NE(colonne_du_fichier(base, "documents", "affichage_coordonnées_élève").last(), "0");
    EXPECT_EQ(colonne_du_fichier(base, "documents", "affichage_coordonnées_responsable_légal").last(), "0");
    EXPECT_NE(colonne_du_fichier(base, "documents", "affichage_date").last(), "0");
    EXPECT_EQ(légende(f), "Fiche: 4");
    EXPECT_EQ(f.intitulé->text(), "Sortie scolaire");
}

TEST_F(FeuilleDocumentsTest, a_paragraph_takes_no_more_than_254_characters) {
    auto& f = ouvrir();
    f.paragraphe6->setFocus();
    taper(f.paragraphe6, QString(260, QChar('x')));
    EXPECT_EQ(f.paragraphe6->toPlainText().size(), 254);
    cliquer(f, "cmdMettreàjour");
    EXPECT_EQ(colonne_du_fichier(base, "documents", "paragraphe6_document").first(),
              QString(254, QChar('x')));
}
