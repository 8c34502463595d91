// The pupil screen's orders, its two jumps to one pupil and its age display, on a small school whose
// names carry accents.
#include "people/feuille_eleve.h"
#include "platform/ui/ErrorBoxes.h"
#include "support/Donnees.h"
#include "support/Programme.h"

#include <QAbstractItemView>

using namespace Qt::StringLiterals;

namespace {

// A pupil's row as eleve_ecole.tsv writes it, dates as JJ/MM/AAAA; an empty or missing cell is no value.
void inscrire(const QString& base, const QStringList& élève) {
    QStringList valeurs;
    for (int i = 0; i < 10; ++i) {
        const QString v = élève.value(i);
        const QDate d = QDate::fromString(v, u"dd/MM/yyyy"_s);
        valeurs << (v.isEmpty()   ? u"NULL"_s
                    : d.isValid() ? u"#%1/%2/%3#"_s.arg(d.month()).arg(d.day()).arg(d.year())
                                  : u'\'' + v + u'\'');
    }
    exécuter_par_le_moteur(base,
                           u("INSERT INTO élèves (matricule, nom_élève, prénom_élève, date_naissance_élève, "
                             "date_inscription_élève, nationalité_élève, référence_classe_élève, "
                             "niveau_classe_élève, cycle_classe_élève, ville_résidence) VALUES (") +
                               valeurs.join(u", "_s) + u')');
}

// The small school written in before the screen opens, shown and active.
class OrdresEleves : public ProgrammeSurModèle {
protected:
    void SetUp() override {
        ProgrammeSurModèle::SetUp();
        for (const QStringList& élève : table_de_données(u"eleve_ecole.tsv"_s))
            inscrire(base, élève);
    }
    feuille_élève& ouvrir() { return ouvrir_élève(true); }
};

// The user opens the list and clicks an entry.
void choisir_ordre(feuille_élève& f, int index) {
    f.Combo1->showPopup();
    QAbstractItemView* liste = f.Combo1->view();
    const QModelIndex entrée = liste->model()->index(index, 0);
    liste->scrollTo(entrée);
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, liste->visualRect(entrée).center());
    QApplication::processEvents();
}

QString élève_affiché(const feuille_élève& f) {
    return f.nom_enfant->text() + QLatin1Char(' ') + f.prénom_enfant->text();
}

QString position(const feuille_élève& f) {
    return f.datPrimaryRS->Caption();
}

TEST_F(OrdresEleves, EachEntryOfTheListGivesItsOrderFromItsFirstPupil) {
    feuille_élève& f = ouvrir();
    const QList<QStringList> ordres = table_de_données(u"eleve_ordres.tsv"_s);
    ASSERT_EQ(f.Combo1->count(), ordres.size());
    for (int i = 0; i < ordres.size(); ++i) {
        SCOPED_TRACE(ordres[i][0].toStdString());
        // Start elsewhere than the first pupil: the new order does not keep the former position.
        cliquer(*f.datPrimaryRS, u("dernier"));
        choisir_ordre(f, i);
        EXPECT_EQ(f.Combo1->currentText(), ordres[i][0]);
        EXPECT_EQ(position(f), u("Fiche: 1"));
        EXPECT_EQ(élève_affiché(f), ordres[i][1]);
        cliquer(*f.datPrimaryRS, u("dernier"));
        EXPECT_EQ(élève_affiché(f), ordres[i][2]);
    }
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(OrdresEleves, ANewOrderKeepsThePageShownAndWritesAPendingEditFirst) {
    feuille_élève& f = ouvrir();
    cliquer(*f.datPrimaryRS, u("suivant"));
    f.lieu_naissance->setFocus();
    taper(f.lieu_naissance, u("Pontivy"));
    f.SSTab1->setCurrentIndex(3);
    choisir_ordre(f, 5);
    EXPECT_EQ(f.SSTab1->currentIndex(), 3);
    EXPECT_EQ(élève_affiché(f), u("BERNARD Théo"));
    EXPECT_EQ(fichier("élèves", "lieu_naissance_élève").value(1), u("Pontivy"));
}

// The first pupil of the present order whose surname starts with the answer, blanks round it dropped,
// the engine's wildcards working inside and accents counting as their letter; or the first of the order.
TEST_F(OrdresEleves, TheNameSearchFindsTheFirstOfThePresentOrder) {
    feuille_élève& f = ouvrir();
    ui().expectInputBox(u("dup"));
    cliquer(f, u("Command13"));
    ASSERT_EQ(ui().inputs().size(), 1u);
    EXPECT_EQ(ui().inputs()[0].title, u("Positionnement sur une fiche"));
    EXPECT_EQ(ui().inputs()[0].prompt,
              u("Entrez le nom de l'enfant (entier OU partiel) dont vous voulez voir la fiche..."));
    EXPECT_EQ(ui().inputs()[0].defaultValue, QString());
    EXPECT_EQ(élève_affiché(f), u("DUPONT Léa"));
    EXPECT_EQ(position(f), u("Fiche: 5"));

    choisir_ordre(f, 0);
    ui().expectInputBox(u("  arn "));
    QTest::mouseDClick(f.nom_enfant, Qt::LeftButton);
    EXPECT_EQ(élève_affiché(f), u("ARNAUD Emile"));
    choisir_ordre(f, 7);
    const std::pair<const char*, const char*> cas[] = {{"ARN", "ARNAUD Émile"},
                                                       {"?lu", "ÉLUARD Paul"},
                                                       {"eluard", "ÉLUARD Paul"},
                                                       {"zorro", "ARNAUD Émile"}};
    for (const auto& [réponse, trouvé] : cas) {
        cliquer(*f.datPrimaryRS, u("dernier"));
        ui().expectInputBox(u(réponse));
        if (QString(réponse) == u("zorro"))
            ui().expectMsgBox();
        cliquer(f, u("Command13"));
        EXPECT_EQ(élève_affiché(f), u(trouvé)) << réponse;
    }
    EXPECT_EQ(position(f), u("Fiche: 1"));
    ASSERT_EQ(ui().boxes().size(), 1u);
    EXPECT_EQ(ui().lastBox(),
              ScriptedInteraction::Box::titled(u("Fiche introuvable..."), vbOKOnly + vbInformation));
}

TEST_F(OrdresEleves, TheMatriculeIsSearchedAsTypedWithoutPadding) {
    ajouter_élève(u("000042"), u("GARNIER"), u("Lou"));
    feuille_élève& f = ouvrir();
    ui().expectInputBox(u("*42"));
    QTest::mouseDClick(f.matricule, Qt::LeftButton);
    EXPECT_EQ(ui().inputs()[0].prompt,
              u("Entrez le matricule de l'enfant dont vous voulez voir la fiche..."));
    EXPECT_EQ(ui().inputs()[0].title, u("Positionnement sur une fiche"));
    EXPECT_EQ(élève_affiché(f), u("GARNIER Lou"));

    ui().expectInputBox(u("42")).expectMsgBox();
    cliquer(f, u("Command2"));
    EXPECT_TRUE(une_boîte(ui(), u("Fiche introuvable...")));
    EXPECT_EQ(f.matricule->text(), u("000001"));
    ui().expectInputBox(u("000042"));
    cliquer(f, u("Command2"));
    EXPECT_EQ(élève_affiché(f), u("GARNIER Lou"));
}

TEST_F(OrdresEleves, CancelOrBlanksInTheInputBoxChangeNothing) {
    journaliser_écritures(base, {u("élèves")});
    feuille_élève& f = ouvrir();
    cliquer(*f.datPrimaryRS, u("suivant"));
    cliquer(*f.datPrimaryRS, u("suivant"));
    for (const char* bouton : {"Command2", "Command13"})
        for (const char* réponse : {"", "   "}) {
            ui().expectInputBox(u(réponse));
            cliquer(f, u(bouton));
            EXPECT_EQ(position(f), u("Fiche: 3")) << bouton << " [" << réponse << "]";
        }
    EXPECT_TRUE(ui().boxes().empty());
    EXPECT_EQ(écritures_journalisées(base), 0);
}

TEST_F(OrdresEleves, AnApostropheInTheAnswerIsReportedAtTheTopAndTheProgramGoesOn) {
    feuille_élève& f = ouvrir();
    cliquer(*f.datPrimaryRS, u("dernier"));
    ui().expectInputBox(u("d'arc")).expectMsgBox();
    cliquer(f, u("Command13"));
    EXPECT_TRUE(une_boîte(ui(), u("Le logiciel a rencontré l'erreur : 3077\n\n")));
    EXPECT_EQ(ui().lastBox().buttons, vbOKOnly + vbExclamation);
    EXPECT_EQ(ui().mousePointer(), vbDefault);
    // The move to the first record was made before the criterion failed.
    EXPECT_EQ(position(f), u("Fiche: 1"));
    ui().expectInputBox(u("mar"));
    cliquer(f, u("Command13"));
    EXPECT_EQ(élève_affiché(f), u("MARTIN Zoé"));
}

class AgeAfficheSurLaFiche : public ProgrammeSurModèle {
protected:
    void SetUp() override {
        ProgrammeSurModèle::SetUp();
        module1().horloge().fixer(QDateTime(QDate(2010, 5, 20), QTime(9, 0)));
    }
};

TEST_F(AgeAfficheSurLaFiche, ARecordWithoutDateKeepsTheFormerPupilsAge) {
    for (const char* élève :
         {"000001 AUBRY Jade 15/03/2000", "000002 BLANC Noé", "000003 COLIN Lina 10/05/2000"})
        inscrire(base, u(élève).split(u' '));
    feuille_élève& f = ouvrir_élève(true);
    for (const char* âge : {"10 a - 2 m - 5 j", "10 a - 2 m - 5 j", "10 a - 0 m - 10 j"}) {
        EXPECT_EQ(f.Label12->text(), u(âge)) << élève_affiché(f).toStdString();
        cliquer(*f.datPrimaryRS, u("suivant"));
    }
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(AgeAfficheSurLaFiche, TheFirstRecordWithoutDateShowsNoAge) {
    inscrire(base, u("000001 BLANC Noé").split(u' '));
    EXPECT_EQ(ouvrir_élève(true).Label12->text(), QString());
}

TEST_F(AgeAfficheSurLaFiche, TheAgeFollowsTheTypingAndIgnoresWhatIsNoDate) {
    inscrire(base, u("000001 AUBRY Jade 15/03/2000").split(u' '));
    feuille_élève& f = ouvrir_élève(true);
    f.date_naissance->setFocus();
    for (const auto& [tapé, âge] : {std::pair{"", "10 a - 2 m - 5 j"},
                                    {"abc", "10 a - 2 m - 5 j"},
                                    {"21/06/2010", "## erreur ##"},
                                    {"10/04/2009", "1 a - 1 m - 10 j"}}) {
        f.date_naissance->selectAll();
        QTest::keyClick(f.date_naissance, Qt::Key_Backspace);
        taper(f.date_naissance, u(tapé));
        EXPECT_EQ(f.Label12->text(), u(âge)) << tapé;
    }
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(AgeAfficheSurLaFiche, ANewPupilGetsNoClassNorEldestMarkFromTheScreen) {
    feuille_élève& f = ouvrir_élève(true);
    ui().expectMsgBox(vbNo);
    cliquer(f, u("cmdAjouter"));
    f.date_naissance->setFocus();
    taper(f.date_naissance, u("01/01/2000"));
    EXPECT_EQ(f.Label12->text(), u("10 a - 4 m - 19 j"));
    EXPECT_EQ(f.référence_classe_élève->text() + f.niveau_classe_élève->text() + f.cycle_classe_élève->text(),
              QString());
    EXPECT_FALSE(f.Check2->isChecked());
}

} // namespace
