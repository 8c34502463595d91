#include "reference/FicheCoordonnees.h"

#include "reference/retours.h"

#include <QGroupBox>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

ConfigurationFiche configuration_coordonnées(const char* nom, const char* titre, const char* table) {
    ConfigurationFiche c;
    c.nom = QString::fromUtf8(nom);
    c.titre = QString::fromUtf8(titre);
    c.source_de_conception = QString::fromUtf8(table);
    c.légende = LégendePosition::numérotée;
    c.ajout = FormeAjout::aucune;
    c.suppression = FormeSuppression::aucune;
    return c;
}

} // namespace

FicheCoordonnées::FicheCoordonnées(const char* nom, const char* titre, const char* table,
                                   const char* onglet_personne)
    : FeuilleFiche(configuration_coordonnées(nom, titre, table)), onglet_personne_(onglet_personne) {}

void FicheCoordonnées::préparer_onglets(FieldBuilder& disposition) {
    auto* colonne = new QVBoxLayout(corps());
    colonne->setContentsMargins(0, 0, 0, 0);
    SSTab1 = new QTabWidget(this);
    SSTab1->setObjectName(u"SSTab1"_s);
    colonne->addWidget(SSTab1);
    const std::pair<const char*, const char*> onglets[] = {{"&Coordonnées", "Frame2"},
                                                           {onglet_personne_, "Frame1"}};
    // The pages join the tabs empty: a page measured by the tab control before its group was filled
    // would keep that first, empty size.
    for (const auto& [légende, cadre] : onglets) {
        auto* page = new QWidget(SSTab1);
        auto* pile = new QVBoxLayout(page);
        SSTab1->addTab(page, QString::fromUtf8(légende));
        pile->addWidget(disposition.addGroupBox(QString::fromUtf8(cadre), page));
        pile->addStretch(1);
    }
}

void FicheCoordonnées::brancher() {
    brancher_consultations(*this);
    followPages(*this, *SSTab1);
}
