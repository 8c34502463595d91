#include "people/numerotation.h"

#include "platform/forms/DataControl.h"
#include "platform/vb/Conversions.h"

#include <QLineEdit>

QString numéro_suivant(DataControl& source, const QString& ordre_des_numéros, const QLineEdit& numéro) {
    source.setRecordSource(ordre_des_numéros);
    source.Refresh();
    source.Recordset().MoveLast();
    return texte_du_nombre(CDbl(numéro.text()) + 1).trimmed();
}
