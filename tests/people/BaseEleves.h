#pragma once

#include "support/BaseDirecte.h"
#include "support/Fixtures.h"

#include <QString>

// A fresh work base for the pupil screens, copied from the template: no pupil, no parameters, the
// template's letters.
QString créer_base_élèves(const WorkFolder& dossier);

// A pupil written into the file behind the program's back.
void ajouter_élève(const QString& chemin, const QString& matricule, const QString& nom = {},
                   const QString& prénom = {}, const QString& référence = {});
