#pragma once

class QCheckBox;

// options.ini in chemin_application: the four boxes of feuille_options and the remembered base.
void lire_options();
void écrire_options();

// A check box's Value: 0 unticked, 1 ticked, 2 greyed.
int valeur_case(const QCheckBox* caseàcocher);
void fixer_case(QCheckBox* caseàcocher, int valeur);
