#include "platform/files/SafeSave.h"
#include "platform/report/Composer.h"
#include "platform/report/PagePainter.h"
#include "platform/report/Writers.h"
#include "platform/text/Windows1252.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr double twips_per_mm = 1440 / 25.4;

int twips(double mm) {
    return static_cast<int>(std::lround(mm * twips_per_mm));
}

// Text as rich text holds it: its own marks escaped, the letters of the Western code page by their
// byte there (every reader knows them), any other as a Unicode number.
QByteArray escaped(const QString& text) {
    QByteArray out;
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        if (u == u'\\' || u == u'{' || u == u'}') {
            out += '\\';
            out += static_cast<char>(u);
        } else if (u == u'\n') {
            out += "\\line ";
        } else if (u < 0x80) {
            out += static_cast<char>(u);
        } else if (const QByteArray b = vers_windows1252(QString(c)); b != "?") {
            out += "\\'" + b.toHex();
        } else {
            out += "\\u" + QByteArray::number(static_cast<int16_t>(u)) + '?';
        }
    }
    return out;
}

class RtfDocument {
public:
    explicit RtfDocument(const RenderedReport& report) : report_(report) {}

    QByteArray write() {
        const QRectF paper = report_.pageLayout.fullRect(QPageLayout::Millimeter);
        QByteArray body;
        for (int i = 0; i < report_.pageCount(); ++i)
            body += page(report_.page(i), i);
        if (fonts_.empty())
            fonts_.emplace(u"Arial"_s, 0);
        QByteArray out = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\n{\\fonttbl";
        for (const auto& [family, index] : fonts_)
            out += "{\\f" + QByteArray::number(index) + "\\fswiss\\fcharset0 " + escaped(family) + ";}";
        out += "}\n{\\colortbl;\\red0\\green0\\blue0;}\n";
        out += "{\\info{\\title " + escaped(report_.title) + "}}\n";
        out += "\\paperw" + QByteArray::number(twips(paper.width())) + "\\paperh" +
               QByteArray::number(twips(paper.height())) + "\\margl0\\margr0\\margt0\\margb0" +
               (report_.pageLayout.orientation() == QPageLayout::Landscape ? "\\landscape" : "") + "\n";
        out += "\\sectd\\pgwsxn" + QByteArray::number(twips(paper.width())) + "\\pghsxn" +
               QByteArray::number(twips(paper.height())) + "\\marglsxn0\\margrsxn0\\margtsxn0\\margbsxn0\n";
        out += body;
        out += "}\n";
        return out;
    }

private:
    int fontIndex(const FontSpec& f) {
        const QString family = f.families.value(0, u"Arial"_s);
        return fonts_.try_emplace(family, static_cast<int>(fonts_.size())).first->second;
    }

    // A page: a tiny paragraph that holds its shapes, the frames of its texts, a tiny paragraph that
    // closes it; the next page's first paragraph starts a new page.
    QByteArray page(const ReportPage& p, int index) {
        QByteArray shapes, frames;
        for (const PageElement& e : p.elements) {
            if (const auto* t = std::get_if<TextElement>(&e))
                frames += frame(*t);
            else if (const auto* l = std::get_if<LineElement>(&e))
                shapes += shape(20, l->line.p1(), l->line.p2(), l->width, Qt::transparent, l->dotted);
            else if (const auto* b = std::get_if<BoxElement>(&e))
                shapes += shape(1, b->rect.topLeft(), b->rect.bottomRight(), b->width, b->fill, false);
            else if (const auto* c = std::get_if<ChartElement>(&e))
                frames += picture(*c);
            else if (const auto* i = std::get_if<ImageElement>(&e))
                frames += picture(*i);
        }
        QByteArray out =
            "\\pard\\plain" + QByteArray(index > 0 ? "\\pagebb" : "") + "\\fs2 " + shapes + "\\par\n";
        out += frames;
        out += "\\pard\\plain\\fs2\\par\n";
        return out;
    }

    static QByteArray place(const QRectF& r) {
        return "\\pard\\plain\\pvpg\\phpg\\posx" + QByteArray::number(twips(r.left())) + "\\posy" +
               QByteArray::number(twips(r.top())) + "\\absw" +
               QByteArray::number(std::max(1, twips(r.width()))) + "\\absh-" +
               QByteArray::number(std::max(1, twips(r.height()))) + "\\dxfrtext0\\dfrmtxtx0\\dfrmtxty0";
    }

    // The text fitted as the painter fits it: smaller, then shortened, never spilling out of its box.
    QByteArray frame(const TextElement& t) {
        if (t.text.isEmpty())
            return {};
        FontSpec f = t.font;
        QString shown = t.text;
        if (!t.wrap) {
            const double width = textWidth(f, shown);
            if (width > t.rect.width()) {
                f.size *= std::max(0.7, 0.98 * t.rect.width() / width);
                // Shortened only when even the smaller size does not fit.
                if (textWidth(f, shown) > t.rect.width()) {
                    while (shown.size() > 1 && textWidth(f, shown + u"…"_s) > t.rect.width())
                        shown.chop(1);
                    shown += u"…"_s;
                }
            }
        }
        // A line of text is centred in its box as the painter centres it.
        const double line = f.size * 25.4 / 72 * 1.2;
        QRectF r = t.rect;
        if (!t.wrap && (t.align & Qt::AlignVCenter) && r.height() > line)
            r.adjust(0, (r.height() - line) / 2, 0, 0);
        const QByteArray align = t.align & Qt::AlignHCenter ? "\\qc"
                                 : t.align & Qt::AlignRight ? "\\qr"
                                                            : "\\ql";
        return place(r) + align + "\\sl0\\sb0\\sa0\\f" + QByteArray::number(fontIndex(f)) + "\\fs" +
               QByteArray::number(std::lround(f.size * 2)) + (f.bold ? "\\b" : "") + (f.italic ? "\\i" : "") +
               " " + escaped(shown) + "\\par\n";
    }

    static QByteArray property(const char* name, const QByteArray& value) {
        return "{\\sp{\\sn " + QByteArray(name) + "}{\\sv " + value + "}}";
    }

    // A line (type 20) or a rectangle (type 1) placed on the page, behind the text.
    static QByteArray shape(int type, QPointF a, QPointF b, double width, const QColor& fill, bool dotted) {
        const QRectF r = QRectF(a, b).normalized();
        QByteArray out =
            "{\\shp{\\*\\shpinst\\shpleft" + QByteArray::number(twips(r.left())) + "\\shptop" +
            QByteArray::number(twips(r.top())) + "\\shpright" + QByteArray::number(twips(r.right())) +
            "\\shpbottom" + QByteArray::number(twips(r.bottom())) +
            "\\shpfhdr0\\shpbxpage\\shpbxignore\\shpbypage\\shpbyignore\\shpwr3\\shpwrk0\\shpfblwtxt1\\shpz0";
        out += property("shapeType", QByteArray::number(type));
        if (type == 20 && (a.x() > b.x()) != (a.y() > b.y()))
            out += property("fFlipV", "1");
        const bool filled = fill != Qt::transparent;
        out += property("fFilled", filled ? "1" : "0");
        if (filled)
            out +=
                property("fillColor", QByteArray::number(fill.red() | fill.green() << 8 | fill.blue() << 16));
        out += property("fLine", width > 0 ? "1" : "0");
        if (width > 0)
            out += property("lineWidth", QByteArray::number(std::lround(width * 36000))); // EMU
        if (dotted)
            out += property("lineDashing", "2");
        out += "}}";
        return out;
    }

    // A chart as a picture at 200 dots an inch, in a frame where the page has it.
    // A chart or a picture as drawn into its box, embedded as PNG.
    template <class Element> static QByteArray picture(const Element& c) {
        const double dotsPerMm = 200 / 25.4;
        QImage image(QSize(std::lround(c.rect.width() * dotsPerMm), std::lround(c.rect.height() * dotsPerMm)),
                     QImage::Format_RGB32);
        image.setDotsPerMeterX(std::lround(dotsPerMm * 1000));
        image.setDotsPerMeterY(std::lround(dotsPerMm * 1000));
        image.fill(Qt::white);
        {
            QPainter painter(&image);
            const QRectF all(QPointF(0, 0), QSizeF(image.size()));
            if constexpr (std::is_same_v<Element, ChartElement>)
                paintChart(painter, c, all, 1.0);
            else
                paintImage(painter, c, all);
        }
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return place(c.rect) + "{\\pict\\pngblip\\picw" + QByteArray::number(image.width()) + "\\pich" +
               QByteArray::number(image.height()) + "\\picwgoal" + QByteArray::number(twips(c.rect.width())) +
               "\\pichgoal" + QByteArray::number(twips(c.rect.height())) + "\n" + png.toHex() + "}\\par\n";
    }

    const RenderedReport& report_;
    std::map<QString, int> fonts_;
};

} // namespace

void writeRtf(const RenderedReport& report, QIODevice& device) {
    writeAll(device, RtfDocument(report).write());
}
