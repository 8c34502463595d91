#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class QWidget;

// The rows of a table under tests/data, written from the program's description and never from its
// own tables: tab-separated columns under a line of headings; lines starting with # are comments.
// A missing or empty file throws, so that a table test cannot pass on nothing.
QList<QStringList> table_de_données(const QString& nom);

// Plays a table of fields on a screen. Each control stands where its row says (a page of SSTab1, or a
// group by name), has its help text, its caption (the label or caption button a screen reader names it
// by), its entry limit, and is typed into or filled by a lookup only. `ordre_clavier`: the rows are in
// the order of the Tab key too.
void jouer_table_des_champs(QWidget& écran, const QString& nom, bool ordre_clavier = false);
// Plays a table of buttons on a screen: each has its caption and help text.
void jouer_table_des_boutons(QWidget& écran, const QString& nom);
