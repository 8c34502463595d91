#include "platform/report/ReportData.h"

#include "platform/dao/Connection.h"
#include "platform/dao/JetDate.h"
#include "platform/dao/JetSql.h"
#include "platform/report/Formula.h"
#include "platform/report/ReportErrors.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QStringDecoder>
#include <algorithm>
#include <cstdio>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr auto age_filter = u"|âge";
constexpr auto exact_filter = u"|exact";
constexpr auto row_set_table = u"ligne";

struct Resolved {
    QString sql;
    FieldType type;
};

QString literal(QString text) {
    return u'\'' + text.replace(u'\'', u"''"_s) + u'\'';
}

// Whole years from a stored date to the reference day; nothing for a text that is no date.
QString ageOf(const QString& date, const QDate& reference) {
    return u"(CASE WHEN %1 GLOB '[0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9]*' THEN %2 - CAST(substr(%1, 1, "
           u"4) "
           "AS INTEGER) - (substr(%1, 6, 5) > '%3') END)"_s.arg(date)
               .arg(reference.year())
               .arg(reference.toString(u"MM-dd"_s));
}

VbError unknownField(const Layout& layout, const QString& field) {
    return VbError(
        report_error::layout_invalid,
        u"Le fichier de mise en page « %1 » nomme un champ inconnu : %2"_s.arg(layout.path, field));
}

} // namespace

// Fields of the query's tables by their written name, checked against the file's schema; a table joined
// under another name is read under that name.
class ReportSchema {
public:
    ReportSchema(dao::Connection& connection, const Layout& layout, const QDate& reference)
        : connection_(connection), layout_(layout), reference_(reference) {
        if (!layout.table.isEmpty())
            actual_[layout.table] = connection.table(layout.table).name; // 3078 when the file has none
        for (const TableLink& link : layout.links)
            actual_[link.alias] = connection.table(link.table).name;
    }

    bool inQuery(const QString& table) const { return actual_.contains(table); }
    QString quotedTable(const QString& alias) const { return dao::quote_name(actual_.at(alias)); }

    // table.column, with |âge for an age in years (a number) and |exact for a text compared letter for
    // letter, case and accents included.
    std::optional<FormulaField> resolve(const QString& table, const QString& written) const {
        const auto it = actual_.find(table);
        if (it == actual_.end())
            return std::nullopt;
        const QString column = written.section(u'|', 0, 0).trimmed();
        const QString filter = written.contains(u'|') ? u'|' + written.section(u'|', 1).trimmed() : QString();
        const dao::TableInfo& info = connection_.table(it->second);
        const int index = info.indexOf(column);
        if (index < 0)
            return std::nullopt;
        FormulaField f{dao::quote_name(table) + u'.' + dao::quote_name(info.columns[index].name),
                       info.columns[index].type};
        if (filter == age_filter && f.type == FieldType::Date)
            return FormulaField{ageOf(f.sql, reference_), FieldType::Number};
        if (filter == exact_filter && f.type != FieldType::Boolean && f.type != FieldType::Date) {
            f.exact = true;
            return f;
        }
        if (!filter.isEmpty())
            return std::nullopt;
        return f;
    }

    Resolved require(const QString& field) const {
        const std::optional<FormulaField> r = resolve(field.section(u'.', 0, 0), field.section(u'.', 1));
        if (!r || r->exact)
            throw unknownField(layout_, field);
        return {r->sql, r->type};
    }

    SqlCondition condition(const QString& formula) const {
        return translateSelection(
            formula, [this](const QString& table, const QString& column) { return resolve(table, column); });
    }

private:
    dao::Connection& connection_;
    const Layout& layout_;
    QDate reference_;
    std::map<QString, QString> actual_;
};

namespace {

QString shown(const QVariant& stored, FieldType type) {
    if (stored.isNull())
        return {};
    switch (type) {
    case FieldType::Date:
        return dao::shown_from_stored(stored.toString());
    case FieldType::Boolean:
        return stored.toLongLong() != 0 ? u"Oui"_s : u"Non"_s;
    default:
        return stored.toString();
    }
}

// The terms that order a column c<index> of the query.
QString orderTerm(const QString& column, FieldType type, const SortKey& key) {
    const QString direction = key.descending ? u" DESC"_s : QString();
    if (type == FieldType::Number)
        return column + direction;
    QStringList terms;
    if (!key.order.isEmpty()) {
        QString rank = u"CASE IFNULL(%1, '') COLLATE FR"_s.arg(column);
        for (qsizetype i = 0; i < key.order.size(); ++i)
            rank += u" WHEN %1 THEN %2"_s.arg(literal(key.order[i])).arg(i);
        terms << rank + u" ELSE %1 END%2"_s.arg(key.order.size()).arg(direction);
    }
    if (key.numeric)
        terms << u"CAST(%1 AS INTEGER)%2"_s.arg(column, direction);
    terms << u"tri_fr(%1)%2"_s.arg(column, direction);
    return terms.join(u", "_s);
}

// The SQL of a value of a [lignes] line: its field, or its text.
Resolved rowSetValue(const ReportSchema& schema, const QString& part) {
    if (part.startsWith(u'{'))
        return schema.require(part.mid(1, part.size() - 2).trimmed());
    return {literal(part), FieldType::Text};
}

} // namespace

// A value of the current row at the end of the text, straight from the file's UTF-8: no string of
// its own for each of the million values of a large school.
void ReportData::append(const dao::Statement& statement, int column, QStringDecoder& utf8) {
    if (statement.columnIsNull(column))
        return;
    switch (types_[column]) {
    case FieldType::Boolean:
        text_ += statement.columnInt64(column) != 0 ? u"Oui"_s : u"Non"_s;
        return;
    case FieldType::Number:
        text_ += QString::number(statement.columnInt64(column));
        return;
    case FieldType::Date: {
        const QByteArrayView d = statement.columnUtf8(column);
        if (d.size() == 10 && d[4] == '-' && d[7] == '-') { // AAAA-MM-JJ becomes JJ/MM/AAAA
            const char shown[10] = {d[8], d[9], '/', d[5], d[6], '/', d[0], d[1], d[2], d[3]};
            text_ += QLatin1StringView(shown, 10);
            return;
        }
        break;
    }
    default:
        break;
    }
    const QByteArrayView bytes = statement.columnUtf8(column);
    const qsizetype at = text_.size();
    text_.resize(at + bytes.size()); // never fewer letters than bytes
    QChar* end = utf8.appendToBuffer(text_.data() + at, bytes);
    text_.resize(end - text_.constData());
}

int ReportData::columnOf(const QString& field) const {
    const auto it = std::find(columns_.begin(), columns_.end(), field);
    return it == columns_.end() ? -1 : static_cast<int>(it - columns_.begin());
}

QString ReportData::sideValue(const QString& field) const {
    const auto it = side_.find(field);
    return it == side_.end() ? QString() : it->second;
}

namespace {

// The tables of the query: the main one, and each joined table through the first of its rows that
// holds the same value, so that a join never adds a row.
QString fromClause(const ReportSchema& schema, const Layout& layout) {
    QString from = schema.quotedTable(layout.table) + u" AS "_s + dao::quote_name(layout.table);
    for (const TableLink& link : layout.links) {
        const QString real = schema.quotedTable(link.alias);
        const QString key = dao::quote_name(link.right.section(u'.', 1));
        from += u" LEFT JOIN (SELECT * FROM %1 WHERE rowid IN (SELECT MIN(rowid) FROM %1 GROUP BY %2)) AS %3 "
                "ON %4 = %5"_s.arg(real, key, dao::quote_name(link.alias), schema.require(link.right).sql,
                                   schema.require(link.left).sql);
    }
    return from;
}

// The terms of the query's order, over its columns c0, c1...; then the main table's order, then the
// order of the lines of [lignes].
QString orderBy(const Layout& layout, const ReportData& data) {
    QStringList order;
    for (const SortKey& key : layout.sort) {
        const int column = data.columnOf(key.field);
        if (column < 0)
            throw unknownField(layout, key.field);
        order << orderTerm(u"c%1"_s.arg(column), data.typeOf(column), key);
    }
    return (order << u"r_"_s << u"v_"_s).join(u", "_s);
}

} // namespace

ReportData ReportData::load(const Layout& layout, const QString& databasePath, const QString& selection,
                            const QStringList& fields, const QDate& today) {
    ReportData data;
    data.reference_ = layout.reference(today);
    const auto connection = dao::Connection::open(databasePath, dao::Connection::Access::Shared);
    const ReportSchema schema(*connection, layout, data.reference_);

    QStringList wanted = fields;
    for (const QString& f : {layout.group, layout.unique, layout.countField})
        if (!f.isEmpty())
            wanted << f;
    wanted.removeDuplicates();

    // One SELECT a line of [lignes] (a single one without): the same columns, each line's own values.
    const std::vector<QStringList> lines =
        layout.rowSet.lines.empty() ? std::vector<QStringList>{QStringList()} : layout.rowSet.lines;
    const std::vector<QStringList> selects = data.columnsOf(schema, layout, lines, wanted);
    data.readSideFields(*connection, layout);
    if (layout.table.isEmpty())
        return data;

    const SqlCondition chosen = schema.condition(selection);
    const SqlCondition own = schema.condition(layout.filter);
    const QString from = fromClause(schema, layout);
    QStringList variants;
    QVariantList values;
    for (size_t k = 0; k < lines.size(); ++k) {
        QStringList columns;
        for (qsizetype c = 0; c < selects[k].size(); ++c)
            columns << u"%1 AS c%2"_s.arg(selects[k][c]).arg(c);
        columns << dao::quote_name(layout.table) + u".rowid AS r_"_s << u"%1 AS v_"_s.arg(k);
        QStringList where;
        for (const SqlCondition* c : {&chosen, &own})
            if (!c->sql.isEmpty()) {
                where << c->sql;
                values += c->values;
            }
        if (!layout.unique.isEmpty())
            where << schema.require(layout.unique).sql + u" IS NOT NULL"_s;
        if (!lines[k].isEmpty())
            where << u"IFNULL(%1, '') <> ''"_s.arg(rowSetValue(schema, lines[k].front()).sql);
        QString sql = u"SELECT %1 FROM %2"_s.arg(columns.join(u", "_s), from);
        if (!where.isEmpty())
            sql += u" WHERE "_s + where.join(u" AND "_s);
        if (!layout.unique.isEmpty())
            sql += u" GROUP BY "_s + schema.require(layout.unique).sql;
        variants << sql;
    }
    dao::Statement statement = connection->prepare(
        u"SELECT * FROM (%1) ORDER BY %2"_s.arg(variants.join(u" UNION ALL "_s), orderBy(layout, data)));
    for (qsizetype i = 0; i < values.size(); ++i)
        statement.bind(static_cast<int>(i + 1), values[i]);
    data.readRows(statement);
    return data;
}

// The columns of the query, each line's SQL for each; a field of a table outside the query is set
// aside, to be read from that table's first row.
std::vector<QStringList> ReportData::columnsOf(const ReportSchema& schema, const Layout& layout,
                                               const std::vector<QStringList>& lines,
                                               const QStringList& wanted) {
    std::vector<QStringList> selects(lines.size());
    for (const QString& f : wanted) {
        const QString table = f.section(u'.', 0, 0);
        if (table == row_set_table) {
            const qsizetype index = layout.rowSet.names.indexOf(f.section(u'.', 1));
            if (index < 0)
                throw unknownField(layout, f);
            std::optional<FieldType> type;
            for (size_t k = 0; k < lines.size(); ++k) {
                const Resolved r = rowSetValue(schema, lines[k][index]);
                selects[k] << r.sql;
                if (!type && lines[k][index].startsWith(u'{'))
                    type = r.type;
            }
            columns_.push_back(f);
            types_.push_back(type.value_or(FieldType::Text));
        } else if (schema.inQuery(table)) {
            const Resolved r = schema.require(f);
            columns_.push_back(f);
            types_.push_back(r.type);
            for (QStringList& s : selects)
                s << r.sql;
        } else {
            side_[f] = QString();
        }
    }
    return selects;
}

// The school's sheet and its kin: one row, read once.
void ReportData::readSideFields(dao::Connection& connection, const Layout& layout) {
    for (auto& [field, value] : side_) {
        const dao::TableInfo& info = connection.table(field.section(u'.', 0, 0));
        const int index = info.indexOf(field.section(u'.', 1));
        if (index < 0)
            throw unknownField(layout, field);
        dao::Statement first = connection.prepare(u"SELECT %1 FROM %2 LIMIT 1"_s.arg(
            dao::quote_name(info.columns[index].name), dao::quote_name(info.name)));
        if (first.step())
            value = shown(first.column(0), info.columns[index].type);
    }
}

void ReportData::readRows(dao::Statement& statement) {
    const int width = columnCount();
    starts_.push_back(0);
    QStringDecoder utf8(QStringDecoder::Utf8);
    while (statement.step()) {
        for (int c = 0; c < width; ++c) {
            append(statement, c, utf8);
            if (text_.size() > std::numeric_limits<quint32>::max())
                throw VbError(7); // out of memory
            starts_.push_back(static_cast<quint32>(text_.size()));
        }
        ++rows_;
    }
}
