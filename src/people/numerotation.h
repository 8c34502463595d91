#pragma once

#include <QString>

class DataControl;
class QLineEdit;

// The number after the highest one of the table: the source is put in `ordre_des_numéros` on its last
// row, and the number that `numéro` then shows, plus one, comes back as a bare text ("42", "1000000").
// The highest is the last in text order, so "999999" is followed by "1000000" and, "1000000" sorting
// before "999999", by "1000000" again. A last row that holds no number raises 13 "Type incompatible",
// an empty table 3021; the source then stays in `ordre_des_numéros`.
QString numéro_suivant(DataControl& source, const QString& ordre_des_numéros, const QLineEdit& numéro);
