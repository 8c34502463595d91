// The pupil screen's orders, its two jumps to one pupil and its age display, on a small school whose
// names carry accents.
#include "support/BaseEleves.h"

#include "people/feuille_eleve.h"
#include "platform/forms/DataControl.h"
#include "platform/ui/ErrorBoxes.h"
#include "store/Module1.h"
#include "support/PiloteEcran.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Élève {
    const char* matricule;
    const char* nom;
    const char* prénom;
    const char* naissance;   // JJ/MM/AAAA, or nullptr for none
    const char* inscription; // JJ/MM/AAAA, or nullptr for none
    const char* nationalité;
    const char* classe;
    const char* niveau;
    const char* cycle;
    const char* ville;
};

// Every sort column has one smallest and one largest value, so that each order has its own first and
// last pupil. A naive order of code points would put ÉLUARD after MARTIN, Émile after every other first
// name and Évreux after Vannes.
const Élève école[] = {
    {"000001", "ÉLUARD", "Paul", "10/04/2014", "02/09/2019", "française", "12", "CM1", "2", "Angers"},
    {"000002", "ARNAUD", "Emile", "15/06/2013", "03/09/2018", "belge", "9", "CE2", "2", "Brest"},
    {"000003", "MARTIN", "Zoé", "03/03/2015", "04/09/2017", "française", "3", "CP", "2", "Évreux"},
    {"000004", "ARNAUD", "Émile", "01/02/2014", "04/01/2021", "portugaise", "2", "CM2", "3", "Quimper"},
    {"000005", "DUPONT", "Léa", "20/01/2011", "07/01/2019", "française", "4", "CM1", "2", "Vannes"},
    {"000006", "BERNARD", "Théo", "30/11/2017", "01/09/2020", "française", "5", "PS", "1", "Rennes"},
    {"000007", "LEROY", "Hugo", "08/08/2012", "05/09/2016", "allemande", "11", "CE2", "2", "Nantes"},
    {"000008", "CHEVALIER", "Inès", "24/12/2013", "08/01/2018", "française", "10", "CE1", "2", "Lorient"},
};

QString littéral(const char* texte) {
    return texte ? QLatin1Char('\'') + u(texte) + QLatin1Char('\'') : u"NULL"_s;
}

// JJ/MM/AAAA as the engine's #m/d/yyyy#.
QString littéral_date(const char* jj_mm_aaaa) {
    if (!jj_mm_aaaa)
        return u"NULL"_s;
    const QDate d = QDate::fromString(u(jj_mm_aaaa), u"dd/MM/yyyy"_s);
    return u"#%1/%2/%3#"_s.arg(d.month()).arg(d.day()).arg(d.year());
}

void inscrire(const QString& base, const Élève& e) {
    exécuter_par_le_moteur(
        base, u("INSERT INTO élèves (matricule, nom_élève, prénom_élève, date_naissance_élève, "
                "date_inscription_élève, nationalité_élève, référence_classe_élève, niveau_classe_élève, "
                "cycle_classe_élève, ville_résidence) VALUES (%1, %2, %3, %4, %5, %6, %7, %8, %9, %10)")
                  .arg(littéral(e.matricule), littéral(e.nom), littéral(e.prénom), littéral_date(e.naissance),
                       littéral_date(e.inscription), littéral(e.nationalité), littéral(e.classe),
                       littéral(e.niveau), littéral(e.cycle))
                  .arg(littéral(e.ville)));
}

void inscrire_école(const QString& base) {
    for (const Élève& e : école)
        inscrire(base, e);
}

// A pupil of whom only the birth date is known, or not.
void inscrire_né(const QString& base, const char* matricule, const char* nom, const char* prénom,
                 const char* naissance) {
    inscrire(base, {matricule, nom, prénom, naissance, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr});
}

// The small school written in before the screen opens.
class OrdresEleves : public ÉcranÉlèveTest {
protected:
    void SetUp() override {
        ÉcranÉlèveTest::SetUp();
        activer = true;
        inscrire_école(base);
    }
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
    const struct {
        const char* entrée;
        const char* premier;
        const char* dernier;
    } cas[] = {
        {"Par ordre alphabétique", "ARNAUD Emile", "MARTIN Zoé"},
        {"Par ordre alphabétique inverse", "MARTIN Zoé", "ARNAUD Emile"},
        {"Par ordre des matricules", "ÉLUARD Paul", "CHEVALIER Inès"},
        {"Par ordre inverse des matricules", "CHEVALIER Inès", "ÉLUARD Paul"},
        {"Par âge", "DUPONT Léa", "BERNARD Théo"},
        {"Par âge inverse", "BERNARD Théo", "DUPONT Léa"},
        {"Par date d'inscription", "LEROY Hugo", "ARNAUD Émile"},
        {"Par date d'inscription inverse", "ARNAUD Émile", "LEROY Hugo"},
        {"Par nationalité", "ARNAUD Emile", "MARTIN Zoé"},
        {"Par numéro de classe", "CHEVALIER Inès", "ARNAUD Emile"}, // "10" sorts before "9"
        {"Par niveau", "CHEVALIER Inès", "BERNARD Théo"},
        {"Par cycle", "BERNARD Théo", "ARNAUD Émile"},
        {"Par ville de résidence", "ÉLUARD Paul", "DUPONT Léa"},
    };
    feuille_élève& f = ouvrir();
    ASSERT_EQ(f.Combo1->count(), int(std::size(cas)));
    for (int i = 0; i < int(std::size(cas)); ++i) {
        SCOPED_TRACE(cas[i].entrée);
        // Start elsewhere than the first pupil: the new order does not keep the former position.
        cliquer(*f.datPrimaryRS, u("dernier"));
        choisir_ordre(f, i);
        EXPECT_EQ(f.Combo1->currentText(), u(cas[i].entrée));
        EXPECT_EQ(position(f), u("Fiche: 1"));
        EXPECT_EQ(élève_affiché(f), u(cas[i].premier));
        cliquer(*f.datPrimaryRS, u("dernier"));
        EXPECT_EQ(élève_affiché(f), u(cas[i].dernier));
    }
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(OrdresEleves, ANewOrderKeepsThePageShownAndWritesAPendingEditFirst) {
    feuille_élève& f = ouvrir();
    cliquer(*f.datPrimaryRS, u("suivant"));
    const QString matricule = f.matricule->text();
    f.lieu_naissance->setFocus();
    taper(f.lieu_naissance, u("Pontivy"));
    f.SSTab1->setCurrentIndex(3);
    choisir_ordre(f, 5);
    EXPECT_EQ(f.SSTab1->currentIndex(), 3);
    EXPECT_EQ(élève_affiché(f), u("BERNARD Théo"));
    const QStringList matricules = colonne_du_fichier(base, u("élèves"), u("matricule"));
    const QStringList lieux = colonne_du_fichier(base, u("élèves"), u("lieu_naissance_élève"));
    EXPECT_EQ(lieux[matricules.indexOf(matricule)], u("Pontivy"));
}

TEST_F(OrdresEleves, TheNameSearchFindsTheFirstPupilWhoseSurnameStartsWithTheAnswer) {
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

    // Two ARNAUD: the first of the present order, whichever that is; blanks round the answer go.
    choisir_ordre(f, 0);
    ui().expectInputBox(u("  arn "));
    QTest::mouseDClick(f.nom_enfant, Qt::LeftButton);
    EXPECT_EQ(élève_affiché(f), u("ARNAUD Emile"));
    choisir_ordre(f, 7);
    cliquer(*f.datPrimaryRS, u("dernier"));
    ui().expectInputBox(u("ARN"));
    cliquer(f, u("Command13"));
    EXPECT_EQ(élève_affiché(f), u("ARNAUD Émile"));
    EXPECT_EQ(position(f), u("Fiche: 1"));

    // The engine's wildcards work inside the answer, and accents count as their letter.
    ui().expectInputBox(u("?lu"));
    cliquer(f, u("Command13"));
    EXPECT_EQ(élève_affiché(f), u("ÉLUARD Paul"));
    ui().expectInputBox(u("eluard"));
    cliquer(f, u("Command13"));
    EXPECT_EQ(élève_affiché(f), u("ÉLUARD Paul"));
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(OrdresEleves, TheMatriculeIsSearchedAsTypedWithoutPadding) {
    ajouter_élève(base, u("000042"), u("GARNIER"), u("Lou"));
    feuille_élève& f = ouvrir();

    ui().expectInputBox(u("*42"));
    QTest::mouseDClick(f.matricule, Qt::LeftButton);
    ASSERT_EQ(ui().inputs().size(), 1u);
    EXPECT_EQ(ui().inputs()[0].title, u("Positionnement sur une fiche"));
    EXPECT_EQ(ui().inputs()[0].prompt,
              u("Entrez le matricule de l'enfant dont vous voulez voir la fiche..."));
    EXPECT_EQ(f.matricule->text(), u("000042"));
    EXPECT_EQ(élève_affiché(f), u("GARNIER Lou"));
    EXPECT_TRUE(ui().boxes().empty());

    ui().expectInputBox(u("42")).expectMsgBox();
    cliquer(f, u("Command2"));
    ASSERT_EQ(ui().boxes().size(), 1u);
    EXPECT_EQ(ui().lastBox().text, u("Fiche introuvable..."));
    EXPECT_EQ(ui().lastBox().title, u("Norvane v2"));
    EXPECT_EQ(ui().lastBox().buttons, vbOKOnly + vbInformation);
    EXPECT_EQ(f.matricule->text(), u("000001"));

    ui().expectInputBox(u("000042"));
    cliquer(f, u("Command2"));
    EXPECT_EQ(élève_affiché(f), u("GARNIER Lou"));
}

TEST_F(OrdresEleves, AFailedSearchLeavesTheScreenOnTheFirstRecordOfThePresentOrder) {
    feuille_élève& f = ouvrir();
    choisir_ordre(f, 4);
    cliquer(*f.datPrimaryRS, u("suivant"));
    cliquer(*f.datPrimaryRS, u("suivant"));
    ASSERT_EQ(position(f), u("Fiche: 3"));
    ui().expectInputBox(u("zorro")).expectMsgBox();
    cliquer(f, u("Command13"));
    ASSERT_EQ(ui().boxes().size(), 1u);
    EXPECT_EQ(ui().lastBox().text, u("Fiche introuvable..."));
    EXPECT_EQ(position(f), u("Fiche: 1"));
    EXPECT_EQ(élève_affiché(f), u("DUPONT Léa"));
}

TEST_F(OrdresEleves, CancelOrBlanksInTheInputBoxChangeNothing) {
    journaliser_écritures(base, {u("élèves")});
    feuille_élève& f = ouvrir();
    cliquer(*f.datPrimaryRS, u("suivant"));
    cliquer(*f.datPrimaryRS, u("suivant"));
    const QString avant = élève_affiché(f);
    for (const char* bouton : {"Command2", "Command13"}) {
        for (const char* réponse : {"", "   "}) {
            SCOPED_TRACE(std::string(bouton) + " [" + réponse + "]");
            ui().expectInputBox(u(réponse));
            cliquer(f, u(bouton));
            EXPECT_EQ(position(f), u("Fiche: 3"));
            EXPECT_EQ(élève_affiché(f), avant);
        }
    }
    EXPECT_EQ(ui().inputs().size(), 4u);
    EXPECT_TRUE(ui().boxes().empty());
    EXPECT_EQ(écritures_journalisées(base), 0);
}

TEST_F(OrdresEleves, AnApostropheInTheAnswerIsReportedAtTheTopAndTheProgramGoesOn) {
    feuille_élève& f = ouvrir();
    cliquer(*f.datPrimaryRS, u("dernier"));
    ui().expectInputBox(u("d'arc")).expectMsgBox();
    cliquer(f, u("Command13"));
    ASSERT_EQ(ui().boxes().size(), 1u);
    const auto& boîte = ui().lastBox();
    EXPECT_TRUE(boîte.text.startsWith(u("Le logiciel a rencontré l'erreur : 3077\n\n")))
        << boîte.text.toStdString();
    EXPECT_EQ(boîte.title, u("Norvane v2"));
    EXPECT_EQ(boîte.buttons, vbOKOnly + vbExclamation);
    EXPECT_EQ(ui().mousePointer(), vbDefault);
    // The move to the first record was made before the criterion failed.
    EXPECT_EQ(position(f), u("Fiche: 1"));

    // The screen is still there and answers the next search.
    EXPECT_TRUE(f.isVisible());
    ui().expectInputBox(u("mar"));
    cliquer(f, u("Command13"));
    EXPECT_EQ(élève_affiché(f), u("MARTIN Zoé"));
    EXPECT_EQ(ui().boxes().size(), 1u);
}

TEST_F(OrdresEleves, ASearchOnAnEmptySetIsReportedAtTheTop) {
    feuille_élève& f = ouvrir();
    // A query with no pupil, as a family without children leaves it.
    f.datPrimaryRS->setRecordSource(u("SELECT * FROM élèves WHERE référence_famille = 'aucune'"));
    f.datPrimaryRS->Refresh();
    ui().expectInputBox(u("000001")).expectMsgBox();
    cliquer(f, u("Command2"));
    ASSERT_EQ(ui().boxes().size(), 1u);
    EXPECT_EQ(ui().lastBox().text, texte_erreur(ErrorBoxKind::standard, VbError(3021)));
    EXPECT_TRUE(module1().feuilles().isLoaded<feuille_élève>());
}

class AgeAfficheSurLaFiche : public ÉcranÉlèveTest {
protected:
    void SetUp() override {
        ÉcranÉlèveTest::SetUp();
        activer = true;
        module1().horloge().fixer(QDateTime(QDate(2010, 5, 20), QTime(9, 0)));
    }
};

TEST_F(AgeAfficheSurLaFiche, ARecordWithoutDateKeepsTheFormerPupilsAge) {
    inscrire_né(base, "000001", "AUBRY", "Jade", "15/03/2000");
    inscrire_né(base, "000002", "BLANC", "Noé", nullptr);
    inscrire_né(base, "000003", "COLIN", "Lina", "10/05/2000");
    feuille_élève& f = ouvrir();
    EXPECT_EQ(f.Label12->text(), u("10 a - 2 m - 5 j"));
    cliquer(*f.datPrimaryRS, u("suivant"));
    EXPECT_EQ(élève_affiché(f), u("BLANC Noé"));
    EXPECT_EQ(f.date_naissance->text(), QString());
    EXPECT_EQ(f.Label12->text(), u("10 a - 2 m - 5 j"));
    cliquer(*f.datPrimaryRS, u("suivant"));
    EXPECT_EQ(f.Label12->text(), u("10 a - 0 m - 10 j"));
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(AgeAfficheSurLaFiche, TheFirstRecordWithoutDateShowsNoAge) {
    inscrire_né(base, "000001", "BLANC", "Noé", nullptr);
    feuille_élève& f = ouvrir();
    EXPECT_EQ(f.Label12->text(), QString());
}

TEST_F(AgeAfficheSurLaFiche, TheAgeFollowsTheTypingAndIgnoresWhatIsNoDate) {
    inscrire_né(base, "000001", "AUBRY", "Jade", "15/03/2000");
    feuille_élève& f = ouvrir();
    f.date_naissance->setFocus();
    f.date_naissance->selectAll();
    QTest::keyClick(f.date_naissance, Qt::Key_Backspace);
    EXPECT_EQ(f.Label12->text(), u("10 a - 2 m - 5 j"));
    taper(f.date_naissance, u("abc"));
    EXPECT_EQ(f.Label12->text(), u("10 a - 2 m - 5 j"));
    f.date_naissance->selectAll();
    taper(f.date_naissance, u("21/06/2010"));
    EXPECT_EQ(f.Label12->text(), u("## erreur ##"));
    f.date_naissance->selectAll();
    taper(f.date_naissance, u("10/04/2009"));
    EXPECT_EQ(f.Label12->text(), u("1 a - 1 m - 10 j"));
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(AgeAfficheSurLaFiche, TheClassFieldsAndTheEldestMarkAreNeverFilledByTheScreen) {
    feuille_élève& f = ouvrir();
    for (QLineEdit* e : {f.référence_classe_élève, f.niveau_classe_élève, f.cycle_classe_élève}) {
        SCOPED_TRACE(e->objectName().toStdString());
        EXPECT_FALSE(e->isEnabled());
    }
    // A new pupil, born years before the others, starts with no class and no eldest mark.
    ui().expectMsgBox(vbNo);
    cliquer(f, u("cmdAjouter"));
    f.date_naissance->setFocus();
    taper(f.date_naissance, u("01/01/2000"));
    EXPECT_EQ(f.référence_classe_élève->text(), QString());
    EXPECT_EQ(f.niveau_classe_élève->text(), QString());
    EXPECT_EQ(f.cycle_classe_élève->text(), QString());
    EXPECT_FALSE(f.Check2->isChecked());
    EXPECT_EQ(f.Label12->text(), u("10 a - 4 m - 19 j"));
}

} // namespace
