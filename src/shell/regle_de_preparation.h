#pragma once

#include "platform/forms/DataControl.h"
#include "platform/forms/Feuilles.h"
#include "platform/ui/ErrorBoxes.h"
#include "shell/commandes.h"

#include <functional>

// The preparing rule of a command that opens a record screen, in this order: its ouvrir_table_<table>
// procedure; on an empty table, a new row; the screen's extra steps; show it and bring it to the
// front; on a tabbed screen, the first tab. The command's trap shows the standard box: a data source
// that could not be pointed fails here, at the reading of its Recordset, and the screen stays hidden.
// `en_plus` receives the screen and whether its table was empty.
template <class F>
Commande préparer(void (*ouvrir)(), std::function<void(F&, bool table_vide)> en_plus = {}) {
    return [ouvrir, en_plus](MDIForm1&) {
        avec_piège(ErrorBoxKind::standard, [&] {
            ouvrir();
            F& écran = feuilles().get<F>();
            DataRecordset& rs = écran.datPrimaryRS->Recordset();
            const bool table_vide = rs.isEOF() && rs.isBOF();
            if (table_vide)
                rs.AddNew();
            if (en_plus)
                en_plus(écran, table_vide);
            écran.Show();
            écran.ZOrder();
            if constexpr (requires { écran.SSTab1->setCurrentIndex(0); })
                écran.SSTab1->setCurrentIndex(0);
        });
    };
}
