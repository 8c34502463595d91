// The three commands that empty tables: No at any of the three questions deletes nothing, three Yes
// empty exactly their tables, with the questions and the final box in their words.
#include "support/Programme.h"

#include "platform/dao/Database.h"
#include "shell/commandes.h"
#include "support/Donnees.h"

#include <map>

namespace {

using Box = ScriptedInteraction::Box;

class Initialisation : public ProgrammeSurModèle {
protected:
    void SetUp() override {
        ProgrammeSurModèle::SetUp();
        // A row in each table the template leaves empty.
        for (const char* ligne : {"élèves|matricule", "familles|référence_famille", "école|nom_école",
                                  "inspection|nom_inspection", "équipe|genre_enseignant",
                                  "paramètres|intitulé_champ_paramétrable1", "adresses|détails",
                                  "assurances|détails", "hôpitaux|nom", "médecins|nom"})
            ajouter_ligne(u(ligne).section(u'|', 0, 0), u(ligne).section(u'|', 1) + u("=x"));
    }
    std::map<std::string, qsizetype> lignes() const {
        std::map<std::string, qsizetype> compte;
        for (const QString& table : Database::open(base)->tableNames())
            compte[table.toStdString()] = colonne_du_fichier(base, table, u("rowid")).size();
        return compte;
    }
};

TEST_F(Initialisation, NoAtAnyQuestionDeletesNothingThreeYesEmptyExactlyTheTables) {
    auto avant = lignes();
    ASSERT_EQ(avant.size(), 21u);
    for (const QStringList& c : table_de_données(u("initialisations.tsv"))) {
        for (int non_à = 1; non_à <= 3; ++non_à) {
            for (int q = 1; q < non_à; ++q)
                ui().expectMsgBox(vbYes);
            ui().expectMsgBox(vbNo);
            exécuter_commande(*mdi, c[0]);
            EXPECT_EQ(lignes(), avant) << c[0].toStdString() << " non à " << non_à;
        }
        const size_t déjà = ui().boxes().size();
        ui().expectMsgBox(vbYes).expectMsgBox(vbYes).expectMsgBox(vbYes).expectMsgBox(vbOK);
        exécuter_commande(*mdi, c[0]);
        const int q = vbYesNo + vbQuestion;
        EXPECT_EQ(
            std::vector<Box>(ui().boxes().begin() + déjà, ui().boxes().end()),
            (std::vector<Box>{
                Box::titled(c[2], q),
                Box::titled(c[3] + u("\n\nCette opération supprime irrémédiablement toutes les fiches...\n\n"
                                     "Il est fortement conseillé d'effectuer une sauvegarde complète de "
                                     "la base de données avant d'effectuer une opération "
                                     "d'initialisation..."),
                            q),
                Box::titled(c[4] + u("\n\nConfirmez-vous votre demande?"), q),
                Box::titled(c[5], vbInformation)}));
        for (const QString& table : c[1].split(u' '))
            avant[table.toStdString()] = 0;
        EXPECT_EQ(lignes(), avant) << c[0].toStdString();
    }
}

} // namespace
