#include "store/ouverture_base.h"

#include "platform/forms/DataControl.h"
#include "platform/forms/Feuilles.h"
#include "platform/ui/ErrorBoxes.h"
#include "platform/ui/Interaction.h"
#include "store/Module1.h"
#include "store/feuille_choix_base.h"
#include "store/feuille_login.h"
#include "store/feuille_principale.h"
#include "store/ouvrir_table.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

// The main window and the wait notice belong to the shell, above the store, which reaches them by name.
FeuillePrincipale& feuille_principale() {
    auto* fenêtre = dynamic_cast<FeuillePrincipale*>(&feuilles().nommée(u"MDIForm1"_s));
    if (fenêtre == nullptr)
        throw std::logic_error("MDIForm1 n'est pas la fenêtre principale");
    return *fenêtre;
}

// The code typed in the box must equal the file's code exactly; a cancelled box leaves it empty.
// The chooser may go while the box waits (an assistive tool reaches it behind the box): the opening
// then has no file to open nor code to compare, and stops there.
bool code_accepté(const QPointer<feuille_choix_base>& choix) {
    if (choix->accès_actuel->text().isEmpty())
        return true;
    choix->accès_tentavive->setText(QString());
    interaction().showModal(feuilles().get<feuille_login>());
    if (!choix || !feuilles().contient(choix)) {
        interaction().setMousePointer(vbDefault);
        return false;
    }
    if (choix->accès_tentavive->text() == choix->accès_actuel->text())
        return true;
    choix->accès_tentavive->setText(QString());
    interaction().MsgBox(u"Erreur de code d'accès... Accès non-autorisé!"_s, vbExclamation);
    interaction().setMousePointer(vbDefault);
    return false;
}

} // namespace

void ouvrir_base_choisie() {
    avec_piège(ErrorBoxKind::données, [] {
        // Guarded: the chooser may go while the access code box waits.
        const QPointer<feuille_choix_base> choix = &feuilles().get<feuille_choix_base>();
        if (choix->Label4->text().isEmpty()) {
            interaction().MsgBox(
                QStringLiteral(
                    "Vous devez sélectionner la base de données sur laquelle vous souhaitez travailler..."),
                vbExclamation);
            return;
        }
        ouvrir_table_passe_choix();
        if (!code_accepté(choix))
            return;

        Feuille& patientez = feuilles().nommée(u"feuille_patientez"_s);
        patientez.Show();
        patientez.ZOrder();
        patientez.setFocus();
        patientez.conteneur().repaint();
        interaction().setMousePointer(vbHourglass);
        FeuillePrincipale& mdi = feuille_principale();
        mdi.activer_menus();
        choix->Unload();
        interaction().setMousePointer(vbDefault);
        mdi.setPanel1(u"Base de données en cours : "_s + module1().base_en_cours);
        patientez.Unload();
        mdi.montrer_écrans_après_ouverture();
    });
}

void fermer_base() {
    en_silence([] {
        if (feuille_choix_base* choix = feuilles().siChargée<feuille_choix_base>())
            choix->datPrimaryRS->closeDatabase();
    });
}
