#include "store/feuille_login.h"

#include "platform/errors/ErrorBoxes.h"
#include "platform/forms/Clignotement.h"
#include "platform/forms/Module1.h"
#include "platform/forms/Placement.h"
#include "shell/dessins.h"
#include "store/feuille_choix_base.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace {

constexpr int erreur_appel_incorrect = 5;

QPushButton* bouton(QWidget* parent, const char* nom, const char* légende, const char* infobulle) {
    auto* b = new QPushButton(QString::fromUtf8(légende), parent);
    b->setObjectName(QString::fromUtf8(nom));
    b->setToolTip(QString::fromUtf8(infobulle));
    b->setMinimumWidth(100);
    return b;
}

} // namespace

feuille_login::feuille_login() : Feuille(QStringLiteral("feuille_login"), Genre::haut_niveau) {
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setWindowModality(Qt::ApplicationModal);
    setWindowTitle(QString());

    auto* bord = new QHBoxLayout(this);
    bord->setContentsMargins(0, 0, 0, 0);
    auto* cadre = new QFrame(this);
    cadre->setFrameStyle(QFrame::Box | QFrame::Raised);
    cadre->setLineWidth(2);
    bord->addWidget(cadre);

    auto* grille = new QGridLayout(cadre);
    grille->setContentsMargins(18, 16, 18, 14);
    grille->setHorizontalSpacing(14);
    Image1 = new QLabel(cadre);
    Image1->setObjectName(QStringLiteral("Image1"));
    Image1->setPixmap(dessin_cadenas(QSize(48, 48)));
    Image1->setFixedSize(48, 48);
    grille->addWidget(Image1, 0, 0, 3, 1, Qt::AlignTop);
    Image2 = new QLabel(cadre);
    Image2->setObjectName(QStringLiteral("Image2"));
    Image2->setPixmap(dessin_clé(QSize(48, 48)));
    Image2->setFixedSize(48, 48);
    // The pictures blink without moving the text between them.
    for (QLabel* image : {Image1, Image2}) {
        QSizePolicy règle = image->sizePolicy();
        règle.setRetainSizeWhenHidden(true);
        image->setSizePolicy(règle);
    }
    grille->addWidget(Image2, 0, 3, 3, 1, Qt::AlignTop);

    const char* lignes[] = {"Saisissez le code d'accès", "à la base de données"};
    for (int i = 0; i < 2; ++i) {
        lblLabels[i] = new QLabel(QString::fromUtf8(lignes[i]), cadre);
        lblLabels[i]->setObjectName(QStringLiteral("lblLabels%1").arg(i));
        lblLabels[i]->setAlignment(Qt::AlignCenter);
        grille->addWidget(lblLabels[i], i, 1, 1, 2);
    }
    accès_tentavive = new QLineEdit(cadre);
    accès_tentavive->setObjectName(QStringLiteral("accès_tentavive"));
    accès_tentavive->setEchoMode(QLineEdit::Password);
    accès_tentavive->setStyleSheet(QStringLiteral("lineedit-password-character: 42;"));
    accès_tentavive->setToolTip(QStringLiteral("Saisissez le code d'accès à la base de données"));
    grille->addWidget(accès_tentavive, 2, 1, 1, 2);

    cmdMettreàjour =
        bouton(cadre, "cmdMettreàjour", "A&ccepter", "Cliquez pour ouvrir la base de données sélectionnée");
    cmdFermer = bouton(cadre, "cmdFermer", "&Annuler", "Cliquez pour annuler");
    grille->addWidget(cmdMettreàjour, 3, 1);
    grille->addWidget(cmdFermer, 3, 2);
    grille->setRowMinimumHeight(3, 40);

    connect(cmdMettreàjour, &QPushButton::clicked, this, &feuille_login::cmdMettreàjour_Click);
    connect(cmdFermer, &QPushButton::clicked, this, &feuille_login::cmdFermer_Click);
    connect(accès_tentavive, &QLineEdit::returnPressed, this, &feuille_login::cmdMettreàjour_Click);
    Timer1 = minuterie_clignotante(*this, 300, [this] { Timer1_Timer(); });
}

void feuille_login::Form_Load() {
    centrer_feuille(*this);
}

void feuille_login::Timer1_Timer() {
    const bool visibles = !Image1->isHidden();
    Image1->setHidden(visibles);
    Image2->setHidden(visibles);
}

// The chooser that asked for the code may have gone while the box waited: the code then goes nowhere,
// rather than into a chooser loaded anew that asked for nothing.
void feuille_login::cmdMettreàjour_Click() {
    avec_piège(ErrorBoxKind::standard, [this] {
        Module1& m = module1();
        feuille_choix_base* choix = m.feuilles().siChargée<feuille_choix_base>();
        if (choix)
            choix->accès_tentavive->setText(accès_tentavive->text());
        m.interaction().setMousePointer(vbDefault);
        Unload();
        if (!choix)
            return;
        // A chooser that has never been on view (an opening at start-up) cannot take the focus.
        if (!choix->conteneur().isVisible())
            throw VbError(erreur_appel_incorrect);
        choix->ZOrder();
        choix->setFocus();
    });
}

void feuille_login::cmdFermer_Click() {
    avec_piège(ErrorBoxKind::standard, [this] {
        Module1& m = module1();
        if (feuille_choix_base* choix = m.feuilles().siChargée<feuille_choix_base>())
            choix->accès_tentavive->setText(QString());
        m.interaction().setMousePointer(vbDefault);
        Unload();
    });
}

void feuille_login::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        cmdFermer_Click();
        return;
    }
    Feuille::keyPressEvent(event);
}
