#include "EcransEssai.h"

#include "platform/forms/DBGrid.h"
#include "platform/forms/LimiteSaisie.h"

#include "support/Donnees.h"
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

QString créer_base_essai(const WorkFolder& dossier) {
    const QString chemin = dossier.file(u"essai.mdb"_s);
    for (const QStringList& instruction : table_de_données(u"essai_lignes.tsv"_s))
        sql_direct(chemin, instruction[0]);
    journaliser_écritures(chemin, {u"fiches"_s, u"valeurs"_s});
    return chemin;
}

ConfigurationFiche feuille_essai::configuration_par_défaut() {
    ConfigurationFiche c;
    c.nom = u"feuille_essai"_s;
    c.titre = u"Fiches"_s;
    c.source_de_conception = u"fiches"_s;
    return c;
}

namespace {

// A control named after its column, laid out on its page and bound to that column.
template <class W> W* lié(DataControl& données, QWidget* page, const char* nom, const char* colonne) {
    auto* w = new W(page);
    w->setObjectName(QString::fromUtf8(nom));
    page->layout()->addWidget(w);
    données.bind(w, QString::fromUtf8(colonne));
    return w;
}

} // namespace

feuille_essai::feuille_essai(ConfigurationFiche configuration) : FeuilleFiche(std::move(configuration)) {
    auto* disposition = new QVBoxLayout(corps());
    SSTab1 = new QTabWidget(corps());
    SSTab1->setObjectName(u"SSTab1"_s);
    auto* identité = new QWidget;
    auto* suite = new QWidget;
    new QVBoxLayout(identité);
    new QVBoxLayout(suite);
    SSTab1->addTab(identité, u"&Identité"_s);
    SSTab1->addTab(suite, u"&Notes"_s);
    disposition->addWidget(SSTab1);

    nom = lié<QLineEdit>(*datPrimaryRS, identité, "nom", "nom");
    limiter_saisie(*nom, 30);
    naissance = lié<QLineEdit>(*datPrimaryRS, identité, "naissance", "naissance");
    actif = lié<QCheckBox>(*datPrimaryRS, identité, "actif", "actif");
    notes = lié<QPlainTextEdit>(*datPrimaryRS, suite, "notes", "notes");
    notes->setTabChangesFocus(true);
    libellé = lié<QLabel>(*datPrimaryRS, suite, "libellé", "libellé");
    naissance_affichée = lié<QLabel>(*datPrimaryRS, suite, "naissance_affichée", "naissance");
}

void feuille_essai::datPrimaryRS_Validate(int& Action, bool& Save) {
    actions.push_back(Action);
    FeuilleFiche::datPrimaryRS_Validate(Action, Save);
}

feuille_grille_essai::feuille_grille_essai()
    : FeuilleFiche(table_de_consultation(u"feuille_grille_essai"_s, u"Table des valeurs"_s, u"valeurs"_s,
                                         {{u"code"_s, u"code"_s}, {u"détails"_s, u"détails"_s}})) {}

void feuille_grille_essai::bouton_accepter_Click() {
    grdDataGrid->setCol(1);
    acceptés << grdDataGrid->Text();
}
