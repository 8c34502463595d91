#pragma once

#include "platform/forms/FeuilleFiche.h"
#include "store/Module1.h"

#include <QPushButton>
#include <cstdint>

// A lookup screen: one grid over a whole table, kept up to date from the menu, which doubles as the
// picker of the fields that its table feeds. Its "Accepter", hidden until a record screen's button
// shows it, copies the current row by the return table (reference/retours.h). The frame makes it the
// default button and "&Fermer" the cancel button.
class FeuilleConsultation : public FeuilleFiche {
    Q_OBJECT
public:
    explicit FeuilleConsultation(ConfigurationFiche configuration);

    void bouton_accepter_Click() override;
    // The size the screen opens at, which its window in the main window takes from here.
    QSize sizeHint() const override { return taille_; }

private:
    QSize taille_;
};

// What a lookup differs in besides its table and columns.
struct Particularités {
    LégendePosition légende = LégendePosition::numérotée;
    InfobulleRafraîchir infobulle_rafraîchir = InfobulleRafraîchir::rafraîchir;
    bool double_clic_accepte = true;
};

// The declaration of a lookup screen: its name, caption, table (also its design-time RecordSource)
// and grid columns.
ConfigurationFiche consultation(const char* nom, const char* titre, const char* table,
                                std::vector<ColonneGrille> colonnes, Particularités particularités = {});

// A record screen's lookup button, in this order: the table's ouvrir_table procedure (which loads the
// lookup if needed and returns it to its first row), the lookup's "Accepter" made visible,
// origine_appel set, the lookup shown, not modally, and brought to the front. The caller's handler
// traps the failures.
template <class F> void consulter(void (*ouvrir_table)(), int16_t origine_appel) {
    ouvrir_table();
    F& lookup = feuilles().get<F>();
    lookup.bouton_accepter->setVisible(true);
    module1().origine_appel = origine_appel;
    lookup.Show();
    lookup.ZOrder();
}
