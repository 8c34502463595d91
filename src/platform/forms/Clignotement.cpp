#include "platform/forms/Clignotement.h"

#include "platform/ui/Relier.h"

#include <QTimer>
#include <QWidget>

QTimer* minuterie_clignotante(QWidget& propriétaire, int intervalle_ms, std::function<void()> basculer,
                              const QString& nom) {
    auto* minuterie = new QTimer(&propriétaire); // owned by its screen
    minuterie->setObjectName(nom);
    minuterie->setInterval(intervalle_ms);
    relier(minuterie, &QTimer::timeout, &propriétaire, std::move(basculer));
    minuterie->start();
    return minuterie;
}

QColor couleur_vb(uint32_t bgr) {
    return QColor(static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF),
                  static_cast<int>((bgr >> 16) & 0xFF));
}

uint32_t valeur_vb(const QColor& couleur) {
    return static_cast<uint32_t>(couleur.red()) | static_cast<uint32_t>(couleur.green()) << 8 |
           static_cast<uint32_t>(couleur.blue()) << 16;
}

void fixer_BackColor(QWidget& contrôle, uint32_t bgr) {
    QPalette palette = contrôle.palette();
    palette.setColor(contrôle.backgroundRole(), couleur_vb(bgr));
    contrôle.setPalette(palette);
    contrôle.setAutoFillBackground(true);
}

void fixer_ForeColor(QWidget& contrôle, uint32_t bgr) {
    QPalette palette = contrôle.palette();
    palette.setColor(contrôle.foregroundRole(), couleur_vb(bgr));
    contrôle.setPalette(palette);
}

uint32_t BackColor(const QWidget& contrôle) {
    return valeur_vb(contrôle.palette().color(contrôle.backgroundRole()));
}
uint32_t ForeColor(const QWidget& contrôle) {
    return valeur_vb(contrôle.palette().color(contrôle.foregroundRole()));
}
