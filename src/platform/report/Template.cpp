#include "platform/report/Template.h"

#include "platform/report/ReportErrors.h"

#include <QLocale>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Calls `place` for each {…} and `literal` for the text between them; an unclosed brace is text.
template <class Place, class Literal> void scan(const QString& text, Place place, Literal literal) {
    qsizetype i = 0;
    while (i < text.size()) {
        const qsizetype open = text.indexOf(u'{', i);
        const qsizetype close = open < 0 ? -1 : text.indexOf(u'}', open);
        if (open < 0 || close < 0) {
            literal(text.mid(i));
            return;
        }
        if (open > i)
            literal(text.mid(i, open - i));
        place(text.mid(open + 1, close - open - 1).trimmed());
        i = close + 1;
    }
}

} // namespace

QStringList Template::fieldsOf(const QString& text) {
    QStringList fields;
    scan(
        text,
        [&](const QString& place) {
            const QString name = place.section(u'|', 0, 0).trimmed();
            if (name.contains(u'.') && !name.startsWith(u'@'))
                fields << (place.section(u'|', 1).trimmed() == u"âge" ? name + u"|âge"_s : name);
        },
        [](const QString&) {});
    return fields;
}

Template::Template(const QString& text, const ReportData& data, const std::map<QString, QString>& formulas,
                   const QString& title, const QString& today)
    : data_(&data) {
    auto append = [&](const QString& t) {
        if (t.isEmpty())
            return;
        if (!segments_.empty() && segments_.back().kind == Kind::Literal)
            segments_.back().text += t;
        else
            segments_.push_back({Kind::Literal, t});
    };
    // A part between brackets that holds a field is left out when its fields are all empty; brackets
    // around plain text stay as they are.
    qsizetype open = -1;
    auto literal = [&](const QString& t) {
        for (const QChar c : t) {
            if (c == u'[' && open < 0) {
                open = static_cast<qsizetype>(segments_.size());
                segments_.push_back({Kind::Open, {}});
            } else if (c == u']' && open >= 0) {
                const bool withField =
                    std::any_of(segments_.begin() + open, segments_.end(), [](const Segment& s) {
                        return s.kind == Kind::Column || s.kind == Kind::Fixed;
                    });
                if (withField) {
                    segments_.push_back({Kind::Close, {}});
                } else {
                    segments_[open] = {Kind::Literal, u"["_s};
                    append(u"]"_s);
                }
                open = -1;
            } else {
                append(QString(c));
            }
        }
    };
    scan(
        text,
        [&](const QString& place) {
            const QString filter = place.section(u'|', 1).trimmed();
            const bool upper = filter == u"majuscules", age = filter == u"âge";
            const QString name = place.section(u'|', 0, 0).trimmed() + (age ? u"|âge"_s : QString());
            if (!filter.isEmpty() && !upper && !age)
                throw VbError(report_error::layout_invalid,
                              u"Filtre « %1 » inconnu dans {%2}"_s.arg(filter, place));
            auto shown = [&](const QString& v) { return upper ? v.toUpper() : v; };
            if (name.startsWith(u'@')) {
                const auto it = formulas.find(name.mid(1));
                append(it == formulas.end() ? QString() : shown(it->second));
            } else if (name.contains(u'.')) {
                const int column = data.columnOf(name);
                if (column >= 0)
                    segments_.push_back({Kind::Column, {}, column, upper});
                else
                    segments_.push_back({Kind::Fixed, shown(data.sideValue(name))});
            } else if (name == u"titre") {
                append(shown(title));
            } else if (name == u"date") {
                append(today);
            } else if (name == u"date de référence") {
                append(data.reference().toString(u"dd/MM/yyyy"_s));
            } else if (name == u"année scolaire") {
                // The school year of the reference date, which begins on the first of September.
                const QDate d = data.reference();
                const int start = d.month() >= 9 ? d.year() : d.year() - 1;
                append(u"%1-%2"_s.arg(start).arg(start + 1));
            } else if (name == u"mois") {
                const QLocale french(QLocale::French);
                append(shown(french.standaloneMonthName(data.reference().month()) + u' ' +
                             QString::number(data.reference().year())));
            } else if (name == u"page") {
                segments_.push_back({Kind::Page, {}, -1, false});
            } else if (name == u"pages") {
                segments_.push_back({Kind::Pages, {}, -1, false});
            } else if (name == u"numéro") {
                segments_.push_back({Kind::Number, {}, -1, false});
            } else if (name == u"nombre") {
                segments_.push_back({Kind::Count, {}, -1, false});
            } else if (name == u"total") {
                segments_.push_back({Kind::Total, {}, -1, false});
            } else {
                throw VbError(report_error::layout_invalid, u"Place {%1} inconnue"_s.arg(place));
            }
        },
        literal);
    if (open >= 0) // never closed: its bracket is text
        segments_[open] = {Kind::Literal, u"["_s};
}

QString Template::render(int row, const Counters& c) const {
    if (segments_.size() == 1 && segments_.front().kind == Kind::Literal)
        return segments_.front().text;
    QString out;
    qsizetype mark = 0;
    bool filled = false;
    for (const Segment& s : segments_) {
        switch (s.kind) {
        case Kind::Literal:
            out += s.text;
            break;
        case Kind::Fixed:
            out += s.text;
            filled = filled || !s.text.isEmpty();
            break;
        case Kind::Open:
            mark = out.size();
            filled = false;
            break;
        case Kind::Close:
            if (!filled)
                out.truncate(mark);
            break;
        case Kind::Column:
            if (row >= 0) {
                const QStringView v = data_->value(row, s.column);
                out += s.upper ? v.toString().toUpper() : v;
                filled = filled || !v.isEmpty();
            }
            break;
        case Kind::Page:
            out += QString::number(c.page);
            break;
        case Kind::Pages:
            out += QString::number(c.pages);
            break;
        case Kind::Number:
            out += QString::number(c.number);
            break;
        case Kind::Count:
            out += QString::number(c.count);
            break;
        case Kind::Total:
            out += QString::number(c.total);
            break;
        }
    }
    return out;
}

int Template::soleColumn() const {
    return segments_.size() == 1 && segments_.front().kind == Kind::Column && !segments_.front().upper
               ? segments_.front().column
               : -1;
}

bool Template::readsRows() const {
    return std::any_of(segments_.begin(), segments_.end(), [](const Segment& s) {
        return s.kind == Kind::Column || s.kind == Kind::Number || s.kind == Kind::Count;
    });
}

bool Template::isSoleNumber() const {
    return segments_.size() == 1 &&
           (segments_.front().kind == Kind::Number || segments_.front().kind == Kind::Count ||
            segments_.front().kind == Kind::Total);
}
