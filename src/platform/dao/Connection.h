#pragma once

#include "platform/dao/FileLock.h"
#include "platform/dao/FrenchText.h"
#include "platform/dao/Recordset.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <map>
#include <memory>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

// The engine underneath Database and Recordset: one SQLite connection on one file, with our collations
// and LIKE registered, the file's advisory lock, the tables' column types, and the mapping of every
// engine failure to the Jet number a user can quote.
namespace dao {

class Connection;

struct TableInfo {
    QString name;
    std::vector<FieldInfo> columns;
    std::vector<QVariant> defaults; // stored form, per column

    int indexOf(const QString& column) const; // -1 when unknown; case-insensitive as Jet
};

// A prepared statement, reset after each use so that it never keeps the file locked between calls.
class Statement {
public:
    Statement(const Connection* connection, sqlite3_stmt* stmt, QString sql);
    ~Statement();
    Statement(Statement&& other) noexcept;
    Statement& operator=(Statement&&) = delete;
    Statement(const Statement&) = delete;

    void bind(int index, const QVariant& value); // 1-based; a null QVariant binds NULL
    bool step();                                 // true while there is a row
    void reset();
    int columnCount() const;
    QVariant column(int index) const; // stored form: QString, qlonglong, double or null
    qint64 columnInt64(int index) const;
    // A value as the file holds it, for a reader of many rows that converts it itself: null or not,
    // and its text in UTF-8, valid until the next step.
    bool columnIsNull(int index) const;
    QByteArrayView columnUtf8(int index) const;

private:
    const Connection* connection_;
    sqlite3_stmt* stmt_;
    QString sql_;
};

class Connection {
public:
    enum class Access { Shared, Exclusive };

    // Opens an existing base. Shared access fails with 3051 while somebody holds the file exclusively;
    // exclusive access fails with 3045 while anybody holds it at all.
    static std::shared_ptr<Connection> open(const QString& path, Access access);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    void close();
    bool isOpen() const { return db_ != nullptr; }
    const QString& path() const { return path_; }
    sqlite3* handle() const; // 3420 once closed

    // Prepares SQLite text; a text the engine cannot read raises syntaxError (3075 query, 3077 criterion).
    Statement prepare(const QString& sqliteSql, int syntaxError = 3075) const;
    void run(const QString& sqliteSql) const; // a statement without result or parameters
    int changes() const;
    qint64 lastInsertRowid() const;

    [[noreturn]] void fail(int rc, int syntaxError, const QString& sqlText) const;

    const TableInfo& table(const QString& name); // 3078 when the file has no such table
    QStringList tableNames() const;

    // Every write runs inside one of these: a transaction of its own, or a savepoint inside the
    // caller's BeginTrans. Rolled back unless committed.
    class WriteScope {
    public:
        explicit WriteScope(Connection& connection);
        ~WriteScope();
        WriteScope(const WriteScope&) = delete;
        WriteScope& operator=(const WriteScope&) = delete;
        void commit();

    private:
        Connection& connection_;
        bool open_ = true;
    };

    // A transaction of its own for writing (the write lock taken at once), or for reading (the read
    // lock taken at the first read and kept to the end); inside another, a savepoint.
    void beginTransaction(bool forReading = false);
    void commitTransaction();
    void rollbackTransaction();
    int transactionDepth() const { return depth_; }

private:
    Connection(QString path, sqlite3* db, FileLock lock, std::unique_ptr<FrenchCollation> collation);
    int recordedCollationVersion() const;
    void rebuildStaleIndexes();

    QString path_;
    sqlite3* db_;
    FileLock lock_;
    std::unique_ptr<FrenchCollation> collation_; // outlives the engine's handle, which calls it
    int depth_ = 0;
    std::map<QString, TableInfo> tables_;
    QStringList tableNames_;
};

// Registers on a connection the collations FR (equality ignoring case and accents) and FR_TRI (French
// order), the sort key function tri_fr(column, ...) that orders and indexes use, and Jet's LIKE, all
// through the given collation, which must outlive the connection.
void register_jet_functions(sqlite3* db, const FrenchCollation& collation);

// The statement that records in a base the version of the French order its indexes were built with.
QString collation_version_pragma();

// Thrown texts that name a file.
[[noreturn]] void fail_with_path(int number, const QString& path);

} // namespace dao
