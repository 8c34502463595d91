#include "platform/files/SafeSave.h"

#include "platform/errors/VbError.h"

#include <QSaveFile>

namespace {

int numberFor(QFileDevice::FileError error) {
    switch (error) {
    case QFileDevice::PermissionsError:
        return 70;
    case QFileDevice::ResourceError: // ENOSPC and its kin
        return 61;
    default:
        return 75;
    }
}

} // namespace

void writeAll(QIODevice& device, const QByteArray& bytes) {
    if (device.write(bytes) == bytes.size())
        return;
    auto* file = qobject_cast<QFileDevice*>(&device);
    throw VbError(file ? numberFor(file->error()) : 75);
}

void saveWhole(const QString& path, const std::function<void(QIODevice&)>& write) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw VbError(numberFor(file.error()));
    try {
        write(file);
    } catch (...) {
        file.cancelWriting();
        throw;
    }
    if (!file.commit())
        throw VbError(numberFor(file.error()));
}
