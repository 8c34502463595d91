#include "people/apprentissage.h"

#include "people/feuille_eleve.h"
#include "people/feuille_famille.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/FeuilleFiche.h"
#include "platform/forms/Feuilles.h"
#include "platform/ui/ErrorBoxes.h"
#include "store/Module1.h"
#include "store/ouvrir_table.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

// One lookup table as the rule reaches it: its screen, the procedure that points it at the whole
// table, the search before the quoted text, the whole table again, and the word to the user.
struct Table {
    const char* consultation;
    void (*ouvrir_table)();
    const char* recherche;
    const char* tout;
    const char* message;
};

const Table adresses{"feuille_adresses", ouvrir_table_adresses, "SELECT * FROM adresses WHERE détails LIKE ",
                     "SELECT * FROM adresses", "L'adresse saisie n'existait pas dans la table 'adresses'."};
const Table sexes{"feuille_sexe", ouvrir_table_sexe, "SELECT * FROM sexe WHERE détails LIKE ",
                  "SELECT * FROM sexe", "Le sexe saisi n'existait pas dans la table 'sexes'."};
const Table assertions{"feuille_assertions", ouvrir_table_assertions,
                       "SELECT * FROM assertions WHERE détails LIKE ", "SELECT * FROM assertions",
                       "L'assertion saisie n'existait pas dans la table 'assertions'."};
const Table assurances{"feuille_assurances", ouvrir_table_assurances,
                       "SELECT * FROM assurances WHERE détails LIKE ", "SELECT * FROM assurances",
                       "La société d'assurance saisie n'existait pas dans la table 'assurances'."};
const Table situations{"feuille_situations_familiales", ouvrir_table_situations_familiales,
                       "SELECT * FROM situations_familiales WHERE détails LIKE ",
                       "SELECT * FROM situations_familiales",
                       "La situation familiale saisie n'existait pas dans la table 'situations_familiales'."};
// The language searches for a sentence no row holds, so every exit adds a row, under the family
// situation's message.
const Table langues{"feuille_langues_vivantes", ouvrir_table_langues_vivantes,
                    "SELECT * FROM langues_vivantes WHERE détails LIKE "
                    "\" & feuille_élève.langue_vivante_élève.Text & \"",
                    "SELECT * FROM langues_vivantes", situations.message};

QString texte(const char* utf8) {
    return QString::fromUtf8(utf8);
}

DataControl& source_de(const char* consultation) {
    return *dynamic_cast<FeuilleFiche&>(feuilles().nommée(texte(consultation))).datPrimaryRS;
}

// Steps 3 to 5 on the lookup's source: the search; with nothing found, the new row holding `valeur`,
// written and made current, then the word to the user if there is one; the whole table again.
void ajouter_si_inconnu(DataControl& source, const QString& recherche, const QString& valeur,
                        const QString& tout, const char* message) {
    source.setRecordSource(recherche);
    source.Refresh();
    DataRecordset& rs = source.Recordset();
    if (rs.isEOF() && rs.isBOF()) {
        rs.AddNew();
        rs.setField(u"détails"_s, valeur);
        source.UpdateRecord();
        rs.setBookmark(rs.LastModified());
        if (message)
            module1().interaction().MsgBox(texte(message) +
                                               u"\n\nCette donnée a été ajoutée dans la table connexe..."_s,
                                           vbInformation, texte(titre_programme));
    }
    source.setRecordSource(tout);
    source.Refresh();
}

// The standard rule: nothing for an empty field; the table pointed whole, then searched for the text.
void apprendre(const QLineEdit& champ, const Table& t) {
    avec_piège(ErrorBoxKind::standard, [&] {
        if (champ.text().isEmpty())
            return;
        t.ouvrir_table();
        ajouter_si_inconnu(source_de(t.consultation), texte(t.recherche) + u'"' + champ.text() + u'"',
                           champ.text(), texte(t.tout), t.message);
    });
}

void langue_vivante_élève_LostFocus(const QLineEdit& champ) {
    avec_piège(ErrorBoxKind::standard, [&] {
        langues.ouvrir_table();
        ajouter_si_inconnu(source_de(langues.consultation), texte(langues.recherche), champ.text(),
                           texte(langues.tout), langues.message);
    });
}

// The class's exit teaches the family situations the family screen's situation, in silence, on the
// lookup's source as it stands, pointed or not.
void référence_classe_élève_LostFocus() {
    avec_piège(ErrorBoxKind::standard, [] {
        const QString situation = feuilles().get<feuille_famille>().Text11->text();
        ajouter_si_inconnu(source_de(situations.consultation),
                           u"SELECT détails FROM situations_familiales WHERE détails LIKE "
                           u"\" & feuille_famille.Text11.Text & \""_s,
                           situation, u"SELECT détails FROM situations_familiales"_s, nullptr);
    });
}

} // namespace

void brancher_apprentissage(feuille_élève& élève) {
    const std::pair<QLineEdit*, const Table*> champs[] = {{élève.adresse_résidence, &adresses},
                                                          {élève.sexe, &sexes}};
    for (const auto& [champ, table] : champs)
        élève.surLostFocus(champ, [champ, table] { apprendre(*champ, *table); });
    QLineEdit* langue = élève.langue_vivante_élève;
    élève.surLostFocus(langue, [langue] { langue_vivante_élève_LostFocus(*langue); });
    élève.surLostFocus(élève.référence_classe_élève, [] { référence_classe_élève_LostFocus(); });
}

void brancher_apprentissage(feuille_famille& famille) {
    const std::pair<QLineEdit*, const Table*> champs[] = {
        {famille.Text2, &adresses},
        {famille.Text7, &adresses},
        {famille.communication_données, &assertions},
        {famille.élection_comité_responsable_légal, &assertions},
        {famille.élection_comité_conjoint, &assertions},
        {famille.société_assurance, &assurances},
        {famille.Text11, &situations},
    };
    for (const auto& [champ, table] : champs)
        famille.surLostFocus(champ, [champ, table] { apprendre(*champ, *table); });
}
