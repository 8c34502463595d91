#pragma once

#include <QDate>
#include <QLineF>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <optional>
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
    bool wrap = false; // on several lines inside its cell; "\\" in the text starts a new one
    QString content;   // a text with {fields}
};

// A drawn element of a record sheet, placed from the top-left corner of the area inside the margins.
struct SheetElement {
    // Flow: a text that stands below the previous one of its chain, or at the chain's start, and that
    // takes no room at all when it is empty; FlowStart opens a chain at a place and a width.
    enum class Kind { Text, Box, Line, Field, Image, FlowStart, Flow };
    Kind kind = Kind::Text;
    QRectF rect; // Text, Box, Field (a field's height is its line's)
    QLineF line; // Line
    TextStyle style;
    QString caption;       // Field: printed before the line to fill
    QString content;       // Text, Field: a text with {fields}; Image: the picture file's path
    double spaceAbove = 0; // Flow: the gap above it when a text of its chain stands above
};

struct SortKey {
    QString field; // table.column, or table.column|âge
    bool numeric = false;
    bool descending = false;
    QStringList order; // these values first, in this order, then the others
};

// A table joined to the rows already read: each of them reaches the first row of that table (in the
// order of its records) whose column holds the same value, or none; a join never adds a row.
struct TableLink {
    QString table; // the table joined
    QString alias; // the name the layout gives it, the table's own unless it is joined twice
    QString left;  // table.column on the side already read
    QString right; // alias.column of the joined table
};

// Lines that one row gives: each names the same values (the parent 1 and the parent 2 of a family), as a
// field {table.column} or a plain text; a line whose first value is empty is left out. The layout's
// texts read them as {ligne.name}.
struct RowSet {
    QStringList names;
    std::vector<QStringList> lines;
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
    QString filter;        // a condition of the layout itself, in the grammar of a selection
    QString referenceDate; // "", "aujourd'hui", "JJ/MM" (in the school year of the day) or "JJ/MM/AAAA"
    RowSet rowSet;

    // Every page: left, centre and right texts of its header and footer.
    QString header[3];
    QString footer[3];

    // List.
    QString groupHeader;
    QString groupFooter;
    bool pageBreakPerGroup = false;
    std::vector<LayoutColumn> columns;
    double rowHeight = 6;
    bool grid = false;     // every cell framed, for a grid to fill by hand
    int dayColumnsAt = -1; // where one column a day of the reference date's month comes in; -1: none

    // Statistic.
    QString countField;
    QString countHeading;
    QString valueText;    // how a counted value reads, from the first of its rows; the value itself if empty
    QString chartText;    // the same under its bar or in its slice; the value's text if empty
    QString subtitle;     // under the title: the reference date of an age, a rule
    bool byCount = false; // the values from the largest count down, rather than in the order of `tri`
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
    std::vector<std::optional<TextStyle>> labelStyles; // one a line; none: the first line bold

    // Record sheet: one page a record, or a single page when the layout reads no table.
    std::vector<SheetElement> elements;

    QPageLayout pageLayout() const;
    // Tables the query reads, by the names the layout gives them: the main one and those joined.
    QStringList tables() const;
    // The date that ages and the month of a grid are counted at, for a run on `today`.
    QDate reference(const QDate& today) const;
};

// Reads a layout file; a missing file raises report_error::layout_missing, a text it cannot read
// report_error::layout_invalid with the line and the reason.
Layout readLayout(const QString& path);
Layout parseLayout(const QString& text, const QString& path);
