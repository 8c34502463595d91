#pragma once

#include <QString>

class QLabel;
class QWidget;

// What the two file screens, the chooser and the folder of a backup, share in their look.

// A list's caption above it, in bold.
QLabel* légende_de_liste(const char* texte, QWidget* parent);

// A control with its object name and help text.
template <class W> W* nommé(W* contrôle, const char* nom, const char* infobulle) {
    contrôle->setObjectName(QString::fromUtf8(nom));
    contrôle->setToolTip(QString::fromUtf8(infobulle));
    return contrôle;
}
