#pragma once

#include <QString>
#include <memory>

class Recordset;

namespace dao {
class Connection;
}

// A work database file opened through our Jet-dialect store over SQLite. Several Database objects may
// be open on one file at once (one per data source, or in another running copy of the program); each
// holds a shared advisory lock on the file until Close() or destruction, so that compacting, deleting
// or copying the file fails while anybody uses it.
//
// Every failure is a VbError with the engine's number: 3024 missing file, 3343 not a database or
// damaged (or no regular file at all), 3051 file locked, 3260 file held by another program's write,
// 3075 syntax in a query, 3022 duplicate key, 3163 text too long, 3421 not a date, 3044 bad path,
// 3065 Execute of a SELECT, 3078 unknown table.
class Database {
public:
    // Opens an existing file whatever its extension (.mdb, .mdz).
    static std::shared_ptr<Database> open(const QString& path);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    // Runs one statement of the Jet dialect ("DELETE * FROM élèves", "UPDATE ... WHERE x = True"),
    // in a transaction of its own. Returns the number of rows it changed.
    int Execute(const QString& jetSql);

    // A dynaset over a table name ("élèves", "[école]") or a single-table SELECT of the Jet dialect.
    std::unique_ptr<Recordset> OpenRecordset(const QString& tableOrSelect);

    // Groups several writes into one transaction (each Update, Delete and Execute is otherwise its own).
    void BeginTrans();
    // The same for a long reading: until CommitTrans, every read sees one state of the file and the
    // file's lock is taken once, not once a row. Other readers go on; a write inside takes the write
    // lock then.
    void BeginReadTrans();
    void CommitTrans();
    void Rollback();

    // Releases the file and its lock. Recordsets still open on it raise 3420 from then on.
    void Close();
    bool isOpen() const;
    const QString& path() const { return path_; }

    // Names of the tables of the file, in the file's order.
    QStringList tableNames() const;

private:
    Database(QString path, std::shared_ptr<dao::Connection> connection);
    // The open connection; 3420 once the database is closed.
    dao::Connection& connection() const;

    QString path_;
    std::shared_ptr<dao::Connection> connection_;
};

// Writes a new, complete and compacted copy of source at target. Fails with 3024 if source is missing,
// 3343 if it is no database, 3044 if target's folder does not exist, 3204 if target exists, 3026 when
// the disk is full, and 3045 ("already in use") if anybody, in this program or another, holds source
// open. The copy is made beside the target and named only once it is whole on the disk (dao::SideFile):
// an interruption never leaves a torn base under the target's name.
void CompactDatabase(const QString& source, const QString& target);

// The storage engine under the program, with its version as the library reports it at run time.
QString engineVersion();
