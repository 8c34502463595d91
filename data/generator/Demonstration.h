#pragma once

#include <QString>
#include <QStringList>

class Database;

// Fictional school data for demonstrations and measurements: families with one to three children who
// share their référence_famille, classes of a real school's shape (about 25 pupils a class, nursery and
// elementary levels with their cycles and a teacher each), and a few pupils already struck off. The
// streets, insurers, doctors and hospitals that they name are rows of their lookups; their towns are
// among the template's towns of France.
// The same count and seed always give the same rows.
struct Démonstration {
    int élèves = 200;
    quint32 graine = 20260901;
};

// Adds the rows to a base made from the template, in one transaction.
void remplir_démonstration(Database& base, const Démonstration& options);

// The SQL scripts of the template (schema, then rows), as shipped with the program.
QStringList scripts_modèle();
