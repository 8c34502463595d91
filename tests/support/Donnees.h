#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// The rows of a table under tests/data, written from the program's description and never from its
// own tables: tab-separated columns under a line of headings; lines starting with # are comments.
// A missing or empty file throws, so that a table test cannot pass on nothing.
QList<QStringList> table_de_données(const QString& nom);
