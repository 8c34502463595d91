#include "shell/ecrans_connus.h"

#include "people/feuille_eleve.h"
#include "platform/forms/Feuilles.h"
#include "reference/feuille_adresses.h"
#include "reference/feuille_assertions.h"
#include "reference/feuille_assurances.h"
#include "reference/feuille_csp.h"
#include "reference/feuille_equipe.h"
#include "reference/feuille_genres.h"
#include "reference/feuille_hopitaux.h"
#include "reference/feuille_langues_vivantes.h"
#include "reference/feuille_medecins.h"
#include "reference/feuille_nationalites.h"
#include "reference/feuille_niveaux.h"
#include "reference/feuille_sexe.h"
#include "reference/feuille_situations_familiales.h"
#include "reference/feuille_villes.h"
#include "reports/feuille_documents.h"
#include "shell/MDIForm1.h"
#include "shell/feuille_patientez.h"

// A screen that another subsystem reaches joins here, one line, as it is built. Until then a lookup
// treats its caller's values of origine_appel as unknown (feuille_famille, feuille_école and
// feuille_inspection are still to come).
void faire_connaître_les_écrans() {
    Feuilles& registre = feuilles();
    // The callers into whose fields the lookups write.
    registre.faireConnaître<feuille_élève>(QStringLiteral("feuille_élève"));
    registre.faireConnaître<feuille_équipe>(QStringLiteral("feuille_équipe"));
    // The screens of the ouvrir_table_<table> family.
    registre.faireConnaître<feuille_documents>(QStringLiteral("feuille_documents"));
    registre.faireConnaître<feuille_adresses>(QStringLiteral("feuille_adresses"));
    registre.faireConnaître<feuille_assertions>(QStringLiteral("feuille_assertions"));
    registre.faireConnaître<feuille_assurances>(QStringLiteral("feuille_assurances"));
    registre.faireConnaître<feuille_csp>(QStringLiteral("feuille_csp"));
    registre.faireConnaître<feuille_genres>(QStringLiteral("feuille_genres"));
    registre.faireConnaître<feuille_hôpitaux>(QStringLiteral("feuille_hôpitaux"));
    registre.faireConnaître<feuille_langues_vivantes>(QStringLiteral("feuille_langues_vivantes"));
    registre.faireConnaître<feuille_médecins>(QStringLiteral("feuille_médecins"));
    registre.faireConnaître<feuille_nationalités>(QStringLiteral("feuille_nationalités"));
    registre.faireConnaître<feuille_niveaux>(QStringLiteral("feuille_niveaux"));
    registre.faireConnaître<feuille_sexe>(QStringLiteral("feuille_sexe"));
    registre.faireConnaître<feuille_situations_familiales>(QStringLiteral("feuille_situations_familiales"));
    registre.faireConnaître<feuille_villes>(QStringLiteral("feuille_villes"));
    // What the opening of a base, in the store, asks of the shell.
    registre.faireConnaître<MDIForm1>(QStringLiteral("MDIForm1"));
    registre.faireConnaître<feuille_patientez>(QStringLiteral("feuille_patientez"));
}
