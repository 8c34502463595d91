// The family screen on a work base: its fields as described, the numbering of new families, the
// searches, the address copies, the blinking consent, and the ways between a pupil and its family.
#include "support/Programme.h"

#include "people/feuille_choix_famille.h"
#include "people/feuille_eleve.h"
#include "people/feuille_famille.h"
#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/LimiteSaisie.h"
#include "reference/feuille_assertions.h"
#include "shell/MDIForm1.h"
#include "store/Module1.h"
#include "support/Donnees.h"
#include "support/PiloteEcran.h"

#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

namespace {

using Box = ScriptedInteraction::Box;
const QString erreur = u("Le logiciel a rencontré l'erreur : ");
const QString pas_liée = u("La fiche de l'élève n'est pas encore liée à la fiche des parents.");

class FicheFamille : public ProgrammeSurModèle {
protected:
    // Families known by their reference, each named "NOM" and the reference.
    void familles(std::initializer_list<const char*> références) {
        for (const char* r : références)
            ajouter_famille(u("référence_famille=%1|nom_responsable_légal=NOM%1").arg(u(r)));
    }
    QStringList colonne(const char* nom) const { return colonne_du_fichier(base, u("familles"), u(nom)); }
    bool devant(Feuille& f) const { return mdi->zone->activeSubWindow() == &f.conteneur(); }
    feuille_famille& famille() const { return *module1().feuilles().siChargée<feuille_famille>(); }
    // The user's answer to a prompt, then the button that asks it.
    void répondre(QWidget& écran, const char* bouton, const char* réponse) {
        ui().expectInputBox(u(réponse));
        cliquer(écran, u(bouton));
    }
    void oui_non(QWidget& écran, const char* bouton, int réponse) {
        ui().expectMsgBox(réponse);
        cliquer(écran, u(bouton));
    }
};

TEST_F(FicheFamille, EveryFieldIsBoundWithItsCaptionLimitHelpTabAndLookupState) {
    const QList<QStringList> table = table_de_données(u("famille_champs.tsv"));
    QStringList valeurs;
    for (qsizetype i = 0; i < table.size(); ++i)
        valeurs << table[i][2] + u'=' + QString::number(i);
    ajouter_famille(valeurs.join(u'|'));
    feuille_famille& f = ouvrir_familles();
    QWidget* précédent = nullptr;
    for (qsizetype i = 0; i < table.size(); ++i) {
        const QStringList& c = table[i];
        SCOPED_TRACE(c[0].toStdString());
        auto* champ = f.findChild<QWidget*>(c[0]);
        ASSERT_NE(champ, nullptr);
        EXPECT_TRUE(c[1] == u("-") ? !f.SSTab1->isAncestorOf(champ)
                                   : f.SSTab1->widget(c[1].toInt())->isAncestorOf(champ));
        EXPECT_EQ(QAccessible::queryAccessibleInterface(champ)->text(QAccessible::Name), c[3]);
        EXPECT_EQ(champ->toolTip(), c[6]);
        EXPECT_EQ(champ->isEnabled(), c[7] == u("non"));
        if (auto* ligne = qobject_cast<QLineEdit*>(champ)) {
            EXPECT_EQ(ligne->text(), QString::number(i));
            EXPECT_EQ(limite_saisie(*ligne), c[5].toInt());
        } else {
            auto* zone = qobject_cast<QPlainTextEdit*>(champ);
            ASSERT_NE(zone, nullptr);
            EXPECT_EQ(zone->toPlainText() + c[5], QString::number(i) + u("sans limite"));
            EXPECT_EQ(zone->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
        }
        if (précédent) { // the keyboard walks the rows in the table's order
            EXPECT_EQ(précédent->nextInFocusChain(), champ);
        }
        précédent = champ;
    }
    for (const QStringList& b : table_de_données(u("famille_boutons.tsv"))) {
        auto* bouton = f.findChild<QPushButton*>(b[0]);
        ASSERT_NE(bouton, nullptr) << b[0].toStdString();
        EXPECT_EQ(bouton->text() + bouton->toolTip(), b[1] + b[2]);
    }
    EXPECT_EQ(f.windowTitle(), u("Fiche famille"));
    EXPECT_EQ(f.SSTab1->tabText(0) + f.SSTab1->tabText(1) + f.SSTab1->tabText(2),
              u("Parent &1Parent &2&Divers"));
}

TEST_F(FicheFamille, EachEntryOfTheListGivesItsOrderFromTheFirstFamily) {
    for (const char* ligne : {"000001|ÉTIENNE", "000002|EMERY", "000003|ZOLA"})
        ajouter_famille(u("référence_famille=%1|nom_responsable_légal=%2")
                            .arg(u(ligne).section(u'|', 0, 0), u(ligne).section(u'|', 1)));
    feuille_famille& f = ouvrir_familles();
    const char* premières[] = {"000002", "000003", "000001", "000003"};
    for (int i = 0; i < 4; ++i) {
        cliquer(*f.datPrimaryRS, u("dernier"));
        f.Combo1->setCurrentIndex(i);
        emit f.Combo1->activated(i);
        EXPECT_EQ(f.Text13->text(), u(premières[i])) << i;
    }
}

// The next reference is the highest in text order plus one, with six digits at least.
TEST_F(FicheFamille, ANewFamilyIsNumberedFromTheHighestReferenceInTextOrder) {
    // An empty table opens on 000001; a typed reference gets its zeros as the focus leaves it.
    montrer_active(ouvrir_familles());
    EXPECT_EQ(famille().Text13->text(), u("000001"));
    for (const char* saisie : {"42", "A42"}) {
        famille().Text13->setFocus();
        famille().Text13->selectAll();
        taper_au_focus(u(saisie));
        famille().nom_responsable_légal->setFocus();
        EXPECT_EQ(famille().Text13->text(), u(saisie[0] == '4' ? "000042" : "A42"));
    }
    cliquer(famille(), u("cmdMettreàjour"));
    EXPECT_EQ(colonne("référence_famille"), QStringList{u("A42")});
    struct Cas {
        std::initializer_list<const char*> existantes;
        const char *supprimée, *attendue;
        int fois; // families that hold it once saved
    } const cas[] = {
        {{"000001", "000002", "000003"}, "000002", "000004", 1},
        {{"000001", "000002"}, "000002", "000002", 1},
        {{"999999"}, nullptr, "1000000", 1},
        {{"999999", "1000000"}, nullptr, "1000000", 2},
    };
    for (const Cas& c : cas) {
        SCOPED_TRACE(c.attendue);
        exécuter_par_le_moteur(base, u("DELETE FROM familles"));
        familles(c.existantes);
        feuille_famille& f = ouvrir_familles();
        if (c.supprimée) {
            répondre(f, "Command1", c.supprimée);
            cliquer(f, u("cmdSupprimer"));
        }
        f.Combo1->setCurrentIndex(3);
        cliquer(f, u("cmdAjouter"));
        EXPECT_EQ(f.Text13->text(), u(c.attendue));
        EXPECT_EQ(f.Combo1->currentIndex(), 0);
        cliquer(f, u("cmdMettreàjour"));
        EXPECT_EQ(colonne("référence_famille").count(u(c.attendue)), c.fois);
    }
    // A highest reference that is no number stops every creation with the type error.
    familles({"ABC"});
    for (int essai = 0; essai < 2; ++essai) {
        oui_non(famille(), "cmdAjouter", vbOK);
        EXPECT_TRUE(ui().lastBox().text.startsWith(erreur + u("13")));
    }
    cliquer(famille(), u("cmdMettreàjour"));
    EXPECT_EQ(colonne("référence_famille").size(), 4);
}

TEST_F(FicheFamille, TheThreeSearchesFindTheFirstMatchOfTheOrderWithWildcardsAccentsAndCase) {
    ajouter_famille(u("référence_famille=000001|nom_responsable_légal=DURAND"));
    ajouter_famille(u("référence_famille=000002|nom_responsable_légal=DUPONT|nom_conjoint=DUPRÉ"));
    ajouter_famille(u("référence_famille=000003|nom_responsable_légal=ÉMERY"));
    feuille_famille& f = ouvrir_familles();
    struct Cas {
        const char *bouton, *réponse, *trouvée;
    } const cas[] = {
        {"Command23", "du", "000002"},    {"Command23", "D?R", "000001"}, {"Command23", "émery", "000003"},
        {"Command22", "dupré", "000002"}, {"Command22", "DUR", nullptr},  {"Command1", "00000?", "000002"},
        {"Command1", "00000", nullptr},   {"Command1", "*3", "000003"},   {"Command23", "   ", "000003"},
    };
    for (const Cas& c : cas) {
        SCOPED_TRACE(std::string(c.bouton) + " " + c.réponse);
        if (!c.trouvée)
            ui().expectMsgBox();
        répondre(f, c.bouton, c.réponse);
        EXPECT_EQ(f.Text13->text(), u(c.trouvée ? c.trouvée : "000002"));
        if (!c.trouvée) {
            EXPECT_EQ(ui().lastBox(), Box::titled(u("Fiche introuvable..."), vbOKOnly + vbInformation));
        }
        cliquer(*f.datPrimaryRS, u("dernier"));
    }
    // A quote breaks the criterion after the move to the first family, which has saved the edit.
    f.prénom_responsable_légal->setText(u("Jeanne"));
    ui().expectMsgBox();
    répondre(f, "Command23", "D'ARC");
    EXPECT_TRUE(ui().lastBox().text.startsWith(erreur));
    EXPECT_EQ(f.Text13->text(), u("000002"));
    EXPECT_EQ(colonne("prénom_responsable_légal").value(2), u("Jeanne"));
}

TEST_F(FicheFamille, Parent1sAddressBecomesParent2sEvenWhenEmpty) {
    ajouter_famille(u("référence_famille=000001|numéro_responsable=3|adresse_responsable=rue d'Arc|"
                      "code_postal_responsable=69100|ville_responsable=Villeurbanne|"
                      "adresse2_conjoint=bât. B|téléphone_professionnel1_conjoint=0400"));
    feuille_famille& f = ouvrir_familles();
    cliquer(f, u("Command16"));
    EXPECT_EQ(QStringList({f.Text8->text(), f.Text7->text(), f.Text6->text(), f.Text10->text(),
                           f.Text9->text(), f.téléphone_professionnel1_conjoint->text()}),
              QStringList({u("3"), u("rue d'Arc"), QString(), u("69100"), u("Villeurbanne"), u("0400")}));
    for (QLineEdit* e : {f.Text3, f.Text2, f.Text5, f.Text4})
        e->clear();
    cliquer(f, u("Command16"));
    cliquer(f, u("cmdMettreàjour"));
    EXPECT_EQ(colonne("adresse_conjoint"), QStringList{u("<null>")});
}

// "Parents" by the state of the pupil's reference: found, unknown, empty and No, empty and Yes then
// closed, empty and Yes then a double click on a row of the picker.
TEST_F(FicheFamille, ParentsLeadsToTheFamilyOrSaysItIsMissingOrLinksOrStartsOne) {
    familles({"000001", "000003"});
    ajouter_élève(u("000001"), u("B"), {}, u("000003"));
    ajouter_élève(u("000002"), u("A"), {}, u("000009"));
    ajouter_élève(u("000003"), u("SEUL"));
    feuille_élève& élève = ouvrir_élève();
    montrer_active(élève);
    cliquer(élève, u("Command4"));
    EXPECT_TRUE(famille().isVisible() && devant(famille()));
    EXPECT_EQ(famille().Text13->text(), u("000003"));

    famille().Hide();
    cliquer(*élève.datPrimaryRS, u("suivant"));
    oui_non(élève, "Command4", vbYes);
    EXPECT_EQ(ui().lastBox(),
              Box::titled(u("La fiche de la famille n'existe pas... Créez-la!"), vbYesNo + vbQuestion));
    EXPECT_FALSE(famille().isVisible());

    cliquer(*élève.datPrimaryRS, u("suivant"));
    oui_non(élève, "Command4", vbNo);
    EXPECT_EQ(ui().lastBox(),
              Box::titled(pas_liée + u("\n\n La fiche des parents a t-elle déjà été créée lors "
                                       "d'une saisie précédente?"),
                          vbYesNo + vbQuestion));
    EXPECT_TRUE(devant(famille()));
    EXPECT_EQ(famille().Text13->text(), u("4"));
    EXPECT_EQ(élève.référence_famille->text(), QString());

    for (bool accepter : {false, true}) {
        oui_non(élève, "Command4", vbYes);
        auto* choix = module1().feuilles().siChargée<feuille_choix_famille>();
        ASSERT_NE(choix, nullptr);
        EXPECT_TRUE(devant(*choix) && choix->bouton_accepter->isVisible());
        if (accepter) {
            const QRect ligne = choix->grdDataGrid->visualRect(choix->grdDataGrid->model()->index(1, 2));
            QTest::mouseClick(choix->grdDataGrid->viewport(), Qt::LeftButton, {}, ligne.center());
            QTest::mouseDClick(choix->grdDataGrid->viewport(), Qt::LeftButton, {}, ligne.center());
        } else {
            cliquer(*choix, u("cmdFermer"));
        }
        processDeletions();
        EXPECT_EQ(module1().origine_appel, 1);
        EXPECT_EQ(élève.référence_famille->text(), accepter ? u("000003") : QString());
    }
    EXPECT_EQ(focus_actuel(), élève.référence_famille);
}

TEST_F(FicheFamille, ThePupilsResidenceCopiesTheFamilyAddressByExactReference) {
    ajouter_famille(u("référence_famille=000001|numéro_responsable=7|adresse_responsable=rue Haute|"
                      "adresse2_responsable=bât. A|code_postal_responsable=69003|ville_responsable=Lyon"));
    ajouter_élève(u("000001"), u("A"), {}, u("00000*"));
    feuille_élève& élève = ouvrir_élève();
    élève.téléphone1_résidence->setText(u("0102"));
    oui_non(élève, "Command16", vbNo);
    EXPECT_EQ(ui().lastBox(), Box::titled(pas_liée, vbYesNo + vbQuestion));
    EXPECT_EQ(élève.adresse_résidence->text(), QString());

    élève.référence_famille->setText(u("000001"));
    cliquer(élève, u("Command16"));
    EXPECT_EQ(QStringList({élève.numéro_résidence->text(), élève.adresse_résidence->text(),
                           élève.adresse2_résidence->text(), élève.code_postal_résidence->text(),
                           élève.ville_résidence->text(), élève.téléphone1_résidence->text()}),
              QStringList({u("7"), u("rue Haute"), u("bât. A"), u("69003"), u("Lyon"), u("0102")}));
    EXPECT_FALSE(famille().isVisible());
}

// The user's path: an unlinked pupil gets its family in the picker, then the family shows its children
// alone; a family without any offers to start one, with its reference and no matricule.
TEST_F(FicheFamille, FromPupilToFamilyAndBackToItsChildrenAlone) {
    familles({"000001", "000002", "000003"});
    ajouter_élève(u("000001"), u("AÎNÉ"), {}, u("000002"));
    ajouter_élève(u("000002"), u("AUTRE"), {}, u("000001"));
    ajouter_élève(u("000003"), u("CADET"));
    feuille_élève& élève = ouvrir_élève();
    montrer_active(élève);
    cliquer(*élève.datPrimaryRS, u("dernier"));
    oui_non(élève, "Command4", vbYes);
    auto* choix = module1().feuilles().siChargée<feuille_choix_famille>();
    choix->grdDataGrid->setCurrentIndex(choix->grdDataGrid->model()->index(1, 0));
    cliquer(*choix, u("bouton_accepter"));
    cliquer(élève, u("cmdMettreàjour"));

    cliquer(élève, u("Command4"));
    ASSERT_EQ(famille().Text13->text(), u("000002"));
    cliquer(famille(), u("Command4"));
    EXPECT_TRUE(devant(élève));
    EXPECT_EQ(élève.nom_enfant->text() + élève.datPrimaryRS->Caption(), u("AÎNÉFiche: 1"));
    cliquer(*élève.datPrimaryRS, u("dernier"));
    EXPECT_EQ(élève.nom_enfant->text() + élève.datPrimaryRS->Caption(), u("CADETFiche: 2"));

    répondre(famille(), "Command1", "000003");
    élève.Hide();
    oui_non(famille(), "Command4", vbNo);
    EXPECT_FALSE(élève.isVisible());
    oui_non(famille(), "Command4", vbYes);
    EXPECT_EQ(ui().lastBox(), Box::titled(u("Aucune fiche 'enfant' n'existe dans la famille en cours...\n\n"
                                            "Voulez-vous en créer une?"),
                                          vbYesNo + vbQuestion));
    EXPECT_TRUE(devant(élève));
    EXPECT_EQ(élève.référence_famille->text() + u'|' + élève.matricule->text(), u("000003|"));
}

} // namespace
