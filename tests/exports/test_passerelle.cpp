// The gateway export on a small school: the file byte for byte against one written by hand, the
// appending, the stop at a pupil whose family is gone, the empty table, the refusals, and the two
// screens where the export leaves them.
#include "support/Programme.h"

#include "exports/familles_passerelle.h"
#include "people/feuille_eleve.h"
#include "people/feuille_famille.h"
#include "platform/dao/Database.h"
#include "platform/dao/Recordset.h"
#include "platform/forms/DataControl.h"
#include "platform/ui/ErrorBoxes.h"
#include "shell/commandes.h"
#include "store/Module1.h"
#include "support/Donnees.h"

#include <QComboBox>
#include <QLineEdit>

namespace {

using Box = ScriptedInteraction::Box;

class Passerelle : public ProgrammeSurModèle {
protected:
    QString fichier() const { return folder.file(u("NORVANEX.EXP")); }
    void école() {
        for (const QStringList& ligne : table_de_données(u("passerelle_base.tsv")))
            ajouter_ligne(ligne[0], QString(ligne[1]).replace(u("\\n"), u("\n")));
    }
    // The folder typed, then the answers to the boxes that follow.
    void exporter(const QString& dossier, std::initializer_list<int> réponses) {
        ui().expectInputBox(dossier);
        for (int réponse : réponses)
            ui().expectMsgBox(réponse);
        exécuter_commande(*mdi, u("menuutilitairesindex4"));
    }
    Box réussite() const {
        return Box::titled(u("Exportation réussie !\nVous disposez maintenant du fichier (") + fichier() +
                               u(") contenant le résultat de l'exportation"),
                           vbInformation);
    }
    DataControl& source(Feuille* f) const { return *f->findChild<DataControl*>(u("datPrimaryRS")); }
};

TEST_F(Passerelle, EachPupilByHandRulesThenASecondExportAppendsTheSameAgain) {
    école();
    ouvrir_élève();
    const QByteArray attendu = contentOf(u(NORVANE_TEST_DATA "/passerelle_attendue.exp"));
    const size_t pointeurs = ui().pointerHistory().size();
    exporter(folder.path(), {vbOK, vbOK});
    EXPECT_EQ(contentOf(fichier()), attendu);
    ASSERT_EQ(ui().inputs().size(), 1u);
    EXPECT_EQ(ui().inputs()[0].prompt, u("Entrez le chemin à utiliser pour exporter les fiches :"));
    EXPECT_EQ(ui().inputs()[0].title, u("Exportation de fiches"));
    const Box un_remplacement = Box::titled(
        u("Une valeur exportée contenait des caractères que le fichier ne peut pas représenter (jeu de "
          "caractères Windows-1252) : ils y ont été remplacés par \"?\"."),
        vbInformation);
    EXPECT_EQ(ui().boxes(), (std::vector<Box>{réussite(), un_remplacement}));
    EXPECT_EQ(ui().pointerHistory()[pointeurs], vbHourglass);
    EXPECT_EQ(ui().pointerHistory().back(), vbArrow);

    // The pupil screen past its last row; the family screen on the family of the last reference.
    auto* élève = module1().feuilles().siChargée<feuille_élève>();
    auto* famille = module1().feuilles().siChargée<feuille_famille>();
    ASSERT_TRUE(élève && famille);
    EXPECT_TRUE(source(élève).Recordset().isEOF());
    EXPECT_FALSE(famille->isVisible());
    EXPECT_EQ(source(famille).RecordSource(), u("SELECT * FROM familles"));
    EXPECT_EQ(famille->Text13->text(), u("000001"));
    EXPECT_EQ(famille->Combo1->currentIndex(), 0);

    exporter(folder.path() + u("/"), {vbYes, vbOK, vbOK});
    EXPECT_EQ(ui().boxes()[2].text, u("Attention ! Le fichier d'exportation ") + fichier() +
                                        u(" existe déjà...\nLes fiches exportées seront ajoutées à celles "
                                          "existantes. Voulez-vous continuer ?"));
    EXPECT_EQ(ui().boxes()[2].buttons, vbYesNo + vbQuestion);
    EXPECT_EQ(contentOf(fichier()), attendu + attendu);
}

TEST_F(Passerelle, AFamilyGoneStopsAfterTwelveLinesAndTheFileStaysOpenForTheRun) {
    ajouter_famille(u("référence_famille=000001|nom_responsable_légal=A"));
    ajouter_élève(u("000001"), u("UN"), {}, u("000001"));
    ajouter_élève(u("000002"), u("DEUX"), {}, u("999999"));
    ajouter_élève(u("000003"), u("TROIS"));
    exporter(folder.path(), {vbOK});
    EXPECT_EQ(ui().lastBox().text, texte_erreur(ErrorBoxKind::standard, VbError(3021)));
    EXPECT_EQ(ui().pointerHistory().back(), vbDefault);
    const QByteArray écrit = contentOf(fichier());
    EXPECT_EQ(écrit.count("\r\n"), 39 + 12);
    EXPECT_TRUE(
        écrit.endsWith("\"DEUX\"\r\n\"\"\r\n\"\"\r\n\"000002\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\" \"\r\n"
                       "\"\"\r\n\"\"\r\n\"\"\r\n"));
    EXPECT_EQ(module1().feuilles().siChargée<feuille_élève>()->matricule->text(), u("000002"));

    exporter(folder.path(), {vbYes, vbOK});
    EXPECT_EQ(ui().lastBox().text, texte_erreur(ErrorBoxKind::standard, VbError(55)));
    EXPECT_EQ(contentOf(fichier()), écrit);
}

TEST_F(Passerelle, AnEmptyTableGivesAnEmptyFileAndSuccessAnEmptyPathNothing) {
    exporter(u(""), {vbOK});
    EXPECT_EQ(ui().lastBox(), Box::titled(u("Chemin vide... Exportation impossible !"), vbCritical));
    EXPECT_FALSE(QFile::exists(fichier()));
    exporter(folder.path(), {vbOK});
    EXPECT_EQ(ui().lastBox(), réussite());
    EXPECT_EQ(contentOf(fichier()), QByteArray());
}

// The family of a reference is the one the family screen's search finds, odd references included.
TEST_F(Passerelle, AReferenceFindsTheFamilyTheScreensSearchFinds) {
    for (const char* référence : {"000002", "ab1", "00000１", "x*", "000001", "A B"})
        ajouter_famille(u("référence_famille=") + u(référence));
    const auto fichier = Database::open(base);
    FamillesPasserelle familles(*fichier);
    for (const char* cherchée :
         {"000001", "000002", "AB1", "00000*", "x*", "X?", "a b", "999", "[0]*", "0\"\"1"}) {
        const auto écran = fichier->OpenRecordset(u("SELECT * FROM familles"));
        const int attendue = error_of([&] { écran->FindFirst(FamillesPasserelle::critère(u(cherchée))); });
        int trouvée = -1;
        const int erreur = error_of([&] { trouvée = familles.chercher(u(cherchée)); });
        if (attendue != 0)
            EXPECT_EQ(erreur, attendue) << cherchée;
        else if (écran->NoMatch())
            EXPECT_EQ(erreur, 3021) << cherchée;
        else
            EXPECT_EQ(trouvée, écran->AbsolutePosition()) << cherchée;
    }
}

} // namespace
