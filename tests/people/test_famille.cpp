// The family screen on a work base: its fields as described, the numbering of new families, the
// searches, the address copies, the blinking consent, and the ways between a pupil and its family.
#include "BaseEleves.h"

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
const QString lettre_de_l_erreur = u("Le logiciel a rencontré l'erreur : ");
const QString introuvable = u("Fiche introuvable...");
const QString pas_liée = u("La fiche de l'élève n'est pas encore liée à la fiche des parents.");

class FicheFamille : public ÉcranÉlèveTest {
protected:
    void familles(std::initializer_list<const char*> références) {
        for (const char* r : références)
            ajouter_famille(base, {{"référence_famille", u(r)}, {"nom_responsable_légal", u("NOM") + u(r)}});
    }
    QStringList références() const { return colonne_du_fichier(base, u("familles"), u("référence_famille")); }
    bool devant(Feuille& f) const { return mdi->zone->activeSubWindow() == &f.conteneur(); }
    // The user's answer to a search prompt, then the button that asks it.
    void chercher(feuille_famille& f, const char* bouton, const char* réponse) {
        ui().expectInputBox(u(réponse));
        cliquer(f, u(bouton));
    }
};

TEST_F(FicheFamille, EveryFieldIsBoundWithItsCaptionLimitHelpTabAndLookupState) {
    const QList<QStringList> table = table_de_données(u("famille_champs.tsv"));
    std::vector<std::pair<const char*, QString>> valeurs;
    QList<QByteArray> colonnes;
    for (const QStringList& c : table)
        colonnes << c[2].toUtf8();
    for (qsizetype i = 0; i < table.size(); ++i)
        valeurs.emplace_back(colonnes[i].constData(), QString::number(i));
    ajouter_famille(base, valeurs);
    feuille_famille& f = ouvrir_familles();
    QWidget* précédent = nullptr;
    for (qsizetype i = 0; i < table.size(); ++i) {
        const QStringList& c = table[i];
        SCOPED_TRACE(c[0].toStdString());
        auto* champ = f.findChild<QWidget*>(c[0]);
        ASSERT_NE(champ, nullptr);
        EXPECT_EQ(c[1] == u("-") ? !f.SSTab1->isAncestorOf(champ)
                                 : f.SSTab1->widget(c[1].toInt())->isAncestorOf(champ),
                  true);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(champ)->text(QAccessible::Name), c[3]);
        EXPECT_EQ(champ->toolTip(), c[6]);
        EXPECT_EQ(champ->isEnabled(), c[7] == u("non"));
        if (auto* ligne = qobject_cast<QLineEdit*>(champ)) {
            EXPECT_EQ(ligne->text(), QString::number(i));
            EXPECT_EQ(limite_saisie(*ligne), c[5].toInt());
        } else {
            auto* zone = qobject_cast<QPlainTextEdit*>(champ);
            ASSERT_NE(zone, nullptr);
            EXPECT_EQ(zone->toPlainText(), QString::number(i));
            EXPECT_EQ(c[5], u("sans limite"));
            EXPECT_EQ(zone->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
        }
        // The keyboard walks the rows in the table's order.
        if (précédent)
            EXPECT_EQ(précédent->nextInFocusChain(), champ);
        précédent = champ;
    }
    for (const QStringList& b : table_de_données(u("famille_boutons.tsv"))) {
        auto* bouton = f.findChild<QPushButton*>(b[0]);
        ASSERT_NE(bouton, nullptr) << b[0].toStdString();
        EXPECT_EQ(bouton->text(), b[1]);
        EXPECT_EQ(bouton->toolTip(), b[2]);
    }
    EXPECT_EQ(f.windowTitle(), u("Fiche famille"));
    EXPECT_EQ(f.SSTab1->tabText(0) + f.SSTab1->tabText(1) + f.SSTab1->tabText(2),
              u("Parent &1Parent &2&Divers"));
}

TEST_F(FicheFamille, EachEntryOfTheListGivesItsOrderFromTheFirstFamily) {
    ajouter_famille(base, {{"référence_famille", u("000001")}, {"nom_responsable_légal", u("ÉTIENNE")}});
    ajouter_famille(base, {{"référence_famille", u("000002")}, {"nom_responsable_légal", u("EMERY")}});
    ajouter_famille(base, {{"référence_famille", u("000003")}, {"nom_responsable_légal", u("ZOLA")}});
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
    struct Cas {
        std::initializer_list<const char*> existantes;
        const char* supprimée;
        const char* attendue;
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
            chercher(f, "Command1", c.supprimée);
            cliquer(f, u("cmdSupprimer"));
        }
        f.Combo1->setCurrentIndex(3);
        cliquer(f, u("cmdAjouter"));
        EXPECT_EQ(f.Text13->text(), u(c.attendue));
        EXPECT_EQ(f.Combo1->currentIndex(), 0);
        cliquer(f, u("cmdMettreàjour"));
        EXPECT_EQ(références().count(u(c.attendue)), c.fois);
    }
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(FicheFamille, AReferenceThatIsNoNumberStopsEveryCreationWithTheTypeErrorBox) {
    familles({"000001", "ABC"});
    feuille_famille& f = ouvrir_familles();
    for (int essai = 0; essai < 2; ++essai) {
        ui().expectMsgBox();
        cliquer(f, u("cmdAjouter"));
        EXPECT_TRUE(ui().lastBox().text.startsWith(lettre_de_l_erreur + u("13")));
    }
    cliquer(f, u("cmdMettreàjour"));
    EXPECT_EQ(références().size(), 2);
}

TEST_F(FicheFamille, AnEmptyTableOpensOn000001AndATypedReferenceGetsItsZerosOnLeaving) {
    feuille_famille& f = ouvrir_familles();
    EXPECT_EQ(f.Text13->text(), u("000001"));
    cliquer(f, u("cmdMettreàjour"));
    EXPECT_EQ(références(), QStringList{u("000001")});
    montrer_active(f);
    for (const char* saisie : {"42", "A42"}) {
        f.Text13->setFocus();
        f.Text13->selectAll();
        taper_au_focus(u(saisie));
        f.nom_responsable_légal->setFocus();
        EXPECT_EQ(f.Text13->text(), u(saisie[0] == '4' ? "000042" : "A42"));
    }
}

TEST_F(FicheFamille, TheThreeSearchesFindTheFirstMatchOfTheOrderWithWildcardsAccentsAndCase) {
    ajouter_famille(base, {{"référence_famille", u("000001")}, {"nom_responsable_légal", u("DURAND")}});
    ajouter_famille(base, {{"référence_famille", u("000002")},
                           {"nom_responsable_légal", u("DUPONT")},
                           {"nom_conjoint", u("DUPRÉ")}});
    ajouter_famille(base, {{"référence_famille", u("000003")}, {"nom_responsable_légal", u("ÉMERY")}});
    feuille_famille& f = ouvrir_familles();
    struct Cas {
        const char *bouton, *réponse, *trouvée;
    } const cas[] = {
        {"Command23", "du", "000002"},    {"Command23", "D?R", "000001"}, {"Command23", "émery", "000003"},
        {"Command22", "dupré", "000002"}, {"Command22", "DUR", nullptr},  {"Command1", "00000?", "000002"},
        {"Command1", "00000", nullptr},   {"Command1", "*3", "000003"},
    };
    for (const Cas& c : cas) {
        SCOPED_TRACE(std::string(c.bouton) + " " + c.réponse);
        cliquer(*f.datPrimaryRS, u("dernier"));
        if (!c.trouvée)
            ui().expectMsgBox();
        chercher(f, c.bouton, c.réponse);
        EXPECT_EQ(f.Text13->text(), u(c.trouvée ? c.trouvée : "000002"));
        if (!c.trouvée)
            EXPECT_EQ(ui().lastBox(), Box::titled(introuvable, vbOKOnly + vbInformation));
    }
    // A blank answer changes nothing. A quote breaks the criterion after the move to the first family,
    // which has saved the edit; the box says so and the program goes on.
    chercher(f, "Command23", "   ");
    EXPECT_EQ(f.Text13->text(), u("000003"));
    f.prénom_responsable_légal->setText(u("Jeanne"));
    ui().expectMsgBox();
    chercher(f, "Command23", "D'ARC");
    EXPECT_TRUE(ui().lastBox().text.startsWith(lettre_de_l_erreur));
    EXPECT_EQ(f.Text13->text(), u("000002"));
    EXPECT_EQ(colonne_du_fichier(base, u("familles"), u("prénom_responsable_légal")).value(2), u("Jeanne"));
}

TEST_F(FicheFamille, Parent1sAddressBecomesParent2sEvenWhenEmpty) {
    ajouter_famille(base, {{"référence_famille", u("000001")},
                           {"numéro_responsable", u("3")},
                           {"adresse_responsable", u("rue d'Arc")},
                           {"code_postal_responsable", u("69100")},
                           {"ville_responsable", u("Villeurbanne")},
                           {"adresse2_conjoint", u("bât. B")},
                           {"téléphone_professionnel1_conjoint", u("0400")}});
    feuille_famille& f = ouvrir_familles();
    cliquer(f, u("Command16"));
    EXPECT_EQ(
        QStringList({f.Text8->text(), f.Text7->text(), f.Text6->text(), f.Text10->text(), f.Text9->text()}),
        QStringList({u("3"), u("rue d'Arc"), QString(), u("69100"), u("Villeurbanne")}));
    EXPECT_EQ(f.téléphone_professionnel1_conjoint->text(), u("0400"));
    for (QLineEdit* e : {f.Text3, f.Text2, f.Text5, f.Text4})
        e->clear();
    cliquer(f, u("Command16"));
    cliquer(f, u("cmdMettreàjour"));
    EXPECT_EQ(colonne_du_fichier(base, u("familles"), u("adresse_conjoint")), QStringList{u("<null>")});
}

TEST_F(FicheFamille, TheConsentButtonBlinksEvery500MsAndOpensItsLookupWhileEmpty) {
    feuille_famille& f = ouvrir_familles();
    EXPECT_EQ(f.Timer1->interval(), 500);
    EXPECT_TRUE(f.Timer1->isActive());
    const QString faces[] = {u("Autorisation de communiquer les données non-confidentielles"), QString()};
    for (int tic = 0; tic < 4; ++tic) {
        emit f.Timer1->timeout({});
        EXPECT_EQ(f.Command19->text(), faces[tic % 2]);
    }
    cliquer(f, u("Command19"));
    auto* assertions = module1().feuilles().siChargée<feuille_assertions>();
    ASSERT_NE(assertions, nullptr);
    EXPECT_TRUE(assertions->bouton_accepter->isVisible());
    EXPECT_EQ(module1().origine_appel, 1);
}

// The pupil's "Parents", by the state of its reference.
TEST_F(FicheFamille, ParentsLeadsToTheFamilyOrSaysItIsMissing) {
    familles({"000001", "000002"});
    ajouter_élève(base, u("000001"), u("B"), {}, u("000002"));
    ajouter_élève(base, u("000002"), u("A"), {}, u("000009"));
    feuille_élève& élève = ouvrir();
    cliquer(élève, u("Command4"));
    feuille_famille& f = *module1().feuilles().siChargée<feuille_famille>();
    EXPECT_TRUE(f.isVisible() && devant(f));
    EXPECT_EQ(f.Text13->text(), u("000002"));

    f.Hide();
    cliquer(*élève.datPrimaryRS, u("suivant"));
    ui().expectMsgBox(vbYes);
    cliquer(élève, u("Command4"));
    EXPECT_EQ(ui().lastBox(),
              Box::titled(u("La fiche de la famille n'existe pas... Créez-la!"), vbYesNo + vbQuestion));
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(f.Text13->text(), u("000001"));
}

TEST_F(FicheFamille, AnUnlinkedPupilPicksItsFamilyOrStartsOneUnpadded) {
    familles({"000001", "000003"});
    ajouter_élève(base, u("000001"), u("SEUL"));
    feuille_élève& élève = ouvrir();
    montrer_active(élève);
    const Box question =
        Box::titled(pas_liée + u("\n\n La fiche des parents a t-elle déjà été créée lors d'une "
                                 "saisie précédente?"),
                    vbYesNo + vbQuestion);
    // No: a new family numbered after the highest, without zeros; the pupil stays unlinked.
    ui().expectMsgBox(vbNo);
    cliquer(élève, u("Command4"));
    EXPECT_EQ(ui().lastBox(), question);
    feuille_famille& f = *module1().feuilles().siChargée<feuille_famille>();
    EXPECT_TRUE(devant(f));
    EXPECT_EQ(f.Text13->text(), u("4"));
    EXPECT_EQ(élève.référence_famille->text(), QString());

    // Yes, then closed without accepting: still unlinked; Yes and a double click on a row: linked.
    for (bool accepter : {false, true}) {
        ui().expectMsgBox(vbYes);
        cliquer(élève, u("Command4"));
        auto* choix = module1().feuilles().siChargée<feuille_choix_famille>();
        ASSERT_NE(choix, nullptr);
        EXPECT_TRUE(devant(*choix) && choix->bouton_accepter->isVisible());
        EXPECT_EQ(choix->windowTitle(), u("Table des responsables légaux"));
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
    ajouter_famille(base, {{"référence_famille", u("000001")},
                           {"numéro_responsable", u("7")},
                           {"adresse_responsable", u("rue Haute")},
                           {"adresse2_responsable", u("bât. A")},
                           {"code_postal_responsable", u("69003")},
                           {"ville_responsable", u("Lyon")}});
    ajouter_élève(base, u("000001"), u("A"), {}, u("00000*"));
    feuille_élève& élève = ouvrir();
    élève.téléphone1_résidence->setText(u("0102"));
    ui().expectMsgBox(vbNo);
    cliquer(élève, u("Command16"));
    EXPECT_EQ(ui().lastBox(), Box::titled(pas_liée, vbYesNo + vbQuestion));
    EXPECT_EQ(élève.adresse_résidence->text(), QString());

    élève.référence_famille->setText(u("000001"));
    cliquer(élève, u("Command16"));
    EXPECT_EQ(QStringList({élève.numéro_résidence->text(), élève.adresse_résidence->text(),
                           élève.adresse2_résidence->text(), élève.code_postal_résidence->text(),
                           élève.ville_résidence->text(), élève.téléphone1_résidence->text()}),
              QStringList({u("7"), u("rue Haute"), u("bât. A"), u("69003"), u("Lyon"), u("0102")}));
    EXPECT_FALSE(module1().feuilles().siChargée<feuille_famille>()->isVisible());
}

// The user's whole path: an unlinked pupil gets its family in the picker, then the family shows its
// children alone; a family without any offers to start one, with its reference and no matricule.
TEST_F(FicheFamille, FromPupilToFamilyAndBackToItsChildrenAlone) {
    familles({"000001", "000002", "000003"});
    ajouter_élève(base, u("000001"), u("AÎNÉ"), {}, u("000002"));
    ajouter_élève(base, u("000002"), u("AUTRE"), {}, u("000001"));
    ajouter_élève(base, u("000003"), u("CADET"));
    feuille_élève& élève = ouvrir();
    montrer_active(élève);
    cliquer(*élève.datPrimaryRS, u("dernier"));
    ui().expectMsgBox(vbYes);
    cliquer(élève, u("Command4"));
    auto* choix = module1().feuilles().siChargée<feuille_choix_famille>();
    choix->grdDataGrid->setCurrentIndex(choix->grdDataGrid->model()->index(1, 0));
    cliquer(*choix, u("bouton_accepter"));
    cliquer(élève, u("cmdMettreàjour"));

    cliquer(élève, u("Command4"));
    feuille_famille& f = *module1().feuilles().siChargée<feuille_famille>();
    ASSERT_EQ(f.Text13->text(), u("000002"));
    cliquer(f, u("Command4"));
    EXPECT_TRUE(devant(élève));
    EXPECT_EQ(élève.nom_enfant->text(), u("AÎNÉ"));
    EXPECT_EQ(élève.datPrimaryRS->Caption(), u("Fiche: 1"));
    cliquer(*élève.datPrimaryRS, u("suivant"));
    EXPECT_EQ(élève.nom_enfant->text(), u("CADET"));
    cliquer(*élève.datPrimaryRS, u("suivant"));
    EXPECT_EQ(élève.nom_enfant->text(), u("CADET"));

    chercher(f, "Command1", "000003");
    élève.Hide();
    ui().expectMsgBox(vbNo).expectMsgBox(vbYes);
    cliquer(f, u("Command4"));
    EXPECT_FALSE(élève.isVisible());
    cliquer(f, u("Command4"));
    EXPECT_EQ(ui().lastBox(), Box::titled(u("Aucune fiche 'enfant' n'existe dans la famille en cours...\n\n"
                                            "Voulez-vous en créer une?"),
                                          vbYesNo + vbQuestion));
    EXPECT_TRUE(devant(élève));
    EXPECT_EQ(élève.référence_famille->text(), u("000003"));
    EXPECT_EQ(élève.matricule->text(), QString());
}

} // namespace
