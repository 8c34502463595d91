#pragma once

#include <QDate>
#include <QString>
#include <optional>

// Dates live in the file as ISO text ("2015-09-01"), so that ORDER BY on a date column is chronological,
// and are shown and typed as JJ/MM/AAAA.
namespace dao {

// Reads what a user may type in a date box: "1/9/2015", "01/09/2015", "01-09-15", "01.09.2015", or an ISO
// date. Two-digit years 00 to 29 are 20xx, 30 to 99 are 19xx. Nothing else is a date.
std::optional<QDate> parse_user_date(const QString& text);

QString to_stored_date(const QDate& date); // "AAAA-MM-JJ"
std::optional<QDate> from_stored_date(const QString& stored);
QString to_shown_date(const QDate& date); // "JJ/MM/AAAA"

// "AAAA-MM-JJ" as "JJ/MM/AAAA", without a detour through QDate: a bound box reads dates at every move.
// Anything else comes back as it is.
QString shown_from_stored(const QString& stored);

} // namespace dao
