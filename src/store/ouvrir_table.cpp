#include "store/ouvrir_table.h"

#include "people/feuille_eleve.h"
#include "platform/errors/ErrorBoxes.h"
#include "reference/feuille_adresses.h"
#include "reference/feuille_assertions.h"
#include "reference/feuille_assurances.h"
#include "reference/feuille_csp.h"
#include "reference/feuille_genres.h"
#include "reference/feuille_hopitaux.h"
#include "reference/feuille_langues_vivantes.h"
#include "reference/feuille_medecins.h"
#include "reference/feuille_nationalites.h"
#include "reference/feuille_niveaux.h"
#include "reference/feuille_sexe.h"
#include "reference/feuille_situations_familiales.h"
#include "reference/feuille_villes.h"
#include "reference/feuille_equipe.h"
#include "reports/feuille_documents.h"
#include "store/feuille_choix_base.h"

#include <functional>

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

void ouvrir_table_documents() {
    ouvrir_table<feuille_documents>(QStringLiteral("SELECT * FROM documents"));
}

void ouvrir_table_passe_choix() {
    ouvrir_table<feuille_choix_base>(QStringLiteral("SELECT * FROM passe"), SiÉchec::boîte_standard);
}

void ouvrir_table_adresses() {
    ouvrir_table<feuille_adresses>(QStringLiteral("SELECT * FROM adresses"));
}

void ouvrir_table_assertions() {
    ouvrir_table<feuille_assertions>(QStringLiteral("SELECT * FROM assertions"));
}

void ouvrir_table_assurances() {
    ouvrir_table<feuille_assurances>(QStringLiteral("SELECT * FROM assurances"));
}

void ouvrir_table_csp() {
    ouvrir_table<feuille_csp>(QStringLiteral("SELECT * FROM csp"));
}

void ouvrir_table_genres() {
    ouvrir_table<feuille_genres>(QStringLiteral("SELECT * FROM genres"));
}

void ouvrir_table_hôpitaux() {
    ouvrir_table<feuille_hôpitaux>(QStringLiteral("SELECT * FROM hôpitaux"));
}

void ouvrir_table_langues_vivantes() {
    ouvrir_table<feuille_langues_vivantes>(QStringLiteral("SELECT * FROM langues_vivantes"));
}

void ouvrir_table_médecins() {
    ouvrir_table<feuille_médecins>(QStringLiteral("SELECT * FROM médecins"));
}

void ouvrir_table_nationalités() {
    ouvrir_table<feuille_nationalités>(QStringLiteral("SELECT * FROM nationalités"));
}

void ouvrir_table_niveaux() {
    ouvrir_table<feuille_niveaux>(QStringLiteral("SELECT * FROM niveaux"));
}

void ouvrir_table_sexe() {
    ouvrir_table<feuille_sexe>(QStringLiteral("SELECT * FROM sexe"));
}

void ouvrir_table_situations_familiales() {
    ouvrir_table<feuille_situations_familiales>(QStringLiteral("SELECT * FROM situations_familiales"));
}

void ouvrir_table_villes() {
    ouvrir_table<feuille_villes>(QStringLiteral("SELECT * FROM villes"));
}

void ouvrir_table_équipe() {
    ouvrir_table<feuille_équipe>(QStringLiteral("SELECT * FROM équipe"));
}

void ouvrir_table_élèves() {
    feuille_élève& élève =
        ouvrir_table<feuille_élève>(QStringLiteral("SELECT * FROM élèves ORDER BY matricule ASC"));
    pointer_source(*élève.Data1, QStringLiteral("SELECT * FROM paramètres"));
}
