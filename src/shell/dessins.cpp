#include "shell/dessins.h"

#include "platform/forms/Canvas.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRadialGradient>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

// A filled shape through its corners, with the current brush.
void polygone(QPainter& p, std::initializer_list<QPointF> sommets) {
    p.drawPolygon(QPolygonF(QList<QPointF>(sommets)));
}

void ciel_et_sol(QPainter& p) {
    QLinearGradient ciel(0, 0, 0, 70);
    ciel.setColorAt(0, QColor(0x7d, 0xb9, 0xe8));
    ciel.setColorAt(1, QColor(0xe3, 0xf1, 0xfb));
    p.fillRect(QRectF(0, 0, 160, 72), ciel);
    QRadialGradient soleil(QPointF(132, 18), 14);
    soleil.setColorAt(0, QColor(0xff, 0xe0, 0x6a));
    soleil.setColorAt(0.55, QColor(0xff, 0xc9, 0x3c));
    soleil.setColorAt(1, QColor(0xff, 0xc9, 0x3c, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(soleil);
    p.drawEllipse(QPointF(132, 18), 14, 14);
    p.setBrush(QColor(255, 255, 255, 220));
    for (const QPointF& c : {QPointF(28, 16), QPointF(36, 13), QPointF(44, 17)})
        p.drawEllipse(c, 8, 5);
    QLinearGradient herbe(0, 70, 0, 100);
    herbe.setColorAt(0, QColor(0x8c, 0xc6, 0x5a));
    herbe.setColorAt(1, QColor(0x5e, 0x9b, 0x3a));
    p.fillRect(QRectF(0, 70, 160, 30), herbe);
    p.setBrush(QColor(0xd9, 0xc8, 0xa6));
    polygone(p, {{72, 100}, {76, 80}, {84, 80}, {92, 100}});
}

void arbre(QPainter& p, QPointF pied, double h) {
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x7a, 0x52, 0x30));
    p.drawRect(QRectF(pied.x() - h * 0.06, pied.y() - h * 0.45, h * 0.12, h * 0.45));
    p.setBrush(QColor(0x3f, 0x8f, 0x3a));
    p.drawEllipse(QPointF(pied.x(), pied.y() - h * 0.62), h * 0.3, h * 0.34);
    p.setBrush(QColor(0x52, 0xa6, 0x48));
    p.drawEllipse(QPointF(pied.x() - h * 0.08, pied.y() - h * 0.7), h * 0.18, h * 0.2);
}

void fenêtre(QPainter& p, QRectF r) {
    p.setPen(QPen(QColor(0xf7, 0xf3, 0xea), 1.2));
    p.setBrush(QColor(0x9f, 0xd0, 0xf0));
    p.drawRect(r);
    p.drawLine(QPointF(r.center().x(), r.top()), QPointF(r.center().x(), r.bottom()));
    p.drawLine(QPointF(r.left(), r.center().y()), QPointF(r.right(), r.center().y()));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x2f, 0x5d, 0x8a));
    p.drawRect(QRectF(r.left() - 2.2, r.top(), 2, r.height()));
    p.drawRect(QRectF(r.right() + 0.2, r.top(), 2, r.height()));
}

void école(QPainter& p) {
    // Two wings and a raised centre, as the village schools built around 1900.
    const QColor mur(0xf4, 0xe6, 0xc8), toit(0xb8, 0x4a, 0x32), pierre(0xd8, 0xc4, 0x9c);
    p.setPen(Qt::NoPen);
    p.setBrush(mur);
    p.drawRect(QRectF(30, 50, 100, 30));
    p.drawRect(QRectF(62, 36, 36, 44));
    p.setBrush(pierre);
    p.drawRect(QRectF(30, 78, 100, 3));
    p.setBrush(toit);
    polygone(p, {{26, 51}, {40, 42}, {120, 42}, {134, 51}});
    polygone(p, {{58, 37}, {80, 22}, {102, 37}});
    // The bell turret and its flag.
    p.setBrush(mur);
    p.drawRect(QRectF(76, 14, 8, 10));
    p.setBrush(toit);
    polygone(p, {{74, 15}, {80, 8}, {86, 15}});
    p.setPen(QPen(QColor(0x55, 0x55, 0x55), 0.8));
    p.drawLine(QPointF(80, 8), QPointF(80, 1.5));
    p.setPen(Qt::NoPen);
    const double fx = 80.4, fy = 1.5;
    p.setBrush(QColor(0x00, 0x55, 0xa4));
    p.drawRect(QRectF(fx, fy, 3, 4));
    p.setBrush(Qt::white);
    p.drawRect(QRectF(fx + 3, fy, 3, 4));
    p.setBrush(QColor(0xef, 0x41, 0x35));
    p.drawRect(QRectF(fx + 6, fy, 3, 4));
    // The name plate and the clock.
    p.setBrush(QColor(0x2f, 0x5d, 0x8a));
    p.drawRoundedRect(QRectF(66, 38, 28, 6), 1, 1);
    p.setPen(Qt::white);
    QFont police(u"DejaVu Sans"_s);
    police.setPixelSize(4);
    police.setBold(true);
    p.setFont(police);
    p.drawText(QRectF(66, 38, 28, 6), Qt::AlignCenter, u"ÉCOLE"_s);
    p.setPen(QPen(QColor(0x55, 0x55, 0x55), 0.6));
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(80, 31), 3.2, 3.2);
    p.drawLine(QPointF(80, 31), QPointF(80, 29));
    p.drawLine(QPointF(80, 31), QPointF(81.6, 31));
    // Door and windows.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x2f, 0x5d, 0x8a));
    QPainterPath porte;
    porte.moveTo(75, 80);
    porte.lineTo(75, 53);
    porte.arcTo(QRectF(75, 48, 10, 10), 180, -180);
    porte.lineTo(85, 80);
    porte.closeSubpath();
    p.drawPath(porte);
    for (double x : {38.0, 50.0, 104.0, 116.0})
        fenêtre(p, QRectF(x, 56, 7, 12));
}

void cahier(QPainter& p) {
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 40));
    p.drawRoundedRect(QRectF(16, 14, 64, 80), 4, 4);
    p.setBrush(QColor(0x2f, 0x5d, 0x8a));
    p.drawRoundedRect(QRectF(12, 10, 64, 80), 4, 4);
    p.setBrush(QColor(0xf7, 0xf3, 0xea));
    p.drawRoundedRect(QRectF(22, 26, 44, 20), 2, 2);
    p.setPen(QPen(QColor(0x2f, 0x5d, 0x8a), 1.4));
    for (double y : {32.0, 37.0, 42.0})
        p.drawLine(QPointF(26, y), QPointF(62, y));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x1e, 0x40, 0x63));
    p.drawRect(QRectF(12, 10, 6, 80));
    // The pencil, across the book.
    p.save();
    p.translate(62, 70);
    p.rotate(-45);
    p.setBrush(QColor(0xf2, 0xb1, 0x34));
    p.drawRect(QRectF(-30, -5, 46, 10));
    p.setBrush(QColor(0xe8, 0x8f, 0x8f));
    p.drawRect(QRectF(-38, -5, 8, 10));
    p.setBrush(QColor(0xb0, 0xb0, 0xb0));
    p.drawRect(QRectF(-31, -5, 3, 10));
    p.setBrush(QColor(0xf1, 0xd9, 0xb5));
    polygone(p, {{16, -5}, {28, 0}, {16, 5}});
    p.setBrush(QColor(0x33, 0x33, 0x33));
    polygone(p, {{24, -1.7}, {28, 0}, {24, 1.7}});
    p.restore();
}

} // namespace

QPixmap dessin_école(const QSize& taille) {
    return drawOnCanvas(taille, QSizeF(160, 100), [](QPainter& p) {
        ciel_et_sol(p);
        arbre(p, QPointF(16, 84), 40);
        arbre(p, QPointF(146, 86), 34);
        école(p);
    });
}

QPixmap dessin_cahier(const QSize& taille) {
    return drawOnCanvas(taille, QSizeF(100, 100), cahier);
}
