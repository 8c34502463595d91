#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

class QLabel;

// A picture control's LoadPicture into a frame: the image file stretched to `frame`. A path that is
// empty or names no file gives the empty picture; a file that is no image raises 481 "Image
// incorrecte". Large photos are decoded straight at the frame's size, and the last few are kept, so
// that moving through records with photos stays instant.
QPixmap loadPicture(const QString& path, QSize frame);

// The picture shown in a label stretched to its frame, or the label cleared.
void showPicture(QLabel& label, const QString& path);
