#include "../shell/EtatDemarrage.h"

#include "platform/files/Files.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/ListesFichiers.h"
#include "reference/feuille_sexe.h"
#include "store/ouverture_base.h"
#include "store/ouvrir_table.h"

#include <QDir>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

using PointageDesSources = Démarrage;

TEST_F(PointageDesSources, UnÉchecEstPasséSousSilenceEtLesÉtapesSuivantesOntLieu) {
    module1().base_en_cours = folder.file("disparue.mdb");
    ouvrir_table_sexe();
    feuille_sexe* écran = feuilles().siChargée<feuille_sexe>();
    ASSERT_NE(écran, nullptr);
    EXPECT_FALSE(écran->conteneur().isVisible());
    EXPECT_EQ(écran->datPrimaryRS->DatabaseName(), folder.file("disparue.mdb"));
    EXPECT_EQ(écran->datPrimaryRS->RecordSource(), "SELECT * FROM sexe");
    EXPECT_FALSE(écran->datPrimaryRS->isOpen());
    EXPECT_TRUE(ui().boxes().empty());
}

// The family names its screens without including them: each procedure loads, hidden, the screen of its
// table (feuille_sexe for sexe, feuille_élève for élèves) and points it at the base in use.
TEST_F(PointageDesSources, ChaqueProcédureChargeParSonNomLÉcranDeSaTable) {
    module1().base_en_cours = copie_du_modèle(folder);
    for (void (*ouvrir)() :
         {ouvrir_table_documents, ouvrir_table_adresses, ouvrir_table_assertions, ouvrir_table_assurances,
          ouvrir_table_csp, ouvrir_table_genres, ouvrir_table_hôpitaux, ouvrir_table_langues_vivantes,
          ouvrir_table_médecins, ouvrir_table_nationalités, ouvrir_table_niveaux, ouvrir_table_sexe,
          ouvrir_table_situations_familiales, ouvrir_table_villes, ouvrir_table_équipe,
          ouvrir_table_élèves}) {
        const size_t avant = feuilles().chargées().size();
        ouvrir();
        ASSERT_EQ(feuilles().chargées().size(), avant + 1);
        Feuille& écran = *feuilles().chargées().back();
        const auto* source = écran.findChild<DataControl*>(u"datPrimaryRS"_s);
        ASSERT_NE(source, nullptr) << écran.objectName().toStdString();
        const QString table = source->RecordSource().section(u' ', 3, 3);
        EXPECT_TRUE(table.startsWith(écran.objectName().mid(8))) << source->RecordSource().toStdString();
        EXPECT_EQ(source->DatabaseName(), module1().base_en_cours);
        EXPECT_TRUE(source->isOpen());
        EXPECT_FALSE(écran.conteneur().isVisible());
    }
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(PointageDesSources, LaTableDuCodeDuChoixMontreLaBoîteStandard) {
    module1().base_en_cours = folder.file("disparue.mdb");
    ui().expectMsgBox(vbOK);
    ouvrir_table_passe_choix();
    EXPECT_TRUE(une_boîte(ui(), "Le logiciel a rencontré l'erreur : 3024\n\n"));
    EXPECT_EQ(feuilles().get<feuille_choix_base>().accès_actuel->text(), "");
}

TEST_F(PointageDesSources, UnFichierQuiNEstPasUneBaseDonneSonErreurAuClic) {
    folder.write("abîmée.mdb", QByteArray(4096, '\x5A'));
    démarrer_par_clic();
    ui().expectMsgBox(vbOK);
    ASSERT_TRUE(choix()->File1->cliquer("abîmée.mdb"));
    EXPECT_TRUE(une_boîte(ui(), "Le logiciel a rencontré l'erreur : 3343\n\n"));
    // Taken as selected all the same: the failure will show in the screens.
    EXPECT_EQ(module1().base_en_cours, QDir::toNativeSeparators(folder.file("abîmée.mdb")));
    EXPECT_EQ(choix()->Label4->text(), module1().base_en_cours);
}

TEST_F(PointageDesSources, FermerBaseLibèreLeFichierQueLeChoixLisait) {
    const QString base = créer_base_de_test(folder.file("ecole.mdb"), u"x"_s);
    démarrer_par_clic();
    ASSERT_TRUE(choix()->File1->cliquer("ecole.mdb"));
    EXPECT_TRUE(fichier_verrouillé(base));
    fermer_base();
    EXPECT_FALSE(fichier_verrouillé(base));
    fermer_base(); // nothing left to close: passed over
    EXPECT_TRUE(ui().boxes().empty());
}

} // namespace
