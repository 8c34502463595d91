#pragma once

#include "platform/dao/Recordset.h"

#include <QString>
#include <QVariant>
#include <functional>
#include <optional>

// The two kinds of formula a report job receives, read by one small grammar and never pasted into SQL.
//
// A selection formula keeps the records for which it is true:
//   formula    := [ or ]                        (empty: every record)
//   or         := and { "OR" and }
//   and        := not { "AND" not }
//   not        := "NOT" not | comparison
//   comparison := operand [ ( "=" | "<>" | "<" | "<=" | ">" | ">=" ) operand ]
//   operand    := "{" table "." column [ "|" filter ] "}" | '"' text '"' | number | "True" | "False"
//                 | "(" or ")"
// Keywords are read in any case. A text runs to the next double quote: it cannot hold one, so a typed
// value with a double quote in it breaks the formula instead of changing its meaning. A comparison
// names a field on at least one side and compares values of one kind (an order, not a yes/no); a field
// alone is a condition only when it is a yes/no column. A filter after the column is the resolver's
// business (an age in years, a text compared letter for letter); texts otherwise compare as the user
// reads them, case and accents aside.
//
// A named formula, as a letter passes its texts: name "=" '"' text '"'.

// A field of the report's data as the selection needs it: the SQL expression that reads it and its kind.
struct FormulaField {
    QString sql; // an expression over quoted names that come from the file's schema
    FieldType type = FieldType::Text;
    bool exact = false; // a text compared letter for letter
};

// Finds a field by its table and column as written in the formula; nullopt when the report has no
// such field (unknown table, a table the layout does not read, unknown column).
using FieldResolver = std::function<std::optional<FormulaField>(const QString& table, const QString& column)>;

// A WHERE condition with its values apart, to be bound in order; an empty text keeps every record.
struct SqlCondition {
    QString sql;
    QVariantList values;
};

// Raises VbError 20515 ("Erreur dans la formule") with the place and reason of the refusal.
SqlCondition translateSelection(const QString& formula, const FieldResolver& resolve);

struct NamedFormula {
    QString name;
    QString value;
};

// "" is no formula (nullopt); anything else must be a whole named formula, or raises 20515.
std::optional<NamedFormula> parseNamedFormula(const QString& text);
