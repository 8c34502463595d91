#include "store/ouvrir_table.h"

#include "people/feuille_élève.h"
#include "platform/errors/ErrorBoxes.h"
#include "reference/feuille_sexe.h"
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

void ouvrir_table_sexe() {
    ouvrir_table<feuille_sexe>(QStringLiteral("SELECT * FROM sexe"));
}

void ouvrir_table_élèves() {
    feuille_élève& élève =
        ouvrir_table<feuille_élève>(QStringLiteral("SELECT * FROM élèves ORDER BY matricule ASC"));
    pointer_source(*élève.Data1, QStringLiteral("SELECT * FROM paramètres"));
}
