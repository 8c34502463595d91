#include "store/ouvrir_table.h"

#include "platform/forms/Feuilles.h"
#include "platform/ui/ErrorBoxes.h"
#include "store/Module1.h"
#include "store/feuille_acces.h"
#include "store/feuille_choix_base.h"

#include <QComboBox>
#include <functional>
#include <stdexcept>

using namespace Qt::StringLiterals;

void pointer_source(DataControl& source, const QString& sql, SiÉchec échec) {
    const std::function<void()> étapes[] = {
        [&] { source.setDatabaseName(module1().base_en_cours); },
        [&] { source.setRecordSource(sql); },
        [&] { source.Refresh(); },
    };
    for (const auto& étape : étapes) {
        if (échec == SiÉchec::continuer) {
            en_silence(étape);
        } else if (!avec_piège(ErrorBoxKind::standard, étape)) {
            return;
        }
    }
}

namespace {

DataControl& source_nommée(Feuille& écran, const char* nom) {
    auto* source = écran.findChild<DataControl*>(QString::fromUtf8(nom));
    if (source == nullptr)
        throw std::logic_error(écran.objectName().toStdString() + " n'a pas de source " + nom);
    return *source;
}

} // namespace

Feuille& ouvrir_table(const char* écran, const char* sql, SiÉchec échec) {
    Feuille& f = feuilles().nommée(QString::fromUtf8(écran));
    pointer_source(source_nommée(f, "datPrimaryRS"), QString::fromUtf8(sql), échec);
    return f;
}

void ouvrir_table_documents() {
    ouvrir_table("feuille_documents", "SELECT * FROM documents");
}

// The chooser is the store's own screen.
void ouvrir_table_passe_choix() {
    pointer_source(*feuilles().get<feuille_choix_base>().datPrimaryRS, u"SELECT * FROM passe"_s,
                   SiÉchec::boîte_standard);
}

void ouvrir_table_adresses() {
    ouvrir_table("feuille_adresses", "SELECT * FROM adresses");
}

void ouvrir_table_assertions() {
    ouvrir_table("feuille_assertions", "SELECT * FROM assertions");
}

void ouvrir_table_assurances() {
    ouvrir_table("feuille_assurances", "SELECT * FROM assurances");
}

void ouvrir_table_csp() {
    ouvrir_table("feuille_csp", "SELECT * FROM csp");
}

void ouvrir_table_genres() {
    ouvrir_table("feuille_genres", "SELECT * FROM genres");
}

void ouvrir_table_hôpitaux() {
    ouvrir_table("feuille_hôpitaux", "SELECT * FROM hôpitaux");
}

void ouvrir_table_langues_vivantes() {
    ouvrir_table("feuille_langues_vivantes", "SELECT * FROM langues_vivantes");
}

void ouvrir_table_médecins() {
    ouvrir_table("feuille_médecins", "SELECT * FROM médecins");
}

void ouvrir_table_nationalités() {
    ouvrir_table("feuille_nationalités", "SELECT * FROM nationalités");
}

void ouvrir_table_niveaux() {
    ouvrir_table("feuille_niveaux", "SELECT * FROM niveaux");
}

void ouvrir_table_sexe() {
    ouvrir_table("feuille_sexe", "SELECT * FROM sexe");
}

void ouvrir_table_situations_familiales() {
    ouvrir_table("feuille_situations_familiales", "SELECT * FROM situations_familiales");
}

void ouvrir_table_villes() {
    ouvrir_table("feuille_villes", "SELECT * FROM villes");
}

void ouvrir_table_équipe() {
    ouvrir_table("feuille_équipe", "SELECT * FROM équipe");
}

void ouvrir_table_école() {
    ouvrir_table("feuille_école", "SELECT * FROM école");
}

void ouvrir_table_inspection() {
    ouvrir_table("feuille_inspection", "SELECT * FROM inspection");
}

void ouvrir_table_paramètres() {
    ouvrir_table("feuille_paramètres", "SELECT * FROM paramètres", SiÉchec::boîte_standard);
}

void ouvrir_table_passe_accès() {
    pointer_source(*feuilles().get<feuille_accès>().datPrimaryRS, u"SELECT * FROM passe"_s,
                   SiÉchec::boîte_standard);
}

void ouvrir_table_familles() {
    Feuille& famille = ouvrir_table(
        "feuille_famille",
        "SELECT * FROM familles ORDER BY nom_responsable_légal ASC, prénom_responsable_légal ASC");
    // The list says the order the source was just given, without pointing it a second time.
    if (auto* ordres = famille.findChild<QComboBox*>(u"Combo1"_s))
        ordres->setCurrentIndex(0);
}

void ouvrir_table_choix_famille() {
    ouvrir_table("feuille_choix_famille", "SELECT * FROM familles");
}

void ouvrir_table_élèves() {
    Feuille& élève = ouvrir_table("feuille_élève", "SELECT * FROM élèves ORDER BY matricule ASC");
    pointer_source(source_nommée(élève, "Data1"), u"SELECT * FROM paramètres"_s);
}
