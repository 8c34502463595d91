#pragma once

#include <QDate>
#include <QString>
#include <optional>

// The pupil's age as Label12 shows it: years, months and days by plain subtraction of the calendar
// fields with a month of 31 days, "10 a - 2 m - 5 j"; "## erreur ##" when the years come out below 0.
QString âge_affiché(const QDate& naissance, const QDate& aujourdhui);

// The same for the text of the birth date box; nothing when the text is empty or is no date, and the
// display then keeps what it showed.
std::optional<QString> âge_du_texte(const QString& date_naissance, const QDate& aujourdhui);
