#pragma once

// Opening and closing the work database. Nothing stays connected: the program keeps the path in
// base_en_cours, and each screen's data source is pointed at it when its command opens the screen.

// Checks the access code of the selected file if it has one, enables the data menus, says so in the
// status bar and shows the screens that the options name.
void ouvrir_base_choisie();

// Releases the chooser's own connection to the selected file; a failure is passed over.
void fermer_base();
