// Screens reached by name, and the focus given from another screen.
#include "platform/forms/Feuille.h"
#include "platform/forms/Focus.h"
#include "store/Module1.h"
#include "support/PiloteEcran.h"

#include <QVBoxLayout>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

// A screen with a field in front and one on the second page of its tabs.
class écran_nommé : public Feuille {
public:
    écran_nommé() : Feuille(u"écran_nommé"_s) {
        auto* disposition = new QVBoxLayout(this);
        devant = new QLineEdit(this);
        disposition->addWidget(devant);
        onglets = new QTabWidget(this);
        onglets->addTab(new QLineEdit, u"un"_s);
        derrière = new QLineEdit;
        onglets->addTab(derrière, u"deux"_s);
        disposition->addWidget(onglets);
    }
    QLineEdit* devant;
    QLineEdit* derrière;
    QTabWidget* onglets;
};

class ParNom : public ScriptedTest {
protected:
    void SetUp() override {
        ScriptedTest::SetUp();
        module1().feuilles().faireConnaître<écran_nommé>(u"écran_nommé"_s);
    }
};

TEST_F(ParNom, AnUnknownNameGivesNothingAndLoadsNothing) {
    const auto avant = module1().feuilles().chargées().size();
    EXPECT_FALSE(module1().feuilles().connaît(u"feuille_inconnue"_s));
    EXPECT_EQ(module1().feuilles().parNom(u"feuille_inconnue"_s), nullptr);
    EXPECT_THROW(module1().feuilles().nommée(u"feuille_inconnue"_s), std::logic_error);
    EXPECT_EQ(module1().feuilles().chargées().size(), avant);
}

TEST_F(ParNom, TheFocusCannotGoToAHiddenScreenNorToADisabledField) {
    auto& f = module1().feuilles().get<écran_nommé>();
    EXPECT_EQ(error_of([&] { SetFocus(*f.devant); }), 5) << "a hidden screen";
    montrer_active(f);
    f.devant->setEnabled(false);
    EXPECT_EQ(error_of([&] { SetFocus(*f.devant); }), 5) << "a disabled field";
}

} // namespace
