#pragma once

#include "platform/forms/DataControl.h"
#include "platform/forms/FeuilleFiche.h"
#include "store/Module1.h"
#include "support/BaseDirecte.h"
#include "support/Fixtures.h"
#include "support/PiloteEcran.h"

#include <QString>
#include <QStringList>
#include <vector>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QTabWidget;

// The work file of tests/data/essai_lignes.tsv, with a log of every UPDATE and INSERT that reaches it.
QString créer_base_essai(const WorkFolder& dossier);

// A screen of bound boxes over `fiches`, recording the Validate actions it receives.
class feuille_essai : public FeuilleFiche {
    Q_OBJECT
public:
    explicit feuille_essai(ConfigurationFiche configuration = configuration_par_défaut());
    feuille_essai(const feuille_essai&) = delete;

    static ConfigurationFiche configuration_par_défaut();

    QLineEdit* nom = nullptr;
    QLineEdit* naissance = nullptr;
    QCheckBox* actif = nullptr;
    QPlainTextEdit* notes = nullptr;
    QLabel* libellé = nullptr;
    QLabel* naissance_affichée = nullptr; // the same date column, shown again
    QTabWidget* SSTab1 = nullptr;

    std::vector<int> actions;
    void datPrimaryRS_Validate(int& Action, bool& Save) override;
};

// A grid screen, declared as a lookup screen is.
class feuille_grille_essai : public FeuilleFiche {
    Q_OBJECT
public:
    feuille_grille_essai();

    // What each accept read from the grid's current cell.
    QStringList acceptés;
    void bouton_accepter_Click() override;
};

// The scripted program on the test file, with screens pointed at its tables, shown and active.
class ÉcransEssaiTest : public WorkFolderTest {
protected:
    void SetUp() override {
        WorkFolderTest::SetUp();
        base = créer_base_essai(folder);
    }
    template <class F> F& ouvrir_sur(const QString& source) {
        F& f = module1().feuilles().get<F>();
        f.datPrimaryRS->setDatabaseName(base);
        f.datPrimaryRS->setRecordSource(source);
        f.datPrimaryRS->Refresh();
        montrer_active(f);
        return f;
    }

    QString base;
};
