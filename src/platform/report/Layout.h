#pragma once

#include <QLineF>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <vector>

// A report's layout, read from its text file (data/layouts/README.md tells the format): what it reads,
// in which order, and how its pages look. Lengths are millimetres, font sizes points.

struct TextStyle {
    double size = 0; // 0: the layout's size
    bool bold = false;
    bool italic = false;
    Qt::Alignment align = Qt::AlignLeft;
    bool wrap = false; // on several lines inside its box
};

struct LayoutColumn {
    QString heading;
    double width = 0;
    Qt::Alignment align = Qt::AlignLeft;
    QString content; // a text with {fields}
};

// A drawn element of a record sheet, placed from the top-left corner of the area inside the margins.
struct SheetElement {
    // Flow: a text that stands below the previous one of its chain, or at the chain's start, and that
    // takes no room at all when it is empty; FlowStart opens a chain at a place and a width.
    enum class Kind { Text, Box, Line, Field, FlowStart, Flow };
    Kind kind = Kind::Text;
    QRectF rect; // Text, Box, Field (a field's height is its line's)
    QLineF line; // Line
    TextStyle style;
    QString caption;       // Field: printed before the line to fill
    QString content;       // Text, Field: a text with {fields}
    double spaceAbove = 0; // Flow: the gap above it when a text of its chain stands above
};

struct SortKey {
    QString field; // table.column
    bool numeric = false;
    bool descending = false;
};

struct TableLink {
    QString table; // the table joined
    QString left;  // table.column on the side already read
    QString right; // table.column of the joined table
};

struct Layout {
    enum class Kind { List, Statistic, Labels, Sheet };

    QString path;
    Kind kind = Kind::List;
    QString title;
    QPageSize pageSize{QPageSize::A4};
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    QMarginsF margins{15, 15, 15, 15}; // left, top, right, bottom
    QStringList fontFamilies{QStringLiteral("DejaVu Sans"), QStringLiteral("Arial")};
    double fontSize = 10;

    // Data: the main table, the tables joined to it, the order, the grouping, one row per value of `unique`.
    QString table;
    std::vector<TableLink> links;
    std::vector<SortKey> sort;
    QString group;
    QString unique;

    // Every page: left, centre and right texts of its header and footer.
    QString header[3];
    QString footer[3];

    // List.
    QString groupHeader;
    QString groupFooter;
    bool pageBreakPerGroup = false;
    std::vector<LayoutColumn> columns;
    double rowHeight = 6;

    // Statistic.
    QString countField;
    QString countHeading;
    QString emptyValue = QStringLiteral("(non renseigné)");
    enum class Chart { Bars, Pie, None };
    Chart chart = Chart::Bars;

    // Labels.
    int labelColumns = 3;
    int labelRows = 8;
    double labelWidth = 70;
    double labelHeight = 37;
    double labelPadding = 5;
    QStringList labelLines;

    // Record sheet: one page a record, or a single page when the layout reads no table.
    std::vector<SheetElement> elements;

    QPageLayout pageLayout() const;
    // Tables the query reads: the main one and those joined.
    QStringList tables() const;
};

// Reads a layout file; a missing file raises report_error::layout_missing, a text it cannot read
// report_error::layout_invalid with the line and the reason.
Layout readLayout(const QString& path);
Layout parseLayout(const QString& text, const QString& path);
