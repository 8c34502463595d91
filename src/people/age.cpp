#include "people/age.h"

#include "platform/dao/JetDate.h"

using namespace Qt::StringLiterals;

QString âge_affiché(const QDate& naissance, const QDate& aujourdhui) {
    int a = aujourdhui.year() - naissance.year();
    int m = aujourdhui.month() - naissance.month();
    int j = aujourdhui.day() - naissance.day();
    if (m < 0) {
        a -= 1;
        m += 12;
    }
    if (j < 0) {
        m -= 1;
        // "0 or below", not "below 0": a birthday in the month before, its day not yet reached, reads
        // one year less and 12 months. The school's sheets have always shown it so.
        if (m <= 0) {
            a -= 1;
            m += 12;
        }
        j += 31;
    }
    if (a < 0)
        return u"## erreur ##"_s;
    return u"%1 a - %2 m - %3 j"_s.arg(a).arg(m).arg(j);
}

std::optional<QString> âge_du_texte(const QString& date_naissance, const QDate& aujourdhui) {
    if (date_naissance.isEmpty())
        return std::nullopt;
    const std::optional<QDate> naissance = dao::parse_user_date(date_naissance);
    if (!naissance)
        return std::nullopt;
    return âge_affiché(*naissance, aujourdhui);
}
