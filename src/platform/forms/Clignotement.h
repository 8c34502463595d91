#pragma once

#include <QColor>
#include <QString>
#include <cstdint>
#include <functional>

class QTimer;
class QWidget;

// A timer that runs without end while its screen is loaded, only to blink something. It belongs to
// `propriétaire` (it goes with it) and carries the name given, so a test finds it and fires it.
QTimer* minuterie_clignotante(QWidget& propriétaire, int intervalle_ms, std::function<void()> basculer,
                              const QString& nom = QStringLiteral("Timer1"));

// Colours as the program stores them: 0xBBGGRR, blue in the high byte.
QColor couleur_vb(uint32_t bgr);
uint32_t valeur_vb(const QColor& couleur);

// BackColor and ForeColor of a control, read and written in the stored form.
void fixer_BackColor(QWidget& contrôle, uint32_t bgr);
void fixer_ForeColor(QWidget& contrôle, uint32_t bgr);
uint32_t BackColor(const QWidget& contrôle);
uint32_t ForeColor(const QWidget& contrôle);
