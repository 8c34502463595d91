#pragma once

#include <QString>
#include <QStringList>

// Writes a new base at target from scripts in the engine's own SQL (the template's schema, then its rows),
// with our collations in place so that its indexes are built as the store reads them. The base is
// written aside and put in place at the end: a failure leaves no half-made file at target.
// Throws VbError (3043 for a write failure, 3075 for a script the engine refuses).
void create_base(const QString& target, const QStringList& scripts);
