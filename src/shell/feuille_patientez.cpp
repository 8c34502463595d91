#include "shell/feuille_patientez.h"

#include "platform/forms/Placement.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

feuille_patientez::feuille_patientez() : Feuille(QStringLiteral("feuille_patientez")) {
    setWindowTitle(QStringLiteral("Norvane v2"));
    auto* disposition = new QHBoxLayout(this);
    disposition->setContentsMargins(24, 18, 24, 18);
    disposition->setSpacing(14);
    auto* icône = new QLabel(this);
    icône->setPixmap(QApplication::style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(32, 32));
    disposition->addWidget(icône);
    Label1 = new QLabel(QStringLiteral("Patientez quelques instants..."), this);
    Label1->setObjectName(QStringLiteral("Label1"));
    QFont police = Label1->font();
    police.setPointSizeF(police.pointSizeF() * 1.15);
    Label1->setFont(police);
    disposition->addWidget(Label1);
}

void feuille_patientez::Form_Load() {
    centrer_feuille(*this);
}
