#include "platform/forms/SuiviOnglets.h"

#include "platform/errors/VbError.h"
#include "platform/forms/Feuille.h"

#include <QPointer>
#include <QTabWidget>

void suivre_onglets(Feuille& feuille, QTabWidget& SSTab1, std::initializer_list<ChampOnglet> table) {
    QPointer<QTabWidget> onglets(&SSTab1);
    for (const ChampOnglet& ligne : table) {
        auto* champ = feuille.findChild<QWidget*>(QString::fromUtf8(ligne.champ));
        if (!champ)
            throw VbError(424);
        const int page = ligne.onglet;
        feuille.surGotFocus(champ, [onglets, page] {
            if (onglets)
                onglets->setCurrentIndex(page);
        });
    }
}
