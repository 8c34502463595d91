// The letter templates on a copy of the template base. The frame's own behaviours (moves, Valider,
// Rafraîchir, Supprimer, refusals) are tested once on the test screens; here, what this screen adds: its
// limits, its two kept oddities and its check boxes.
#include "platform/forms/DataControl.h"
#include "platform/forms/LimiteSaisie.h"
#include "reports/feuille_documents.h"
#include "store/Module1.h"
#include "support/BaseDirecte.h"
#include "support/PiloteEcran.h"

using namespace Qt::StringLiterals;

namespace {

class FeuilleDocumentsTest : public WorkFolderTest {
protected:
    void SetUp() override {
        WorkFolderTest::SetUp();
        base = copie_du_modèle(folder);
    }
    QStringList colonne(const char* nom) const { return colonne_du_fichier(base, u"documents"_s, u(nom)); }
    QString base;
};

TEST_F(FeuilleDocumentsTest, limits_of_the_boxes_and_the_two_odd_texts_it_keeps) {
    auto& f = module1().feuilles().get<feuille_documents>();
    EXPECT_EQ(f.datPrimaryRS->RecordSource(), "documents");
    for (const auto& [boîte, limite] : {std::pair{f.intitulé, 30},
                                        {f.titre, 50},
                                        {f.destinataire, 50},
                                        {f.politesse, 254},
                                        {f.post_scriptum, 254}})
        EXPECT_EQ(limite_saisie(*boîte), limite) << boîte->objectName().toStdString();
    for (QPlainTextEdit* p : {f.paragraphe1, f.paragraphe2, f.paragraphe3, f.paragraphe4, f.paragraphe5})
        EXPECT_EQ(p->property("maxLength").toInt(), 254) << p->objectName().toStdString();
    EXPECT_EQ(f.Check3->toolTip(),
              "Cliquez pour afficher les coordonnées de l'élève (Monsieur X..., Directeur de "
              "l'école ... de ...) sur le document");
    EXPECT_EQ(f.cmdRafraîchir->toolTip(),
              "Cliquez pour rafraichir les données, dans le cas d'une utilisation multi-utilisateurs");
}

TEST_F(FeuilleDocumentsTest, a_new_template_typed_and_saved_lands_in_the_file_with_its_check_boxes) {
    auto& f = module1().feuilles().get<feuille_documents>();
    f.pointer_sur(base, u"SELECT * FROM documents"_s); // as the menu's command does
    montrer_active(f);
    EXPECT_TRUE(f.Check1->isChecked()) << "the first template's";
    cliquer(f, "cmdAjouter");
    EXPECT_FALSE(f.Check1->isChecked());
    taper(f.intitulé, "Sortie scolaire");
    f.paragraphe6->setFocus();
    taper(f.paragraphe6, QString(260, QChar('x')));
    EXPECT_EQ(f.paragraphe6->toPlainText().size(), 254);
    for (QCheckBox* c : {f.Check1, f.Check5}) {
        c->setFocus();
        QTest::keyClick(c, Qt::Key_Space);
    }
    cliquer(f, "cmdMettreàjour");
    EXPECT_EQ(colonne("intitulé_bouton").last(), "Sortie scolaire");
    EXPECT_EQ(colonne("paragraphe6_document").last(), QString(254, QChar('x')));
    EXPECT_NE(colonne("affichage_coordonnées_élève").last(), "0");
    EXPECT_EQ(colonne("affichage_coordonnées_responsable_légal").last(), "0");
    EXPECT_NE(colonne("affichage_date").last(), "0");
    EXPECT_EQ(f.datPrimaryRS->Caption(), "Fiche: 4");
}

} // namespace
