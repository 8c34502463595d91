// The pupil screen's lookup buttons. Each opens its picker for this screen's value of origine_appel;
// what the picker then copies, and where the focus goes, is the picker's own (reference/retours.h).
#include "people/feuille_eleve.h"

#include "platform/ui/ErrorBoxes.h"
#include "platform/forms/DataControl.h"
#include "reference/FeuilleConsultation.h"
#include "reference/feuille_adresses.h"
#include "reference/feuille_langues_vivantes.h"
#include "reference/feuille_nationalites.h"
#include "reference/feuille_sexe.h"
#include "reference/feuille_villes.h"
#include "reference/feuille_equipe.h"
#include "store/ouvrir_table.h"

#include <QPushButton>

void feuille_élève::brancher_consultations() {
    const std::pair<QPushButton*, void (feuille_élève::*)()> boutons[] = {
        {Command5, &feuille_élève::Command5_Click},   {Command7, &feuille_élève::Command7_Click},
        {Command8, &feuille_élève::Command8_Click},   {Command9, &feuille_élève::Command9_Click},
        {Command10, &feuille_élève::Command10_Click}, {Command11, &feuille_élève::Command11_Click},
        {Command12, &feuille_élève::Command12_Click},
    };
    for (const auto& [bouton, handler] : boutons)
        QObject::connect(bouton, &QPushButton::clicked, this, [this, handler] { (this->*handler)(); });
}

void feuille_élève::Command5_Click() {
    avec_piège(ErrorBoxKind::standard, [] { consulter<feuille_nationalités>(ouvrir_table_nationalités, 1); });
}

void feuille_élève::Command7_Click() {
    avec_piège(ErrorBoxKind::standard, [] { consulter<feuille_sexe>(ouvrir_table_sexe, 1); });
}

void feuille_élève::Command8_Click() {
    avec_piège(ErrorBoxKind::standard, [] { consulter<feuille_adresses>(ouvrir_table_adresses, 1); });
}

// "code postal" and "ville" open the same picker, which fills both.
void feuille_élève::Command9_Click() {
    avec_piège(ErrorBoxKind::standard, [] { consulter<feuille_villes>(ouvrir_table_villes, 1); });
}

void feuille_élève::Command10_Click() {
    avec_piège(ErrorBoxKind::standard, [] { consulter<feuille_villes>(ouvrir_table_villes, 1); });
}

void feuille_élève::Command11_Click() {
    avec_piège(ErrorBoxKind::standard,
               [] { consulter<feuille_langues_vivantes>(ouvrir_table_langues_vivantes, 7); });
}

// The class comes from the teaching team, which differs from the grid pickers: an empty team gets a
// new row to accept from, and its accept button is enabled rather than shown.
void feuille_élève::Command12_Click() {
    avec_piège(ErrorBoxKind::standard, [] {
        ouvrir_table_équipe();
        feuille_équipe& équipe = module1().feuilles().get<feuille_équipe>();
        DataRecordset& rs = équipe.datPrimaryRS->Recordset();
        if (rs.isEOF() && rs.isBOF())
            rs.AddNew();
        équipe.bouton_accepter->setEnabled(true);
        module1().origine_appel = 7;
        équipe.Show();
        équipe.ZOrder();
    });
}
