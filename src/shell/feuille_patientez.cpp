#include "shell/feuille_patientez.h"

#include "platform/forms/Placement.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

using namespace Qt::StringLiterals;

feuille_patientez::feuille_patientez() : Feuille(u"feuille_patientez"_s) {
    setWindowTitle(u"Norvane v2"_s);
    auto* disposition = new QHBoxLayout(this);
    disposition->setContentsMargins(24, 18, 24, 18);
    disposition->setSpacing(14);
    auto* icône = new QLabel(this);
    icône->setPixmap(QApplication::style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(32, 32));
    disposition->addWidget(icône);
    Label1 = new QLabel(u"Patientez quelques instants..."_s, this);
    Label1->setObjectName(u"Label1"_s);
    QFont police = Label1->font();
    police.setPointSizeF(police.pointSizeF() * 1.15);
    Label1->setFont(police);
    disposition->addWidget(Label1);
}

void feuille_patientez::Form_Load() {
    centrer_feuille(*this);
}
