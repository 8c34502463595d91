#pragma once

#include <QPixmap>
#include <QSize>
#include <QSizeF>
#include <functional>

class QPainter;

// A picture drawn rather than shipped, so that it stays sharp at any scale: `draw` paints on a canvas
// of `canvas` units, antialiased, scaled to `size`, on a transparent ground.
QPixmap drawOnCanvas(const QSize& size, const QSizeF& canvas, const std::function<void(QPainter&)>& draw);
