#include "platform/report/Template.h"

#include "platform/report/ReportErrors.h"

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
                fields << name;
        },
        [](const QString&) {});
    return fields;
}

Template::Template(const QString& text, const ReportData& data, const std::map<QString, QString>& formulas,
                   const QString& title, const QString& today)
    : data_(&data) {
    auto literal = [&](const QString& t) {
        if (t.isEmpty())
            return;
        if (!segments_.empty() && segments_.back().kind == Kind::Literal)
            segments_.back().text += t;
        else
            segments_.push_back({Kind::Literal, t});
    };
    scan(
        text,
        [&](const QString& place) {
            const QString name = place.section(u'|', 0, 0).trimmed();
            const QString filter = place.section(u'|', 1).trimmed();
            const bool upper = filter == u"majuscules";
            if (!filter.isEmpty() && !upper)
                throw VbError(report_error::layout_invalid,
                              u"Filtre « %1 » inconnu dans {%2}"_s.arg(filter, place));
            auto shown = [&](const QString& v) { return upper ? v.toUpper() : v; };
            if (name.startsWith(u'@')) {
                const auto it = formulas.find(name.mid(1));
                literal(it == formulas.end() ? QString() : shown(it->second));
            } else if (name.contains(u'.')) {
                const int column = data.columnOf(name);
                if (column >= 0)
                    segments_.push_back({Kind::Column, {}, column, upper});
                else
                    literal(shown(data.sideValue(name)));
            } else if (name == u"titre") {
                literal(shown(title));
            } else if (name == u"date") {
                literal(today);
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
}

QString Template::render(int row, const Counters& c) const {
    if (segments_.size() == 1 && segments_.front().kind == Kind::Literal)
        return segments_.front().text;
    QString out;
    for (const Segment& s : segments_) {
        switch (s.kind) {
        case Kind::Literal:
            out += s.text;
            break;
        case Kind::Column:
            if (row >= 0)
                out += s.upper ? data_->value(row, s.column).toUpper() : data_->value(row, s.column);
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

bool Template::isSoleNumber() const {
    return segments_.size() == 1 &&
           (segments_.front().kind == Kind::Number || segments_.front().kind == Kind::Count ||
            segments_.front().kind == Kind::Total);
}
