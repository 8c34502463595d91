#pragma once

#include <QFile>
#include <memory>

// "Exportation pour la passerelle BE1d": every pupil, with its family, appended to NORVANEX.EXP in the
// folder the user names. `fichier_2` is the run's file number 2: an export that fails leaves it open,
// with what it wrote, and the next export of the run then fails at its opening, as the classic runtime
// has it.
void menuutilitairesindex4_Click(std::unique_ptr<QFile>& fichier_2);
