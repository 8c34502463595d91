// The learning of lookup values, brought to life by enabling its fields: the new row and its word, the
// lookup pointed back at its whole table, case and wildcards as the engine's LIKE has them, the quote
// failing into the box; the language and the class with their own departures.
#include "support/Programme.h"

#include "people/feuille_eleve.h"
#include "people/feuille_famille.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/FeuilleFiche.h"
#include "shell/MDIForm1.h"
#include "shell/commandes.h"
#include "store/Module1.h"
#include "support/Donnees.h"
#include "support/PiloteEcran.h"

#include <QComboBox>
#include <QLineEdit>

namespace {

using Box = ScriptedInteraction::Box;

class Apprentissage : public ProgrammeSurModèle {
protected:
    // The field enabled, given a text, then left for the list of orders.
    void saisir_et_quitter(Feuille& écran, const QString& nom, const QString& texte) {
        montrer_active(écran);
        auto* champ = écran.findChild<QLineEdit*>(nom);
        champ->setEnabled(true);
        champ->setFocus();
        champ->setText(texte);
        écran.findChild<QComboBox*>(u("Combo1"))->setFocus();
    }
    QStringList détails(const QString& table) const { return colonne_du_fichier(base, table, u("détails")); }
    static FeuilleFiche* lookup(const QString& nom) {
        return dynamic_cast<FeuilleFiche*>(module1().feuilles().parNom(nom));
    }
};

TEST_F(Apprentissage, EachStandardFieldAddsAnUnknownTextOnceWithItsWord) {
    const QList<QStringList> table = table_de_données(u("apprentissage.tsv"));
    for (qsizetype i = 0; i < table.size(); ++i) {
        const QStringList& r = table[i];
        SCOPED_TRACE(r[1].toStdString());
        Feuille& écran =
            r[0] == u("feuille_élève") ? static_cast<Feuille&>(ouvrir_élève()) : ouvrir_familles();
        const QStringList avant = détails(r[2]);
        const QString nouveau = u("Nv") + QString::number(i);
        ui().expectMsgBox();
        for (const QString& saisie : {QString(), nouveau, nouveau.toUpper(), u("*")})
            saisir_et_quitter(écran, r[1], saisie);
        EXPECT_EQ(détails(r[2]), avant + QStringList{nouveau});
        EXPECT_EQ(
            ui().lastBox(),
            Box::titled(r[6] + u("\n\nCette donnée a été ajoutée dans la table connexe..."), vbInformation));
        FeuilleFiche* l = lookup(r[3]);
        ASSERT_NE(l, nullptr);
        EXPECT_EQ(l->datPrimaryRS->RecordSource(), r[5]);
        EXPECT_FALSE(l->isVisible());

        // A double quote ends the search's text: the box, and the lookup left on its search.
        ui().expectMsgBox();
        saisir_et_quitter(écran, r[1], u("a\"b"));
        EXPECT_TRUE(ui().lastBox().text.startsWith(u("Le logiciel a rencontré l'erreur : ")));
        EXPECT_TRUE(l->datPrimaryRS->RecordSource().startsWith(r[4]));
        EXPECT_EQ(détails(r[2]), avant + QStringList{nouveau});
    }
}

TEST_F(Apprentissage, TheLanguageAddsAtEveryExitAndTheClassTeachesTheFamilySituationInSilence) {
    feuille_élève& élève = ouvrir_élève();
    const QStringList langues = détails(u("langues_vivantes"));
    const QString situation =
        u("La situation familiale saisie n'existait pas dans la table 'situations_familiales'.");
    ui().expectMsgBox().expectMsgBox();
    saisir_et_quitter(élève, u("langue_vivante_élève"), u("Occitan"));
    saisir_et_quitter(élève, u("langue_vivante_élève"), u("Occitan"));
    EXPECT_EQ(détails(u("langues_vivantes")), langues + QStringList(2, u("Occitan")));
    EXPECT_TRUE(ui().lastBox().text.startsWith(situation));

    ajouter_famille(u("référence_famille=000001|situation_familiale=Recomposée"));
    ouvrir_familles();
    exécuter_commande(*mdi, u("menuparamètresindex17"));
    const QStringList situations = détails(u("situations_familiales"));
    const size_t boîtes = ui().boxes().size();
    saisir_et_quitter(élève, u("référence_classe_élève"), u("3"));
    EXPECT_EQ(détails(u("situations_familiales")), situations + QStringList{u("Recomposée")});
    EXPECT_EQ(ui().boxes().size(), boîtes);
    EXPECT_EQ(lookup(u("feuille_situations_familiales"))->datPrimaryRS->RecordSource(),
              u("SELECT détails FROM situations_familiales"));
}

} // namespace
