#include "reference/feuille_medecins.h"

using namespace Qt::StringLiterals;

feuille_médecins::feuille_médecins()
    : FeuilleConsultation(consultation("feuille_médecins", "Table des médecins", "médecins",
                                       {{u"nom"_s, u"nom"_s},
                                        {u"téléphone"_s, u"téléphone"_s},
                                        {u"adresse"_s, u"adresse"_s},
                                        {u"ville"_s, u"ville"_s}})) {}
