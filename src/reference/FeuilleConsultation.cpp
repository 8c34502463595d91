#include "reference/FeuilleConsultation.h"

#include "platform/forms/Placement.h"
#include "reference/retours.h"

#include <QKeyEvent>

ConfigurationFiche consultation(const char* nom, const char* titre, const char* table,
                                std::vector<ColonneGrille> colonnes, Particularités particularités) {
    ConfigurationFiche c = table_de_consultation(QString::fromUtf8(nom), QString::fromUtf8(titre),
                                                 QString::fromUtf8(table), std::move(colonnes));
    c.légende = particularités.légende;
    c.infobulle_rafraîchir = particularités.infobulle_rafraîchir;
    c.double_clic_accepte = particularités.double_clic_accepte;
    return c;
}

FeuilleConsultation::FeuilleConsultation(ConfigurationFiche configuration)
    : FeuilleFiche(std::move(configuration)) {
    bouton_accepter->setDefault(true);
    // A grid of one column reads well narrow; each more column widens the screen.
    const int colonnes = static_cast<int>(this->configuration().grille.size());
    resize(en_pixels(4500 + 2000 * (colonnes - 1)), en_pixels(4200));
}

void FeuilleConsultation::bouton_accepter_Click() {
    accepter(*this);
}

// Keys that the grid and the buttons leave unused come here: an Enter outside a cell being typed,
// an Escape outside a cell being typed.
void FeuilleConsultation::keyPressEvent(QKeyEvent* event) {
    const bool entrée = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (entrée && (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier &&
        bouton_accepter->isVisible()) {
        bouton_accepter->click();
        return;
    }
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        cmdFermer->click();
        return;
    }
    FeuilleFiche::keyPressEvent(event);
}
