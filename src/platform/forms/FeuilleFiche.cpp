#include "platform/forms/FeuilleFiche.h"

#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/Disposition.h"
#include "platform/forms/FieldRows.h"
#include "platform/forms/Placement.h"
#include "platform/ui/ErrorBoxes.h"
#include "platform/ui/Interaction.h"
#include "platform/ui/Relier.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ConfigurationFiche table_de_consultation(QString nom, QString titre, QString table,
                                         std::vector<ColonneGrille> colonnes) {
    ConfigurationFiche configuration;
    configuration.nom = std::move(nom);
    configuration.titre = std::move(titre);
    configuration.source_de_conception = std::move(table);
    configuration.légende = LégendePosition::numérotée;
    configuration.ajout = FormeAjout::B;
    configuration.suppression = FormeSuppression::piégée;
    configuration.boîte_erreur_données = true;
    configuration.bouton_accepter = BoutonAccepter::caché;
    configuration.grille = std::move(colonnes);
    return configuration;
}

QString infobulle_rafraîchir(InfobulleRafraîchir orthographe) {
    const QString suite = u" les données, dans le cas d'une utilisation multi-utilisateurs"_s;
    switch (orthographe) {
    case InfobulleRafraîchir::rafraichir:
        return u"Cliquez pour rafraichir"_s + suite;
    case InfobulleRafraîchir::rafraichier:
        return u"Cliquez pour rafraichier"_s + suite;
    case InfobulleRafraîchir::rafraîchir:
        break;
    }
    return u"Cliquez pour rafraîchir"_s + suite;
}

FeuilleFiche::FeuilleFiche(ConfigurationFiche configuration)
    : Feuille(configuration.nom), configuration_(std::move(configuration)) {
    setWindowTitle(configuration_.titre);
    auto* disposition = new QVBoxLayout(this);

    if (!configuration_.grille.empty()) {
        grdDataGrid = new DBGrid(this);
        grdDataGrid->setObjectName(u"grdDataGrid"_s);
        disposition->addWidget(grdDataGrid, 1);
    } else {
        corps_ = new QWidget(this);
        corps_->setObjectName(u"corps"_s);
        disposition->addWidget(corps_, 1);
    }

    datPrimaryRS = new DataControl(this);
    datPrimaryRS->setObjectName(u"datPrimaryRS"_s);
    datPrimaryRS->setRecordSource(configuration_.source_de_conception);
    datPrimaryRS->Validate = [this](int& action, bool& save) { datPrimaryRS_Validate(action, save); };
    datPrimaryRS->Reposition = [this] { datPrimaryRS_Reposition(); };
    datPrimaryRS->Error = [this](int dataErr, int& response) { datPrimaryRS_Error(dataErr, response); };
    disposition->addWidget(datPrimaryRS);

    if (grdDataGrid) {
        for (const ColonneGrille& colonne : configuration_.grille)
            grdDataGrid->addColumn(colonne.colonne, colonne.titre);
        grdDataGrid->setDataSource(datPrimaryRS);
        if (configuration_.bouton_accepter != BoutonAccepter::aucun && configuration_.double_clic_accepte)
            surDblClick(grdDataGrid, [this] { grdDataGrid_DblClick(); });
    }

    construireBoutons(disposition);
    if (configuration_.bouton_accepter == BoutonAccepter::caché)
        construireToucheParDéfaut();

    // The edited row is written before the screen goes, as the data source's final act.
    avantDéchargement([this] {
        if (grdDataGrid)
            grdDataGrid->commitEditor();
        écriture_finale_refusée_ = !datPrimaryRS->unload();
    });
}

FeuilleFiche::~FeuilleFiche() = default;

void FeuilleFiche::construireBoutons(QVBoxLayout* disposition) {
    auto* rangée = new QHBoxLayout;
    // A button of the row, whose click runs the screen's own handler. A click hands the grid's cell
    // being typed in over to its row as the focus leaves it; an access key takes no focus, so the
    // handler is preceded by that same hand-over, whichever way the button was pressed.
    const auto ajouter = [&](const char* nom, const QString& légende, const QString& infobulle,
                             void (FeuilleFiche::*clic)()) {
        auto* b = new QPushButton(légende, this);
        b->setObjectName(QString::fromUtf8(nom));
        b->setToolTip(infobulle);
        b->setAutoDefault(false);
        relier(b, &QPushButton::clicked, this, [this, clic] {
            if (grdDataGrid)
                grdDataGrid->finishEditing();
            (this->*clic)();
        });
        rangée->addWidget(b);
        return b;
    };
    if (configuration_.bouton_accepter != BoutonAccepter::aucun) {
        bouton_accepter = ajouter("bouton_accepter", u"Accepter"_s,
                                  QStringLiteral("Cliquez pour accepter ces données et les insérer dans la "
                                                 "fiche d'origine"),
                                  &FeuilleFiche::bouton_accepter_Click);
        bouton_accepter->setVisible(configuration_.bouton_accepter != BoutonAccepter::caché);
        bouton_accepter->setEnabled(configuration_.bouton_accepter != BoutonAccepter::désactivé);
    }
    if (configuration_.ajout != FormeAjout::aucune)
        cmdAjouter =
            ajouter("cmdAjouter", u"&Ajouter"_s, u"Cliquez pour créer une nouvelle fiche de saisie"_s,
                    &FeuilleFiche::cmdAjouter_Click);
    if (configuration_.suppression != FormeSuppression::aucune)
        cmdSupprimer = ajouter("cmdSupprimer", u"&Supprimer"_s, u"Cliquez pour supprimer la fiche en cours"_s,
                               &FeuilleFiche::cmdSupprimer_Click);
    if (configuration_.rafraîchissement)
        cmdRafraîchir = ajouter("cmdRafraîchir", u"&Rafraîchir"_s,
                                infobulle_rafraîchir(configuration_.infobulle_rafraîchir),
                                &FeuilleFiche::cmdRafraîchir_Click);
    cmdMettreàjour =
        ajouter("cmdMettreàjour", u"&Valider"_s, u"Cliquez pour enregistrer les renseignements en cours"_s,
                &FeuilleFiche::cmdMettreàjour_Click);
    cmdFermer = ajouter("cmdFermer", u"&Fermer"_s, u"Cliquez pour fermer cette fenêtre"_s,
                        &FeuilleFiche::cmdFermer_Click);
    disposition->addLayout(rangée);
}

// On a lookup screen "Accepter" is the default button, pressed by Enter while it is visible, and
// "&Fermer" the cancel button, pressed by Escape. While "Accepter" is hidden, Enter stays with the
// control that has the focus (a grid cell being typed in).
void FeuilleFiche::construireToucheParDéfaut() {
    for (const int touche : {int(Qt::Key_Return), int(Qt::Key_Enter)}) {
        auto* entrée = new QShortcut(QKeySequence(touche), this);
        entrée->setContext(Qt::WidgetWithChildrenShortcut);
        entrée->setEnabled(false);
        connect(entrée, &QShortcut::activated, bouton_accepter, &QPushButton::click);
        touches_accepter_.push_back(entrée);
    }
    bouton_accepter->installEventFilter(this);
    auto* échappement = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    échappement->setContext(Qt::WidgetWithChildrenShortcut);
    connect(échappement, &QShortcut::activated, cmdFermer, &QPushButton::click);
}

bool FeuilleFiche::eventFilter(QObject* surveillé, QEvent* événement) {
    if (surveillé == bouton_accepter &&
        (événement->type() == QEvent::ShowToParent || événement->type() == QEvent::HideToParent))
        for (QShortcut* touche : touches_accepter_)
            touche->setEnabled(événement->type() == QEvent::ShowToParent);
    return Feuille::eventFilter(surveillé, événement);
}

void FeuilleFiche::ranger_navigation(QBoxLayout& rangée) {
    int flèches = 0;
    for (const QWidget* flèche : datPrimaryRS->findChildren<QToolButton*>())
        flèches += flèche->sizeHint().width();
    datPrimaryRS->setMinimumWidth(flèches +
                                  datPrimaryRS->fontMetrics().horizontalAdvance(u"Fiche: 000000"_s) + 12);
    retirer_de(layout(), datPrimaryRS);
    rangée.addWidget(datPrimaryRS);
    for (QPushButton* b : {cmdAjouter, cmdSupprimer, cmdRafraîchir, cmdMettreàjour, cmdFermer}) {
        if (!b)
            continue;
        retirer_de(layout(), b);
        rangée.addWidget(b);
        fitButtonToCaption(*b);
    }
}

void FeuilleFiche::tabuler_à_travers_onglets(QTabWidget* onglets, QList<QWidget*> ordre) {
    for (qsizetype i = 1; i < ordre.size(); ++i)
        setTabOrder(ordre[i - 1], ordre[i]);
    onglets_tabulés_ = onglets;
    ordre_tabulation_ = std::move(ordre);
}

// A focus field that is no longer visible is on a page that a click on a tab is taking away: Qt's own
// walk then finds it a new place, and the declared order must not turn back to the page being left.
bool FeuilleFiche::focusNextPrevChild(bool next) {
    const qsizetype ici = ordre_tabulation_.indexOf(focusWidget());
    if (!onglets_tabulés_ || ici < 0 || !focusWidget()->isVisible())
        return Feuille::focusNextPrevChild(next);
    const qsizetype n = ordre_tabulation_.size();
    for (qsizetype pas = 1; pas < n; ++pas) {
        QWidget* w = ordre_tabulation_[((ici + (next ? pas : -pas)) % n + n) % n];
        if (!w->isEnabled() || w->isHidden() || !(w->focusPolicy() & Qt::TabFocus))
            continue;
        for (int page = 0; page < onglets_tabulés_->count(); ++page)
            if (onglets_tabulés_->widget(page)->isAncestorOf(w))
                onglets_tabulés_->setCurrentIndex(page);
        w->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }
    return false;
}

void FeuilleFiche::pointer_sur(const QString& base, const QString& source) {
    datPrimaryRS->setDatabaseName(base);
    datPrimaryRS->setRecordSource(source);
    datPrimaryRS->Refresh();
}

void FeuilleFiche::Form_Load() {
    avec_piège(ErrorBoxKind::standard, [this] { centrer_feuille(*this); });
}

// A last row the engine refuses keeps the screen open with its edit, so nothing typed is lost; a
// screen whose data errors are silent says why with the standard box.
void FeuilleFiche::Form_Unload(int& cancel) {
    if (écriture_finale_refusée_) {
        if (!configuration_.boîte_erreur_données)
            message_erreur_standard(VbError(datPrimaryRS->lastError()));
        interaction().setMousePointer(vbDefault);
        cancel = 1;
        return;
    }
    if (bouton_accepter && configuration_.bouton_accepter == BoutonAccepter::caché)
        bouton_accepter->setVisible(false);
    if (bouton_accepter && configuration_.bouton_accepter == BoutonAccepter::désactivé)
        bouton_accepter->setEnabled(false);
    interaction().setMousePointer(vbDefault);
}

// The position is undefined on a new or an empty row (-1): the numbered caption then shows 0.
void FeuilleFiche::datPrimaryRS_Reposition() {
    interaction().setMousePointer(vbDefault);
    en_silence([this] {
        const QString position = QString::number(datPrimaryRS->Recordset().AbsolutePosition() + 1);
        switch (configuration_.légende) {
        case LégendePosition::numérotée:
            datPrimaryRS->setCaption(u"Fiche: "_s + position);
            break;
        case LégendePosition::nue:
            datPrimaryRS->setCaption(position);
            break;
        case LégendePosition::aucune:
            break;
        }
    });
}

// Never cancels and never touches Save: every edit is written. The hourglass stays until Reposition
// or a close takes it away.
void FeuilleFiche::datPrimaryRS_Validate(int& Action, bool&) {
    Interaction& ui = interaction();
    if (Action == vbDataActionClose)
        ui.setMousePointer(vbDefault);
    ui.setMousePointer(vbHourglass);
}

void FeuilleFiche::datPrimaryRS_Error(int DataErr, int& Response) {
    if (configuration_.boîte_erreur_données)
        interaction().MsgBox(u"Data error event hit err:"_s + error_text(DataErr), vbOKOnly,
                             QString::fromUtf8(titre_programme));
    Response = vbDataErrContinue;
}

// No trap: a failure here (a MoveLast on an empty row set) goes up untrapped.
void FeuilleFiche::cmdAjouter_Click() {
    DataRecordset& rs = datPrimaryRS->Recordset();
    if (configuration_.ajout == FormeAjout::A) {
        rs.AddNew();
        return;
    }
    rs.MoveLast();
    grdDataGrid->setFocus();
    grdDataGrid->stepDown();
}

void FeuilleFiche::cmdSupprimer_Click() {
    auto supprimer = [this] {
        DataRecordset& rs = datPrimaryRS->Recordset();
        rs.Delete();
        rs.MoveNext();
        if (rs.isEOF())
            rs.MoveLast();
    };
    if (configuration_.suppression == FormeSuppression::piégée)
        avec_piège(ErrorBoxKind::standard, supprimer);
    else
        supprimer();
}

// No trap, as cmdAjouter_Click.
void FeuilleFiche::cmdRafraîchir_Click() {
    datPrimaryRS->Refresh();
}

// The saved row stays current (a new one becomes current), and Reposition puts the pointer back.
void FeuilleFiche::cmdMettreàjour_Click() {
    avec_piège(ErrorBoxKind::standard, [this] {
        datPrimaryRS->UpdateRecord();
        DataRecordset& rs = datPrimaryRS->Recordset();
        rs.setBookmark(rs.LastModified());
    });
}

void FeuilleFiche::cmdFermer_Click() {
    interaction().setMousePointer(vbDefault);
    Unload();
}

void FeuilleFiche::grdDataGrid_DblClick() {
    bouton_accepter_Click();
}
