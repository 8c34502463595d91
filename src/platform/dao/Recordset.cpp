#include "platform/dao/Recordset.h"

#include "platform/dao/Connection.h"
#include "platform/dao/JetDate.h"
#include "platform/dao/JetSql.h"
#include "platform/errors/VbError.h"

#include <QDataStream>
#include <QDate>
#include <QHash>
#include <QIODevice>
#include <algorithm>
#include <optional>
#include <unordered_set>

using namespace Qt::StringLiterals;

namespace dao {

// Where the recordset stands: before the first row, on a row of the key list, or after the last.
enum class At { Bof, Row, Eof };

class RecordsetPrivate {
public:
    std::shared_ptr<Connection> connection;
    TableInfo table;
    SelectQuery query;
    std::vector<FieldInfo> fields;
    std::vector<int> tableColumn; // field index -> column index in the table
    QHash<QString, int> byName;   // lower-case name -> field index
    QString keysSql;
    std::optional<Statement> fetch;

    std::vector<qint64> keys;
    std::vector<bool> gone;  // a hole: deleted here, or found missing when read
    std::vector<long> holes; // the same positions, sorted, to count them fast
    At at = At::Bof;
    long cur = -1;
    std::vector<QVariant> row; // stored values of the current row

    EditMode mode = EditMode::None;
    std::vector<QVariant> buffer;
    std::vector<bool> dirty;
    std::optional<qint64> lastModified;
    bool noMatch = false;

    Connection& db() const {
        if (!connection->isOpen())
            throw VbError(3420);
        return *connection;
    }

    long liveCount() const { return static_cast<long>(keys.size() - holes.size()); }
    bool onHole() const { return at == At::Row && gone[cur]; }

    void markGone(long position) {
        if (gone[position])
            return;
        gone[position] = true;
        holes.insert(std::lower_bound(holes.begin(), holes.end(), position), position);
    }

    std::optional<std::vector<QVariant>> read(qint64 key) {
        Statement& s = *fetch;
        s.bind(1, QVariant(qlonglong(key)));
        std::optional<std::vector<QVariant>> values;
        try {
            if (s.step()) {
                values.emplace();
                values->reserve(fields.size());
                for (int i = 0; i < static_cast<int>(fields.size()); ++i)
                    values->push_back(s.column(i));
            }
        } catch (...) {
            s.reset();
            throw;
        }
        s.reset();
        return values;
    }

    // Loads the row at position; a row another user removed becomes a hole.
    bool load(long position) {
        if (gone[position])
            return false;
        auto values = read(keys[position]);
        if (!values) {
            markGone(position);
            return false;
        }
        row = std::move(*values);
        return true;
    }

    void dropEdit() {
        mode = EditMode::None;
        buffer.clear();
        dirty.clear();
    }

    // First live row from position going by step; -1 when there is none.
    long seek(long position, int step) {
        for (long p = position; p >= 0 && p < static_cast<long>(keys.size()); p += step)
            if (load(p))
                return p;
        return -1;
    }

    void standOn(long position) {
        at = At::Row;
        cur = position;
    }

    // MoveFirst and MoveLast: the first live row from that end, or 3021 with the edit kept.
    void moveToEnd(long position, int step) {
        const long p = seek(position, step);
        if (p < 0)
            throw VbError(3021);
        dropEdit();
        standOn(p);
    }

    // A move to a row known by its place: 3167 when it has been deleted since, the edit kept.
    void moveTo(long position) {
        if (!load(position))
            throw VbError(3167);
        dropEdit();
        standOn(position);
    }

    void requireRow() const {
        if (at != At::Row)
            throw VbError(3021);
        if (gone[cur])
            throw VbError(3167);
    }

    long positionOfKey(qint64 key) const {
        for (long p = static_cast<long>(keys.size()) - 1; p >= 0; --p)
            if (keys[p] == key)
                return p;
        return -1;
    }

    long positionOfLive(long live) const {
        long p = live;
        for (long h : holes) {
            if (h <= p)
                ++p;
            else
                break;
        }
        return p;
    }

    int field(const QString& column) const {
        const int index = byName.value(column.toLower(), -1);
        if (index < 0)
            throw VbError(3265);
        return index;
    }

    void runKeys() {
        Statement s = db().prepare(keysSql);
        keys.clear();
        while (s.step())
            keys.push_back(s.columnInt64(0));
        keys.shrink_to_fit();
        gone.assign(keys.size(), false);
        holes.clear();
        dropEdit();
        row.clear();
        const long first = seek(0, 1);
        if (first >= 0)
            standOn(first);
        else {
            at = At::Bof;
            cur = -1;
        }
    }

    void prepareFor(const QString& source) {
        try {
            query = parse_select(source);
        } catch (const JetSyntaxError&) {
            throw VbError::avec(3075, {source});
        }
        table = db().table(query.table);
        if (query.columns.isEmpty()) {
            for (size_t i = 0; i < table.columns.size(); ++i)
                tableColumn.push_back(static_cast<int>(i));
        } else {
            for (const QString& column : query.columns) {
                const int index = table.indexOf(column);
                if (index < 0)
                    throw VbError::avec(3061, {u"1"_s});
                tableColumn.push_back(index);
            }
        }
        QStringList selected;
        for (int index : tableColumn) {
            fields.push_back(table.columns[index]);
            byName.insert(fields.back().name.toLower(), static_cast<int>(fields.size() - 1));
            selected << quote_name(table.columns[index].name);
        }
        const QString from = quote_name(table.name);
        fetch.emplace(db().prepare(u"SELECT %1 FROM %2 WHERE rowid = ?"_s.arg(selected.join(u", "_s), from)));

        keysSql = u"SELECT rowid FROM %1"_s.arg(from);
        if (!query.where.isEmpty())
            keysSql += u" WHERE (%1)"_s.arg(query.where);
        // Text sorts on its French sort key. Columns sorted the same way share one key, so that case and
        // accents of a surname count only between rows of the same names ("DUPONT Léa" after "Dupont
        // Adam"); equal rows then keep the order of their writing.
        QStringList order, texts;
        bool allText = true;
        for (const OrderTerm& term : query.order) {
            const int index = table.indexOf(term.column);
            if (index < 0)
                throw VbError::avec(3061, {u"1"_s});
            const FieldInfo& column = table.columns[index];
            const bool text = column.type == FieldType::Text || column.type == FieldType::Memo;
            allText = allText && text && term.descending == query.order.front().descending;
            texts << quote_name(column.name);
            order << (text ? u"tri_fr(%1)"_s.arg(quote_name(column.name)) : quote_name(column.name)) +
                         (term.descending ? u" DESC"_s : QString());
        }
        if (allText && query.order.size() > 1)
            order = QStringList{u"tri_fr(%1)"_s.arg(texts.join(u", "_s)) +
                                (query.order.front().descending ? u" DESC"_s : QString())};
        // Equal sort values keep the order of their writing, the same at every opening.
        const bool lastDescending = !query.order.empty() && query.order.back().descending;
        order << (lastDescending ? u"rowid DESC"_s : u"rowid"_s);
        keysSql += u" ORDER BY "_s + order.join(u", "_s);
    }

    QVariant shown(int index, const QVariant& stored) const {
        switch (fields[index].type) {
        case FieldType::Boolean:
            return QVariant(!stored.isNull() && stored.toLongLong() != 0);
        case FieldType::Date: {
            if (stored.isNull())
                return {};
            return QVariant(shown_from_stored(stored.toString()));
        }
        case FieldType::Text:
        case FieldType::Memo:
            return stored.isNull() ? QVariant() : QVariant(stored.toString());
        case FieldType::Number:
            return stored;
        }
        return stored;
    }

    QVariant stored(int index, const QVariant& value) const {
        const FieldInfo& f = fields[index];
        switch (f.type) {
        case FieldType::Text:
        case FieldType::Memo: {
            if (value.isNull())
                return {};
            const QString text = value.toString();
            if (f.type == FieldType::Text && text.toUcs4().size() > f.size)
                throw VbError(3163);
            return QVariant(text);
        }
        case FieldType::Date: {
            if (value.isNull())
                return {};
            if (value.typeId() == QMetaType::QDate)
                return QVariant(to_stored_date(value.toDate()));
            if (value.typeId() == QMetaType::QDateTime)
                return QVariant(to_stored_date(value.toDateTime().date()));
            const QString text = value.toString();
            if (text.trimmed().isEmpty())
                return {};
            const auto date = parse_user_date(text);
            if (!date)
                throw VbError(3421);
            return QVariant(to_stored_date(*date));
        }
        case FieldType::Boolean: {
            if (value.isNull())
                return QVariant(qlonglong(0));
            if (value.typeId() == QMetaType::Bool || value.typeId() == QMetaType::Int ||
                value.typeId() == QMetaType::LongLong)
                return QVariant(qlonglong(value.toLongLong() != 0 ? 1 : 0));
            const QString text = value.toString().trimmed().toLower();
            if (text == u"true" || text == u"vrai" || text == u"oui" || text == u"-1" || text == u"1")
                return QVariant(qlonglong(1));
            if (text == u"false" || text == u"faux" || text == u"non" || text == u"0" || text.isEmpty())
                return QVariant(qlonglong(0));
            throw VbError(3421);
        }
        case FieldType::Number: {
            if (value.isNull() || value.toString().trimmed().isEmpty())
                return {};
            bool ok = false;
            const double number = QString(value.toString()).replace(u',', u'.').trimmed().toDouble(&ok);
            if (!ok)
                throw VbError(3421);
            if (number == static_cast<double>(static_cast<qlonglong>(number)))
                return QVariant(static_cast<qlonglong>(number));
            return QVariant(number);
        }
        }
        return value;
    }

    void find(long from, const QString& criterion) {
        QString expression;
        try {
            const std::vector<Token> tokens = tokenize(criterion);
            if (tokens.empty())
                throw VbError(3077);
            expression = translate_tokens(tokens, 0, tokens.size());
        } catch (const JetSyntaxError&) {
            throw VbError(3077);
        }
        Statement s =
            db().prepare(u"SELECT rowid FROM %1 WHERE (%2)"_s.arg(quote_name(table.name), expression), 3077);
        std::unordered_set<qint64> matches;
        while (s.step())
            matches.insert(s.columnInt64(0));
        noMatch = true;
        if (matches.empty())
            return;
        for (long p = std::max(0L, from); p < static_cast<long>(keys.size()); ++p) {
            if (!gone[p] && matches.count(keys[p]) && load(p)) {
                dropEdit();
                standOn(p);
                noMatch = false;
                return;
            }
        }
    }
};

} // namespace dao

using dao::At;

Recordset::Recordset(std::shared_ptr<dao::Connection> connection, const QString& jetSelect)
    : d(std::make_unique<dao::RecordsetPrivate>()) {
    if (!connection)
        throw VbError(3420);
    d->connection = std::move(connection);
    d->prepareFor(jetSelect);
    d->runKeys();
}

Recordset::~Recordset() = default;

const std::vector<FieldInfo>& Recordset::fields() const {
    return d->fields;
}

int Recordset::fieldIndex(const QString& column) const {
    return d->byName.value(column.toLower(), -1);
}

QVariant Recordset::field(const QString& column) const {
    return field(d->field(column));
}

QVariant Recordset::field(int index) const {
    if (index < 0 || index >= static_cast<int>(d->fields.size()))
        throw VbError(3265);
    if (d->mode != EditMode::None)
        return d->shown(index, d->buffer[index]);
    d->requireRow();
    return d->shown(index, d->row[index]);
}

void Recordset::setField(const QString& column, const QVariant& value) {
    setField(d->field(column), value);
}

void Recordset::setField(int index, const QVariant& value) {
    if (index < 0 || index >= static_cast<int>(d->fields.size()))
        throw VbError(3265);
    if (d->mode == EditMode::None)
        throw VbError(3020);
    d->buffer[index] = d->stored(index, value);
    d->dirty[index] = true;
}

void Recordset::AddNew() {
    d->db();
    d->buffer.clear();
    for (int column : d->tableColumn)
        d->buffer.push_back(d->table.defaults[column]);
    d->dirty.assign(d->fields.size(), false);
    d->mode = EditMode::AddNew;
}

// The edit starts from the row as this recordset read it, which Update checks against the file.
void Recordset::Edit() {
    d->db();
    d->requireRow();
    d->buffer = d->row;
    d->dirty.assign(d->fields.size(), false);
    d->mode = EditMode::Edit;
}

void Recordset::Update() {
    dao::Connection& db = d->db();
    if (d->mode == EditMode::None)
        throw VbError(3020);
    QStringList columns;
    std::vector<QVariant> values;
    for (size_t i = 0; i < d->fields.size(); ++i) {
        if (d->dirty[i]) {
            columns << dao::quote_name(d->fields[i].name);
            values.push_back(d->buffer[i]);
        }
    }
    const QString table = dao::quote_name(d->table.name);
    if (d->mode == EditMode::AddNew) {
        QString sql;
        if (columns.isEmpty()) {
            sql = u"INSERT INTO %1 DEFAULT VALUES"_s.arg(table);
        } else {
            QStringList marks;
            for (qsizetype i = 0; i < columns.size(); ++i)
                marks << u"?"_s;
            sql = u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(table, columns.join(u", "_s), marks.join(u", "_s));
        }
        dao::Connection::WriteScope scope(db);
        dao::Statement insert = db.prepare(sql);
        for (size_t i = 0; i < values.size(); ++i)
            insert.bind(static_cast<int>(i + 1), values[i]);
        insert.step();
        const qint64 key = db.lastInsertRowid();
        scope.commit();
        d->keys.push_back(key);
        d->gone.push_back(false);
        d->lastModified = key;
        d->dropEdit();
        return;
    }
    const qint64 key = d->keys[d->cur];
    if (!columns.isEmpty()) {
        QStringList assignments;
        for (const QString& column : columns)
            assignments << column + u" = ?"_s;
        dao::Connection::WriteScope scope(db);
        // Optimistic locking: the row must still be what this recordset read, or another user's save
        // would be lost without a word. Read inside the write transaction, nobody can change it between.
        const auto stored = d->read(key);
        if (!stored) {
            d->markGone(d->cur);
            d->dropEdit();
            throw VbError(3167);
        }
        if (*stored != d->row)
            throw VbError(3197);
        dao::Statement update =
            db.prepare(u"UPDATE %1 SET %2 WHERE rowid = ?"_s.arg(table, assignments.join(u", "_s)));
        for (size_t i = 0; i < values.size(); ++i)
            update.bind(static_cast<int>(i + 1), values[i]);
        update.bind(static_cast<int>(values.size() + 1), QVariant(qlonglong(key)));
        update.step();
        // What the file now holds, as the next save will compare it (a column may store a value in a
        // form of its own).
        auto written = d->read(key).value_or(d->buffer);
        scope.commit();
        d->row = std::move(written);
    }
    d->lastModified = key;
    d->dropEdit();
}

void Recordset::CancelUpdate() {
    if (d->mode == EditMode::None)
        throw VbError(3020);
    d->dropEdit();
}

void Recordset::Delete() {
    dao::Connection& db = d->db();
    if (d->mode == EditMode::AddNew)
        throw VbError(3021);
    d->requireRow();
    dao::Connection::WriteScope scope(db);
    dao::Statement remove =
        db.prepare(u"DELETE FROM %1 WHERE rowid = ?"_s.arg(dao::quote_name(d->table.name)));
    remove.bind(1, QVariant(qlonglong(d->keys[d->cur])));
    remove.step();
    scope.commit();
    d->dropEdit();
    d->markGone(d->cur);
    d->row.clear();
}

EditMode Recordset::editMode() const {
    return d->mode;
}

void Recordset::MoveFirst() {
    d->db();
    d->moveToEnd(0, 1);
}

void Recordset::MoveLast() {
    d->db();
    d->moveToEnd(static_cast<long>(d->keys.size()) - 1, -1);
}

void Recordset::MoveNext() {
    d->db();
    if (isEOF())
        throw VbError(3021);
    d->dropEdit();
    const long p = d->seek(d->at == At::Bof ? 0 : d->cur + 1, 1);
    if (p < 0) {
        d->at = At::Eof;
        d->cur = static_cast<long>(d->keys.size());
        d->row.clear();
    } else {
        d->standOn(p);
    }
}

void Recordset::MovePrevious() {
    d->db();
    if (isBOF())
        throw VbError(3021);
    d->dropEdit();
    const long p = d->seek(d->at == At::Eof ? static_cast<long>(d->keys.size()) - 1 : d->cur - 1, -1);
    if (p < 0) {
        d->at = At::Bof;
        d->cur = -1;
        d->row.clear();
    } else {
        d->standOn(p);
    }
}

bool Recordset::isEOF() const {
    return d->at == At::Eof || (d->liveCount() == 0 && !d->onHole());
}

bool Recordset::isBOF() const {
    return d->at == At::Bof || (d->liveCount() == 0 && !d->onHole());
}

int Recordset::AbsolutePosition() const {
    if (d->mode == EditMode::AddNew || d->at != At::Row || d->gone[d->cur])
        return -1;
    const auto before = std::lower_bound(d->holes.begin(), d->holes.end(), d->cur) - d->holes.begin();
    return static_cast<int>(d->cur - before);
}

void Recordset::setAbsolutePosition(int position) {
    d->db();
    if (position < 0 || position >= d->liveCount())
        throw VbError(3001);
    d->moveTo(d->positionOfLive(position));
}

int Recordset::RecordCount() const {
    return static_cast<int>(d->liveCount());
}

QByteArray Recordset::Bookmark() const {
    d->requireRow();
    QByteArray bookmark;
    QDataStream(&bookmark, QIODevice::WriteOnly) << qint64(d->keys[d->cur]);
    return bookmark;
}

void Recordset::setBookmark(const QByteArray& bookmark) {
    d->db();
    qint64 key = 0;
    QDataStream in(bookmark);
    in >> key;
    const long p = bookmark.size() == sizeof(qint64) ? d->positionOfKey(key) : -1;
    if (p < 0)
        throw VbError(3159);
    d->moveTo(p);
}

QByteArray Recordset::LastModified() const {
    if (!d->lastModified)
        throw VbError(3021);
    QByteArray bookmark;
    QDataStream(&bookmark, QIODevice::WriteOnly) << qint64(*d->lastModified);
    return bookmark;
}

void Recordset::FindFirst(const QString& criterion) {
    d->find(0, criterion);
}

void Recordset::FindNext(const QString& criterion) {
    d->find(d->at == At::Row ? d->cur + 1 : 0, criterion);
}

bool Recordset::NoMatch() const {
    return d->noMatch;
}

void Recordset::Requery() {
    d->runKeys();
}

QVariant Recordset::valueAt(int position, int index) const {
    if (!d->connection->isOpen() || index < 0 || index >= static_cast<int>(d->fields.size()) ||
        position < 0 || position >= d->liveCount())
        return {};
    const auto values = d->read(d->keys[d->positionOfLive(position)]);
    return values ? d->shown(index, (*values)[index]) : QVariant();
}
