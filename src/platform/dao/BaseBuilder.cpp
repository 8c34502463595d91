#include "platform/dao/BaseBuilder.h"

#include "platform/dao/Connection.h"
#include "platform/errors/VbError.h"

#include <QFile>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

// Owns the connection of the base being written.
class NewBase {
public:
    explicit NewBase(const QString& path) {
        if (sqlite3_open_v2(QFile::encodeName(path).constData(), &db_,
                            SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) != SQLITE_OK)
            throw VbError(3043);
        dao::register_jet_functions(db_, collation_);
    }
    ~NewBase() { sqlite3_close_v2(db_); }
    NewBase(const NewBase&) = delete;
    NewBase& operator=(const NewBase&) = delete;

    void run(const QString& sql, int errorNumber) {
        char* message = nullptr;
        if (sqlite3_exec(db_, sql.toUtf8().constData(), nullptr, nullptr, &message) != SQLITE_OK) {
            const QString text = QString::fromUtf8(message ? message : "");
            sqlite3_free(message);
            throw VbError::avec(errorNumber, {text});
        }
    }

private:
    dao::FrenchCollation collation_; // called by the handle's collations and functions
    sqlite3* db_ = nullptr;
};

} // namespace

void create_base(const QString& target, const QStringList& scripts) {
    const QString aside = target + u".en_cours"_s;
    QFile::remove(aside);
    try {
        NewBase base(aside);
        base.run(u"BEGIN"_s, 3043);
        for (const QString& script : scripts)
            base.run(script, 3075);
        base.run(dao::collation_version_pragma(), 3043);
        base.run(u"COMMIT"_s, 3043);
        base.run(u"VACUUM"_s, 3043); // also gives the file the page size the schema asks for
    } catch (...) {
        QFile::remove(aside);
        throw;
    }
    QFile::remove(target);
    if (!QFile::rename(aside, target)) {
        QFile::remove(aside);
        throw VbError(3043);
    }
}
