#include "shell/MDIForm1.h"

#include "people/feuille_eleve.h"
#include "people/feuille_famille.h"
#include "platform/forms/EtiquetteElidee.h"
#include "platform/forms/TouchesAcces.h"
#include "platform/report/ReportJob.h"
#include "platform/ui/ErrorBoxes.h"
#include "platform/ui/Relier.h"
#include "reports/feuille_traitements.h"
#include "shell/commandes.h"
#include "shell/feuille_options.h"
#include "shell/options.h"
#include "store/Module1.h"
#include "store/feuille_choix_base.h"
#include "store/ouverture_base.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// The menu tree, in order. Level 0 is a menu of the bar, 1 an entry of it, 2 an entry of the submenu
// opened by the level-1 entry just before. A caption "-" is a separator line.
struct EntréeMenu {
    const char* nom;
    const char* légende;
    int niveau;
};

const std::vector<EntréeMenu>& arbre_des_menus() {
    static const std::vector<EntréeMenu> arbre = {
        {"menufichierindex0", "&Fichier", 0},
        {"menufichierindex1", "&Ouvrir une base de données", 1},
        {"menufichierindex5", "-", 1},
        {"menufichierindex3", "&Fermer la base de données en cours", 1},
        {"menufichierindex4", "-", 1},
        {"menufichierindex2", "&Quitter le logiciel", 1},
        {"menuenfantsindex0", "&Gestion", 0},
        {"menuenfantsindex2", "Gestion du fichier des &Familles", 1},
        {"menuenfantsindex3", "-", 1},
        {"menuenfantsindex1", "Gestion du fichier des &Elèves", 1},
        {"menuexploitationindex0", "&Exploitation", 0},
        {"menuexploitationindex3", "&Traitements", 1},
        {"menuexploitationindex2", "-", 1},
        {"menuexploitationindex4", "Exportation des données au format Excel", 1},
        {"menuparamètresindex0", "&Administration", 0},
        {"menuparamètresindex1", "&Circonscription", 1},
        {"menuparamètresindex2", "&Ecole", 1},
        {"menuparamètresindex3", "Equipe &Pédagogique", 1},
        {"menuparamètresindex10", "-", 1},
        {"menuparamètresindex4", "&Documents", 1},
        {"menuparamètresindex5", "&Champs Paramétrables", 1},
        {"menuparamètresindex21", "-", 1},
        {"menuparamètresindex22", "&Modification du code d'accès aux données", 1},
        {"menuparamètresindex11", "-", 1},
        {"menuparamètresindex20", "Gestion des &Tables", 1},
        {"menuparamètresindex6", "Table des Adresses", 2},
        {"menuparamètresindex7", "Table des Assurances", 2},
        {"menuparamètresindex23", "Table des Assertions", 2},
        {"menuparamètresindex8", "Table des CSP", 2},
        {"menuparamètresindex19", "Table des Genres", 2},
        {"menuparamètresindex9", "Table des Hôpitaux", 2},
        {"menuparamètresindex13", "Table des Langues Vivantes", 2},
        {"menuparamètresindex12", "Table des Médecins", 2},
        {"menuparamètresindex15", "Table des Nationalités", 2},
        {"menuparamètresindex18", "Table des Niveaux et Cycles", 2},
        {"menuparamètresindex14", "Table des Sexes", 2},
        {"menuparamètresindex17", "Table des Situations Familiales", 2},
        {"menuparamètresindex16", "Table des Villes", 2},
        {"menuparamètresindex24", "-", 1},
        {"menuutilitairesindex0", "&Utilitaires", 1},
        {"menuutilitairesindex1", "Initialisation de la table des familles", 2},
        {"menuutilitairesindex2", "Initialisation de la table des élèves", 2},
        {"menuutilitairesindex3", "Initialisation des tables connexes", 2},
        {"menuutilitairesindex5", "-", 2},
        {"menuutilitairesindex4", "Exportation pour la passerelle BE1d", 2},
        {"menuoptionsindex0", "&Options", 0},
        {"menuoptionsindex1", "&Options de démarrage", 1},
        {"menuaideindex0", "&?", 0},
        {"menuaideindex1", "&A propos de...", 1},
    };
    return arbre;
}

// The four data menus, in the order they are switched.
const char* const menus_de_données[] = {"menuenfantsindex0", "menuparamètresindex0", "menuutilitairesindex0",
                                        "menuexploitationindex0"};

// Panels 4 to 6 show the keyboard's lock keys, as the system keeps them from the start where it lets
// the program read them, off where it does not. A lock key pressed in the program turns its panel: the
// system is read again where it can be, else the panel turns by itself. A lock turned in another
// program shows when this one comes back to the front. A key reaches the system window once, then goes
// from the focused control up through its parents, each seen by an application filter: only the
// window's delivery counts, or a press would turn a panel several times.
class SuiviDesTouches : public QObject {
public:
    SuiviDesTouches(QLabel* maj, QLabel* num, QLabel* inser, QObject* parent)
        : QObject(parent), maj_(maj), num_(num), inser_(inser) {
        const VerrousClavier verrous = module1().clavier().verrous().value_or(VerrousClavier{});
        maj_->setEnabled(verrous.majuscules);
        num_->setEnabled(verrous.numérique);
        inser_->setEnabled(verrous.insertion);
    }

protected:
    bool eventFilter(QObject* objet, QEvent* event) override {
        const bool appui = event->type() == QEvent::KeyPress;
        if (event->type() == QEvent::ApplicationActivate)
            relire();
        if ((appui || event->type() == QEvent::KeyRelease) && objet->isWindowType() &&
            !static_cast<QKeyEvent*>(event)->isAutoRepeat()) {
            switch (static_cast<QKeyEvent*>(event)->key()) {
            case Qt::Key_CapsLock:
            case Qt::Key_NumLock:
                if (!relire() && appui)
                    basculer(static_cast<QKeyEvent*>(event)->key() == Qt::Key_CapsLock ? maj_ : num_);
                break;
            case Qt::Key_Insert:
                if (appui)
                    basculer(inser_);
                break;
            default:
                break;
            }
        }
        return QObject::eventFilter(objet, event);
    }

private:
    // False where the system cannot tell. The insert mode is left as the program keeps it.
    bool relire() {
        const std::optional<VerrousClavier> verrous = module1().clavier().verrous();
        if (!verrous)
            return false;
        maj_->setEnabled(verrous->majuscules);
        num_->setEnabled(verrous->numérique);
        return true;
    }
    static void basculer(QLabel* l) { l->setEnabled(!l->isEnabled()); }
    QLabel *maj_, *num_, *inser_;
};

// The screens an opening shows when their option is ticked, in this order. They are only shown, not
// pointed: a screen not loaded yet points itself as it loads. An empty entry is a screen that is not
// part of the program yet.
struct ÉcranAprèsOuverture {
    QCheckBox* feuille_options::*option;
    void (*montrer)();
};

// Shows screen F, loading it first if need be, and gives it the focus.
template <class F> void montrer_avec_le_focus() {
    F& écran = feuilles().get<F>();
    écran.Show();
    écran.setFocus();
}

const ÉcranAprèsOuverture écrans_après_ouverture[] = {
    {&feuille_options::Check1, montrer_avec_le_focus<feuille_famille>},
    {&feuille_options::Check2, montrer_avec_le_focus<feuille_élève>},
    {&feuille_options::Check4, montrer_avec_le_focus<feuille_traitements>},
};

} // namespace

MDIForm1::MDIForm1()
    : Feuille(u"MDIForm1"_s, Genre::haut_niveau), CrystalReport1_(std::make_unique<ReportJob>()) {
    setWindowTitle(u"Norvane - version 2"_s);
    fenêtre = new QMainWindow(this);
    fenêtre->setWindowFlags(Qt::Widget);
    zone = new QMdiArea(fenêtre);
    zone->setObjectName(u"zone"_s);
    zone->setBackground(QColor(0x5b, 0x7a, 0x99));
    fenêtre->setCentralWidget(zone);
    auto* disposition = new QVBoxLayout(this);
    disposition->setContentsMargins(0, 0, 0, 0);
    disposition->addWidget(fenêtre);
    construire_menus();
    new TouchesDAccès(*fenêtre->menuBar()); // a child of the bar
    construire_barre_d_état();
    if (const QScreen* écran = QGuiApplication::primaryScreen())
        setGeometry(écran->availableGeometry());
    setWindowState(Qt::WindowMaximized);
    feuilles().setMdiArea(zone);
}

MDIForm1::~MDIForm1() = default;

void MDIForm1::construire_menus() {
    QMenu* menu_du_haut = nullptr;
    QMenu* sous_menu = nullptr;
    QAction* dernière = nullptr;
    for (const EntréeMenu& e : arbre_des_menus()) {
        const QString nom = QString::fromUtf8(e.nom);
        const QString légende = QString::fromUtf8(e.légende);
        if (e.niveau == 0) {
            menu_du_haut = fenêtre->menuBar()->addMenu(légende);
            menu_du_haut->menuAction()->setObjectName(nom);
            sous_menu = nullptr;
            continue;
        }
        QMenu* cible = menu_du_haut;
        if (e.niveau == 2) {
            if (sous_menu == nullptr) {
                // The entry before becomes the title of a submenu.
                sous_menu = new QMenu(dernière->text(), menu_du_haut);
                sous_menu->menuAction()->setObjectName(dernière->objectName());
                menu_du_haut->insertMenu(dernière, sous_menu);
                menu_du_haut->removeAction(dernière);
                delete dernière;
            }
            cible = sous_menu;
        } else {
            sous_menu = nullptr;
        }
        QAction* action = légende == QLatin1String("-") ? cible->addSeparator() : cible->addAction(légende);
        action->setObjectName(nom);
        if (!action->isSeparator())
            relier(action, &QAction::triggered, this, [this, nom] { cliquer(nom); });
        dernière = action;
    }
}

void MDIForm1::construire_barre_d_état() {
    StatusBar1 = fenêtre->statusBar();
    StatusBar1->setObjectName(u"StatusBar1"_s);
    StatusBar1->setSizeGripEnabled(true);
    const int largeurs[] = {0, 90, 70, 50, 50, 55};
    for (int i = 1; i <= 6; ++i) {
        // The first panel names the open base: a long path is shortened in the middle, never clipped.
        QLabel* panneau = i == 1 ? new ÉtiquetteÉlidée(StatusBar1) : new QLabel(StatusBar1);
        panneau->setObjectName(u"Panel%1"_s.arg(i));
        panneau->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        panneau->setContentsMargins(4, 0, 4, 0);
        if (i == 1) {
            StatusBar1->addWidget(panneau, 1);
        } else {
            panneau->setMinimumWidth(largeurs[i - 1]);
            panneau->setAlignment(Qt::AlignCenter);
            StatusBar1->addPermanentWidget(panneau);
        }
    }
    panneau(4)->setText(u"MAJ"_s);
    panneau(5)->setText(u"NUM"_s);
    panneau(6)->setText(u"INSER"_s);
    qApp->installEventFilter(new SuiviDesTouches(panneau(4), panneau(5), panneau(6), this));
    auto* horloge = new QTimer(this);
    horloge->setObjectName(u"horloge_barre"_s);
    relier(horloge, &QTimer::timeout, this, &MDIForm1::mettre_à_jour_l_heure);
    horloge->start(1000);
    mettre_à_jour_l_heure();
}

void MDIForm1::mettre_à_jour_l_heure() {
    const QDateTime maintenant = horloge().maintenant();
    panneau(2)->setText(maintenant.toString(u"dd/MM/yyyy"_s));
    panneau(3)->setText(maintenant.toString(u"HH:mm"_s));
}

QAction* MDIForm1::menu(const QString& nom) const {
    for (QAction* action : fenêtre->findChildren<QAction*>())
        if (action->objectName() == nom)
            return action;
    return nullptr;
}

QLabel* MDIForm1::panneau(int numéro) const {
    return StatusBar1->findChild<QLabel*>(u"Panel%1"_s.arg(numéro));
}

QString MDIForm1::Panel1() const {
    return panneau(1)->text();
}
void MDIForm1::setPanel1(const QString& texte) {
    panneau(1)->setText(texte);
}

void MDIForm1::désactiver_menus() {
    for (const char* nom : menus_de_données)
        menu(QString::fromUtf8(nom))->setEnabled(false);
}

void MDIForm1::activer_menus() {
    for (const char* nom : menus_de_données)
        menu(QString::fromUtf8(nom))->setEnabled(true);
}

void MDIForm1::montrer_écrans_après_ouverture() {
    feuille_options& options = feuilles().get<feuille_options>();
    for (const ÉcranAprèsOuverture& écran : écrans_après_ouverture)
        if (valeur_case(options.*écran.option) == 1 && écran.montrer)
            écran.montrer();
}

void MDIForm1::cliquer(const QString& nom) {
    const QAction* action = menu(nom);
    if (action == nullptr || !action->isEnabled())
        return;
    // A disabled menu of the bar keeps its entries out of reach as well.
    for (const QObject* parent = action->parent(); parent != nullptr; parent = parent->parent())
        if (const auto* m = qobject_cast<const QMenu*>(parent); m != nullptr && !m->menuAction()->isEnabled())
            return;
    exécuter_commande(*this, nom);
}

void MDIForm1::Form_Load() {
    Module1& m = module1();
    m.base_en_cours.clear();
    désactiver_menus();
    lire_options();
    if (valeur_case(feuilles().get<feuille_options>().Check3) == 1 && !m.base_en_cours.isEmpty()) {
        ouvrir_base_choisie();
    } else {
        feuille_choix_base& choix = feuilles().get<feuille_choix_base>();
        choix.Show();
        choix.ZOrder();
    }
}

void MDIForm1::Form_QueryUnload(int& cancel) {
    en_silence([&] {
        const int réponse = interaction().MsgBox(u"Voulez-vous quitter le logiciel?"_s, vbYesNo + vbQuestion);
        if (réponse == vbNo)
            cancel = 1;
    });
}

void MDIForm1::Form_Unload(int&) {
    // The open screens go with the main window; each data source writes its pending row as it goes.
    Feuilles& registre = feuilles();
    for (Feuille* f : registre.chargées())
        if (f != this && registre.contient(f))
            en_silence([&] { registre.unload(*f); });
    QCoreApplication::exit(0);
}

void MDIForm1::menufichierindex1_Click() {
    avec_piège(ErrorBoxKind::standard, [] {
        feuille_choix_base& choix = feuilles().get<feuille_choix_base>();
        choix.accès_tentavive->setText(QString());
        choix.Show();
        choix.ZOrder();
    });
}

void MDIForm1::menufichierindex3_Click() {
    avec_piège(ErrorBoxKind::standard, [this] {
        Module1& m = module1();
        fermer_base();
        m.base_en_cours.clear();
        feuilles().get<feuille_choix_base>().Label4->setText(QString());
        setPanel1(QString());
        désactiver_menus();
        interaction().MsgBox(u"La base est fermée..."_s, vbInformation);
    });
}

void MDIForm1::menufichierindex2_Click() {
    avec_piège(ErrorBoxKind::standard, [this] { Unload(); });
}

void MDIForm1::menuoptionsindex1_Click() {
    avec_piège(ErrorBoxKind::standard, [] {
        feuille_options& options = feuilles().get<feuille_options>();
        options.Show();
        options.setFocus();
        options.ZOrder();
    });
}
