#pragma once

#include <QString>
#include <functional>

class QIODevice;

// Writes a whole file through `write`: the bytes go to a file beside the target, which takes the
// target's place only once everything is written and flushed. On any failure (a VbError thrown by
// `write`, a full disk, a refused write) the target is left as it was and the failure is raised as
// a VbError: 61 for a full disk, 70 for a refused access, 75 otherwise. Reports, exports and copies
// are thus complete or absent, never torn.
void saveWhole(const QString& path, const std::function<void(QIODevice&)>& write);

// Writes `bytes` to `device`, raising 61 (disk full) or 75 when the device takes fewer.
void writeAll(QIODevice& device, const QByteArray& bytes);
