// The one-row sheets: the school's and the inspection's fields as described, kept in the file across a
// closing; the captions of the pupil's free fields, which the pupil screen takes when pointed again.
#include "support/Programme.h"

#include "people/feuille_eleve.h"
#include "platform/forms/LimiteSaisie.h"
#include "reference/feuille_parametres.h"
#include "store/Module1.h"
#include "support/Donnees.h"
#include "support/PiloteEcran.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

namespace {

class FeuillesUniques : public ProgrammeSurModèle {
protected:
    void SetUp() override {
        ProgrammeSurModèle::SetUp();
        remplir_consultations();
    }
};

// Where the Tab key goes from a control: the next one in the chain that takes the focus by Tab.
QWidget* suivant(QWidget* w) {
    do
        w = w->nextInFocusChain();
    while (!(w->focusPolicy() & Qt::TabFocus));
    return w;
}

TEST_F(FeuillesUniques, SchoolAndInspectionFieldsAsDescribedKeptAcrossAClosing) {
    const QList<QStringList> table = table_de_données(u("ecole_inspection.tsv"));
    for (const char* écran : {"feuille_école", "feuille_inspection"}) {
        SCOPED_TRACE(écran);
        const char* commande =
            qstrcmp(écran, "feuille_école") == 0 ? "menuparamètresindex2" : "menuparamètresindex1";
        menu(commande);
        FeuilleFiche* f = chargée(u(écran));
        ASSERT_NE(f, nullptr);
        auto* onglets = f->findChild<QTabWidget*>(u("SSTab1"));
        QWidget* précédent = nullptr;
        for (const QStringList& c : table) {
            if (c[0] != u(écran))
                continue;
            SCOPED_TRACE(c[1].toStdString());
            auto* champ = f->findChild<QLineEdit*>(c[1]);
            ASSERT_NE(champ, nullptr);
            EXPECT_TRUE(onglets->widget(c[2].toInt())->isAncestorOf(champ));
            EXPECT_EQ(QAccessible::queryAccessibleInterface(champ)->text(QAccessible::Name), c[4]);
            EXPECT_EQ(champ->toolTip(), c[8]);
            EXPECT_EQ(limite_saisie(*champ), c[6].toInt());
            EXPECT_EQ(champ->isEnabled(), c[7] == u("typed"));
            if (précédent) {
                EXPECT_EQ(suivant(précédent), champ);
            }
            précédent = champ;
            champ->setText(c[3].left(c[6].toInt()));
        }
        cliquer(*f, u("cmdFermer"));
        processDeletions();
        menu(commande);
        f = chargée(u(écran));
        for (const QStringList& c : table)
            if (c[0] == u(écran)) {
                EXPECT_EQ(f->findChild<QLineEdit*>(c[1])->text(), c[3].left(c[6].toInt()));
                EXPECT_EQ(fichier(c[0].mid(8).toUtf8().constData(), c[3].toUtf8().constData()),
                          QStringList{c[3].left(c[6].toInt())});
            }
    }
}

TEST_F(FeuillesUniques, ThePupilScreenTakesNewCaptionsWhenPointedAgainAndKeepsItsOwnWithoutARow) {
    feuille_élève& élève = ouvrir_élève();
    EXPECT_EQ(élève.lblLabels[0]->text(), u("champ paramétable 1"));
    EXPECT_EQ(élève.porteurs_aide[0]->text(), u("infobulle"));
    EXPECT_EQ(élève.champ_paramétable[0]->toolTip(), QString());

    menu("menuparamètresindex5");
    auto& p = static_cast<feuille_paramètres&>(*chargée(u("feuille_paramètres")));
    EXPECT_EQ(p.cmdRafraîchir->toolTip(),
              u("Cliquez pour rafraichier les données, dans le cas d'une utilisation multi-utilisateurs"));
    for (int i = 1; i < 20; ++i)
        EXPECT_EQ(suivant(p.txtFields[i - 1]), p.txtFields[i]) << i;
    EXPECT_EQ(limite_saisie(*p.txtFields[18]) + limite_saisie(*p.txtFields[19]), 70);
    p.txtFields[18]->setText(u("Transport"));
    p.txtFields[19]->setText(u("Ligne du car"));
    cliquer(p, u("cmdMettreàjour"));
    EXPECT_EQ(fichier("paramètres", "infobulle_champ_paramétrable10"), QStringList{u("Ligne du car")});

    EXPECT_EQ(élève.lblLabels[9]->text(), u("champ paramétable 10"));
    ouvrir_élève();
    EXPECT_EQ(élève.lblLabels[9]->text(), u("Transport"));
    EXPECT_EQ(élève.champ_paramétable[9]->toolTip(), u("Ligne du car"));
}

} // namespace
