#include "reference/retours.h"

#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/FeuilleFiche.h"
#include "platform/forms/Focus.h"
#include "platform/ui/ErrorBoxes.h"
#include "reference/FeuilleConsultation.h"
#include "reference/feuille_adresses.h"
#include "reference/feuille_assertions.h"
#include "reference/feuille_assurances.h"
#include "reference/feuille_csp.h"
#include "reference/feuille_equipe.h"
#include "reference/feuille_genres.h"
#include "reference/feuille_hopitaux.h"
#include "reference/feuille_langues_vivantes.h"
#include "reference/feuille_medecins.h"
#include "reference/feuille_nationalites.h"
#include "reference/feuille_niveaux.h"
#include "reference/feuille_sexe.h"
#include "reference/feuille_situations_familiales.h"
#include "reference/feuille_villes.h"
#include "store/Module1.h"
#include "store/ouvrir_table.h"

#include <QLineEdit>
#include <QPushButton>

// The values of origine_appel were given out screen by screen: 1 is the pupil on most lookups but the
// family on feuille_assertions, and the family's two genres take 7 and 8. The pairs below are the
// contract between the callers and the lookups, not a rule to derive them from.
const std::vector<Retour>& table_des_retours() {
    // One row a pair: lookup, value, caller, its buttons, the copies in order, the focus afterwards.
    // clang-format off
    static const std::vector<Retour> table = {
        {"feuille_adresses", 1, "feuille_élève", {"Command8"},
         {colonne(0, "adresse_résidence")}, "adresse2_résidence"},
        {"feuille_adresses", 2, "feuille_famille", {"Command8"},
         {colonne(0, "Text2")}, "Text1"},
        {"feuille_adresses", 3, "feuille_famille", {"Command2"},
         {colonne(0, "Text7")}, "Text6"},
        {"feuille_adresses", 4, "feuille_école", {"Command2"},
         {colonne(0, "adresse_école")}, "suite_adresse_école"},
        {"feuille_adresses", 5, "feuille_inspection", {"Command2"},
         {colonne(0, "adresse_inspection")}, "adresse2_inspection"},
        {"feuille_adresses", 6, "feuille_équipe", {"Command2"},
         {colonne(0, "adresse1_enseignant")}, "adresse_enseignant"},
        {"feuille_assertions", 1, "feuille_famille", {"Command19"},
         {colonne(0, "communication_données")}, nullptr},
        {"feuille_assertions", 2, "feuille_famille", {"Command18"},
         {colonne(0, "élection_comité_responsable_légal")}, nullptr},
        {"feuille_assertions", 3, "feuille_famille", {"Command17"},
         {colonne(0, "élection_comité_conjoint")}, nullptr},
        {"feuille_assurances", 2, "feuille_famille", {"Command12"},
         {colonne(0, "société_assurance")}, "police_assurance"},
        {"feuille_csp", 2, "feuille_famille", {"Command13"},
         {colonne(0, "csp_responsable_légal")}, nullptr},
        {"feuille_csp", 3, "feuille_famille", {"Command14"},
         {colonne(0, "csp_conjoint")}, nullptr},
        {"feuille_genres", 4, "feuille_école", {"Command3"},
         {colonne(0, "genre_directeur")}, "prénom_directeur"},
        {"feuille_genres", 5, "feuille_inspection", {"Command3"},
         {colonne(0, "genre_inspecteur")}, "prénom_inspecteur"},
        {"feuille_genres", 6, "feuille_équipe", {"Command5"},
         {colonne(0, "genre_enseignant")}, "nom_enseignant"},
        {"feuille_genres", 7, "feuille_famille", {"Command21"},
         {colonne(0, "genre_responsable_légal")}, "nom_responsable_légal"},
        {"feuille_genres", 8, "feuille_famille", {"Command20"},
         {colonne(0, "genre_conjoint")}, "nom_conjoint"},
        {"feuille_hôpitaux", 2, "feuille_famille", {"Command11"},
         {colonne(0, "hôpital_préférentiel"), colonne(1, "téléphone_hôpital_préférentiel"),
          colonne(2, "adresse_hôpital_préférentiel"), colonne(3, "ville_hôpital_préférentiel")}, nullptr},
        {"feuille_langues_vivantes", 7, "feuille_élève", {"Command11"},
         {colonne(0, "langue_vivante_élève")}, nullptr},
        {"feuille_médecins", 2, "feuille_famille", {"Command10"},
         {colonne(0, "médecin_traitant"), colonne(1, "téléphone_médecin_traitant"),
          colonne(2, "adresse_médecin_traitant"), colonne(3, "ville_médecin_traitant")}, nullptr},
        {"feuille_nationalités", 1, "feuille_élève", {"Command5"},
         {colonne(0, "nationalité"), colonne(1, "code_nationalité")}, nullptr},
        {"feuille_niveaux", 6, "feuille_équipe", {"Command4"},
         {colonne(0, "niveau_classe_enseignant"), colonne(2, "cycle_classe_enseignant")}, nullptr},
        {"feuille_sexe", 1, "feuille_élève", {"Command7"},
         {colonne(0, "sexe")}, "date_naissance"},
        {"feuille_situations_familiales", 2, "feuille_famille", {"Command15"},
         {colonne(0, "Text11")}, "Text3"},
        {"feuille_villes", 1, "feuille_élève", {"Command9", "Command10"},
         {colonne(0, "code_postal_résidence"), colonne(1, "ville_résidence")}, "téléphone1_résidence"},
        {"feuille_villes", 2, "feuille_famille", {"Command6", "Command5"},
         {colonne(0, "Text5"), colonne(1, "Text4")}, nullptr},
        {"feuille_villes", 3, "feuille_famille", {"Command9", "Command7"},
         {colonne(0, "Text10"), colonne(1, "Text9")}, nullptr},
        {"feuille_villes", 4, "feuille_école", {"Command9", "Command7"},
         {colonne(0, "code_postal_école"), colonne(1, "ville_école")}, "téléphone_école"},
        {"feuille_villes", 5, "feuille_inspection", {"Command9", "Command7"},
         {colonne(0, "code_postal_inspection"), colonne(1, "ville_inspection")}, "téléphone_inspection"},
        {"feuille_villes", 6, "feuille_équipe", {"Command9", "Command7"},
         {colonne(0, "code_postal_enseignant"), colonne(1, "ville_enseignant")}, "téléphone1_enseignant"},
        {"feuille_choix_famille", 1, "feuille_élève", {"Command4"},
         {colonne(0, "référence_famille")}, "référence_famille"},
        {"feuille_équipe", 7, "feuille_élève", {"Command12"},
         {champ("référence_classe_enseignant", "référence_classe_élève"),
          champ("niveau_classe_enseignant", "niveau_classe_élève"),
          champ("cycle_classe_enseignant", "cycle_classe_élève")}, "cursus_allongé_élève"},
    };
    // clang-format on
    return table;
}

const Retour* retour(const QString& consultation, int16_t origine_appel) {
    for (const Retour& r : table_des_retours())
        if (r.origine_appel == origine_appel && consultation == QString::fromUtf8(r.consultation))
            return &r;
    return nullptr;
}

namespace {

QLineEdit& boîte(QWidget& écran, const char* nom) {
    auto* b = écran.findChild<QLineEdit*>(QString::fromUtf8(nom));
    if (b == nullptr)
        throw VbError(424);
    return *b;
}

QString valeur(FeuilleFiche& consultation, const Copie& copie) {
    if (copie.depuis)
        return boîte(consultation, copie.depuis).text();
    consultation.grdDataGrid->setCol(copie.colonne);
    return consultation.grdDataGrid->Text();
}

// False when the calling screen is not part of the program yet: the pair then counts as unknown.
bool rendre(FeuilleFiche& consultation, const Retour& r) {
    Feuille* appelant = feuilles().parNom(QString::fromUtf8(r.appelant));
    if (appelant == nullptr)
        return false;
    for (const Copie& copie : r.copies)
        boîte(*appelant, copie.vers).setText(valeur(consultation, copie));
    consultation.Unload();
    if (r.focus)
        SetFocus(boîte(*appelant, r.focus));
    return true;
}

// The class comes from the teaching team, which differs from the grid pickers: an empty team gets a
// new row to accept from, and its accept button is enabled rather than shown.
void choisir_une_classe(int16_t origine_appel) {
    ouvrir_table_équipe();
    feuille_équipe& équipe = module1().feuilles().get<feuille_équipe>();
    DataRecordset& rs = équipe.datPrimaryRS->Recordset();
    if (rs.isEOF() && rs.isBOF())
        rs.AddNew();
    équipe.bouton_accepter->setEnabled(true);
    module1().origine_appel = origine_appel;
    équipe.Show();
    équipe.ZOrder();
}

// How each lookup of the program opens for a caller's button.
struct Ouverture {
    const char* consultation;
    void (*ouvrir)(int16_t origine_appel);
};

template <class F, void (*ouvrir_table)()> constexpr Ouverture grille(const char* nom) {
    return {nom, [](int16_t origine) { consulter<F>(ouvrir_table, origine); }};
}

const Ouverture ouvertures[] = {
    grille<feuille_adresses, ouvrir_table_adresses>("feuille_adresses"),
    grille<feuille_assertions, ouvrir_table_assertions>("feuille_assertions"),
    grille<feuille_assurances, ouvrir_table_assurances>("feuille_assurances"),
    grille<feuille_csp, ouvrir_table_csp>("feuille_csp"),
    grille<feuille_genres, ouvrir_table_genres>("feuille_genres"),
    grille<feuille_hôpitaux, ouvrir_table_hôpitaux>("feuille_hôpitaux"),
    grille<feuille_langues_vivantes, ouvrir_table_langues_vivantes>("feuille_langues_vivantes"),
    grille<feuille_médecins, ouvrir_table_médecins>("feuille_médecins"),
    grille<feuille_nationalités, ouvrir_table_nationalités>("feuille_nationalités"),
    grille<feuille_niveaux, ouvrir_table_niveaux>("feuille_niveaux"),
    grille<feuille_sexe, ouvrir_table_sexe>("feuille_sexe"),
    grille<feuille_situations_familiales, ouvrir_table_situations_familiales>(
        "feuille_situations_familiales"),
    grille<feuille_villes, ouvrir_table_villes>("feuille_villes"),
    {"feuille_équipe", &choisir_une_classe},
};

const Ouverture* ouverture(const char* consultation) {
    for (const Ouverture& o : ouvertures)
        if (qstrcmp(o.consultation, consultation) == 0)
            return &o;
    return nullptr;
}

void mettre_hors_d_usage(FeuilleFiche& consultation) {
    if (consultation.configuration().bouton_accepter == BoutonAccepter::désactivé)
        consultation.bouton_accepter->setEnabled(false);
    else
        consultation.bouton_accepter->setVisible(false);
}

} // namespace

void brancher_consultations(FeuilleFiche& appelant) {
    for (const Retour& r : table_des_retours()) {
        const Ouverture* o = ouverture(r.consultation);
        if (o == nullptr || appelant.objectName() != QString::fromUtf8(r.appelant))
            continue;
        for (const char* nom : r.boutons) {
            auto* bouton = appelant.findChild<QPushButton*>(QString::fromUtf8(nom));
            if (bouton == nullptr)
                throw VbError(424);
            QObject::connect(bouton, &QPushButton::clicked, &appelant,
                             [ouvrir = o->ouvrir, origine = r.origine_appel] {
                                 avec_piège(ErrorBoxKind::standard, [&] { ouvrir(origine); });
                             });
        }
    }
}

void accepter(FeuilleFiche& consultation) {
    avec_piège(ErrorBoxKind::standard, [&consultation] {
        if (const Retour* r = retour(consultation.objectName(), module1().origine_appel))
            rendre(consultation, *r);
        mettre_hors_d_usage(consultation);
    });
}
