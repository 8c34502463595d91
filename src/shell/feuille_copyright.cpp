#include "shell/feuille_copyright.h"

#include "platform/dao/Database.h"
#include "platform/forms/Placement.h"
#include "platform/ui/Relier.h"
#include "shell/dessins.h"
#include "shell/version.h"
#include "store/Module1.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QLabel* étiquette(QWidget* parent, const char* nom, const QString& texte = {}) {
    auto* l = new QLabel(texte, parent);
    l->setObjectName(QString::fromUtf8(nom));
    l->setWordWrap(true);
    return l;
}

QPushButton* bouton(QWidget* parent, const char* nom, const QString& légende, const QString& aide) {
    auto* b = new QPushButton(légende, parent);
    b->setObjectName(QString::fromUtf8(nom));
    b->setToolTip(aide);
    return b;
}

// The system monitors of the desktops a school is likely to run, in the order they are tried.
const char* const outils_système[] = {"gnome-system-monitor", "hardinfo",
                                      "plasma-systemmonitor", "ksysguard",
                                      "xfce4-taskmanager",    "mate-system-monitor"};

} // namespace

feuille_copyright::feuille_copyright() : Feuille(u"feuille_copyright"_s) {
    auto* colonne = new QVBoxLayout(this);
    SSTab1 = new QTabWidget(this);
    SSTab1->setObjectName(u"SSTab1"_s);
    colonne->addWidget(SSTab1);

    auto* logiciel = new QWidget(SSTab1);
    auto* grille = new QGridLayout(logiciel);
    Image1 = étiquette(logiciel, "Image1");
    Image1->setPixmap(dessin_école(QSize(220, 138)));
    Image1->setFrameStyle(QFrame::Box | QFrame::Plain);
    grille->addWidget(Image1, 0, 0, 4, 1, Qt::AlignTop);
    lblTitle = étiquette(logiciel, "lblTitle");
    QFont grande = lblTitle->font();
    grande.setPointSizeF(grande.pointSizeF() * 1.5);
    grande.setBold(true);
    lblTitle->setFont(grande);
    grille->addWidget(lblTitle, 0, 1);
    lblVersion = étiquette(logiciel, "lblVersion");
    grille->addWidget(lblVersion, 1, 1);
    lblDescription =
        étiquette(logiciel, "lblDescription",
                  u"Logiciel de Gestion Administrative des Ecoles Maternelles et Elémentaires"_s);
    grille->addWidget(lblDescription, 2, 1);
    grille->setRowStretch(3, 1);
    grille->setColumnStretch(1, 1);
    SSTab1->addTab(logiciel, u"&Logiciel"_s);

    // The engines the program really runs on, as their libraries name themselves.
    auto* composants = new QWidget(SSTab1);
    auto* pile = new QVBoxLayout(composants);
    lblMoteurDonnées = étiquette(composants, "lblMoteurDonnées",
                                 u"utilisant le moteur de base de données "_s + engineVersion());
    lblMoteurÉtats =
        étiquette(composants, "lblMoteurÉtats",
                  u"et le moteur d'états du logiciel, sur Qt "_s + QString::fromLatin1(qVersion()));
    pile->addWidget(lblMoteurDonnées);
    pile->addWidget(lblMoteurÉtats);
    pile->addStretch(1);
    SSTab1->addTab(composants, u"&Composants"_s);

    auto* boutons = new QHBoxLayout;
    cmdOK = bouton(this, "cmdOK", u"&Ok"_s, u"Cliquez pour fermer la fenêtre 'A propos de...'"_s);
    cmdSysInfo = bouton(this, "cmdSysInfo", u"&Infos système..."_s,
                        u"Cliquez pour avoir des informations sur le système"_s);
    boutons->addStretch(1);
    boutons->addWidget(cmdSysInfo);
    boutons->addWidget(cmdOK);
    colonne->addLayout(boutons);
    cmdOK->setDefault(true);
    relier(cmdOK, &QPushButton::clicked, this, &feuille_copyright::cmdOK_Click);
    relier(cmdSysInfo, &QPushButton::clicked, this, &feuille_copyright::cmdSysInfo_Click);
}

void feuille_copyright::Form_Load() {
    setWindowTitle(u"À propos du logiciel : "_s + QString::fromUtf8(titre_programme));
    lblVersion->setText(
        u"Version %1.%2.%3"_s.arg(version_majeure).arg(version_mineure).arg(version_révision));
    lblTitle->setText(QString::fromUtf8(titre_programme));
    centrer_feuille(*this);
}

void feuille_copyright::cmdOK_Click() {
    Image1->hide();
    Hide();
}

void feuille_copyright::cmdSysInfo_Click() {
    StartSysInfo();
}

void StartSysInfo() {
    for (const char* outil : outils_système) {
        const QString chemin = QStandardPaths::findExecutable(QString::fromUtf8(outil));
        if (!chemin.isEmpty() && QProcess::startDetached(chemin, {}))
            return;
    }
    module1().interaction().MsgBox(u"Les informations système ne sont pas disponibles actuellement"_s,
                                   vbOKOnly, QString::fromUtf8(titre_programme));
    module1().interaction().setMousePointer(vbDefault);
}
