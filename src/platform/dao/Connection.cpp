#include "platform/dao/Connection.h"

#include "platform/dao/FrenchText.h"
#include "platform/dao/JetSql.h"
#include "platform/errors/VbError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <array>
#include <span>
#include <sqlite3.h>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
#endif

namespace dao {
namespace {

constexpr int busy_wait_ms = 3000;

const FrenchCollation& collation_of(void* userData) {
    return *static_cast<const FrenchCollation*>(userData);
}

int collate_primary(void* collation, int na, const void* a, int nb, const void* b) {
    return collation_of(collation).comparePrimary({static_cast<const char*>(a), static_cast<size_t>(na)},
                                                  {static_cast<const char*>(b), static_cast<size_t>(nb)});
}

int collate_french(void* collation, int na, const void* a, int nb, const void* b) {
    return collation_of(collation).compare(
        std::string_view{static_cast<const char*>(a), static_cast<size_t>(na)},
        std::string_view{static_cast<const char*>(b), static_cast<size_t>(nb)});
}

std::string_view text_of(sqlite3_value* value) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return {text, static_cast<size_t>(sqlite3_value_bytes(value))};
}

// like(pattern, text), which SQLite calls for "text LIKE pattern". The pattern is read once a statement.
void like_function(sqlite3_context* context, int, sqlite3_value** argv) {
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL || sqlite3_value_type(argv[1]) == SQLITE_NULL) {
        sqlite3_result_null(context);
        return;
    }
    auto* pattern = static_cast<LikePattern*>(sqlite3_get_auxdata(context, 0));
    std::unique_ptr<LikePattern> fresh;
    if (!pattern) {
        fresh = std::make_unique<LikePattern>(collation_of(sqlite3_user_data(context)), text_of(argv[0]));
        pattern = fresh.get();
    }
    sqlite3_result_int(context, pattern->matches(text_of(argv[1])));
    if (fresh) // the engine keeps it for the next rows, or deletes it at once
        sqlite3_set_auxdata(context, 0, fresh.release(),
                            [](void* p) { delete static_cast<LikePattern*>(p); });
}

// tri_fr(column, ...): the French sort key of the columns taken together, compared byte by byte.
void sort_key_function(sqlite3_context* context, int argc, sqlite3_value** argv) {
    std::array<std::optional<std::string_view>, 4> few;
    std::vector<std::optional<std::string_view>> many;
    if (argc > static_cast<int>(few.size()))
        many.resize(argc);
    const std::span<std::optional<std::string_view>> columns =
        many.empty() ? std::span(few.data(), argc) : std::span(many);
    for (int i = 0; i < argc; ++i)
        if (sqlite3_value_type(argv[i]) != SQLITE_NULL)
            columns[i] = text_of(argv[i]);
    const std::string key = collation_of(sqlite3_user_data(context)).sortKey(columns);
    sqlite3_result_blob(context, key.data(), static_cast<int>(key.size()), SQLITE_TRANSIENT);
}

FieldInfo field_from_declaration(const QString& name, const QString& declared) {
    const QString type = declared.trimmed().toUpper();
    static const QRegularExpression sized(u"^(VARCHAR|TEXT|CHAR|NVARCHAR)\\s*\\(\\s*(\\d+)\\s*\\)$"_s);
    if (const auto m = sized.match(type); m.hasMatch())
        return {name, FieldType::Text, m.captured(2).toInt()};
    if (type.isEmpty() || type == u"MEMO" || type == u"TEXT" || type == u"LONGTEXT" || type == u"CLOB")
        return {name, FieldType::Memo, 0};
    if (type == u"DATE" || type == u"DATETIME")
        return {name, FieldType::Date, 0};
    if (type == u"BOOLEAN" || type == u"BIT" || type == u"YESNO")
        return {name, FieldType::Boolean, 0};
    return {name, FieldType::Number, 0};
}

QVariant default_value(const FieldInfo& field, const QVariant& declaredDefault) {
    if (field.type == FieldType::Boolean)
        return QVariant(declaredDefault.isNull() ? qlonglong(0) : declaredDefault.toLongLong());
    return {};
}

// Read without ever waiting: a FIFO put in the base's place after the check of its kind must not hold
// the program at open() until somebody writes into it.
bool has_sqlite_header(const QString& path) {
    static const QByteArray magic("SQLite format 3\0", 16);
#ifdef Q_OS_UNIX
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return true; // unreadable: the lock or the engine will say why
    struct stat status {};
    QByteArray head(magic.size(), '\0');
    const bool regular = ::fstat(fd, &status) == 0 && S_ISREG(status.st_mode);
    const bool whole = regular && ::read(fd, head.data(), head.size()) == head.size();
    ::close(fd);
    return whole && head == magic;
#else
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return true;
    return file.read(16) == magic;
#endif
}

} // namespace

[[noreturn]] void fail_with_path(int number, const QString& path) {
    const QString shown = number == 3044 ? QFileInfo(path).absolutePath() : path;
    throw VbError::avec(number, {QDir::toNativeSeparators(shown)});
}

int TableInfo::indexOf(const QString& column) const {
    for (size_t i = 0; i < columns.size(); ++i)
        if (columns[i].name == column)
            return static_cast<int>(i);
    for (size_t i = 0; i < columns.size(); ++i)
        if (columns[i].name.compare(column, Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    return -1;
}

// --- Statement

Statement::Statement(const Connection* connection, sqlite3_stmt* stmt, QString sql)
    : connection_(connection), stmt_(stmt), sql_(std::move(sql)) {}

Statement::~Statement() {
    if (stmt_)
        sqlite3_finalize(stmt_);
}

Statement::Statement(Statement&& other) noexcept
    : connection_(other.connection_), stmt_(std::exchange(other.stmt_, nullptr)),
      sql_(std::move(other.sql_)) {}

void Statement::bind(int index, const QVariant& value) {
    int rc;
    if (value.isNull()) {
        rc = sqlite3_bind_null(stmt_, index);
    } else if (value.typeId() == QMetaType::Bool || value.typeId() == QMetaType::Int ||
               value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::UInt) {
        rc = sqlite3_bind_int64(stmt_, index, value.toLongLong());
    } else if (value.typeId() == QMetaType::Double) {
        rc = sqlite3_bind_double(stmt_, index, value.toDouble());
    } else {
        const QByteArray utf8 = value.toString().toUtf8();
        rc = sqlite3_bind_text(stmt_, index, utf8.constData(), static_cast<int>(utf8.size()),
                               SQLITE_TRANSIENT);
    }
    if (rc != SQLITE_OK)
        connection_->fail(rc, 3075, sql_);
}

bool Statement::step() {
    const int rc = sqlite3_step(stmt_);
    if (rc == SQLITE_ROW)
        return true;
    if (rc == SQLITE_DONE)
        return false;
    sqlite3_reset(stmt_);
    connection_->fail(rc, 3075, sql_);
}

void Statement::reset() {
    sqlite3_reset(stmt_);
    sqlite3_clear_bindings(stmt_);
}

int Statement::columnCount() const {
    return sqlite3_column_count(stmt_);
}

QVariant Statement::column(int index) const {
    switch (sqlite3_column_type(stmt_, index)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return QVariant(qlonglong(sqlite3_column_int64(stmt_, index)));
    case SQLITE_FLOAT:
        return QVariant(sqlite3_column_double(stmt_, index));
    default: {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(stmt_, index));
        return QVariant(QString::fromUtf8(text, sqlite3_column_bytes(stmt_, index)));
    }
    }
}

qint64 Statement::columnInt64(int index) const {
    return sqlite3_column_int64(stmt_, index);
}

bool Statement::columnIsNull(int index) const {
    return sqlite3_column_type(stmt_, index) == SQLITE_NULL;
}

QByteArrayView Statement::columnUtf8(int index) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(stmt_, index));
    return QByteArrayView(text, sqlite3_column_bytes(stmt_, index));
}

// --- Connection

void register_jet_functions(sqlite3* db, const FrenchCollation& collation) {
    auto* user = const_cast<FrenchCollation*>(&collation); // only ever read through
    sqlite3_create_collation_v2(db, "FR", SQLITE_UTF8, user, collate_primary, nullptr);
    sqlite3_create_collation_v2(db, "FR_TRI", SQLITE_UTF8, user, collate_french, nullptr);
    constexpr int pure = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    sqlite3_create_function_v2(db, "like", 2, pure, user, like_function, nullptr, nullptr, nullptr);
    sqlite3_create_function_v2(db, "tri_fr", -1, pure, user, sort_key_function, nullptr, nullptr, nullptr);
}

QString collation_version_pragma() {
    return u"PRAGMA user_version = %1"_s.arg(FrenchCollation::version());
}

Connection::Connection(QString path, sqlite3* db, FileLock lock, std::unique_ptr<FrenchCollation> collation)
    : path_(std::move(path)), db_(db), lock_(std::move(lock)), collation_(std::move(collation)) {}

Connection::~Connection() {
    close();
}

std::shared_ptr<Connection> Connection::open(const QString& path, Access access) {
    const QFileInfo info(path);
    if (path.trimmed().isEmpty())
        fail_with_path(3024, path);
    if (!info.exists())
        fail_with_path(info.absoluteDir().exists() ? 3024 : 3044, path);
    // Only a regular file can be a base; a folder, a FIFO or a device is refused before anything opens it.
    if (!info.isFile() || !has_sqlite_header(path))
        fail_with_path(3343, path);

    auto collation = std::make_unique<FrenchCollation>();
    FileLock lock;
    const auto mode = access == Access::Shared ? FileLock::Mode::Shared : FileLock::Mode::Exclusive;
    if (lock.acquire(path, mode) != FileLock::Result::Held)
        fail_with_path(access == Access::Shared ? 3051 : 3045, path);

    sqlite3* db = nullptr;
    const int flags = SQLITE_OPEN_READWRITE;
    const int rc =
        sqlite3_open_v2(QFile::encodeName(path).constData(), &db, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    if (rc != SQLITE_OK) {
        sqlite3_close_v2(db);
        fail_with_path(3051, path);
    }
    sqlite3_extended_result_codes(db, 1);
    sqlite3_busy_timeout(db, busy_wait_ms);
    register_jet_functions(db, *collation);

    std::shared_ptr<Connection> connection(new Connection(path, db, std::move(lock), std::move(collation)));
    try {
        Statement names = connection->prepare(
            QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite*' "
                           "ORDER BY rowid"));
        while (names.step())
            connection->tableNames_ << names.column(0).toString();
    } catch (const VbError& error) {
        // Another program writing to the file is no damage: a head told "damaged" may restore over it.
        if (error.number() == 3260)
            throw;
        fail_with_path(3343, path);
    }
    connection->rebuildStaleIndexes();
    return connection;
}

int Connection::recordedCollationVersion() const {
    Statement version = prepare(u"PRAGMA user_version"_s);
    return version.step() ? static_cast<int>(version.columnInt64(0)) : 0;
}

// The indexes hold sort keys and collation orders computed when their rows were written. Keys of another
// French order (an older program, another ICU after a system upgrade) would make searches through them
// miss rows and updates find the base damaged, so a base built under another version has them rebuilt
// once. The version is read again inside the write transaction: another copy of the program may have
// just done it. A read-only base keeps its indexes: it cannot be damaged by writes.
void Connection::rebuildStaleIndexes() {
    if (recordedCollationVersion() == FrenchCollation::version() || sqlite3_db_readonly(db_, "main") == 1)
        return;
    WriteScope scope(*this);
    if (recordedCollationVersion() != FrenchCollation::version()) {
        run(u"REINDEX"_s);
        run(collation_version_pragma());
    }
    scope.commit();
}

void Connection::close() {
    if (!db_)
        return;
    if (depth_ > 0)
        sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
    depth_ = 0;
    // Statements still owned by recordsets are finalized by them; the engine closes once they are.
    sqlite3_close_v2(db_);
    db_ = nullptr;
    lock_.release();
}

sqlite3* Connection::handle() const {
    if (!db_)
        throw VbError(3420);
    return db_;
}

Statement Connection::prepare(const QString& sqliteSql, int syntaxError) const {
    const QByteArray utf8 = sqliteSql.toUtf8();
    sqlite3_stmt* stmt = nullptr;
    const char* tail = nullptr;
    const int rc =
        sqlite3_prepare_v2(handle(), utf8.constData(), static_cast<int>(utf8.size()), &stmt, &tail);
    if (rc != SQLITE_OK)
        fail(rc, syntaxError, sqliteSql);
    if (!stmt || (tail && QByteArray(tail).trimmed().size() > 0)) {
        sqlite3_finalize(stmt);
        throw VbError(syntaxError);
    }
    return Statement(this, stmt, sqliteSql);
}

void Connection::run(const QString& sqliteSql) const {
    Statement statement = prepare(sqliteSql);
    while (statement.step()) {
    }
}

int Connection::changes() const {
    return sqlite3_changes(handle());
}

qint64 Connection::lastInsertRowid() const {
    return sqlite3_last_insert_rowid(handle());
}

void Connection::fail(int rc, int syntaxError, const QString& sqlText) const {
    const int extended = db_ ? sqlite3_extended_errcode(db_) : rc;
    const QString message = db_ ? QString::fromUtf8(sqlite3_errmsg(db_)) : QString();
    switch (rc & 0xFF) {
    case SQLITE_CONSTRAINT:
        if (extended == SQLITE_CONSTRAINT_NOTNULL)
            throw VbError(3314);
        throw VbError(3022);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        throw VbError(3260);
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        fail_with_path(3343, path_);
    case SQLITE_FULL:
        throw VbError(3026);
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_AUTH:
        throw VbError(3027);
    case SQLITE_IOERR:
    case SQLITE_CANTOPEN:
        throw VbError(3043);
    case SQLITE_NOMEM:
        throw VbError(7);
    default:
        break;
    }
    if (message.startsWith(u"no such table")) {
        const QString table = message.section(u':', 1).trimmed();
        throw VbError::avec(3078, {table});
    }
    if (message.startsWith(u"no such column")) {
        if (syntaxError == 3077)
            throw VbError::avec(3070, {message.section(u':', 1).trimmed()});
        throw VbError::avec(3061, {u"1"_s});
    }
    if (syntaxError == 3075)
        throw VbError::avec(3075, {sqlText});
    throw VbError(syntaxError);
}

const TableInfo& Connection::table(const QString& name) {
    QString actual;
    for (const QString& t : tableNames_)
        if (t == name)
            actual = t;
    if (actual.isEmpty())
        for (const QString& t : tableNames_)
            if (t.compare(name, Qt::CaseInsensitive) == 0)
                actual = t;
    if (actual.isEmpty())
        throw VbError::avec(3078, {name});
    if (auto it = tables_.find(actual); it != tables_.end())
        return it->second;

    TableInfo info;
    info.name = actual;
    Statement columns = prepare(u"PRAGMA table_info(%1)"_s.arg(quote_name(actual)));
    while (columns.step()) {
        FieldInfo field = field_from_declaration(columns.column(1).toString(), columns.column(2).toString());
        info.defaults.push_back(default_value(field, columns.column(4)));
        info.columns.push_back(std::move(field));
    }
    return tables_.emplace(actual, std::move(info)).first->second;
}

QStringList Connection::tableNames() const {
    return tableNames_;
}

void Connection::beginTransaction(bool forReading) {
    run(depth_ > 0 ? u"SAVEPOINT ecriture"_s : forReading ? u"BEGIN"_s : u"BEGIN IMMEDIATE"_s);
    ++depth_;
}

void Connection::commitTransaction() {
    if (depth_ == 0)
        throw VbError(3034);
    run(depth_ == 1 ? u"COMMIT"_s : u"RELEASE ecriture"_s);
    --depth_;
}

void Connection::rollbackTransaction() {
    if (depth_ == 0)
        throw VbError(3034);
    --depth_;
    if (depth_ == 0) {
        sqlite3_exec(handle(), "ROLLBACK", nullptr, nullptr, nullptr);
    } else {
        sqlite3_exec(handle(), "ROLLBACK TO ecriture", nullptr, nullptr, nullptr);
        sqlite3_exec(handle(), "RELEASE ecriture", nullptr, nullptr, nullptr);
    }
}

Connection::WriteScope::WriteScope(Connection& connection) : connection_(connection) {
    connection_.beginTransaction();
}

Connection::WriteScope::~WriteScope() {
    if (open_ && connection_.isOpen())
        connection_.rollbackTransaction();
}

void Connection::WriteScope::commit() {
    connection_.commitTransaction();
    open_ = false;
}

} // namespace dao
