#include "platform/report/PagePainter.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QFontMetricsF>
#include <QGraphicsScene>
#include <QHorizontalBarSeries>
#include <QPainter>
#include <QPieSeries>
#include <QValueAxis>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QFont fontOf(const FontSpec& spec, double scale) {
    QFont f;
    f.setFamilies(spec.families);
    f.setPointSizeF(std::max(1.0, spec.size * scale));
    f.setBold(spec.bold);
    f.setItalic(spec.italic);
    // No ligatures: "ff" and "fi" stay two letters that a reader of the PDF can search and copy.
    f.setLetterSpacing(QFont::PercentageSpacing, 100.001);
    return f;
}

QRectF toDevice(const QRectF& mm, double k) {
    return {mm.left() * k, mm.top() * k, mm.width() * k, mm.height() * k};
}

// A text too long for its box is drawn smaller, down to seven tenths of its size, then shortened.
void drawText(QPainter& painter, const TextElement& t, double k, double pointScale) {
    if (t.text.isEmpty())
        return;
    const QRectF box = toDevice(t.rect, k);
    QFont f = fontOf(t.font, pointScale);
    painter.setFont(f);
    if (t.wrap) {
        // Lines that would run out of their box are drawn smaller, down to seven tenths of their size.
        const int flags = static_cast<int>(t.align) | Qt::TextWordWrap;
        for (double shrink = 0.95; shrink >= 0.7; shrink -= 0.05) {
            const QRectF needed = painter.boundingRect(box, flags, t.text);
            if (needed.height() <= box.height() + 0.5 && needed.width() <= box.width() + 0.5)
                break;
            f.setPointSizeF(fontOf(t.font, pointScale).pointSizeF() * shrink);
            painter.setFont(f);
        }
        painter.drawText(box, flags, t.text);
        return;
    }
    QString shown = t.text;
    qreal width = QFontMetricsF(f, painter.device()).horizontalAdvance(shown);
    if (width > box.width()) {
        const double shrink = std::max(0.7, 0.98 * box.width() / width); // a size is not scaled quite evenly
        f.setPointSizeF(f.pointSizeF() * shrink);
        painter.setFont(f);
        const QFontMetricsF metrics(f, painter.device());
        if (metrics.horizontalAdvance(shown) > box.width())
            shown = metrics.elidedText(shown, Qt::ElideRight, box.width());
    }
    painter.drawText(box, static_cast<int>(t.align) | Qt::TextSingleLine, shown);
}

} // namespace

void paintChart(QPainter& painter, const ChartElement& c, const QRectF& target, double pointScale) {
    // The chart is laid out at the size it has on paper in points, then scaled to the device.
    const QSizeF logical(c.rect.width() / 25.4 * 96, c.rect.height() / 25.4 * 96);
    QGraphicsScene scene;
    auto* chart = new QChart; // owned by the scene
    scene.addItem(chart);
    chart->setAnimationOptions(QChart::NoAnimation);
    chart->setBackgroundVisible(false);
    chart->setDropShadowEnabled(false);
    QFont base = fontOf(c.font, 1.0);
    QFont titleFont = base;
    titleFont.setPointSizeF(base.pointSizeF() + 2);
    titleFont.setBold(true);
    chart->setTitleFont(titleFont);
    chart->setTitle(c.title);
    chart->setMargins(QMargins(4, 4, 4, 4));
    const QColor bar(0x3b, 0x6e, 0xa5);
    if (c.pie) {
        auto* series = new QPieSeries;
        for (size_t i = 0; i < c.values.size(); ++i)
            series->append(c.categories.value(static_cast<qsizetype>(i)), c.values[i]);
        for (QPieSlice* slice : series->slices()) {
            slice->setLabel(u"%1 : %2"_s.arg(slice->label()).arg(slice->value()));
            slice->setLabelVisible(true);
            slice->setLabelFont(base);
        }
        chart->addSeries(series);
        chart->legend()->hide();
    } else {
        // Categories too long to stand under their bars lie along horizontal ones, read from the top.
        QFont small = base;
        small.setPointSizeF(base.pointSizeF() * 0.85);
        const QFontMetricsF metrics(small);
        double widest = 0;
        for (const QString& category : c.categories)
            widest = std::max(widest, metrics.horizontalAdvance(category));
        const bool horizontal =
            !c.categories.isEmpty() && widest > 0.6 * (logical.width() - 80) / c.categories.size();
        QStringList categories = c.categories;
        // The axis keeps one category a name: a name met again takes invisible spaces to stay apart.
        for (qsizetype i = 1; i < categories.size(); ++i)
            while (categories.indexOf(categories[i]) < i)
                categories[i] += QChar(0x200B);
        std::vector<double> counts = c.values;
        if (horizontal) {
            std::reverse(categories.begin(), categories.end());
            std::reverse(counts.begin(), counts.end());
        }
        auto* set = new QBarSet(c.title);
        set->setColor(bar);
        set->setBorderColor(bar.darker(120));
        set->setLabelColor(Qt::black);
        set->setLabelFont(base);
        double top = 0;
        for (double v : counts) {
            *set << v;
            top = std::max(top, v);
        }
        QAbstractBarSeries* series =
            horizontal ? static_cast<QAbstractBarSeries*>(new QHorizontalBarSeries) : new QBarSeries;
        series->append(set);
        series->setLabelsVisible(true);
        series->setLabelsPosition(QAbstractBarSeries::LabelsOutsideEnd);
        series->setLabelsPrecision(12);
        series->setBarWidth(0.6);
        chart->addSeries(series);
        auto* axis = new QBarCategoryAxis;
        axis->append(categories);
        axis->setLabelsFont(small);
        axis->setTruncateLabels(!horizontal);
        chart->addAxis(axis, horizontal ? Qt::AlignLeft : Qt::AlignBottom);
        series->attachAxis(axis);
        auto* values = new QValueAxis;
        // Whole numbers on the axis, with room above the tallest bar for its label.
        const double step =
            std::max(1.0, std::pow(10.0, std::floor(std::log10(std::max(1.0, top * 1.15)))) / 2);
        const double ceiling = std::ceil(top * 1.15 / step) * step;
        values->setRange(0, std::max(1.0, ceiling));
        values->setTickType(QValueAxis::TicksDynamic);
        values->setTickAnchor(0);
        values->setTickInterval(ceiling / step > 10 ? step * 2 : step);
        values->setLabelFormat(u"%d"_s);
        values->setLabelsFont(base);
        values->setGridLineColor(QColor(0xd0, 0xd0, 0xd0));
        chart->addAxis(values, horizontal ? Qt::AlignBottom : Qt::AlignLeft);
        series->attachAxis(values);
        chart->legend()->hide();
    }
    chart->setGeometry(QRectF(QPointF(0, 0), logical));
    scene.setSceneRect(QRectF(QPointF(0, 0), logical));
    (void)pointScale;
    scene.render(&painter, target, scene.sceneRect(), Qt::KeepAspectRatio);
}

void paintImage(QPainter& painter, const ImageElement& picture, const QRectF& target) {
    QSizeF size = QSizeF(picture.image.size()).scaled(target.size(), Qt::KeepAspectRatio);
    const QRectF placed(target.center() - QPointF(size.width() / 2, size.height() / 2), size);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
    painter.drawImage(placed, picture.image);
}

void paintPage(QPainter& painter, const ReportPage& page, double k, double pointScale) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setRenderHint(QPainter::TextAntialiasing, true);
    for (const PageElement& element : page.elements) {
        if (const auto* box = std::get_if<BoxElement>(&element)) {
            painter.setPen(box->width > 0 ? QPen(Qt::black, box->width * k) : QPen(Qt::NoPen));
            painter.setBrush(box->fill == Qt::transparent ? QBrush(Qt::NoBrush) : QBrush(box->fill));
            painter.drawRect(toDevice(box->rect, k));
        } else if (const auto* line = std::get_if<LineElement>(&element)) {
            QPen pen(Qt::black, line->width * k);
            if (line->dotted) {
                pen.setColor(QColor(0x60, 0x60, 0x60));
                pen.setStyle(Qt::DotLine);
            }
            painter.setPen(pen);
            painter.drawLine(QLineF(line->line.p1() * k, line->line.p2() * k));
        } else if (const auto* t = std::get_if<TextElement>(&element)) {
            painter.setPen(Qt::black);
            drawText(painter, *t, k, pointScale);
        } else if (const auto* chart = std::get_if<ChartElement>(&element)) {
            paintChart(painter, *chart, toDevice(chart->rect, k), pointScale);
        } else if (const auto* picture = std::get_if<ImageElement>(&element)) {
            paintImage(painter, *picture, toDevice(picture->rect, k));
        }
    }
    painter.restore();
}
