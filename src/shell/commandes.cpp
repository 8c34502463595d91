#include "shell/commandes.h"

#include "exports/initialisation_tables.h"
#include "exports/passerelle.h"
#include "people/feuille_eleve.h"
#include "people/feuille_famille.h"
#include "reference/feuille_adresses.h"
#include "reference/feuille_assertions.h"
#include "reference/feuille_assurances.h"
#include "reference/feuille_csp.h"
#include "reference/feuille_ecole.h"
#include "reference/feuille_equipe.h"
#include "reference/feuille_genres.h"
#include "reference/feuille_hopitaux.h"
#include "reference/feuille_inspection.h"
#include "reference/feuille_langues_vivantes.h"
#include "reference/feuille_medecins.h"
#include "reference/feuille_nationalites.h"
#include "reference/feuille_niveaux.h"
#include "reference/feuille_parametres.h"
#include "reference/feuille_sexe.h"
#include "reference/feuille_situations_familiales.h"
#include "reference/feuille_villes.h"
#include "reports/exportation_tableur.h"
#include "reports/feuille_documents.h"
#include "reports/feuille_traitements.h"
#include "shell/MDIForm1.h"
#include "shell/feuille_copyright.h"
#include "shell/regle_de_preparation.h"
#include "store/feuille_acces.h"
#include "store/ouvrir_table.h"

namespace {

// Shows a screen, loading it first if need be, and brings it to the front.
template <class F> void montrer_devant(MDIForm1&) {
    F& écran = feuilles().get<F>();
    écran.Show();
    écran.ZOrder();
}

// A command of the main window itself.
Commande propre(void (MDIForm1::*handler)()) {
    return [handler](MDIForm1& mdi) { (mdi.*handler)(); };
}

} // namespace

// A record screen plugs in with préparer<screen>(its ouvrir_table procedure, extra steps) from
// shell/regle_de_preparation.h; any other screen with a lambda that shows it.
const std::vector<LigneDeCommande>& carte_des_commandes() {
    static const std::vector<LigneDeCommande> carte = {
        {"menufichierindex1", propre(&MDIForm1::menufichierindex1_Click)},
        {"menufichierindex3", propre(&MDIForm1::menufichierindex3_Click)},
        {"menufichierindex2", propre(&MDIForm1::menufichierindex2_Click)},
        {"menuenfantsindex2", préparer<feuille_famille>(&ouvrir_table_familles, &étapes_en_plus_familles)},
        {"menuenfantsindex1", préparer<feuille_élève>(&ouvrir_table_élèves, &étapes_en_plus_élèves)},
        {"menuexploitationindex3", montrer_devant<feuille_traitements>},
        {"menuexploitationindex4", [](MDIForm1&) { menuexploitationindex4_Click(); }},
        {"menuparamètresindex1", préparer<feuille_inspection>(ouvrir_table_inspection)},
        {"menuparamètresindex2", préparer<feuille_école>(ouvrir_table_école)},
        {"menuparamètresindex3", préparer<feuille_équipe>(ouvrir_table_équipe)},
        {"menuparamètresindex4", préparer<feuille_documents>(ouvrir_table_documents)},
        {"menuparamètresindex5", préparer<feuille_paramètres>(ouvrir_table_paramètres)},
        {"menuparamètresindex22", préparer<feuille_accès>(ouvrir_table_passe_accès)},
        {"menuparamètresindex6", préparer<feuille_adresses>(ouvrir_table_adresses)},
        {"menuparamètresindex7", préparer<feuille_assurances>(ouvrir_table_assurances)},
        {"menuparamètresindex23", préparer<feuille_assertions>(ouvrir_table_assertions)},
        {"menuparamètresindex8", préparer<feuille_csp>(ouvrir_table_csp)},
        {"menuparamètresindex19", préparer<feuille_genres>(ouvrir_table_genres)},
        {"menuparamètresindex9", préparer<feuille_hôpitaux>(ouvrir_table_hôpitaux)},
        {"menuparamètresindex13", préparer<feuille_langues_vivantes>(ouvrir_table_langues_vivantes)},
        {"menuparamètresindex12", préparer<feuille_médecins>(ouvrir_table_médecins)},
        {"menuparamètresindex15", préparer<feuille_nationalités>(ouvrir_table_nationalités)},
        {"menuparamètresindex18", préparer<feuille_niveaux>(ouvrir_table_niveaux)},
        {"menuparamètresindex14", préparer<feuille_sexe>(ouvrir_table_sexe)},
        {"menuparamètresindex17",
         préparer<feuille_situations_familiales>(ouvrir_table_situations_familiales)},
        {"menuparamètresindex16", préparer<feuille_villes>(ouvrir_table_villes)},
        {"menuutilitairesindex1", [](MDIForm1&) { menuutilitairesindex1_Click(); }},
        {"menuutilitairesindex2", [](MDIForm1&) { menuutilitairesindex2_Click(); }},
        {"menuutilitairesindex3", [](MDIForm1&) { menuutilitairesindex3_Click(); }},
        {"menuutilitairesindex4",
         [](MDIForm1& mdi) { menuutilitairesindex4_Click(mdi.fichier_passerelle_resté_ouvert); }},
        {"menuoptionsindex1", propre(&MDIForm1::menuoptionsindex1_Click)},
        {"menuaideindex1",
         [](MDIForm1&) {
             feuille_copyright& àpropos = feuilles().get<feuille_copyright>();
             àpropos.Show();
             àpropos.setFocus();
             àpropos.ZOrder();
             àpropos.SSTab1->setCurrentIndex(0);
         }},
    };
    return carte;
}

void exécuter_commande(MDIForm1& mdi, const QString& menu) {
    for (const LigneDeCommande& ligne : carte_des_commandes())
        if (menu == QString::fromUtf8(ligne.menu)) {
            if (ligne.faire)
                ligne.faire(mdi);
            return;
        }
}
