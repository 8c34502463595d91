#include "platform/forms/Disposition.h"

#include <QLayout>
#include <QWidget>

bool retirer_de(QLayout* disposition, QWidget* w) {
    if (!disposition)
        return false;
    if (disposition->indexOf(w) >= 0) {
        disposition->removeWidget(w);
        return true;
    }
    for (int i = 0; i < disposition->count(); ++i)
        if (retirer_de(disposition->itemAt(i)->layout(), w))
            return true;
    return false;
}
