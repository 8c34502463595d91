#pragma once

// Makes known to the screen registry, by name, the screens that other screens reach by name: the
// callers into whose fields the lookups write.
void faire_connaître_les_écrans();
