// The return of a pick, played from the return table in tests/data: for every row whose calling screen
// is part of the program and whose lookup is a grid screen, the caller's button opens the lookup, a
// pick lands in the caller's fields in the table's order, the lookup closes, the focus and the tab
// follow, and the caller's row carries the values into the file.
#include "platform/forms/DBGrid.h"
#include "support/Donnees.h"
#include "support/Programme.h"

#include <QMdiSubWindow>
#include <map>

namespace {

struct Cible {
    QString champ;
    int colonne_grille;
    QString colonne_fichier;
};

struct Cas {
    QString consultation;
    int origine_appel;
    QString appelant;
    QString bouton;
    std::vector<Cible> cibles;
    QString focus; // empty for none
};

// The calling screens built so far: their menu command and their table.
const std::map<QString, std::pair<const char*, const char*>> appelants = {
    {u("feuille_élève"), {"menuenfantsindex1", "élèves"}},
    {u("feuille_équipe"), {"menuparamètresindex3", "équipe"}},
};

void PrintTo(const Cas& c, std::ostream* os) {
    *os << (c.consultation + u' ' + QString::number(c.origine_appel) + u' ' + c.bouton).toStdString();
}

std::vector<Cas> cas_jouables() {
    QStringList à_grille;
    for (const QStringList& écran : table_de_données(u("consultations.tsv")))
        à_grille << écran[1];
    std::vector<Cas> cas;
    for (const QStringList& r : table_de_données(u("retours.tsv"))) {
        if (!à_grille.contains(r[0]) || !appelants.contains(r[2]))
            continue;
        std::vector<Cible> cibles;
        for (const QString& c : r[4].split(u' ')) {
            const QStringList parts = c.split(u':');
            cibles.push_back({parts[0], parts[1].toInt(), parts.value(2)});
        }
        for (const QString& bouton : r[3].split(u' '))
            cas.push_back({r[0], r[1].toInt(), r[2], bouton, cibles, r[5] == u("-") ? QString() : r[5]});
    }
    return cas;
}

int page_de(QTabWidget& onglets, QWidget& w) {
    for (int page = 0; page < onglets.count(); ++page)
        if (onglets.widget(page)->isAncestorOf(&w))
            return page;
    return -1;
}

class RetourDUnChoix : public ProgrammeSurModèle, public ::testing::WithParamInterface<Cas> {
protected:
    void SetUp() override {
        ProgrammeSurModèle::SetUp();
        remplir_consultations();
    }
};

TEST_P(RetourDUnChoix, LandsInTheCallersFieldsInOrderClosesTheLookupAndSetsFocusAndTab) {
    const Cas& r = GetParam();
    const auto& [commande, table] = appelants.at(r.appelant);
    menu(commande);
    ASSERT_NE(chargée(r.appelant), nullptr);
    Feuille& appelant = *chargée(r.appelant);
    auto* bouton = appelant.findChild<QPushButton*>(r.bouton);
    ASSERT_NE(bouton, nullptr);
    auto* onglets = appelant.findChild<QTabWidget*>(u("SSTab1"));
    if (onglets)
        onglets->setCurrentIndex(page_de(*onglets, *bouton));
    module1().origine_appel = 0;
    QTest::mouseClick(bouton, Qt::LeftButton);

    FeuilleFiche* lookup = chargée(r.consultation);
    ASSERT_NE(lookup, nullptr) << "le bouton n'a pas ouvert " << r.consultation.toStdString();
    EXPECT_TRUE(lookup->bouton_accepter->isVisible());
    EXPECT_EQ(module1().origine_appel, r.origine_appel);
    EXPECT_EQ(static_cast<QWidget*>(mdi->zone->activeSubWindow()), &lookup->conteneur());

    // While the lookup is open the user may have turned the caller's page: the focus brings it back.
    if (onglets && !r.focus.isEmpty())
        onglets->setCurrentIndex(onglets->count() - 1);
    const int page_avant = onglets ? onglets->currentIndex() : -1;

    QStringList attendues, ordre, cibles;
    for (const Cible& c : r.cibles) {
        attendues << lookup->grdDataGrid->model()->index(1, c.colonne_grille).data().toString();
        auto* cible = appelant.findChild<QLineEdit*>(c.champ);
        ASSERT_NE(cible, nullptr) << c.champ.toStdString();
        cibles << c.champ;
        QObject::connect(cible, &QLineEdit::textChanged, cible,
                         [&ordre, cible] { ordre << cible->objectName(); });
    }
    ASSERT_FALSE(attendues.contains(QString())) << "the picked row holds a value in each copied column";

    cliquer_cellule(*lookup->grdDataGrid, 1);
    cliquer(*lookup, u("bouton_accepter"));

    QStringList reçues;
    for (const Cible& c : r.cibles)
        reçues << appelant.findChild<QLineEdit*>(c.champ)->text();
    EXPECT_EQ(reçues, attendues);
    EXPECT_EQ(ordre, cibles);
    processDeletions();
    EXPECT_EQ(chargée(r.consultation), nullptr);
    if (!r.focus.isEmpty()) {
        auto* champ_focus = appelant.findChild<QLineEdit*>(r.focus);
        ASSERT_NE(champ_focus, nullptr);
        EXPECT_EQ(QApplication::focusWidget(), champ_focus);
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
    for (qsizetype i = 0; i < attendues.size(); ++i)
        EXPECT_EQ(colonne_du_fichier(base, u(table), r.cibles[i].colonne_fichier).value(0), attendues[i])
            << r.cibles[i].colonne_fichier.toStdString();
}

INSTANTIATE_TEST_SUITE_P(TableDesRetours, RetourDUnChoix, ::testing::ValuesIn(cas_jouables()));

} // namespace
