#include "store/feuille_login.h"

#include "platform/forms/Canvas.h"
#include "platform/forms/Clignotement.h"
#include "platform/forms/Feuilles.h"
#include "platform/forms/Placement.h"
#include "platform/ui/ErrorBoxes.h"
#include "platform/ui/Interaction.h"
#include "platform/ui/Relier.h"
#include "store/feuille_choix_base.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int erreur_appel_incorrect = 5;

QPushButton* bouton(QWidget* parent, const char* nom, const char* légende, const char* infobulle) {
    auto* b = new QPushButton(QString::fromUtf8(légende), parent);
    b->setObjectName(QString::fromUtf8(nom));
    b->setToolTip(QString::fromUtf8(infobulle));
    b->setMinimumWidth(100);
    return b;
}

// The access code box's pictures, drawn on a 100 x 100 canvas.
void cadenas(QPainter& p) {
    p.setPen(QPen(QColor(0x8a, 0x8f, 0x96), 9, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    QPainterPath anse;
    anse.moveTo(30, 48);
    anse.lineTo(30, 32);
    anse.arcTo(QRectF(30, 12, 40, 40), 180, -180);
    anse.lineTo(70, 48);
    p.drawPath(anse);
    QLinearGradient corps(0, 44, 0, 92);
    corps.setColorAt(0, QColor(0xf6, 0xc8, 0x4c));
    corps.setColorAt(1, QColor(0xd4, 0x97, 0x1a));
    p.setPen(Qt::NoPen);
    p.setBrush(corps);
    p.drawRoundedRect(QRectF(18, 44, 64, 48), 8, 8);
    p.setBrush(QColor(0x4a, 0x3a, 0x10));
    p.drawEllipse(QPointF(50, 62), 6, 6);
    p.drawRect(QRectF(47.5, 62, 5, 16));
}

void clé(QPainter& p) {
    p.save();
    p.translate(50, 50);
    p.rotate(-35);
    p.setPen(Qt::NoPen);
    QLinearGradient métal(0, -10, 0, 10);
    métal.setColorAt(0, QColor(0xf6, 0xc8, 0x4c));
    métal.setColorAt(1, QColor(0xc4, 0x87, 0x12));
    p.setBrush(métal);
    QPainterPath tête;
    tête.addEllipse(QPointF(-26, 0), 16, 16);
    QPainterPath trou;
    trou.addEllipse(QPointF(-30, 0), 6, 6);
    p.drawPath(tête.subtracted(trou));
    p.drawRect(QRectF(-12, -4, 48, 8));
    p.drawRect(QRectF(22, 4, 5, 10));
    p.drawRect(QRectF(31, 4, 5, 7));
    p.restore();
}

QPixmap dessin_cadenas(const QSize& taille) {
    return drawOnCanvas(taille, QSizeF(100, 100), cadenas);
}
QPixmap dessin_clé(const QSize& taille) {
    return drawOnCanvas(taille, QSizeF(100, 100), clé);
}

} // namespace

feuille_login::feuille_login() : Feuille(u"feuille_login"_s, Genre::haut_niveau) {
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
    Image1->setObjectName(u"Image1"_s);
    Image1->setPixmap(dessin_cadenas(QSize(48, 48)));
    Image1->setFixedSize(48, 48);
    grille->addWidget(Image1, 0, 0, 3, 1, Qt::AlignTop);
    Image2 = new QLabel(cadre);
    Image2->setObjectName(u"Image2"_s);
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
        lblLabels[i]->setObjectName(u"lblLabels%1"_s.arg(i));
        lblLabels[i]->setAlignment(Qt::AlignCenter);
        grille->addWidget(lblLabels[i], i, 1, 1, 2);
    }
    accès_tentavive = new QLineEdit(cadre);
    accès_tentavive->setObjectName(u"accès_tentavive"_s);
    accès_tentavive->setEchoMode(QLineEdit::Password);
    accès_tentavive->setStyleSheet(u"lineedit-password-character: 42;"_s);
    accès_tentavive->setToolTip(u"Saisissez le code d'accès à la base de données"_s);
    grille->addWidget(accès_tentavive, 2, 1, 1, 2);

    cmdMettreàjour =
        bouton(cadre, "cmdMettreàjour", "A&ccepter", "Cliquez pour ouvrir la base de données sélectionnée");
    cmdFermer = bouton(cadre, "cmdFermer", "&Annuler", "Cliquez pour annuler");
    grille->addWidget(cmdMettreàjour, 3, 1);
    grille->addWidget(cmdFermer, 3, 2);
    grille->setRowMinimumHeight(3, 40);

    relier(cmdMettreàjour, &QPushButton::clicked, this, &feuille_login::cmdMettreàjour_Click);
    relier(cmdFermer, &QPushButton::clicked, this, &feuille_login::cmdFermer_Click);
    relier(accès_tentavive, &QLineEdit::returnPressed, this, &feuille_login::cmdMettreàjour_Click);
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
        feuille_choix_base* choix = feuilles().siChargée<feuille_choix_base>();
        if (choix)
            choix->accès_tentavive->setText(accès_tentavive->text());
        interaction().setMousePointer(vbDefault);
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
        if (feuille_choix_base* choix = feuilles().siChargée<feuille_choix_base>())
            choix->accès_tentavive->setText(QString());
        interaction().setMousePointer(vbDefault);
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
