#include "reference/feuille_sexe.h"

#include "platform/errors/ErrorBoxes.h"
#include "platform/forms/Placement.h"

#include <QPushButton>

feuille_sexe::feuille_sexe()
    : FeuilleFiche(table_de_consultation(QStringLiteral("feuille_sexe"), QStringLiteral("Table des sexes"),
                                         QStringLiteral("sexe"),
                                         {{QStringLiteral("détails"), QStringLiteral("détails")}})) {
    resize(en_pixels(4500), en_pixels(4200));
}

// The accept of a pick, by origine_appel. Its list of callers is empty: for every value nothing is
// copied, the screen stays open, and the button hides, as for a value a lookup does not know.
void feuille_sexe::bouton_accepter_Click() {
    avec_piège(ErrorBoxKind::standard, [this] { bouton_accepter->setVisible(false); });
}
