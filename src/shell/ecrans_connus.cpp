#include "shell/ecrans_connus.h"

#include "people/feuille_choix_famille.h"
#include "people/feuille_eleve.h"
#include "people/feuille_famille.h"
#include "platform/forms/Feuilles.h"
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
#include "reports/feuille_documents.h"
#include "reports/feuille_traitements.h"
#include "shell/MDIForm1.h"
#include "shell/feuille_patientez.h"

using namespace Qt::StringLiterals;

// A screen that another subsystem reaches joins here, one line, as it is built: a lookup writes into
// its callers found by name, and the ouvrir_table_<table> family points its screens by name.
void faire_connaître_les_écrans() {
    Feuilles& registre = feuilles();
    // The callers into whose fields the lookups write.
    registre.faireConnaître<feuille_élève>(u"feuille_élève"_s);
    registre.faireConnaître<feuille_famille>(u"feuille_famille"_s);
    registre.faireConnaître<feuille_équipe>(u"feuille_équipe"_s);
    registre.faireConnaître<feuille_école>(u"feuille_école"_s);
    registre.faireConnaître<feuille_inspection>(u"feuille_inspection"_s);
    // The treatments screen, whose fields restrict the reports and the spreadsheet export.
    registre.faireConnaître<feuille_traitements>(u"feuille_traitements"_s);
    // The screens of the ouvrir_table_<table> family.
    registre.faireConnaître<feuille_documents>(u"feuille_documents"_s);
    registre.faireConnaître<feuille_paramètres>(u"feuille_paramètres"_s);
    registre.faireConnaître<feuille_choix_famille>(u"feuille_choix_famille"_s);
    registre.faireConnaître<feuille_adresses>(u"feuille_adresses"_s);
    registre.faireConnaître<feuille_assertions>(u"feuille_assertions"_s);
    registre.faireConnaître<feuille_assurances>(u"feuille_assurances"_s);
    registre.faireConnaître<feuille_csp>(u"feuille_csp"_s);
    registre.faireConnaître<feuille_genres>(u"feuille_genres"_s);
    registre.faireConnaître<feuille_hôpitaux>(u"feuille_hôpitaux"_s);
    registre.faireConnaître<feuille_langues_vivantes>(u"feuille_langues_vivantes"_s);
    registre.faireConnaître<feuille_médecins>(u"feuille_médecins"_s);
    registre.faireConnaître<feuille_nationalités>(u"feuille_nationalités"_s);
    registre.faireConnaître<feuille_niveaux>(u"feuille_niveaux"_s);
    registre.faireConnaître<feuille_sexe>(u"feuille_sexe"_s);
    registre.faireConnaître<feuille_situations_familiales>(u"feuille_situations_familiales"_s);
    registre.faireConnaître<feuille_villes>(u"feuille_villes"_s);
    // What the opening of a base, in the store, asks of the shell.
    registre.faireConnaître<MDIForm1>(u"MDIForm1"_s);
    registre.faireConnaître<feuille_patientez>(u"feuille_patientez"_s);
}
