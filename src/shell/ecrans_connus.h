#pragma once

// Makes known to the screen registry, by name, the screens that other subsystems reach without
// including them: the callers into whose fields the lookups write, the screens of the
// ouvrir_table_<table> family, and the main window and wait notice that the opening of a base shows.
// Runs once, before the first screen is touched.
void faire_connaître_les_écrans();
