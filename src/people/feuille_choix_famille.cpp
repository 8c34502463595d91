#include "people/feuille_choix_famille.h"

using namespace Qt::StringLiterals;

feuille_choix_famille::feuille_choix_famille()
    : FeuilleConsultation(consultation("feuille_choix_famille", "Table des responsables légaux", "familles",
                                       {{u"référence_famille"_s, u"référence"_s},
                                        {u"nom_responsable_légal"_s, u"nom"_s},
                                        {u"prénom_responsable_légal"_s, u"prénom"_s},
                                        {u"adresse_responsable"_s, u"adresse"_s}})) {}
