// The lookups as the user meets them outside the plain pick: their declarations, the menu commands,
// an accept by an old origine_appel, a second lookup opened meanwhile, the keys, and genres.
#include "people/feuille_eleve.h"
#include "platform/forms/DBGrid.h"
#include "platform/forms/Placement.h"
#include "platform/ui/ErrorBoxes.h"
#include "reference/feuille_equipe.h"
#include "support/Donnees.h"
#include "support/Programme.h"
#include <QMdiSubWindow>

namespace {

class Consultations : public ProgrammeSurModèle {
protected:
    void SetUp() override {
        ProgrammeSurModèle::SetUp();
        remplir_consultations();
    }
    FeuilleFiche& ouvrir_par_le_menu(const char* menu_, const char* écran) {
        menu(menu_);
        return ouverte(écran);
    }
    FeuilleFiche& ouverte(const char* écran) {
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
    // The pupil screen closed after one of its lookups, so that origine_appel still names it; then the
    // lookup opened from the menu.
    FeuilleFiche& par_le_menu_après(const char* bouton, const char* sienne, const char* menu_,
                                    const char* écran) {
        feuille_élève& élève = ouvrir_élève();
        presser(élève, bouton);
        cliquer(ouverte(sienne), u("cmdFermer"));
        élève.Unload();
        processDeletions();
        EXPECT_EQ(module1().origine_appel, 1);
        return ouvrir_par_le_menu(menu_, écran);
    }
    // The pupil screen that came back, hidden, to receive a pick; the lookup gone.
    feuille_élève& revenu(const char* écran) {
        processDeletions();
        EXPECT_EQ(chargée(u(écran)), nullptr);
        auto* élève = module1().feuilles().siChargée<feuille_élève>();
        if (!élève)
            throw std::runtime_error("the pupil screen does not come back");
        EXPECT_FALSE(élève->conteneur().isVisible());
        return *élève;
    }
};

TEST_F(Consultations, EachMenuCommandShowsItsLookupInFrontWithItsDeclarationAndTheButtonHidden) {
    module1().origine_appel = 5;
    for (const QStringList& d : table_de_données(u("consultations.tsv"))) {
        const QString &écran = d[1], &table = d[3];
        SCOPED_TRACE(écran.toStdString());
        FeuilleFiche& f = ouvrir_par_le_menu(d[0].toUtf8().constData(), écran.toUtf8().constData());
        EXPECT_TRUE(f.isVisible());
        EXPECT_EQ(static_cast<QWidget*>(mdi->zone->activeSubWindow()), &f.conteneur());
        EXPECT_EQ(f.windowTitle(), d[2]);
        EXPECT_EQ(f.datPrimaryRS->RecordSource(), u("SELECT * FROM ") + table);
        EXPECT_EQ(f.datPrimaryRS->DatabaseName(), base);
        QStringList entêtes;
        for (int c = 0; c < f.grdDataGrid->model()->columnCount(); ++c)
            entêtes << f.grdDataGrid->model()->headerData(c, Qt::Horizontal).toString();
        EXPECT_EQ(entêtes, d[4].split(u'|'));
        EXPECT_EQ(f.grdDataGrid->model()->rowCount(),
                  fichier(table.toUtf8().constData(), "rowid").size() + 1);
        EXPECT_EQ(f.datPrimaryRS->Caption(), d[5] == u("numérotée") ? u("Fiche: 1") : u(" "));
        EXPECT_EQ(f.cmdRafraîchir->toolTip(),
                  u("Cliquez pour ") + d[6] +
                      u(" les données, dans le cas d'une utilisation multi-utilisateurs"));
        EXPECT_TRUE(f.bouton_accepter->isHidden());
        EXPECT_TRUE(f.bouton_accepter->isDefault());
        EXPECT_EQ(f.bouton_accepter->text(), u("Accepter"));
        EXPECT_EQ(f.bouton_accepter->toolTip(),
                  u("Cliquez pour accepter ces données et les insérer dans la fiche d'origine"));
        EXPECT_EQ(module1().origine_appel, 5);
        // One column reads well narrow; each more column widens the screen.
        EXPECT_GE(f.width(), en_pixels(4500 + 2000 * (entêtes.size() - 1)));
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
    const DBGrid& g = *ouvrir_par_le_menu("menuparamètresindex18", "feuille_niveaux").grdDataGrid;
    for (const QString& détails : fichier("niveaux", "détails"))
        EXPECT_GT(g.columnWidth(1), g.fontMetrics().horizontalAdvance(détails)) << détails.toStdString();
}

TEST_F(Consultations, OnAnEmptyTableTheMenuAddsAFirstRowThatIsNotWritten) {
    sql("DELETE * FROM villes");
    FeuilleFiche& villes = ouvrir_par_le_menu("menuparamètresindex16", "feuille_villes");
    EXPECT_TRUE(villes.datPrimaryRS->isAddingNew());
    villes.Unload();
    EXPECT_TRUE(fichier("villes", "détails").isEmpty());
}

TEST_F(Consultations, OnAnEmptyTableFromTheMenuAjouterLeavesTheUserTypingInTheNewRow) {
    sql("DELETE * FROM villes");
    FeuilleFiche& villes = ouvrir_par_le_menu("menuparamètresindex16", "feuille_villes");
    cliquer(villes, u("cmdAjouter"));
    taper_au_focus(u("81000"));
    villes.Unload();
    EXPECT_EQ(fichier("villes", "code_postal"), QStringList{u("81000")});
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(Consultations, FromTheMenuADoubleClickAcceptsWithTheLastValueIntoAClosedCallerLeftHidden) {
    FeuilleFiche& nationalités =
        par_le_menu_après("Command7", "feuille_sexe", "menuparamètresindex15", "feuille_nationalités");
    EXPECT_TRUE(nationalités.bouton_accepter->isHidden());
    double_cliquer_cellule(*nationalités.grdDataGrid, 2);
    feuille_élève& élève = revenu("feuille_nationalités");
    EXPECT_EQ(élève.nationalité->text(), fichier("nationalités", "détails").at(2));
    EXPECT_EQ(élève.code_nationalité->text(), fichier("nationalités", "code").at(2));
    EXPECT_TRUE(ui().boxes().empty());
    élève.Unload();
    EXPECT_EQ(fichier("élèves", "code_nationalité_élève"),
              QStringList{fichier("nationalités", "code").at(2)});
}

TEST_F(Consultations, AFocusFieldOnAHiddenCallerFailsWithTheStandardBoxAfterTheCopy) {
    FeuilleFiche& villes =
        par_le_menu_après("Command9", "feuille_villes", "menuparamètresindex16", "feuille_villes");
    ui().expectMsgBox();
    double_cliquer_cellule(*villes.grdDataGrid, 1);
    EXPECT_TRUE(une_boîte(ui(), texte_erreur(ErrorBoxKind::standard, VbError(5))));
    feuille_élève& élève = revenu("feuille_villes");
    EXPECT_EQ(élève.code_postal_résidence->text(), u("81100"));
    EXPECT_EQ(élève.ville_résidence->text(), u("Castres"));
    élève.Unload();
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
        EXPECT_EQ(module1().feuilles().siChargée<feuille_élève>(), nullptr);
        EXPECT_EQ(module1().origine_appel, valeur);
    }
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(Consultations, ALookupLeftOpenAcceptsByTheValueOfTheLastButtonUsed) {
    feuille_équipe& équipe = ouvrir_équipe();
    cliquer(équipe, u("Command7"));
    FeuilleFiche& villes = ouverte("feuille_villes");
    cliquer_cellule(*villes.grdDataGrid, 1);
    feuille_élève& élève = ouvrir_élève();
    presser(élève, "Command8");
    ASSERT_EQ(module1().origine_appel, 1);
    cliquer(villes, u("bouton_accepter"));
    processDeletions();
    EXPECT_EQ(chargée(u("feuille_villes")), nullptr);
    EXPECT_EQ(élève.ville_résidence->text(), u("Castres"));
    EXPECT_EQ(équipe.ville_enseignant->text(), u(""));
    EXPECT_NE(chargée(u("feuille_adresses")), nullptr) << "the lookup of the second button stays open";
}

TEST_F(Consultations, SexeAcceptingByTheLanguagesValueOnlyHidesItsButton) {
    feuille_élève& élève = ouvrir_élève();
    presser(élève, "Command7");
    FeuilleFiche& sexe = ouverte("feuille_sexe");
    presser(élève, "Command11");
    ASSERT_EQ(module1().origine_appel, 7);
    cliquer_cellule(*sexe.grdDataGrid, 1);
    cliquer(sexe, u("bouton_accepter"));
    processDeletions();
    EXPECT_EQ(chargée(u("feuille_sexe")), &sexe);
    EXPECT_TRUE(sexe.isVisible());
    EXPECT_TRUE(sexe.bouton_accepter->isHidden());
    EXPECT_EQ(élève.sexe->text() + élève.langue_vivante_élève->text(), u(""));
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(Consultations, GenresHasNoDoubleClickAndFromTheMenuNoWayToAccept) {
    feuille_équipe& équipe = ouvrir_équipe();
    cliquer(équipe, u("Command5"));
    FeuilleFiche& genres = ouverte("feuille_genres");
    ASSERT_TRUE(genres.bouton_accepter->isVisible());
    double_cliquer_cellule(*genres.grdDataGrid, 1);
    EXPECT_EQ(chargée(u("feuille_genres")), &genres) << "no double click, even with the button in view";
    cliquer(genres, u("cmdFermer"));
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
    presser(élève, "Command8");
    FeuilleFiche& adresses = ouverte("feuille_adresses");
    cliquer(adresses, u("cmdAjouter"));
    taper_au_focus(u("chemin du Moulin"));
    cliquer(adresses, u("bouton_accepter"));
    EXPECT_EQ(élève.adresse_résidence->text(), u("chemin du Moulin"));
    EXPECT_EQ(fichier("adresses", "détails").last(), u("chemin du Moulin"))
        << "written as the lookup unloads";
}

} // namespace
