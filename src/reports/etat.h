#pragma once

class ReportJob;

// The main window's report job, the one the whole program shares (CrystalReport1).
ReportJob& CrystalReport1();

// The selection from the cycle, level and class typed on the treatments screen (loaded unseen if need
// be), as SelectionFormula. A failure shows the standard error box and ends here: the caller goes on
// with whatever selection the job then holds.
void lancer_état();

// The end of a status run: the run, "Demande d'édition interrompue..." when it did not go through, then
// one copy and the preview as the job's next defaults, whatever the run's end.
void terminer_édition(ReportJob& job);
