#pragma once

// "Exportation des données au format Excel": "fiche_export.rpt" run into a spreadsheet file named by
// the user, restricted by the cycle, level and class last typed on the treatments screen (loaded
// unseen if need be), with a question before an existing file is replaced.
void menuexploitationindex4_Click();
