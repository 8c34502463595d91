#include "shell/feuille_accueil.h"

#include "platform/forms/Clignotement.h"
#include "platform/forms/ListesFichiers.h"
#include "platform/forms/Placement.h"
#include "shell/MDIForm1.h"
#include "shell/dessins.h"
#include "shell/options.h"
#include "shell/version.h"
#include "store/Module1.h"

#include <QCloseEvent>
#include <QDir>
#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr uint32_t jaune_pâle = 0x80FFFF;
constexpr uint32_t bleu = 0xFF0000;

QLabel* étiquette(QWidget* parent, const char* nom, const QString& texte, double échelle, bool gras,
                  const QColor& couleur) {
    auto* l = new QLabel(texte, parent);
    l->setObjectName(QString::fromUtf8(nom));
    QFont police(u"DejaVu Sans"_s);
    police.setPointSizeF(9 * échelle);
    police.setBold(gras);
    l->setFont(police);
    QPalette palette = l->palette();
    palette.setColor(QPalette::WindowText, couleur);
    l->setPalette(palette);
    return l;
}

} // namespace

feuille_accueil::feuille_accueil() : Feuille(u"feuille_accueil"_s, Genre::haut_niveau) {
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setWindowTitle(u"Norvane v2"_s);
    setFocusPolicy(Qt::StrongFocus);
    construire();
    Timer1 = minuterie_clignotante(*this, 600, [this] { Timer1_Timer(); });
}

void feuille_accueil::construire() {
    QPalette fond = palette();
    fond.setColor(QPalette::Window, QColor(0xe9, 0xee, 0xf4));
    setPalette(fond);
    setAutoFillBackground(true);

    auto* disposition = new QVBoxLayout(this);
    disposition->setContentsMargins(12, 12, 12, 12);
    Frame1 = new QFrame(this);
    Frame1->setObjectName(u"Frame1"_s);
    Frame1->setFrameStyle(QFrame::Box | QFrame::Plain);
    QPalette cadre = Frame1->palette();
    cadre.setColor(QPalette::Window, Qt::white);
    cadre.setColor(QPalette::WindowText, QColor(0x2f, 0x5d, 0x8a));
    Frame1->setPalette(cadre);
    Frame1->setAutoFillBackground(true);
    disposition->addWidget(Frame1);

    const QColor encre(0x1e, 0x40, 0x63), gris(0x55, 0x5f, 0x6b);
    auto* grille = new QGridLayout(Frame1);
    grille->setContentsMargins(18, 18, 18, 14);
    grille->setHorizontalSpacing(22);
    grille->setVerticalSpacing(6);

    Image1 = new QLabel(Frame1);
    Image1->setObjectName(u"Image1"_s);
    Image1->setPixmap(dessin_école(QSize(352, 220)));
    Image1->setFrameStyle(QFrame::Box | QFrame::Plain);
    grille->addWidget(Image1, 0, 0, 6, 1);

    Image2 = new QLabel(Frame1);
    Image2->setObjectName(u"Image2"_s);
    Image2->setPixmap(dessin_cahier(QSize(56, 56)));
    grille->addWidget(Image2, 0, 2, 2, 1, Qt::AlignRight | Qt::AlignTop);

    lblProductName = étiquette(Frame1, "lblProductName", QString(), 3.0, true, encre);
    grille->addWidget(lblProductName, 0, 1, Qt::AlignLeft | Qt::AlignBottom);
    lblVersion = étiquette(Frame1, "lblVersion", QString(), 1.3, false, encre);
    grille->addWidget(lblVersion, 1, 1, Qt::AlignLeft | Qt::AlignTop);
    lblPlatform = étiquette(Frame1, "lblPlatform", u"Pour Windows et Linux"_s, 1.1, false, gris);
    grille->addWidget(lblPlatform, 2, 1, 1, 2);
    lblCompany =
        étiquette(Frame1, "lblCompany", u"La gestion administrative de l'école\nmaternelle et élémentaire"_s,
                  1.1, true, encre);
    grille->addWidget(lblCompany, 3, 1, 1, 2);
    grille->setRowStretch(4, 1);
    lblWarning =
        étiquette(Frame1, "lblWarning",
                  QStringLiteral("Avertissement : ce logiciel est protégé par le droit d'auteur. Toute "
                                 "reproduction ou diffusion, même partielle, sans autorisation est "
                                 "interdite."),
                  0.85, false, gris);
    lblWarning->setWordWrap(true);
    grille->addWidget(lblWarning, 6, 0, 1, 3);

    Label1 = étiquette(Frame1, "Label1", u"Cliquez ou pressez une touche quelconque"_s, 1.35, true, encre);
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setMargin(6);
    fixer_BackColor(*Label1, jaune_pâle);
    fixer_ForeColor(*Label1, bleu);
    grille->addWidget(Label1, 7, 0, 1, 3);

    File1 = new FileListBox(this);
    File1->setObjectName(u"File1"_s);
    File1->hide();

    for (QWidget* w : std::initializer_list<QWidget*>{Frame1, Image1, Image2, Label1, lblCompany, lblPlatform,
                                                      lblProductName, lblVersion, lblWarning})
        w->installEventFilter(this);
}

void feuille_accueil::Form_Load() {
    lblVersion->setText(
        u"Version %1.%2.%3"_s.arg(version_majeure).arg(version_mineure).arg(version_révision));
    lblProductName->setText(QString::fromUtf8(titre_programme));
    centrer_feuille(*this);
    Show();
    setFocus();
}

void feuille_accueil::Timer1_Timer() {
    if (BackColor(*Label1) == jaune_pâle) {
        fixer_BackColor(*Label1, bleu);
        fixer_ForeColor(*Label1, jaune_pâle);
    } else {
        fixer_BackColor(*Label1, jaune_pâle);
        fixer_ForeColor(*Label1, bleu);
    }
}

// The way forward is taken once. It may wait on the access code box, and an assistive tool can reach
// the splash behind it: a second click or key then does nothing.
bool feuille_accueil::partir() {
    if (parti_ || feuilles().siChargée<feuille_accueil>() != this)
        return false;
    parti_ = true;
    return true;
}

// By mouse, the splash goes first and the main window follows.
void feuille_accueil::Click() {
    if (!partir())
        return;
    Unload();
    feuilles().get<MDIForm1>().Show();
}

// By keyboard, the main window comes first and the splash goes after, if the wait for the code left
// it there.
void feuille_accueil::Form_KeyPress() {
    if (!partir())
        return;
    const QPointer<feuille_accueil> splash(this);
    feuilles().get<MDIForm1>().Show();
    if (splash && feuilles().contient(splash))
        splash->Unload();
}

// The splash stays on view, blinking, until its unload is over: the reading of the options may bring
// up the main window and, behind it, the access code box. Its timer goes with it.
void feuille_accueil::Form_Unload(int&) {
    // The separator is added without a test: started from a root, the path ends with two of them.
    module1().chemin_application = File1->Path() + QDir::separator();
    lire_options();
}

// Closing the splash from the window manager (Alt+F4, the task bar) goes on as a click does. A plain
// unload would leave a running program with no window to see or to quit. Ending there would be a
// second way out, one that skips the quit question: closing a splash is putting it aside, and the
// main window that follows holds the one way out, by which every run ends.
void feuille_accueil::closeEvent(QCloseEvent* event) {
    event->accept();
    Click();
}

void feuille_accueil::keyPressEvent(QKeyEvent* event) {
    if (event->text().isEmpty()) {
        Feuille::keyPressEvent(event);
        return;
    }
    Form_KeyPress();
}

bool feuille_accueil::eventFilter(QObject* objet, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto* souris = static_cast<QMouseEvent*>(event);
        const auto* contrôle = static_cast<QWidget*>(objet);
        if (souris->button() == Qt::LeftButton && contrôle->rect().contains(souris->position().toPoint())) {
            Click();
            return true;
        }
    }
    return Feuille::eventFilter(objet, event);
}
