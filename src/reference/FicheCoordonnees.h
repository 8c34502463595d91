#pragma once

#include "platform/forms/FeuilleFiche.h"
#include "platform/forms/FieldRows.h"

#include <QTabWidget>

// What the school's and the inspection's sheets share: one row of their table, no add or delete, the
// identity and address on tab 0 ("Frame2"), the person at its head on tab 1 ("Frame1"), and the four
// lookup buttons of the return table.
class FicheCoordonnées : public FeuilleFiche {
public:
    QTabWidget* SSTab1 = nullptr;

protected:
    FicheCoordonnées(const char* nom, const char* titre, const char* table, const char* onglet_personne);

    // The fields of both tabs from the screen's rows, then the tab following and the lookups.
    template <class Screen> void construire(Screen& écran, std::span<const FieldRow<Screen>> rangées) {
        FieldBuilder disposition(*datPrimaryRS, {.fitBoxWidths = true, .tightButtons = true});
        préparer_onglets(disposition);
        disposition.build(écran, rangées);
        disposition.chainTabOrder();
        brancher();
    }

private:
    void préparer_onglets(FieldBuilder& disposition);
    void brancher();

    const char* onglet_personne_;
};
