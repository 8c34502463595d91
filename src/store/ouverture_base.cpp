#include "store/ouverture_base.h"

#include "people/feuille_eleve.h"
#include "platform/errors/ErrorBoxes.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/Module1.h"
#include "shell/MDIForm1.h"
#include "shell/feuille_options.h"
#include "shell/feuille_patientez.h"
#include "shell/options.h"
#include "store/feuille_choix_base.h"
#include "store/feuille_login.h"
#include "store/ouvrir_table.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <functional>

namespace {

// The screens an opening shows when their option is ticked, in this order. They are only shown, not
// pointed: a screen not loaded yet points itself as it loads. An empty entry is a screen that is not
// part of the program yet.
struct ÉcranAprèsOuverture {
    QCheckBox* feuille_options::*option;
    std::function<void()> montrer;
};

// Shows screen F, loading it first if need be, and gives it the focus.
template <class F> void montrer_avec_le_focus() {
    F& écran = module1().feuilles().get<F>();
    écran.Show();
    écran.setFocus();
}

const std::vector<ÉcranAprèsOuverture>& écrans_après_ouverture() {
    static const std::vector<ÉcranAprèsOuverture> écrans = {
        {&feuille_options::Check1, {}}, // feuille_famille
        {&feuille_options::Check2, montrer_avec_le_focus<feuille_élève>},
        {&feuille_options::Check4, {}}, // feuille_traitements
    };
    return écrans;
}

// The code typed in the box must equal the file's code exactly; a cancelled box leaves it empty.
// The chooser may go while the box waits (an assistive tool reaches it behind the box): the opening
// then has no file to open nor code to compare, and stops there.
bool code_accepté(const QPointer<feuille_choix_base>& choix) {
    if (choix->accès_actuel->text().isEmpty())
        return true;
    Module1& m = module1();
    choix->accès_tentavive->setText(QString());
    m.interaction().showModal(m.feuilles().get<feuille_login>());
    if (!choix || !m.feuilles().contient(choix)) {
        m.interaction().setMousePointer(vbDefault);
        return false;
    }
    if (choix->accès_tentavive->text() == choix->accès_actuel->text())
        return true;
    choix->accès_tentavive->setText(QString());
    m.interaction().MsgBox(QStringLiteral("Erreur de code d'accès... Accès non-autorisé!"), vbExclamation);
    m.interaction().setMousePointer(vbDefault);
    return false;
}

} // namespace

void ouvrir_base_choisie() {
    avec_piège(ErrorBoxKind::données, [] {
        Module1& m = module1();
        Feuilles& feuilles = m.feuilles();
        // Guarded: the chooser may go while the access code box waits.
        const QPointer<feuille_choix_base> choix = &feuilles.get<feuille_choix_base>();
        if (choix->Label4->text().isEmpty()) {
            m.interaction().MsgBox(
                QStringLiteral(
                    "Vous devez sélectionner la base de données sur laquelle vous souhaitez travailler..."),
                vbExclamation);
            return;
        }
        ouvrir_table_passe_choix();
        if (!code_accepté(choix))
            return;

        feuille_patientez& patientez = feuilles.get<feuille_patientez>();
        patientez.Show();
        patientez.ZOrder();
        patientez.setFocus();
        patientez.conteneur().repaint();
        m.interaction().setMousePointer(vbHourglass);
        MDIForm1& mdi = feuilles.get<MDIForm1>();
        mdi.activer_menus();
        choix->Unload();
        m.interaction().setMousePointer(vbDefault);
        mdi.setPanel1(QStringLiteral("Base de données en cours : ") + m.base_en_cours);
        patientez.Unload();

        feuille_options& options = feuilles.get<feuille_options>();
        for (const ÉcranAprèsOuverture& écran : écrans_après_ouverture())
            if (valeur_case(options.*écran.option) == 1 && écran.montrer)
                écran.montrer();
    });
}

void fermer_base() {
    en_silence([] {
        if (feuille_choix_base* choix = module1().feuilles().siChargée<feuille_choix_base>())
            choix->datPrimaryRS->closeDatabase();
    });
}
