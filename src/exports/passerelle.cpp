#include "exports/passerelle.h"

#include "exports/ecrans_passerelle.h"
#include "exports/fiches_passerelle.h"
#include "platform/dao/Database.h"
#include "platform/files/Files.h"
#include "platform/files/NativePaths.h"
#include "platform/ui/ErrorBoxes.h"
#include "platform/ui/Interaction.h"
#include "store/Module1.h"
#include "store/ouvrir_table.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int erreur_fichier_déjà_ouvert = 55;
constexpr int erreur_accès = 75;
constexpr int erreur_chemin_introuvable = 76;

const QString nom_du_fichier = u"NORVANEX.EXP"_s;

// Open ... For Append As #2: the file is created when absent.
void ouvrir_en_ajout(std::unique_ptr<QFile>& fichier_2, const QString& chemin) {
    if (fichier_2)
        throw VbError(erreur_fichier_déjà_ouvert);
    auto fichier = std::make_unique<QFile>(chemin);
    // The export gathers its bytes itself and hands them over in large pieces.
    if (!fichier->open(QIODevice::Append | QIODevice::Unbuffered))
        throw VbError(QFileInfo(chemin).absoluteDir().exists() ? erreur_accès : erreur_chemin_introuvable);
    fichier_2 = std::move(fichier);
}

QString question_d_ajout(const QString& chemin) {
    return u"Attention ! Le fichier d'exportation "_s + chemin + u" existe déjà..."_s + u'\n' +
           u"Les fiches exportées seront ajoutées à celles existantes. Voulez-vous continuer ?"_s;
}

QString réussite(const QString& chemin) {
    return u"Exportation réussie !"_s + u'\n' + u"Vous disposez maintenant du fichier ("_s + chemin +
           u") contenant le résultat de l'exportation"_s;
}

QString remplacements(int valeurs) {
    const QString combien = valeurs == 1 ? u"Une valeur exportée contenait"_s
                                         : u"%1 valeurs exportées contenaient"_s.arg(valeurs);
    return combien + u" des caractères que le fichier ne peut pas représenter (jeu de caractères "
                     "Windows-1252) : ils y ont été remplacés par \"?\"."_s;
}

void exporter(std::unique_ptr<QFile>& fichier_2, Interaction& ui) {
    const QString réponse = ui.InputBox(u"Entrez le chemin à utiliser pour exporter les fiches :"_s,
                                        u"Exportation de fiches"_s, proposedPath(u"C:\\"_s));
    if (réponse.isEmpty()) {
        ui.MsgBox(u"Chemin vide... Exportation impossible !"_s, vbCritical);
        return;
    }
    const QString chemin = withFinalSeparator(réponse) + nom_du_fichier;
    if (!Dir(chemin).isEmpty() && ui.MsgBox(question_d_ajout(chemin), vbYesNo + vbQuestion) != vbYes)
        return;
    ui.setMousePointer(vbHourglass);
    ouvrir_table_élèves();
    ouvrir_table_familles();
    ouvrir_en_ajout(fichier_2, chemin);
    // The screens' own moves have just put the pointer back: the hourglass again, for the long part.
    ui.setMousePointer(vbHourglass);
    ParcoursPasserelle parcours;
    try {
        const auto base = Database::open(module1().base_en_cours);
        écrire_fiches_passerelle(*base, *fichier_2, parcours);
    } catch (...) {
        // File number 2 stays open with what was written.
        en_silence([&] { laisser_les_écrans(parcours, false); });
        throw;
    }
    fichier_2.reset();
    // The file is whole: the screens, read again to show where the export ended, cannot undo that.
    en_silence([&] { laisser_les_écrans(parcours, true); });
    ui.setMousePointer(vbArrow);
    ui.MsgBox(réussite(chemin), vbInformation);
    if (parcours.valeurs_remplacées > 0)
        ui.MsgBox(remplacements(parcours.valeurs_remplacées), vbInformation);
}

} // namespace

void menuutilitairesindex4_Click(std::unique_ptr<QFile>& fichier_2) {
    avec_piège(ErrorBoxKind::standard, [&] { exporter(fichier_2, interaction()); });
}
