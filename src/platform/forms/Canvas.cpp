#include "platform/forms/Canvas.h"

#include <QPainter>

QPixmap drawOnCanvas(const QSize& size, const QSizeF& canvas, const std::function<void(QPainter&)>& draw) {
    QPixmap image(size);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size.width() / canvas.width(), size.height() / canvas.height());
    draw(p);
    return image;
}
