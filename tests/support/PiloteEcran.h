#pragma once

#include "support/Fixtures.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QString>
#include <QTabWidget>
#include <QTest>

class Feuille;
class QWidget;

// Driving a screen as a user does, with the controls a screen is made of: shown and active, buttons clicked
// by name, keys typed into whatever holds the focus.
void montrer_active(Feuille& feuille);
void cliquer(QWidget& racine, const QString& nom);
// Keys typed into one control, accented letters included.
void taper(QWidget* cible, const QString& texte);
void taper_au_focus(const QString& texte);
void touche_au_focus(int touche);
QWidget* focus_actuel();
