#include "store/feuille_acces.h"

#include "platform/forms/DataControl.h"
#include "platform/ui/ErrorBoxes.h"
#include "store/Module1.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

ConfigurationFiche configuration_accès() {
    ConfigurationFiche c;
    c.nom = u"feuille_accès"_s;
    c.titre = u"Protection de l'accès aux données"_s;
    c.source_de_conception = u"passe"_s;
    c.légende = LégendePosition::nue;
    c.ajout = FormeAjout::aucune;
    c.suppression = FormeSuppression::aucune;
    c.rafraîchissement = false;
    c.boîte_erreur_données = true;
    return c;
}

QLineEdit* code(QWidget* parent, QFormLayout* lignes, const QString& nom, const QString& légende,
                const QString& aide) {
    auto* boîte = new QLineEdit(parent);
    boîte->setObjectName(nom);
    boîte->setEchoMode(QLineEdit::Password);
    boîte->setToolTip(aide);
    lignes->addRow(légende, boîte);
    return boîte;
}

void avertir(const QString& texte) {
    module1().interaction().MsgBox(texte, vbExclamation, QString::fromUtf8(titre_programme));
}

} // namespace

feuille_accès::feuille_accès() : FeuilleFiche(configuration_accès()) {
    auto* lignes = new QFormLayout(corps());
    accès_ancien = code(corps(), lignes, u"accès_ancien"_s, u"ancien code d'accès"_s,
                        u"Saisissez l'ancien code d'accès pour pouvoir en saisir un nouveau"_s);
    accès_nouveau = code(corps(), lignes, u"accès_nouveau"_s, u"nouveau code d'accès"_s,
                         u"Saisissez le nouveau code d'accès"_s);
    accès_confirmation = code(corps(), lignes, u"accès_confirmation"_s, u"confirmation du nouveau code"_s,
                              u"Saisissez une nouvelle fois le code d'accès pour confirmation"_s);
    accès_actuel = new QLineEdit(corps());
    accès_actuel->setObjectName(u"accès_actuel"_s);
    accès_actuel->hide();
    datPrimaryRS->bind(accès_actuel, u"passe"_s);
}

// The boxes keep what was typed and the screen stays open, whatever the outcome.
void feuille_accès::cmdMettreàjour_Click() {
    avec_piège(ErrorBoxKind::standard, [this] {
        if (accès_ancien->text() != accès_actuel->text()) {
            avertir(
                u"Modification du code d'accès impossible... Vous devez saisir l'ancien code d'accès pour "
                u"pouvoir le modifier..."_s);
            return;
        }
        if (accès_nouveau->text() != accès_confirmation->text()) {
            avertir(u"Modification du code d'accès impossible... La confirmation n'est pas identique à la "
                    u"saisie..."_s);
            return;
        }
        accès_actuel->setText(accès_confirmation->text());
        datPrimaryRS->UpdateRecord();
        DataRecordset& rs = datPrimaryRS->Recordset();
        rs.setBookmark(rs.LastModified());
        avertir(
            u"Modification du code d'accès effectuée... Le nouveau code d'accès est actif, ne l'oubliez pas!"_s);
    });
}
