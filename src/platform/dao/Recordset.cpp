#include "platform/dao/Recordset.h"

#include "platform/errors/VbError.h"

namespace dao {
class RecordsetPrivate {};
} // namespace dao

Recordset::Recordset(std::shared_ptr<dao::Connection>, const QString&) {
    throw VbError(3251);
}
Recordset::~Recordset() = default;
const std::vector<FieldInfo>& Recordset::fields() const {
    throw VbError(3251);
}
int Recordset::fieldIndex(const QString&) const {
    return -1;
}
QVariant Recordset::field(const QString&) const {
    throw VbError(3251);
}
QVariant Recordset::field(int) const {
    throw VbError(3251);
}
void Recordset::setField(const QString&, const QVariant&) {
    throw VbError(3251);
}
void Recordset::setField(int, const QVariant&) {
    throw VbError(3251);
}
void Recordset::AddNew() {
    throw VbError(3251);
}
void Recordset::Edit() {
    throw VbError(3251);
}
void Recordset::Update() {
    throw VbError(3251);
}
void Recordset::CancelUpdate() {
    throw VbError(3251);
}
void Recordset::Delete() {
    throw VbError(3251);
}
EditMode Recordset::editMode() const {
    return EditMode::None;
}
void Recordset::MoveFirst() {
    throw VbError(3251);
}
void Recordset::MovePrevious() {
    throw VbError(3251);
}
void Recordset::MoveNext() {
    throw VbError(3251);
}
void Recordset::MoveLast() {
    throw VbError(3251);
}
bool Recordset::isEOF() const {
    return true;
}
bool Recordset::isBOF() const {
    return true;
}
int Recordset::AbsolutePosition() const {
    return -1;
}
void Recordset::setAbsolutePosition(int) {
    throw VbError(3251);
}
int Recordset::RecordCount() const {
    return 0;
}
QByteArray Recordset::Bookmark() const {
    throw VbError(3251);
}
void Recordset::setBookmark(const QByteArray&) {
    throw VbError(3251);
}
QByteArray Recordset::LastModified() const {
    throw VbError(3251);
}
void Recordset::FindFirst(const QString&) {
    throw VbError(3251);
}
void Recordset::FindNext(const QString&) {
    throw VbError(3251);
}
bool Recordset::NoMatch() const {
    return true;
}
void Recordset::Requery() {
    throw VbError(3251);
}
QVariant Recordset::valueAt(int, int) const {
    return {};
}
bool Recordset::isDeletedAt(int) const {
    return false;
}
