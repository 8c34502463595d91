#include "platform/dao/Database.h"

#include "platform/dao/Recordset.h"
#include "platform/errors/VbError.h"

#include <QStringList>

namespace dao {
class Connection {};
} // namespace dao

Database::Database(QString path, std::shared_ptr<dao::Connection> connection)
    : path_(std::move(path)), connection_(std::move(connection)) {}
Database::~Database() = default;
std::shared_ptr<Database> Database::open(const QString& path) {
    throw VbError(3024);
}
int Database::Execute(const QString&) {
    throw VbError(3251);
}
std::unique_ptr<Recordset> Database::OpenRecordset(const QString& source) {
    return std::make_unique<Recordset>(connection_, source);
}
void Database::Close() {
    connection_.reset();
}
bool Database::isOpen() const {
    return connection_ != nullptr;
}
QStringList Database::tableNames() const {
    return {};
}
void CompactDatabase(const QString&, const QString&) {
    throw VbError(3251);
}
bool fichier_en_usage(const QString&) {
    return false;
}
