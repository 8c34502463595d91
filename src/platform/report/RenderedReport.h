#pragma once

#include <QColor>
#include <QImage>
#include <QLineF>
#include <QPageLayout>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <variant>
#include <vector>

// A report laid out once, as every destination receives it: pages of placed elements, and the same
// rows as typed cells for a spreadsheet. Positions are millimetres from the paper's top-left corner.

struct FontSpec {
    QStringList families;
    double size = 10; // points
    bool bold = false;
    bool italic = false;
};

// A text in its box. Without wrap it stays on one line: too long, it is drawn smaller, then shortened
// with an ellipsis, never cut off mid-letter at the box's edge.
struct TextElement {
    QRectF rect;
    QString text;
    FontSpec font;
    Qt::Alignment align = Qt::AlignLeft | Qt::AlignVCenter;
    bool wrap = false;
};

struct LineElement {
    QLineF line;
    double width = 0.25; // mm
    bool dotted = false;
};

struct BoxElement {
    QRectF rect;
    double width = 0.3; // mm; 0 for no border
    QColor fill = Qt::transparent;
};

struct ChartElement {
    QRectF rect;
    QString title;
    QStringList categories;
    std::vector<double> values;
    bool pie = false;
    FontSpec font;
};

// A picture scaled into its box, its proportions kept, centred.
struct ImageElement {
    QRectF rect;
    QImage image;
};

using PageElement = std::variant<TextElement, LineElement, BoxElement, ChartElement, ImageElement>;

struct ReportPage {
    std::vector<PageElement> elements;
};

// What a spreadsheet receives: a sheet of rows, the headings first, each cell a QString, a number
// (double or qlonglong), a QDate or empty.
using SheetRow = std::vector<QVariant>;
struct ReportSheet {
    QString name;
    std::vector<SheetRow> rows;
};

// Pages and rows are made when asked for, so that the first page shows before the last is laid out
// and a spreadsheet of a hundred thousand rows never stands whole in memory.
class RenderedReport {
public:
    virtual ~RenderedReport() = default;

    virtual int pageCount() const = 0;
    virtual ReportPage page(int index) const = 0; // 0-based
    virtual int sheetRowCount() const = 0;        // the headings included
    virtual SheetRow sheetRow(int index) const = 0;
    // All the rows at once.
    ReportSheet sheet() const {
        ReportSheet s{title, {}};
        for (int i = 0; i < sheetRowCount(); ++i)
            s.rows.push_back(sheetRow(i));
        return s;
    }

    QString title;
    QPageLayout pageLayout;
};
