// The access code screen: its two refusals and its confirmation, the code kept as typed, and the
// chooser asking for the new code at the next opening of the base, or no more once it is removed.
#include "../shell/EtatDemarrage.h"

#include "platform/forms/DataControl.h"
#include "platform/forms/ListesFichiers.h"
#include "store/feuille_acces.h"
#include "store/feuille_login.h"
#include "support/BaseDirecte.h"

#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

using Box = ScriptedInteraction::Box;

class CodeDAccès : public Démarrage {
protected:
    QString base;

    // The file chosen and opened from the chooser, the code typed when one is asked.
    void ouvrir_la_base(const char* code = nullptr) {
        if (code)
            ui().expectModal([code](Feuille& f) {
                auto& login = static_cast<feuille_login&>(f);
                QTest::keyClicks(login.accès_tentavive, QString::fromUtf8(code));
                QTest::mouseClick(login.cmdMettreàjour, Qt::LeftButton);
            });
        choix()->File1->cliquer("ecole.mdb");
        QTest::mouseClick(choix()->cmdMettreàjour, Qt::LeftButton);
        processDeletions();
    }
    feuille_accès& écran() {
        mdi()->cliquer("menuparamètresindex22");
        return *feuilles().siChargée<feuille_accès>();
    }
    // The three boxes typed, then "&Valider" and its box.
    void valider(feuille_accès& f, const char* ancien, const char* nouveau, const char* confirmation) {
        f.accès_ancien->setText(QString::fromUtf8(ancien));
        f.accès_nouveau->setText(QString::fromUtf8(nouveau));
        f.accès_confirmation->setText(QString::fromUtf8(confirmation));
        ui().expectMsgBox();
        QTest::mouseClick(f.cmdMettreàjour, Qt::LeftButton);
    }
    QStringList code_du_fichier() const { return colonne_du_fichier(base, u"passe"_s, u"passe"_s); }
};

TEST_F(CodeDAccès, ChangedOnlyWithTheOldCodeAndTwiceTheNewOneKeptAsTypedThenAskedAtOpening) {
    base = créer_base_de_test(folder.file("ecole.mdb"), QString());
    démarrer_par_clic();
    ouvrir_la_base();
    feuille_accès& f = écran();
    EXPECT_EQ(f.windowTitle(), u"Protection de l'accès aux données"_s);
    EXPECT_EQ(f.accès_nouveau->echoMode(), QLineEdit::Password);
    EXPECT_FALSE(f.accès_actuel->isVisibleTo(&f));

    const QString refus = u"Modification du code d'accès impossible... "_s;
    valider(f, "x", " Neuf ", " Neuf ");
    EXPECT_EQ(ui().lastBox(), Box::titled(refus + u"Vous devez saisir l'ancien code d'accès pour pouvoir le "
                                                  "modifier..."_s,
                                          vbExclamation));
    valider(f, "", " Neuf ", "Neuf");
    EXPECT_EQ(ui().lastBox(),
              Box::titled(refus + u"La confirmation n'est pas identique à la saisie..."_s, vbExclamation));
    EXPECT_EQ(code_du_fichier(), QStringList{QString()});
    valider(f, "", " Neuf ", " Neuf ");
    EXPECT_EQ(ui().lastBox(),
              Box::titled(u"Modification du code d'accès effectuée... Le nouveau code d'accès "
                          "est actif, ne l'oubliez pas!"_s,
                          vbExclamation));
    EXPECT_EQ(code_du_fichier(), QStringList{u" Neuf "_s});
    EXPECT_EQ(f.accès_confirmation->text(), u" Neuf "_s);

    // The chooser asks for the code at the next opening: without its blanks it is refused.
    mdi()->cliquer("menufichierindex1");
    ui().expectMsgBox();
    ouvrir_la_base("Neuf");
    EXPECT_EQ(ui().lastBox().text, u"Erreur de code d'accès... Accès non-autorisé!"_s);
    ouvrir_la_base(" Neuf ");
    EXPECT_EQ(ui().modals().size(), 2u);

    // Removed by the old code and an empty new one: the base opens with no question.
    valider(écran(), " Neuf ", "", "");
    mdi()->cliquer("menufichierindex1");
    ouvrir_la_base();
    EXPECT_EQ(ui().modals().size(), 2u);
    EXPECT_EQ(code_du_fichier(), QStringList{u"<null>"_s});
}

} // namespace
