#include "reference/FeuilleConsultation.h"

#include "platform/forms/Placement.h"
#include "reference/retours.h"

#include <algorithm>

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
    // A grid of one column reads well narrow; each more column widens the screen, and the row of
    // buttons, "Accepter" shown, keeps every caption whole.
    const int colonnes = static_cast<int>(this->configuration().grille.size());
    bouton_accepter->setVisible(true);
    const QSize naturelle = FeuilleFiche::sizeHint();
    bouton_accepter->setVisible(false);
    taille_ = QSize(std::max(en_pixels(4500 + 2000 * (colonnes - 1)), naturelle.width()),
                    std::max(en_pixels(4200), naturelle.height()));
    resize(taille_);
}

void FeuilleConsultation::bouton_accepter_Click() {
    accepter(*this);
}
