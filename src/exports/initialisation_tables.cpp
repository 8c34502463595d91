#include "exports/initialisation_tables.h"

#include "platform/dao/Database.h"
#include "platform/ui/ErrorBoxes.h"
#include "platform/ui/Interaction.h"
#include "store/Module1.h"

#include <QStringList>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Initialisation {
    const char* question;
    const char* sujet_confirmation;
    const char* sujet_dernière_demande;
    const char* fin;
    std::array<const char*, 8> tables; // the unused places stay null
};

const Initialisation familles = {
    "Voulez-vous initialiser la table des familles?",
    "Initialisation de la table des familles : êtes-vous sûr?",
    "Dernière demande avant initialisation de la table des familles...",
    "Initialisation de la table des familles effectuée!",
    {"familles"},
};

const Initialisation élèves = {
    "Voulez-vous initialiser la table des élèves?",
    "Initialisation de la table des élèves : êtes-vous sûr?",
    "Dernière demande avant initialisation de la table des élèves...",
    "Initialisation de la table des élèves effectuée!",
    {"élèves"},
};

const Initialisation connexes = {
    "Voulez-vous initialiser les tables connexes (tables des adresses, assurances, école, équipe, "
    "hôpitaux, inspection, médecins, villes)?",
    "Initialisation des tables connexes : êtes-vous sûr?",
    "Dernière demande avant initialisation des tables connexes...",
    "Initialisation des tables connexes effectuée!",
    {"adresses", "assurances", "école", "équipe", "hôpitaux", "inspection", "médecins", "villes"},
};

QStringList instructions(const Initialisation& initialisation) {
    QStringList liste;
    for (const char* table : initialisation.tables)
        if (table != nullptr)
            liste << u"DELETE * FROM "_s + QString::fromUtf8(table);
    // The related tables are emptied twice over, the second pass finding them empty, as the program
    // has always done it.
    if (liste.size() > 1)
        liste += QStringList(liste);
    return liste;
}

bool oui(Interaction& ui, const QString& texte) {
    return ui.MsgBox(texte, vbYesNo + vbQuestion) == vbYes;
}

void initialiser(const Initialisation& initialisation) {
    avec_piège(ErrorBoxKind::standard, [&] {
        Interaction& ui = interaction();
        const QString confirmation =
            QString::fromUtf8(initialisation.sujet_confirmation) + u"\n\n"_s +
            u"Cette opération supprime irrémédiablement toutes les fiches..."_s + u"\n\n"_s +
            u"Il est fortement conseillé d'effectuer une sauvegarde complète de la base de données avant "
            "d'effectuer une opération d'initialisation..."_s;
        const QString dernière_demande = QString::fromUtf8(initialisation.sujet_dernière_demande) +
                                         u"\n\n"_s + u"Confirmez-vous votre demande?"_s;
        if (!oui(ui, QString::fromUtf8(initialisation.question)) || !oui(ui, confirmation) ||
            !oui(ui, dernière_demande))
            return;
        const auto base = Database::open(module1().base_en_cours);
        for (const QString& instruction : instructions(initialisation))
            base->Execute(instruction);
        base->Close();
        ui.MsgBox(QString::fromUtf8(initialisation.fin), vbInformation);
    });
}

} // namespace

void menuutilitairesindex1_Click() {
    initialiser(familles);
}

void menuutilitairesindex2_Click() {
    initialiser(élèves);
}

void menuutilitairesindex3_Click() {
    initialiser(connexes);
}
