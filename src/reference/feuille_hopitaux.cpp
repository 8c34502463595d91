#include "reference/feuille_hopitaux.h"

using namespace Qt::StringLiterals;

feuille_hôpitaux::feuille_hôpitaux()
    : FeuilleConsultation(consultation("feuille_hôpitaux", "Table des hôpitaux", "hôpitaux",
                                       {{u"nom"_s, u"nom"_s},
                                        {u"téléphone"_s, u"téléphone"_s},
                                        {u"adresse"_s, u"adresse"_s},
                                        {u"ville"_s, u"ville"_s}})) {}
