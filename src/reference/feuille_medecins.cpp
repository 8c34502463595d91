#include "reference/feuille_medecins.h"

feuille_médecins::feuille_médecins()
    : FeuilleConsultation(consultation(
          "feuille_médecins", "Table des médecins", "médecins",
          {{"nom", "nom"}, {"téléphone", "téléphone"}, {"adresse", "adresse"}, {"ville", "ville"}})) {}
