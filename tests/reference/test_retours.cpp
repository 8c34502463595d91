// The return of a pick, driven by the return table itself: for every pair of lookup and origine_appel
// whose calling screen is part of the program, the caller's button opens the lookup, a pick lands in
// the caller's fields in the table's order, the lookup closes, the focus and the tab follow, and the
// caller's row carries the values into the file.
#include "Consultations.h"

#include "people/feuille_eleve.h"
#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"
#include "reference/feuille_equipe.h"
#include "reference/retours.h"
#include "store/Module1.h"
#include "support/PiloteEcran.h"

#include <QApplication>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <set>

namespace {

// The grid pickers; the team and the family picker take part in the protocol with their own screens.
const QStringList pickers_à_grille =
    u("feuille_adresses feuille_assertions feuille_assurances feuille_csp feuille_genres feuille_hôpitaux "
      "feuille_langues_vivantes feuille_médecins feuille_nationalités feuille_niveaux feuille_sexe "
      "feuille_situations_familiales feuille_villes")
        .split(u' ');

struct Cas {
    const Retour* retour;
    const char* bouton;
};

std::vector<Cas> tous_les_cas() {
    std::vector<Cas> cas;
    for (const Retour& r : table_des_retours())
        for (const char* bouton : r.boutons)
            cas.push_back({&r, bouton});
    return cas;
}

void PrintTo(const Cas& cas, std::ostream* os) {
    *os << cas.retour->consultation << " " << cas.retour->origine_appel << " " << cas.bouton;
}

std::string nom_du_cas(const ::testing::TestParamInfo<Cas>& info) {
    // Test names take ASCII letters only: the accents are dropped from their letters.
    const QString nom = u(info.param.retour->consultation) + '_' +
                        QString::number(info.param.retour->origine_appel) + '_' + u(info.param.bouton);
    std::string propre;
    for (const QChar c : nom.normalized(QString::NormalizationForm_D))
        if (c.isLetterOrNumber() && c.unicode() < 128 || c == u'_')
            propre += static_cast<char>(c.unicode());
    return propre;
}

// A calling screen as the test opens it: its menu command, its table, and the column of the file
// behind each of its fields. A screen that joins the callers joins this list too.
struct Appelant {
    const char* nom;
    const char* menu;
    const char* table;
    QString (*colonne)(const QString& champ);
};

template <class F> QString colonne_de(const QString& champ) {
    for (const auto& c : F::champs())
        if (champ == u(c.name))
            return u(c.column ? c.column : c.name);
    return {};
}

const Appelant appelants[] = {
    {"feuille_élève", "menuenfantsindex1", "élèves", &colonne_de<feuille_élève>},
    {"feuille_équipe", "menuparamètresindex3", "équipe", &colonne_de<feuille_équipe>},
};

const Appelant* appelant_nommé(const QString& nom) {
    for (const Appelant& a : appelants)
        if (nom == u(a.nom))
            return &a;
    return nullptr;
}

QTabWidget* onglets_de(Feuille& f) {
    return f.findChild<QTabWidget*>(u("SSTab1"));
}

int page_de(QTabWidget& onglets, QWidget& w) {
    for (int page = 0; page < onglets.count(); ++page)
        if (onglets.widget(page)->isAncestorOf(&w))
            return page;
    return -1;
}

class RetourDUnChoix : public ConsultationsTest, public ::testing::WithParamInterface<Cas> {};

TEST_P(RetourDUnChoix, LandsInTheCallersFieldsInOrderClosesTheLookupAndSetsFocusAndTab) {
    const Retour& r = *GetParam().retour;
    const QString appelant_nom = u(r.appelant);
    ASSERT_TRUE(module1().feuilles().connaît(appelant_nom)) << r.appelant;
    const Appelant* comment = appelant_nommé(appelant_nom);
    menu(comment->menu);
    ASSERT_NE(chargée(appelant_nom), nullptr);
    Feuille& appelant = *chargée(appelant_nom);
    auto* bouton = appelant.findChild<QPushButton*>(u(GetParam().bouton));
    ASSERT_NE(bouton, nullptr);
    QTabWidget* onglets = onglets_de(appelant);
    if (onglets)
        onglets->setCurrentIndex(page_de(*onglets, *bouton));
    module1().origine_appel = 0;
    QTest::mouseClick(bouton, Qt::LeftButton);

    FeuilleFiche* lookup = chargée(u(r.consultation));
    ASSERT_NE(lookup, nullptr) << "le bouton n'a pas ouvert " << r.consultation;
    EXPECT_TRUE(lookup->isVisible());
    EXPECT_TRUE(lookup->bouton_accepter->isVisible());
    EXPECT_EQ(module1().origine_appel, r.origine_appel);
    EXPECT_EQ(static_cast<QWidget*>(mdi->zone->activeSubWindow()), &lookup->conteneur());

    // While the lookup is open the user may have turned the caller's page: the focus brings it back.
    if (onglets && r.focus)
        onglets->setCurrentIndex(onglets->count() - 1);
    const int page_avant = onglets ? onglets->currentIndex() : -1;

    const QString table = lookup->configuration().source_de_conception;
    QStringList attendues, ordre;
    for (const Copie& copie : r.copies) {
        const QString colonne = lookup->configuration().grille.at(copie.colonne).colonne;
        attendues << colonne_du_fichier(base, table, colonne).at(1);
        auto* cible = appelant.findChild<QLineEdit*>(u(copie.vers));
        ASSERT_NE(cible, nullptr) << copie.vers;
        QObject::connect(cible, &QLineEdit::textChanged, cible,
                         [&ordre, cible] { ordre << cible->objectName(); });
    }

    cliquer_cellule(*lookup->grdDataGrid, 1);
    cliquer(*lookup, u("bouton_accepter"));

    QStringList cibles, reçues;
    for (const Copie& copie : r.copies) {
        cibles << u(copie.vers);
        reçues << appelant.findChild<QLineEdit*>(u(copie.vers))->text();
    }
    EXPECT_EQ(reçues, attendues);
    EXPECT_EQ(ordre, cibles);
    EXPECT_FALSE(module1().feuilles().contient(lookup));
    processDeletions();
    EXPECT_EQ(chargée(u(r.consultation)), nullptr);
    if (r.focus) {
        auto* champ_focus = appelant.findChild<QLineEdit*>(u(r.focus));
        ASSERT_NE(champ_focus, nullptr);
        EXPECT_EQ(QApplication::focusWidget(), champ_focus)
            << (QApplication::focusWidget() ? QApplication::focusWidget()->objectName().toStdString() : "");
        if (onglets)
            EXPECT_EQ(onglets->currentIndex(), page_de(*onglets, *champ_focus));
    } else {
        // The focus comes back to the caller where the user left it: on the button pressed.
        EXPECT_EQ(QApplication::focusWidget(), bouton);
        if (onglets)
            EXPECT_EQ(onglets->currentIndex(), page_avant);
    }
    EXPECT_TRUE(ui().boxes().empty());

    cliquer(appelant, u("cmdMettreàjour"));
    for (qsizetype i = 0; i < attendues.size(); ++i) {
        const QString colonne = comment->colonne(u(r.copies[i].vers));
        EXPECT_EQ(colonne_du_fichier(base, u(comment->table), colonne).value(0), attendues[i])
            << colonne.toStdString();
    }
}

// The rows played here are those whose calling screen exists and whose lookup is a grid; a calling
// screen joins by a line in `appelants`, the team and the family picker have tests of their own.
std::vector<Cas> cas_jouables() {
    std::vector<Cas> cas;
    for (const Cas& c : tous_les_cas())
        if (pickers_à_grille.contains(u(c.retour->consultation)) && appelant_nommé(u(c.retour->appelant)))
            cas.push_back(c);
    return cas;
}

INSTANTIATE_TEST_SUITE_P(TableDesRetours, RetourDUnChoix, ::testing::ValuesIn(cas_jouables()), nom_du_cas);

// Every row of the table names a lookup that knows how to read its columns, and no pair comes twice.
TEST(TableDesRetours, EachPairOfLookupAndValueIsOneRowWithItsColumnsInTheLookupsGrid) {
    std::set<std::pair<QString, int>> paires;
    for (const Retour& r : table_des_retours()) {
        EXPECT_TRUE(paires.insert({u(r.consultation), r.origine_appel}).second) << r.consultation;
        EXPECT_GE(r.origine_appel, 1);
        EXPECT_LE(r.origine_appel, 8);
        EXPECT_FALSE(r.copies.empty());
        EXPECT_FALSE(r.boutons.empty());
        EXPECT_EQ(retour(u(r.consultation), r.origine_appel), &r);
    }
    EXPECT_EQ(retour(u("feuille_sexe"), 7), nullptr);
    EXPECT_EQ(retour(u("feuille_genres"), 1), nullptr);
    EXPECT_EQ(retour(u("feuille_villes"), 0), nullptr);
}

} // namespace
