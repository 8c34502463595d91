#include "exports/ecrans_passerelle.h"

#include "exports/familles_passerelle.h"
#include "exports/fiches_passerelle.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/Feuilles.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

DataControl& source_de(const QString& écran) {
    auto* source = feuilles().nommée(écran).findChild<DataControl*>(u"datPrimaryRS"_s);
    if (source == nullptr)
        throw std::logic_error(écran.toStdString() + " n'a pas de datPrimaryRS");
    return *source;
}

} // namespace

void laisser_les_écrans(const ParcoursPasserelle& parcours, bool fini) {
    DataControl& élèves = source_de(u"feuille_élève"_s);
    if (!fini) {
        élèves.moveToPosition(parcours.élèves_écrits);
    } else if (!élèves.Recordset().isEOF()) {
        élèves.Recordset().MoveLast();
        élèves.Recordset().MoveNext();
    }
    if (!parcours.dernière_référence)
        return;
    DataControl& familles = source_de(u"feuille_famille"_s);
    familles.setRecordSource(u"SELECT * FROM familles"_s);
    familles.Refresh();
    if (parcours.dernière_trouvée) {
        familles.Recordset().FindFirst(FamillesPasserelle::critère(*parcours.dernière_référence));
        familles.Recordset().Edit();
    }
}
