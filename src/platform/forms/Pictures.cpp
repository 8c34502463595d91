#include "platform/forms/Pictures.h"

#include "platform/errors/VbError.h"

#include <QCache>
#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>
#include <QLabel>
#include <memory>

namespace {

struct Key {
    QString path;
    QDateTime modified;
    QSize frame;
    bool operator==(const Key&) const = default;
};

size_t qHash(const Key& key, size_t seed = 0) {
    return qHashMulti(seed, key.path, key.modified, key.frame.width(), key.frame.height());
}

// A few screens of photos, each at its frame's size: a back-and-forth over a class is instant.
QCache<Key, QPixmap>& cache() {
    static QCache<Key, QPixmap> pictures(64);
    return pictures;
}

} // namespace

QPixmap loadPicture(const QString& path, QSize frame) {
    const QFileInfo file(path);
    if (path.isEmpty() || !file.isFile())
        return {};
    const Key key{file.absoluteFilePath(), file.lastModified(), frame};
    if (const QPixmap* kept = cache().object(key))
        return *kept;
    QImageReader reader(path);
    reader.setAutoTransform(true);
    // JPEG decodes at a fraction of its size far faster than whole; the frame is all we show.
    if (reader.supportsOption(QImageIOHandler::ScaledSize) && frame.isValid())
        reader.setScaledSize(frame);
    const QImage image = reader.read();
    if (image.isNull())
        throw VbError(481);
    const QPixmap picture =
        QPixmap::fromImage(image.scaled(frame, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    cache().insert(key, std::make_unique<QPixmap>(picture).release()); // the cache owns its copy
    return picture;
}

void showPicture(QLabel& label, const QString& path) {
    const QPixmap picture = loadPicture(path, label.contentsRect().size());
    if (picture.isNull())
        label.clear();
    else
        label.setPixmap(picture);
}
