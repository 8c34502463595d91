#pragma once

#include "platform/forms/DataControl.h"
#include "platform/forms/Feuille.h"

#include <QString>

// How a procedure of the ouvrir_table_<table> family meets a failure.
enum class SiÉchec {
    continuer,     // silently on to the next step; the caller finds out when it reads the Recordset
    boîte_standard // message_erreur_standard, and the procedure ends there
};

// Points a data source at the work database: DatabaseName, RecordSource, Refresh, in this order.
void pointer_source(DataControl& source, const QString& sql, SiÉchec échec = SiÉchec::continuer);

// The family reaches each screen by its name, through the screen registry, without including it:
// the screen is loaded hidden if it is not loaded (running its Form_Load), then its datPrimaryRS is
// pointed. A procedure of the family is one line over this:
//     void ouvrir_table_sexe() { ouvrir_table("feuille_sexe", "SELECT * FROM sexe"); }
Feuille& ouvrir_table(const char* écran, const char* sql, SiÉchec échec = SiÉchec::continuer);

// The procedures of the family whose screens exist.
void ouvrir_table_documents();
void ouvrir_table_passe_choix();
// The lookup tables, each on its own screen.
void ouvrir_table_adresses();
void ouvrir_table_assertions();
void ouvrir_table_assurances();
void ouvrir_table_csp();
void ouvrir_table_genres();
void ouvrir_table_hôpitaux();
void ouvrir_table_langues_vivantes();
void ouvrir_table_médecins();
void ouvrir_table_nationalités();
void ouvrir_table_niveaux();
void ouvrir_table_sexe();
void ouvrir_table_situations_familiales();
void ouvrir_table_villes();
// The teaching team, which is also the list of classes.
void ouvrir_table_équipe();
// The one-row sheets: the school, the inspection, the captions of the pupil's free fields (a failure
// shown with the standard box), and the access code on its own screen (the same).
void ouvrir_table_école();
void ouvrir_table_inspection();
void ouvrir_table_paramètres();
void ouvrir_table_passe_accès();
// The families in alphabetical order, the family screen's list on its first entry.
void ouvrir_table_familles();
// The family picker of the pupil screen.
void ouvrir_table_choix_famille();
// The pupils in matricule order, whatever the pupil screen's list says; then the captions of their
// ten configurable fields (Data1).
void ouvrir_table_élèves();
