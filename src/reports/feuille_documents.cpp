#include "reports/feuille_documents.h"

#include "platform/forms/DataControl.h"
#include "platform/forms/LimiteSaisie.h"
#include "platform/forms/Placement.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

ConfigurationFiche configuration_documents() {
    ConfigurationFiche c;
    c.nom = QStringLiteral("feuille_documents");
    c.titre = QStringLiteral("Documents");
    c.source_de_conception = QStringLiteral("documents");
    c.légende = LégendePosition::numérotée;
    c.ajout = FormeAjout::A;
    c.suppression = FormeSuppression::sans_piège;
    c.boîte_erreur_données = false;
    c.infobulle_rafraîchir = InfobulleRafraîchir::rafraichir;
    return c;
}

} // namespace

feuille_documents::feuille_documents() : FeuilleFiche(configuration_documents()) {
    construireChamps();
    construireCases();
    resize(en_pixels(10500), en_pixels(9600));
}

void feuille_documents::construireChamps() {
    auto* grille = new QGridLayout(corps());
    grille->setContentsMargins(0, 0, 0, 0);
    int ligne = 0;
    auto placer = [&](const QString& légende, QWidget* champ) {
        grille->addWidget(new QLabel(légende, corps()), ligne, 0, Qt::AlignTop);
        grille->addWidget(champ, ligne++, 1);
    };
    auto ligne_simple = [&](const char* nom, const QString& colonne, int limite, const QString& légende) {
        auto* boîte = new QLineEdit(corps());
        boîte->setObjectName(QString::fromUtf8(nom));
        limiter_saisie(*boîte, limite);
        datPrimaryRS->bind(boîte, colonne);
        placer(légende, boîte);
        return boîte;
    };
    auto paragraphe = [&](int n) {
        auto* zone = new QPlainTextEdit(corps());
        zone->setObjectName(QStringLiteral("paragraphe%1").arg(n));
        zone->setTabChangesFocus(true);
        zone->setFixedHeight(zone->fontMetrics().height() * 3 + 8);
        limiter_saisie(*zone, 254);
        datPrimaryRS->bind(zone, QStringLiteral("paragraphe%1_document").arg(n));
        placer(QStringLiteral("paragraphe %1").arg(n), zone);
        return zone;
    };

    intitulé =
        ligne_simple("intitulé", QStringLiteral("intitulé_bouton"), 30, QStringLiteral("nom du document"));
    intitulé->setToolTip(
        QStringLiteral("Saisissez le nom du document tel qu'il apparaîtra dans la liste des documents"));
    titre = ligne_simple("titre", QStringLiteral("titre_document"), 50, QStringLiteral("titre"));
    destinataire = ligne_simple("destinataire", QStringLiteral("destinataire_document"), 50,
                                QStringLiteral("destinataire"));
    paragraphe1 = paragraphe(1);
    paragraphe2 = paragraphe(2);
    paragraphe3 = paragraphe(3);
    paragraphe4 = paragraphe(4);
    paragraphe5 = paragraphe(5);
    paragraphe6 = paragraphe(6);
    politesse =
        ligne_simple("politesse", QStringLiteral("politesse_document"), 254, QStringLiteral("politesse"));
    post_scriptum =
        ligne_simple("post_scriptum", QStringLiteral("post_scriptum"), 254, QStringLiteral("post-scriptum"));
}

void feuille_documents::construireCases() {
    auto* disposition = static_cast<QGridLayout*>(corps()->layout());
    int ligne = disposition->rowCount();
    auto case_à_cocher = [&](const char* nom, const QString& colonne, const QString& légende,
                             const QString& infobulle) {
        auto* c = new QCheckBox(légende, corps());
        c->setObjectName(QString::fromUtf8(nom));
        c->setToolTip(infobulle);
        datPrimaryRS->bind(c, colonne);
        disposition->addWidget(c, ligne++, 1);
        return c;
    };
    Check1 =
        case_à_cocher("Check1", QStringLiteral("affichage_coordonnées_élève"),
                      QStringLiteral("affichage des coordonnées de l'élève"),
                      QStringLiteral("Cliquez pour afficher les coordonnées de l'élève (nom, prénom date de "
                                     "nais. et classe) sur le document"));
    Check2 =
        case_à_cocher("Check2", QStringLiteral("affichage_coordonnées_responsable_légal"),
                      QStringLiteral("affichage des coordonnées du responsable légal"),
                      QStringLiteral("Cliquez pour afficher les coordonnées du responsable légal (nom et "
                                     "adresse) sur le document"));
    Check3 = case_à_cocher("Check3", QStringLiteral("affichage_coordonnées_directeur"),
                           QStringLiteral("affichage des coordonnées du directeur / de la directrice"),
                           QStringLiteral("Cliquez pour afficher les coordonnées de l'élève (Monsieur X..., "
                                          "Directeur de l'école ... de ...) sur le document"));
    Check4 = case_à_cocher("Check4", QStringLiteral("affichage_signature_directeur"),
                           QStringLiteral("affichage des zones de signature et de cachet sur le document"),
                           QStringLiteral("Cliquez pour afficher la zone de signature sur le document"));
    Check5 = case_à_cocher("Check5", QStringLiteral("affichage_date"), QStringLiteral("affichage de la date"),
                           QStringLiteral("Cliquez pour afficher la date sur le document"));

    Command2 = new QPushButton(QStringLiteral("V&oir"), corps());
    Command2->setObjectName(QStringLiteral("Command2"));
    Command2->setToolTip(QStringLiteral("Cliquez pour voir le document"));
    Command2->setAutoDefault(false);
    connect(Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
    disposition->addWidget(Command2, ligne, 1, Qt::AlignRight);
}

// The preview of the template with sample values through the report job; inert on this screen.
void feuille_documents::Command2_Click() {}
