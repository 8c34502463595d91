#include "platform/dao/Database.h"

#include "platform/dao/Connection.h"
#include "platform/dao/JetSql.h"
#include "platform/dao/Recordset.h"
#include "platform/dao/SideFile.h"
#include "platform/errors/VbError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <cerrno>
#include <optional>
#include <system_error>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

QString first_word(const QString& jetSql) {
    const QString trimmed = jetSql.trimmed();
    return trimmed.section(u' ', 0, 0).section(u'\n', 0, 0).toLower();
}

} // namespace

Database::Database(QString path, std::shared_ptr<dao::Connection> connection)
    : path_(std::move(path)), connection_(std::move(connection)) {}

Database::~Database() {
    Close();
}

std::shared_ptr<Database> Database::open(const QString& path) {
    auto connection = dao::Connection::open(path, dao::Connection::Access::Shared);
    return std::shared_ptr<Database>(new Database(path, std::move(connection)));
}

dao::Connection& Database::connection() const {
    if (!isOpen())
        throw VbError(3420);
    return *connection_;
}

int Database::Execute(const QString& jetSql) {
    dao::Connection& connection = this->connection();
    QString sql;
    try {
        sql = dao::translate_statement(jetSql);
    } catch (const dao::JetSyntaxError&) {
        throw VbError::avec(3075, {jetSql});
    }
    if (first_word(jetSql) == u"select")
        throw VbError(3065);
    dao::Connection::WriteScope scope(connection);
    connection.run(sql);
    const int changed = connection.changes();
    scope.commit();
    return changed;
}

std::unique_ptr<Recordset> Database::OpenRecordset(const QString& tableOrSelect) {
    connection();
    return std::make_unique<Recordset>(connection_, tableOrSelect);
}

void Database::BeginTrans() {
    connection().beginTransaction();
}

void Database::BeginReadTrans() {
    connection().beginTransaction(true);
}

void Database::CommitTrans() {
    connection().commitTransaction();
}

void Database::Rollback() {
    connection().rollbackTransaction();
}

void Database::Close() {
    if (connection_)
        connection_->close();
    connection_.reset();
}

bool Database::isOpen() const {
    return connection_ && connection_->isOpen();
}

QStringList Database::tableNames() const {
    return connection().tableNames();
}

namespace {

// The engine's number for a failure of the file system while a copy is put in place.
[[noreturn]] void fail_placing(const std::system_error& error, const QString& target) {
    switch (error.code().value()) {
    case EEXIST:
        throw VbError(3204);
    case ENOSPC:
    case EDQUOT:
        throw VbError(3026);
    case ENOENT:
    case ENOTDIR:
        dao::fail_with_path(3044, target);
    default:
        throw VbError(3043);
    }
}

} // namespace

void CompactDatabase(const QString& source, const QString& target) {
    const QFileInfo targetInfo(target);
    if (target.trimmed().isEmpty() || !targetInfo.absoluteDir().exists())
        dao::fail_with_path(3044, target);
    if (targetInfo.exists())
        throw VbError(3204);

    auto connection = dao::Connection::open(source, dao::Connection::Access::Exclusive);
    std::optional<dao::SideFile> copy;
    try {
        dao::SideFile::removeLeftovers(target);
        copy.emplace(target);
    } catch (const std::system_error& error) {
        fail_placing(error, target);
    }
    // The copy is flushed once, whole, before it takes its name, rather than page by page.
    connection->run(u"PRAGMA synchronous = OFF"_s);
    dao::Statement vacuum = connection->prepare(u"VACUUM INTO ?"_s);
    vacuum.bind(1, copy->path());
    while (vacuum.step()) {
    }
    try {
        copy->commit(dao::SideFile::Replace::no);
    } catch (const std::system_error& error) {
        fail_placing(error, target);
    }
}

QString engineVersion() {
    return u"SQLite "_s + QString::fromLatin1(sqlite3_libversion());
}
