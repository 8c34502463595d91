#include "platform/report/ReportData.h"

#include "platform/dao/Connection.h"
#include "platform/dao/JetDate.h"
#include "platform/dao/JetSql.h"
#include "platform/report/Formula.h"
#include "platform/report/ReportErrors.h"

#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Resolved {
    QString sql;
    FieldType type;
};

// Fields of the query's tables by their written name, checked against the file's schema.
class Schema {
public:
    Schema(dao::Connection& connection, const Layout& layout) : connection_(connection), layout_(layout) {
        for (const QString& t : layout.tables())
            actual_[t] = connection.table(t).name; // 3078 when the file has no such table
    }

    bool inQuery(const QString& table) const { return actual_.contains(table); }

    std::optional<Resolved> resolve(const QString& table, const QString& column) const {
        const auto it = actual_.find(table);
        if (it == actual_.end())
            return std::nullopt;
        const dao::TableInfo& info = connection_.table(it->second);
        const int index = info.indexOf(column);
        if (index < 0)
            return std::nullopt;
        return Resolved{dao::quote_name(info.name) + u'.' + dao::quote_name(info.columns[index].name),
                        info.columns[index].type};
    }

    Resolved require(const QString& field) const {
        const std::optional<Resolved> r = resolve(field.section(u'.', 0, 0), field.section(u'.', 1));
        if (!r)
            throw VbError(
                report_error::layout_invalid,
                u"Le fichier de mise en page « %1 » nomme un champ inconnu : %2"_s.arg(layout_.path, field));
        return *r;
    }

private:
    dao::Connection& connection_;
    const Layout& layout_;
    std::map<QString, QString> actual_;
};

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

QString orderTerm(const QString& sql, const SortKey& key) {
    const QString direction = key.descending ? u" DESC"_s : QString();
    const QString text = u"tri_fr(%1)%2"_s.arg(sql, direction);
    return key.numeric ? u"CAST(%1 AS INTEGER)%2, %3"_s.arg(sql, direction, text) : text;
}

} // namespace

int ReportData::columnOf(const QString& field) const {
    const auto it = std::find(columns_.begin(), columns_.end(), field);
    return it == columns_.end() ? -1 : static_cast<int>(it - columns_.begin());
}

QString ReportData::sideValue(const QString& field) const {
    const auto it = side_.find(field);
    return it == side_.end() ? QString() : it->second;
}

ReportData ReportData::load(const Layout& layout, const QString& databasePath, const QString& selection,
                            const QStringList& fields) {
    ReportData data;
    const auto connection = dao::Connection::open(databasePath, dao::Connection::Access::Shared);
    const Schema schema(*connection, layout);

    QStringList wanted = fields;
    for (const QString& f : {layout.group, layout.unique, layout.countField})
        if (!f.isEmpty())
            wanted << f;
    wanted.removeDuplicates();

    QStringList select;
    for (const QString& f : wanted) {
        const QString table = f.section(u'.', 0, 0);
        if (schema.inQuery(table)) {
            const Resolved r = schema.require(f);
            data.columns_.push_back(f);
            data.types_.push_back(r.type);
            select << r.sql;
        } else {
            data.side_[f] = QString();
        }
    }
    // The school's sheet and its kin: one row, read once.
    for (auto& [field, value] : data.side_) {
        const dao::TableInfo& info = connection->table(field.section(u'.', 0, 0));
        const int index = info.indexOf(field.section(u'.', 1));
        if (index < 0)
            throw VbError(
                report_error::layout_invalid,
                u"Le fichier de mise en page « %1 » nomme un champ inconnu : %2"_s.arg(layout.path, field));
        dao::Statement first = connection->prepare(u"SELECT %1 FROM %2 LIMIT 1"_s.arg(
            dao::quote_name(info.columns[index].name), dao::quote_name(info.name)));
        if (first.step())
            value = shown(first.column(0), info.columns[index].type);
    }
    if (layout.table.isEmpty())
        return data;

    const SqlCondition condition = translateSelection(
        selection, [&](const QString& table, const QString& column) -> std::optional<FormulaField> {
            const std::optional<Resolved> r = schema.resolve(table, column);
            if (!r)
                return std::nullopt;
            return FormulaField{r->sql, r->type};
        });

    const QString main = dao::quote_name(connection->table(layout.table).name);
    QString sql = u"SELECT %1 FROM %2"_s.arg(select.isEmpty() ? u"1"_s : select.join(u", "_s), main);
    for (const TableLink& link : layout.links)
        sql +=
            u" LEFT JOIN %1 ON %2 = %3"_s.arg(dao::quote_name(connection->table(link.table).name),
                                              schema.require(link.right).sql, schema.require(link.left).sql);
    QStringList where;
    if (!condition.sql.isEmpty())
        where << condition.sql;
    if (!layout.unique.isEmpty())
        where << schema.require(layout.unique).sql + u" IS NOT NULL"_s;
    if (!where.isEmpty())
        sql += u" WHERE "_s + where.join(u" AND "_s);
    if (!layout.unique.isEmpty())
        sql += u" GROUP BY "_s + schema.require(layout.unique).sql;
    QStringList order;
    for (const SortKey& key : layout.sort)
        order << orderTerm(schema.require(key.field).sql, key);
    order << main + u".rowid"_s;
    sql += u" ORDER BY "_s + order.join(u", "_s);

    dao::Statement statement = connection->prepare(sql);
    for (qsizetype i = 0; i < condition.values.size(); ++i)
        statement.bind(static_cast<int>(i + 1), condition.values[i]);
    const int width = data.columnCount();
    while (statement.step()) {
        std::vector<QString> row(width);
        for (int c = 0; c < width; ++c)
            row[c] = shown(statement.column(c), data.types_[c]);
        data.rows_.push_back(std::move(row));
    }
    return data;
}
