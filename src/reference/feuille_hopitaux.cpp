#include "reference/feuille_hopitaux.h"

feuille_hôpitaux::feuille_hôpitaux()
    : FeuilleConsultation(consultation(
          "feuille_hôpitaux", "Table des hôpitaux", "hôpitaux",
          {{"nom", "nom"}, {"téléphone", "téléphone"}, {"adresse", "adresse"}, {"ville", "ville"}})) {}
