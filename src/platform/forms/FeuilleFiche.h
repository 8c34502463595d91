#pragma once

#include "platform/forms/Feuille.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <vector>

class DataControl;
class DBGrid;
class QPushButton;
class QBoxLayout;
class QShortcut;
class QTabWidget;
class QVBoxLayout;

// What a record screen shows between the navigator's arrows after each move.
enum class LégendePosition {
    numérotée, // "Fiche: " and the position
    nue,       // the position alone
    aucune,    // nothing: the caption stays " "
};

// How "&Ajouter" adds a row.
enum class FormeAjout {
    aucune, // no such button
    A,      // AddNew on the row set: the bound boxes empty for a new record
    B,      // last row, then one step down into the grid's empty new row
    à_part, // the screen writes its own cmdAjouter_Click
};

// How "&Supprimer" behaves, besides being there or not.
enum class FormeSuppression {
    aucune,     // no such button
    piégée,     // a failure shows the standard box
    sans_piège, // a failure goes up untrapped
};

// The three spellings of the refresh button's tooltip, each used by some screens.
enum class InfobulleRafraîchir { rafraîchir, rafraichir, rafraichier };

// What happens to `bouton_accepter` when the screen unloads.
enum class BoutonAccepter {
    aucun,     // the screen has none
    caché,     // a lookup screen: hidden in the design and again on unload
    désactivé, // the teaching team: disabled on unload
};

struct ColonneGrille {
    QString colonne; // column of the row set
    QString titre;   // heading in the grid
};

// A record screen's differences from the shared frame, as one declaration.
struct ConfigurationFiche {
    QString nom;                  // the screen's name, e.g. "feuille_sexe"
    QString titre;                // its caption, e.g. "Table des sexes"
    QString source_de_conception; // RecordSource until the first pointing at a base
    LégendePosition légende = LégendePosition::numérotée;
    FormeAjout ajout = FormeAjout::A;
    FormeSuppression suppression = FormeSuppression::piégée;
    bool rafraîchissement = true;
    bool boîte_erreur_données = false; // "Data error event hit err:" box, or silent
    InfobulleRafraîchir infobulle_rafraîchir = InfobulleRafraîchir::rafraîchir;
    BoutonAccepter bouton_accepter = BoutonAccepter::aucun;
    std::vector<ColonneGrille> grille; // a grid screen names its columns; empty for bound boxes
    bool double_clic_accepte = true;   // on a grid screen with bouton_accepter, DblClick accepts
};

// A lookup screen: one grid over a whole table, add form B, delete with its box, the data error box
// shown, and a hidden "Accepter".
ConfigurationFiche table_de_consultation(QString nom, QString titre, QString table,
                                         std::vector<ColonneGrille> colonnes);

// The frame that twenty-two record screens share: the data source `datPrimaryRS` with its navigator,
// the buttons to add, delete, refresh, save and close, the grid of the lookup screens, and the small
// handlers of each, configured once per screen. A screen derives from it, puts its own controls in
// corps() (a grid screen has nothing more to add) and overrides a handler only where it has a
// version of its own. A whole lookup screen:
//
//     class feuille_villes : public FeuilleFiche {
//     public:
//         feuille_villes()
//             : FeuilleFiche(table_de_consultation("feuille_villes", "Table des villes", "villes",
//                                                  {{"code_postal", "codes postaux"}, {"détails",
//                                                  "détails"}})) {}
//         void bouton_accepter_Click() override; // its list of callers
//     };
class FeuilleFiche : public Feuille {
    Q_OBJECT
public:
    explicit FeuilleFiche(ConfigurationFiche configuration);
    ~FeuilleFiche() override;

    const ConfigurationFiche& configuration() const { return configuration_; }

    // Points the data source at a file and a query, in the order DatabaseName, RecordSource,
    // Refresh: the first record shows, or nothing on an empty table. Raises the engine's error.
    void pointer_sur(const QString& base, const QString& source);

    // Controls of the frame; the absent ones are null.
    DataControl* datPrimaryRS = nullptr;
    DBGrid* grdDataGrid = nullptr;
    QPushButton* bouton_accepter = nullptr;
    QPushButton* cmdAjouter = nullptr;
    QPushButton* cmdSupprimer = nullptr;
    QPushButton* cmdRafraîchir = nullptr;
    QPushButton* cmdMettreàjour = nullptr;
    QPushButton* cmdFermer = nullptr;

    void Form_Load() override;
    void Form_Unload(int& cancel) override;

    virtual void datPrimaryRS_Reposition();
    virtual void datPrimaryRS_Validate(int& Action, bool& Save);
    virtual void datPrimaryRS_Error(int DataErr, int& Response);
    virtual void cmdAjouter_Click();
    virtual void cmdSupprimer_Click();
    virtual void cmdRafraîchir_Click();
    virtual void cmdMettreàjour_Click();
    virtual void cmdFermer_Click();
    // The lookup protocol's accept: copies the current row into the calling screen's fields. The frame
    // gives it no body; each lookup screen writes its own list of callers.
    virtual void bouton_accepter_Click() {}
    virtual void grdDataGrid_DblClick();

protected:
    bool eventFilter(QObject* surveillé, QEvent* événement) override;
    bool focusNextPrevChild(bool next) override;

    // A tabbed screen's choice: the Tab key walks `ordre` (also set as Qt's tab order) through every
    // page of `onglets`, bringing forward the page of the field it lands on, where Qt's own walk
    // skips the fields of hidden pages.
    void tabuler_à_travers_onglets(QTabWidget* onglets, QList<QWidget*> ordre);

    // A screen with a band above its tabs: the navigator and the frame's buttons move into `rangée`, in
    // their order, each button as narrow as its caption allows on a small display; the navigator keeps
    // room for the position of a large file beside its arrows.
    void ranger_navigation(QBoxLayout& rangée);

    // Where a screen of bound boxes lays out its own controls, above the navigator.
    QWidget* corps() const { return corps_; }

private:
    void construireBoutons(QVBoxLayout* disposition);
    void construireToucheParDéfaut();

    ConfigurationFiche configuration_;
    QWidget* corps_ = nullptr;
    bool écriture_finale_refusée_ = false;
    std::vector<QShortcut*> touches_accepter_; // children of the screen
    QPointer<QTabWidget> onglets_tabulés_;
    QList<QWidget*> ordre_tabulation_; // children of the screen
};

// The tooltip of "&Rafraîchir" in the spelling the screen uses.
QString infobulle_rafraîchir(InfobulleRafraîchir orthographe);
