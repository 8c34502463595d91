#include "shell/ecrans_connus.h"

#include "people/feuille_eleve.h"
#include "platform/forms/Module1.h"
#include "reference/feuille_equipe.h"

// A calling screen of the lookups' return table joins here, one line, as it is built: until then the
// lookups treat its values of origine_appel as unknown (feuille_famille, feuille_école and
// feuille_inspection are still to come).
void faire_connaître_les_écrans() {
    Feuilles& feuilles = module1().feuilles();
    feuilles.faireConnaître<feuille_élève>(QStringLiteral("feuille_élève"));
    feuilles.faireConnaître<feuille_équipe>(QStringLiteral("feuille_équipe"));
}
