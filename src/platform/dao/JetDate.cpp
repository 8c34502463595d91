#include "platform/dao/JetDate.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace dao {
namespace {

std::optional<int> number(const QString& part, int maxDigits) {
    if (part.isEmpty() || part.size() > maxDigits)
        return std::nullopt;
    for (QChar c : part)
        if (c < u'0' || c > u'9')
            return std::nullopt;
    return part.toInt();
}

std::optional<QDate> make_date(std::optional<int> y, std::optional<int> m, std::optional<int> d) {
    if (!y || !m || !d)
        return std::nullopt;
    const QDate date(*y, *m, *d);
    if (!date.isValid())
        return std::nullopt;
    return date;
}

} // namespace

std::optional<QDate> parse_user_date(const QString& text) {
    const QString t = text.trimmed();
    if (t.size() == 10 && t[4] == u'-' && t[7] == u'-')
        return from_stored_date(t);
    QChar separator;
    for (QChar s : {QChar(u'/'), QChar(u'-'), QChar(u'.')})
        if (t.contains(s))
            separator = s;
    if (separator.isNull())
        return std::nullopt;
    const QStringList parts = t.split(separator);
    if (parts.size() != 3)
        return std::nullopt;
    std::optional<int> year = number(parts[2], 4);
    if (year && parts[2].size() <= 2)
        *year += *year < 30 ? 2000 : 1900;
    else if (year && parts[2].size() == 3)
        year.reset();
    return make_date(year, number(parts[1], 2), number(parts[0], 2));
}

QString to_stored_date(const QDate& date) {
    return date.toString(u"yyyy-MM-dd"_s);
}

std::optional<QDate> from_stored_date(const QString& stored) {
    if (stored.size() < 10 || stored[4] != u'-' || stored[7] != u'-')
        return std::nullopt;
    return make_date(number(stored.mid(0, 4), 4), number(stored.mid(5, 2), 2), number(stored.mid(8, 2), 2));
}

QString to_shown_date(const QDate& date) {
    return date.toString(u"dd/MM/yyyy"_s);
}

QString shown_from_stored(const QString& stored) {
    if (stored.size() != 10 || stored[4] != u'-' || stored[7] != u'-')
        return stored;
    const QChar shown[10] = {stored[8], stored[9], u'/',      stored[5], stored[6],
                             u'/',      stored[0], stored[1], stored[2], stored[3]};
    return QString(shown, 10);
}

} // namespace dao
