// The lookups as the user meets them outside the plain pick: their declarations, the menu commands,
// an accept by an old origine_appel, a second lookup opened meanwhile, the keys, and genres.
#include "Consultations.h"

#include "people/feuille_eleve.h"
#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/Placement.h"
#include "platform/ui/ErrorBoxes.h"
#include "reference/feuille_equipe.h"
#include "store/Module1.h"
#include "support/BaseDirecte.h"
#include "support/Donnees.h"
#include "support/PiloteEcran.h"

#include <QApplication>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

namespace {

// The refresh tooltip, in the form a screen's row names.
QString rafraîchir(const QString& forme) {
    return u("Cliquez pour ") + forme + u(" les données, dans le cas d'une utilisation multi-utilisateurs");
}

class Consultations : public ConsultationsTest {
protected:
    FeuilleFiche& ouvrir_par_le_menu(const char* menu_, const char* écran) {
        menu(menu_);
        FeuilleFiche* f = chargée(u(écran));
        if (!f)
            throw std::runtime_error(écran);
        return *f;
    }
    // A pupil's lookup button, pressed on the page that shows it.
    void presser(feuille_élève& élève, const char* bouton) {
        auto* b = élève.findChild<QPushButton*>(u(bouton));
        for (int page = 0; page < élève.SSTab1->count(); ++page)
            if (élève.SSTab1->widget(page)->isAncestorOf(b))
                élève.SSTab1->setCurrentIndex(page);
        QTest::mouseClick(b, Qt::LeftButton);
    }
    // The lookup that a pupil's button opens.
    FeuilleFiche& consulter(feuille_élève& élève, const char* bouton, const char* écran) {
        presser(élève, bouton);
        FeuilleFiche* f = chargée(u(écran));
        if (!f)
            throw std::runtime_error(écran);
        return *f;
    }
    // The pupil screen closed after one of its lookups, so that origine_appel still names it.
    void fermer_après(const char* bouton, const char* écran) {
        feuille_élève& élève = ouvrir_élève();
        cliquer(consulter(élève, bouton, écran), u("cmdFermer"));
        élève.Unload();
        processDeletions();
        ASSERT_EQ(module1().feuilles().siChargée<feuille_élève>(), nullptr);
        ASSERT_EQ(module1().origine_appel, 1);
    }
};

TEST_F(Consultations, EachMenuCommandShowsItsLookupInFrontWithItsDeclarationAndTheButtonHidden) {
    module1().origine_appel = 5;
    for (const QStringList& d : table_de_données(u("consultations.tsv"))) {
        const QString &menu = d[0], &écran = d[1], &titre = d[2], &table = d[3];
        SCOPED_TRACE(écran.toStdString());
        FeuilleFiche& f = ouvrir_par_le_menu(menu.toUtf8().constData(), écran.toUtf8().constData());
        EXPECT_TRUE(f.isVisible());
        EXPECT_EQ(static_cast<QWidget*>(mdi->zone->activeSubWindow()), &f.conteneur());
        EXPECT_EQ(f.windowTitle(), titre);
        EXPECT_EQ(f.datPrimaryRS->RecordSource(), u("SELECT * FROM ") + table);
        EXPECT_EQ(f.datPrimaryRS->DatabaseName(), base);
        QStringList entêtes;
        for (int c = 0; c < f.grdDataGrid->model()->columnCount(); ++c)
            entêtes << f.grdDataGrid->model()->headerData(c, Qt::Horizontal).toString();
        EXPECT_EQ(entêtes, d[4].split(u'|'));
        EXPECT_EQ(f.grdDataGrid->model()->rowCount(),
                  fichier(table.toUtf8().constData(), "rowid").size() + 1);
        EXPECT_EQ(f.datPrimaryRS->Caption(), d[5] == u("numérotée") ? u("Fiche: 1") : u(" "));
        EXPECT_EQ(f.cmdRafraîchir->toolTip(), rafraîchir(d[6]));
        EXPECT_TRUE(f.bouton_accepter->isHidden());
        EXPECT_TRUE(f.bouton_accepter->isDefault());
        EXPECT_EQ(f.bouton_accepter->text(), u("Accepter"));
        EXPECT_EQ(f.bouton_accepter->toolTip(),
                  u("Cliquez pour accepter ces données et les insérer dans la fiche d'origine"));
        EXPECT_EQ(module1().origine_appel, 5);
        // One column reads well narrow; each more column widens the screen.
        const int colonnes = f.grdDataGrid->model()->columnCount();
        EXPECT_GE(f.width(), en_pixels(4500 + 2000 * (colonnes - 1)));
        // Each button has room for its whole caption, "Accepter" included once it is shown.
        f.bouton_accepter->show();
        QApplication::processEvents();
        for (QPushButton* b : {f.bouton_accepter, f.cmdAjouter, f.cmdSupprimer, f.cmdRafraîchir,
                               f.cmdMettreàjour, f.cmdFermer})
            EXPECT_GE(b->width(), b->sizeHint().width()) << b->text().toStdString();
        f.bouton_accepter->hide();
    }
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(Consultations, TheLevelsShowTheirDetailsWhole) {
    FeuilleFiche& niveaux = ouvrir_par_le_menu("menuparamètresindex18", "feuille_niveaux");
    const DBGrid& g = *niveaux.grdDataGrid;
    for (const QString& détails : fichier("niveaux", "détails"))
        EXPECT_GT(g.columnWidth(1), g.fontMetrics().horizontalAdvance(détails)) << détails.toStdString();
}

TEST_F(Consultations, OnAnEmptyTableTheMenuAddsAFirstRowThatIsNotWritten) {
    exécuter_par_le_moteur(base, u("DELETE * FROM villes"));
    FeuilleFiche& villes = ouvrir_par_le_menu("menuparamètresindex16", "feuille_villes");
    EXPECT_TRUE(villes.datPrimaryRS->isAddingNew());
    EXPECT_TRUE(villes.bouton_accepter->isHidden());
    villes.Unload();
    EXPECT_TRUE(fichier("villes", "détails").isEmpty());
}

TEST_F(Consultations, OnAnEmptyTableFromTheMenuAjouterLeavesTheUserTypingInTheNewRow) {
    exécuter_par_le_moteur(base, u("DELETE * FROM villes"));
    FeuilleFiche& villes = ouvrir_par_le_menu("menuparamètresindex16", "feuille_villes");
    cliquer(villes, u("cmdAjouter"));
    EXPECT_TRUE(ui().boxes().empty());
    taper_au_focus(u("81000"));
    villes.Unload();
    EXPECT_EQ(fichier("villes", "code_postal"), QStringList{u("81000")});
}

TEST_F(Consultations, FromTheMenuADoubleClickAcceptsWithTheLastValueIntoAClosedCallerLeftHidden) {
    fermer_après("Command7", "feuille_sexe");

    FeuilleFiche& nationalités = ouvrir_par_le_menu("menuparamètresindex15", "feuille_nationalités");
    EXPECT_TRUE(nationalités.bouton_accepter->isHidden());
    double_cliquer_cellule(*nationalités.grdDataGrid, 2);
    processDeletions();
    EXPECT_EQ(chargée(u("feuille_nationalités")), nullptr);
    auto* revenu = module1().feuilles().siChargée<feuille_élève>();
    ASSERT_NE(revenu, nullptr) << "the pupil screen comes back to receive the pick";
    EXPECT_FALSE(revenu->conteneur().isVisible());
    EXPECT_EQ(revenu->nationalité->text(), fichier("nationalités", "détails").at(2));
    EXPECT_EQ(revenu->code_nationalité->text(), fichier("nationalités", "code").at(2));
    EXPECT_TRUE(ui().boxes().empty());

    revenu->Unload();
    EXPECT_EQ(fichier("élèves", "nationalité_élève"), QStringList{fichier("nationalités", "détails").at(2)});
    EXPECT_EQ(fichier("élèves", "code_nationalité_élève"),
              QStringList{fichier("nationalités", "code").at(2)});
}

TEST_F(Consultations, AFocusFieldOnAHiddenCallerFailsWithTheStandardBoxAfterTheCopy) {
    fermer_après("Command9", "feuille_villes");

    FeuilleFiche& villes = ouvrir_par_le_menu("menuparamètresindex16", "feuille_villes");
    ui().expectMsgBox();
    double_cliquer_cellule(*villes.grdDataGrid, 1);
    ASSERT_EQ(ui().boxes().size(), 1u);
    EXPECT_EQ(ui().lastBox().text, texte_erreur(ErrorBoxKind::standard, VbError(5)));
    EXPECT_EQ(ui().lastBox().buttons, vbExclamation + vbOKOnly);
    processDeletions();
    EXPECT_EQ(chargée(u("feuille_villes")), nullptr);
    auto* revenu = module1().feuilles().siChargée<feuille_élève>();
    ASSERT_NE(revenu, nullptr);
    EXPECT_FALSE(revenu->conteneur().isVisible());
    EXPECT_EQ(revenu->code_postal_résidence->text(), u("81100"));
    EXPECT_EQ(revenu->ville_résidence->text(), u("Castres"));
    revenu->Unload();
    EXPECT_EQ(fichier("élèves", "ville_résidence"), QStringList{u("Castres")});
}

TEST_F(Consultations, FromTheMenuWithAValueNotInTheListNothingIsCopiedAndTheLookupStaysOpen) {
    for (const int16_t valeur : {int16_t(0), int16_t(7)}) {
        module1().origine_appel = valeur;
        FeuilleFiche& villes = ouvrir_par_le_menu("menuparamètresindex16", "feuille_villes");
        double_cliquer_cellule(*villes.grdDataGrid, 1);
        processDeletions();
        EXPECT_EQ(chargée(u("feuille_villes")), &villes);
        EXPECT_TRUE(villes.isVisible());
        EXPECT_TRUE(villes.bouton_accepter->isHidden());
        EXPECT_EQ(module1().feuilles().siChargée<feuille_élève>(), nullptr);
        EXPECT_EQ(module1().origine_appel, valeur);
    }
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(Consultations, ALookupLeftOpenAcceptsByTheValueOfTheLastButtonUsed) {
    feuille_équipe& équipe = ouvrir_équipe();
    cliquer(équipe, u("Command7"));
    FeuilleFiche* villes = chargée(u("feuille_villes"));
    ASSERT_NE(villes, nullptr);
    ASSERT_EQ(module1().origine_appel, 6);
    cliquer_cellule(*villes->grdDataGrid, 1);

    feuille_élève& élève = ouvrir_élève();
    presser(élève, "Command8");
    ASSERT_EQ(module1().origine_appel, 1);
    cliquer(*villes, u("bouton_accepter"));
    processDeletions();
    EXPECT_EQ(chargée(u("feuille_villes")), nullptr);
    EXPECT_EQ(élève.code_postal_résidence->text(), u("81100"));
    EXPECT_EQ(élève.ville_résidence->text(), u("Castres"));
    EXPECT_EQ(équipe.code_postal_enseignant->text(), u(""));
    EXPECT_EQ(équipe.ville_enseignant->text(), u(""));
    EXPECT_NE(chargée(u("feuille_adresses")), nullptr) << "the lookup of the second button stays open";
}

TEST_F(Consultations, ALookupOpenedAgainFromAnotherFieldReturnsToItsFirstRow) {
    feuille_équipe& équipe = ouvrir_équipe();
    cliquer(équipe, u("Command9"));
    FeuilleFiche* villes = chargée(u("feuille_villes"));
    cliquer_cellule(*villes->grdDataGrid, 1);
    ASSERT_EQ(villes->datPrimaryRS->Recordset().AbsolutePosition(), 1);
    feuille_élève& élève = ouvrir_élève();
    presser(élève, "Command10");
    EXPECT_EQ(chargée(u("feuille_villes")), villes);
    EXPECT_EQ(villes->datPrimaryRS->Recordset().AbsolutePosition(), 0);
    EXPECT_EQ(villes->grdDataGrid->currentIndex().row(), 0);
    EXPECT_EQ(module1().origine_appel, 1);
}

TEST_F(Consultations, SexeAcceptingByTheLanguagesValueOnlyHidesItsButton) {
    feuille_élève& élève = ouvrir_élève();
    FeuilleFiche* sexe = &consulter(élève, "Command7", "feuille_sexe");
    presser(élève, "Command11");
    ASSERT_EQ(module1().origine_appel, 7);
    cliquer_cellule(*sexe->grdDataGrid, 1);
    cliquer(*sexe, u("bouton_accepter"));
    processDeletions();
    EXPECT_EQ(chargée(u("feuille_sexe")), sexe);
    EXPECT_TRUE(sexe->isVisible());
    EXPECT_TRUE(sexe->bouton_accepter->isHidden());
    EXPECT_EQ(élève.sexe->text(), u(""));
    EXPECT_EQ(élève.langue_vivante_élève->text(), u(""));
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(Consultations, GenresHasNoDoubleClickAndFromTheMenuNoWayToAccept) {
    feuille_équipe& équipe = ouvrir_équipe();
    cliquer(équipe, u("Command5"));
    FeuilleFiche* genres = chargée(u("feuille_genres"));
    ASSERT_NE(genres, nullptr);
    ASSERT_TRUE(genres->bouton_accepter->isVisible());
    double_cliquer_cellule(*genres->grdDataGrid, 1);
    EXPECT_EQ(chargée(u("feuille_genres")), genres) << "no double click, even with the button in view";
    EXPECT_EQ(équipe.genre_enseignant->text(), u(""));
    cliquer(*genres, u("cmdFermer"));
    processDeletions();

    FeuilleFiche& depuis_le_menu = ouvrir_par_le_menu("menuparamètresindex19", "feuille_genres");
    ASSERT_EQ(module1().origine_appel, 6);
    double_cliquer_cellule(*depuis_le_menu.grdDataGrid, 1);
    depuis_le_menu.grdDataGrid->setFocus();
    QTest::keyClick(depuis_le_menu.grdDataGrid, Qt::Key_Return);
    processDeletions();
    EXPECT_EQ(chargée(u("feuille_genres")), &depuis_le_menu);
    EXPECT_EQ(équipe.genre_enseignant->text(), u(""));
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(Consultations, ARowJustTypedInTheGridIsWhatTheAcceptCopies) {
    feuille_élève& élève = ouvrir_élève();
    FeuilleFiche* adresses = &consulter(élève, "Command8", "feuille_adresses");
    cliquer(*adresses, u("cmdAjouter"));
    taper_au_focus(u("chemin du Moulin"));
    cliquer(*adresses, u("bouton_accepter"));
    EXPECT_EQ(élève.adresse_résidence->text(), u("chemin du Moulin"));
    EXPECT_EQ(fichier("adresses", "détails").last(), u("chemin du Moulin"))
        << "written as the lookup unloads";
}

} // namespace
