#include "platform/report/Composer.h"

#include "platform/report/ReportData.h"
#include "platform/report/ReportErrors.h"
#include "platform/report/Template.h"

#include <QDate>
#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QImage>
#include <QImageReader>
#include <QLocale>
#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr double mm_per_point = 25.4 / 72.0;
const QColor heading_fill(0xe4, 0xe9, 0xf0);
const QColor stripe_fill(0xf4, 0xf6, 0xf9);
const QColor weekend_fill(0xd6, 0xd9, 0xde);

// Every text of a layout, so that the fields they use are read with the rows.
QStringList fieldsOf(const Layout& l) {
    QStringList texts{l.groupHeader, l.groupFooter};
    for (const QString& t : l.header)
        texts << t;
    for (const QString& t : l.footer)
        texts << t;
    for (const LayoutColumn& c : l.columns)
        texts << c.content << c.heading;
    texts << l.labelLines << l.valueText << l.chartText << l.subtitle;
    for (const SheetElement& e : l.elements)
        texts << e.content << e.caption;
    QStringList fields;
    for (const QString& t : texts)
        fields << Template::fieldsOf(t);
    for (const SortKey& k : l.sort)
        fields << k.field;
    fields.removeDuplicates();
    return fields;
}

// What every kind shares: the rows, the page's frame, its header and footer.
class Composed : public RenderedReport {
public:
    Composed(const Layout& layout, std::shared_ptr<ReportData> data, std::map<QString, QString> formulas,
             QString today)
        : layout_(layout), data_(std::move(data)), formulas_(std::move(formulas)), today_(std::move(today)) {
        title = layout.title;
        pageLayout = layout.pageLayout();
        paper_ = pageLayout.fullRect(QPageLayout::Millimeter);
        content_ = paper_.marginsRemoved(layout.margins);
        for (int i = 0; i < 3; ++i) {
            header_[i] = compile(layout.header[i]);
            footer_[i] = compile(layout.footer[i]);
        }
        const double band = lineHeight(layout.fontSize - 1) + 2;
        const bool hasHeader = std::any_of(std::begin(header_), std::end(header_),
                                           [](const Template& t) { return !t.isEmpty(); });
        const bool hasFooter = std::any_of(std::begin(footer_), std::end(footer_),
                                           [](const Template& t) { return !t.isEmpty(); });
        body_ = content_.adjusted(0, hasHeader ? band + 2 : 0, 0, hasFooter ? -(band + 2) : 0);
    }

protected:
    Template compile(const QString& text) const {
        return Template(text, *data_, formulas_, layout_.title, today_);
    }

    FontSpec font(double size = 0, bool bold = false, bool italic = false) const {
        return {layout_.fontFamilies, size > 0 ? size : layout_.fontSize, bold, italic};
    }
    static double lineHeight(double points) { return points * mm_per_point * 1.45; }

    static TextElement text(const QRectF& rect, const QString& s, const FontSpec& f,
                            Qt::Alignment align = Qt::AlignLeft) {
        return {rect, s, f, align | Qt::AlignVCenter, false};
    }

    void addBands(ReportPage& page, int index, int row = -1) const {
        const Template::Counters counters{index + 1, pageCount(), 0, 0, data_->rowCount()};
        const double h = lineHeight(layout_.fontSize - 1);
        const Qt::Alignment aligns[3] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
        const bool header = body_.top() > content_.top(), footer = body_.bottom() < content_.bottom();
        for (int i = 0; i < 3; ++i) {
            if (header && !header_[i].isEmpty())
                page.elements.push_back(text(QRectF(content_.left(), content_.top(), content_.width(), h),
                                             header_[i].render(row, counters),
                                             font(layout_.fontSize - 1, i == 0), aligns[i]));
            if (footer && !footer_[i].isEmpty())
                page.elements.push_back(
                    text(QRectF(content_.left(), content_.bottom() - h, content_.width(), h),
                         footer_[i].render(row, counters), font(layout_.fontSize - 1), aligns[i]));
        }
        if (header)
            page.elements.push_back(LineElement{
                QLineF(content_.left(), content_.top() + h + 1, content_.right(), content_.top() + h + 1),
                0.3});
        if (footer)
            page.elements.push_back(LineElement{QLineF(content_.left(), content_.bottom() - h - 1,
                                                       content_.right(), content_.bottom() - h - 1),
                                                0.3});
    }

    // A small report's sheet, made once when first asked for.
    virtual ReportSheet makeSheet() const { return {}; }
    int sheetRowCount() const override { return static_cast<int>(wholeSheet().rows.size()); }
    SheetRow sheetRow(int index) const override { return wholeSheet().rows[index]; }
    const ReportSheet& wholeSheet() const {
        if (!sheet_)
            sheet_ = makeSheet();
        return *sheet_;
    }

    Layout layout_;
    std::shared_ptr<ReportData> data_;
    std::map<QString, QString> formulas_;
    QString today_;
    Template header_[3], footer_[3];
    QRectF paper_, content_, body_;
    mutable std::optional<ReportSheet> sheet_;
};

// A table of rows, grouped or not: the group's heading, the columns' headings, the rows, the group's
// footer. A group that goes on over a page shows its heading again, marked "(suite)". A grid frames
// every cell; the days of a month make one narrow column each, the week-end shaded.
class ListReport : public Composed {
public:
    ListReport(const Layout& layout, std::shared_ptr<ReportData> data, std::map<QString, QString> formulas,
               QString today)
        : Composed(layout, std::move(data), std::move(formulas), std::move(today)) {
        groupHeader_ = compile(layout.groupHeader);
        groupFooter_ = compile(layout.groupFooter);
        for (const LayoutColumn& c : layout.columns)
            cells_.push_back(compile(c.content));
        makeColumns();
        row_ = layout.rowHeight;
        headingHeight_ = days_ > 0 ? row_ + 3.5 : row_;
        groupHeight_ = groupHeader_.isEmpty() ? 0 : lineHeight(layout.fontSize + 2) + 3;
        footHeight_ = groupFooter_.isEmpty() ? 0 : row_ + 2;
        makeBlocks();
        paginate();
    }

    int pageCount() const override { return std::max<int>(1, static_cast<int>(pages_.size())); }

    ReportPage page(int index) const override {
        ReportPage page;
        addBands(page, index, blocks_.empty() ? -1 : blocks_[pages_[index]].row);
        if (blocks_.empty()) {
            // What the list is about still heads it, when it can be told without a row.
            double y = body_.top();
            if (groupHeight_ > 0 && !groupHeader_.readsRows()) {
                page.elements.push_back(text(QRectF(body_.left(), y, body_.width(), groupHeight_ - 1),
                                             groupHeader_.render(-1), font(layout_.fontSize + 2, true)));
                y += groupHeight_;
            }
            page.elements.push_back(text(QRectF(body_.left(), y, body_.width(), row_ + 2),
                                         u"Aucune fiche ne répond à la demande."_s, font(0, false, true)));
            return page;
        }
        const size_t first = pages_[index];
        const size_t last = index + 1 < static_cast<int>(pages_.size()) ? pages_[index + 1] : blocks_.size();
        double y = body_.top();
        if (blocks_[first].kind != Block::Head)
            y = drawHead(page, blocks_[first], y, true);
        for (size_t i = first; i < last; ++i) {
            const Block& b = blocks_[i];
            if (b.kind == Block::Head)
                y = drawHead(page, b, y + (i == first ? 0 : groupGap()), false);
            else if (b.kind == Block::Row)
                y = drawRow(page, b, y);
            else
                y = drawFoot(page, b, y);
        }
        return page;
    }

    int sheetRowCount() const override { return 1 + static_cast<int>(sheetRows_.size()); }

    SheetRow sheetRow(int index) const override {
        SheetRow cells;
        if (index == 0) {
            if (!groupHeader_.isEmpty())
                cells.push_back(u"Groupe"_s);
            for (const Column& c : columns_)
                cells.push_back(c.heading);
            return cells;
        }
        const Block& b = blocks_[sheetRows_[index - 1]];
        const Template::Counters counters = countersOf(b);
        if (!groupHeader_.isEmpty())
            cells.push_back(groupHeader_.render(b.row, counters));
        for (const Column& c : columns_)
            cells.push_back(c.cell < 0 ? QVariant() : cell(c, cells_[c.cell], b.row, counters));
        return cells;
    }

private:
    struct Block {
        enum Kind { Head, Row, Foot } kind;
        int row;
        int number; // in the group
        int count;  // rows of the group
    };
    struct Column {
        QString heading;
        QString above; // a day's initial, over its number
        double x = 0, width = 0;
        Qt::Alignment align = Qt::AlignLeft;
        bool wrap = false;
        bool shaded = false; // a week-end day
        int cell = -1;       // its text among cells_; -1 for a day, left to fill by hand
    };

    double groupGap() const { return groupHeight_ > 0 ? 4 : 0; }
    double headHeight() const { return groupHeight_ + headingHeight_; }

    Template::Counters countersOf(const Block& b) const {
        return {0, 0, b.number, b.count, data_->rowCount()};
    }

    // The layout's columns, widths as shares of what the days leave of the page's width.
    void makeColumns() {
        const QDate month = data_->reference();
        days_ = layout_.dayColumnsAt >= 0 ? month.daysInMonth() : 0;
        const double dayWidth = days_ > 0 ? std::min(7.0, 0.7 * body_.width() / days_) : 0;
        const double rest = body_.width() - days_ * dayWidth;
        double shares = 0;
        for (const LayoutColumn& c : layout_.columns)
            shares += c.width;
        const QLocale french(QLocale::French);
        for (size_t i = 0; i <= layout_.columns.size(); ++i) {
            if (static_cast<int>(i) == layout_.dayColumnsAt)
                for (int d = 1; d <= days_; ++d) {
                    const QDate day(month.year(), month.month(), d);
                    columns_.push_back({QString::number(d), french.dayName(day.dayOfWeek()).left(1).toUpper(),
                                        0, dayWidth, Qt::AlignHCenter, false, day.dayOfWeek() >= 6, -1});
                }
            if (i == layout_.columns.size())
                break;
            const LayoutColumn& c = layout_.columns[i];
            const double w = shares > 0 ? c.width * rest / shares : rest / layout_.columns.size();
            columns_.push_back(
                {compile(c.heading).render(-1), {}, 0, w, c.align, c.wrap, false, static_cast<int>(i)});
        }
        double x = body_.left();
        for (Column& c : columns_) {
            c.x = x;
            x += c.width;
        }
    }

    QString shownText(const Column& c, const QString& text) const {
        return c.wrap ? QString(text).replace(u"\\n"_s, u"\n"_s) : text;
    }

    // A cell of the sheet: a field alone keeps its kind (a date a date, a number a number), anything
    // else is the text the page shows.
    QVariant cell(const Column& c, const Template& t, int row, const Template::Counters& counters) const {
        const int column = t.soleColumn();
        if (column < 0) {
            const QString shown = t.render(row, counters);
            if (t.isSoleNumber())
                return QVariant(qlonglong(shown.toLongLong()));
            return c.wrap ? QString(shown).replace(u"\\n"_s, u" "_s) : shown;
        }
        const QStringView value = data_->value(row, column);
        if (value.isEmpty())
            return QVariant();
        if (data_->typeOf(column) == FieldType::Date) {
            const QDate d = shownDate(value);
            if (d.isValid())
                return d;
        } else if (data_->typeOf(column) == FieldType::Number) {
            return value.toLongLong();
        }
        return value.toString();
    }

    // JJ/MM/AAAA, as the rows show a date; an invalid date for anything else.
    static QDate shownDate(QStringView v) {
        if (v.size() != 10 || v[2] != u'/' || v[5] != u'/')
            return {};
        return QDate(v.mid(6, 4).toInt(), v.mid(3, 2).toInt(), v.mid(0, 2).toInt());
    }

    void makeBlocks() {
        const int group = layout_.group.isEmpty() ? -1 : data_->columnOf(layout_.group);
        const int n = data_->rowCount();
        int start = 0;
        while (start < n) {
            int end = start + 1;
            if (group >= 0)
                while (end < n && data_->value(end, group) == data_->value(start, group))
                    ++end;
            else
                end = n;
            const int count = end - start;
            blocks_.push_back({Block::Head, start, 0, count});
            for (int r = start; r < end; ++r) {
                sheetRows_.push_back(static_cast<int>(blocks_.size()));
                blocks_.push_back({Block::Row, r, r - start + 1, count});
            }
            if (footHeight_ > 0)
                blocks_.push_back({Block::Foot, end - 1, count, count});
            start = end;
        }
    }

    void paginate() {
        double y = body_.top();
        bool empty = true;
        for (size_t i = 0; i < blocks_.size(); ++i) {
            const Block& b = blocks_[i];
            double need = b.kind == Block::Head  ? headHeight() + row_ + (empty ? 0 : groupGap())
                          : b.kind == Block::Row ? row_
                                                 : footHeight_;
            const bool breakHere = b.kind == Block::Head && layout_.pageBreakPerGroup && i > 0;
            if (pages_.empty() || breakHere || (!empty && y + need > body_.bottom() + 0.01)) {
                pages_.push_back(i);
                y = body_.top() + (b.kind == Block::Head ? 0 : headHeight());
                empty = true;
                need = b.kind == Block::Head ? headHeight() : need;
            }
            y += b.kind == Block::Head ? headHeight() + (empty ? 0 : groupGap()) : need;
            empty = false;
        }
    }

    // The frame of a band of the table: a line at each column's edge, one under the band.
    void drawGrid(ReportPage& page, double top, double height) const {
        for (const Column& c : columns_)
            page.elements.push_back(LineElement{QLineF(c.x, top, c.x, top + height), 0.15});
        page.elements.push_back(LineElement{QLineF(body_.right(), top, body_.right(), top + height), 0.15});
        page.elements.push_back(
            LineElement{QLineF(body_.left(), top + height, body_.right(), top + height), 0.15});
    }

    void shadeWeekEnds(ReportPage& page, double y, double height) const {
        for (const Column& c : columns_)
            if (c.shaded)
                // Inside the grid's lines, which the next row's shade would otherwise cover.
                page.elements.push_back(
                    BoxElement{QRectF(c.x, y + 0.1, c.width, height - 0.2), 0, weekend_fill});
    }

    double drawHead(ReportPage& page, const Block& b, double y, bool continued) const {
        if (groupHeight_ > 0) {
            QString heading = groupHeader_.render(b.row, countersOf(b));
            if (continued)
                heading += u" (suite)"_s;
            page.elements.push_back(text(QRectF(body_.left(), y, body_.width(), groupHeight_ - 1), heading,
                                         font(layout_.fontSize + 2, true)));
            y += groupHeight_;
        }
        page.elements.push_back(
            BoxElement{QRectF(body_.left(), y, body_.width(), headingHeight_), 0, heading_fill});
        shadeWeekEnds(page, y, headingHeight_);
        for (const Column& c : columns_) {
            if (c.above.isEmpty()) {
                page.elements.push_back(
                    text(cellRect(c, y, headingHeight_), c.heading, font(0, true), c.align));
                continue;
            }
            const double half = headingHeight_ / 2;
            page.elements.push_back(text(QRectF(c.x, y + 0.5, c.width, half - 0.5), c.above,
                                         font(layout_.fontSize - 2), Qt::AlignHCenter));
            page.elements.push_back(
                text(QRectF(c.x, y + half - 0.5, c.width, half), c.heading, font(0, true), Qt::AlignHCenter));
        }
        if (layout_.grid) {
            page.elements.push_back(LineElement{QLineF(body_.left(), y, body_.right(), y), 0.15});
            drawGrid(page, y, headingHeight_);
        }
        page.elements.push_back(
            LineElement{QLineF(body_.left(), y + headingHeight_, body_.right(), y + headingHeight_), 0.3});
        return y + headingHeight_;
    }

    double drawRow(ReportPage& page, const Block& b, double y) const {
        if (b.number % 2 == 0 && !layout_.grid) // a grid's lines keep the rows apart
            page.elements.push_back(BoxElement{QRectF(body_.left(), y, body_.width(), row_), 0, stripe_fill});
        shadeWeekEnds(page, y, row_);
        const Template::Counters counters = countersOf(b);
        for (const Column& c : columns_) {
            if (c.cell < 0)
                continue;
            const QString shown = shownText(c, cells_[c.cell].render(b.row, counters));
            if (c.wrap)
                page.elements.push_back(TextElement{cellRect(c, y, row_).adjusted(0, 0.6, 0, 0), shown,
                                                    font(), c.align | Qt::AlignTop, true});
            else
                page.elements.push_back(text(cellRect(c, y, row_), shown, font(), c.align));
        }
        if (layout_.grid)
            drawGrid(page, y, row_);
        return y + row_;
    }

    double drawFoot(ReportPage& page, const Block& b, double y) const {
        page.elements.push_back(LineElement{QLineF(body_.left(), y, body_.right(), y), 0.3});
        page.elements.push_back(text(QRectF(body_.left(), y + 1, body_.width() - 1.5, row_),
                                     groupFooter_.render(b.row, countersOf(b)), font(0, false, true),
                                     Qt::AlignRight));
        return y + footHeight_;
    }

    static QRectF cellRect(const Column& c, double y, double height) {
        const double pad = std::min(1.5, c.width / 8);
        return QRectF(c.x + pad, y, c.width - 2 * pad, height);
    }

    Template groupHeader_, groupFooter_;
    std::vector<Template> cells_;
    std::vector<Column> columns_;
    int days_ = 0;
    double row_ = 6, headingHeight_ = 6, groupHeight_ = 0, footHeight_ = 0;
    std::vector<Block> blocks_;
    std::vector<int> sheetRows_; // the row blocks, in order
    std::vector<size_t> pages_;  // first block of each page
};

// The selected rows counted by the values of one field: a table of counts and shares, and a chart.
// A value reads as the layout's value text says, from the first of its rows.
class StatisticReport : public Composed {
public:
    StatisticReport(const Layout& layout, std::shared_ptr<ReportData> data,
                    std::map<QString, QString> formulas, QString today)
        : Composed(layout, std::move(data), std::move(formulas), std::move(today)) {
        const int column = data_->columnOf(layout.countField);
        const Template label = compile(layout.valueText), chart = compile(layout.chartText);
        QHash<QStringView, int> index;
        int empty = 0;
        for (int r = 0; r < data_->rowCount(); ++r) {
            const QStringView v = data_->value(r, column);
            if (v.isEmpty()) {
                ++empty;
                continue;
            }
            const auto it = index.constFind(v);
            if (it != index.constEnd()) {
                ++counts_[*it].second;
                continue;
            }
            index.insert(v, static_cast<int>(counts_.size()));
            counts_.push_back({label.isEmpty() ? v.toString() : label.render(r), 1});
            chartLabels_ << (chart.isEmpty() ? counts_.back().first : chart.render(r));
        }
        if (layout.byCount) {
            std::vector<int> order(counts_.size());
            std::iota(order.begin(), order.end(), 0);
            std::stable_sort(order.begin(), order.end(),
                             [this](int a, int b) { return counts_[a].second > counts_[b].second; });
            std::vector<std::pair<QString, int>> counts;
            QStringList labels;
            for (int i : order) {
                counts.push_back(counts_[i]);
                labels << chartLabels_[i];
            }
            counts_ = std::move(counts);
            chartLabels_ = std::move(labels);
        }
        if (empty > 0) {
            counts_.push_back({layout.emptyValue, empty});
            // Beside short labels of its own, the chart names the rows without a value as statistics do.
            chartLabels_ << (chart.isEmpty() ? layout.emptyValue : u"NR"_s);
        }
        // The table is as wide as its longest value needs, from 14 cm to the page's width.
        double longest = 0;
        for (const auto& [label, n] : counts_)
            longest = std::max(longest, textWidth(font(), label));
        tableWidth_ = std::min(body_.width(), std::max(140.0, longest + 6 + 2 * 24.0));
        // Past the page's width, the whole table takes a smaller type rather than shortening a value.
        const double room = tableWidth_ - 6 - 2 * 24.0;
        if (longest > room)
            tableSize_ = std::max(7.5, layout.fontSize * room / longest);
        total_ = data_->rowCount();
        subtitle_ = compile(layout.subtitle).render(-1);
    }

    const std::vector<std::pair<QString, int>>& counts() const { return counts_; }

    int pageCount() const override { return 1 + static_cast<int>(overflowPages()); }

    ReportPage page(int index) const override {
        ReportPage page;
        addBands(page, index);
        double y = body_.top();
        if (index == 0) {
            page.elements.push_back(text(QRectF(body_.left(), y, body_.width(), 10), layout_.title,
                                         font(layout_.fontSize + 6, true), Qt::AlignHCenter));
            y += 11;
            page.elements.push_back(text(QRectF(body_.left(), y, body_.width(), 6),
                                         u"Élèves retenus : %1"_s.arg(total_), font(0, false, true),
                                         Qt::AlignHCenter));
            y += 7;
            if (!subtitle_.isEmpty()) {
                page.elements.push_back(text(QRectF(body_.left(), y, body_.width(), 6), subtitle_,
                                             font(layout_.fontSize - 1, false, true), Qt::AlignHCenter));
                y += 7;
            }
            y += 3;
        }
        const auto [first, last] = rowsOf(index);
        y = drawTable(page, y, first, last, last == static_cast<int>(counts_.size()));
        if (index == pageCount() - 1 && layout_.chart != Layout::Chart::None && total_ > 0) {
            ChartElement chart;
            chart.pie = layout_.chart == Layout::Chart::Pie;
            chart.font = font();
            chart.title = QString(); // the page has the title above it
            chart.categories = chartLabels_;
            for (const auto& [label, n] : counts_)
                chart.values.push_back(n);
            const double top = y + 8;
            chart.rect = QRectF(body_.left(), top, body_.width(),
                                std::max(60.0, std::min(120.0, body_.bottom() - top)));
            page.elements.push_back(chart);
        }
        return page;
    }

    ReportSheet makeSheet() const override {
        ReportSheet s{layout_.title, {}};
        s.rows.push_back({layout_.countHeading, u"Nombre"_s, u"Part (%)"_s});
        for (const auto& [label, n] : counts_)
            s.rows.push_back({label, qlonglong(n), share(n)});
        s.rows.push_back({u"Total"_s, qlonglong(total_), total_ > 0 ? 100.0 : 0.0});
        return s;
    }

private:
    double share(int n) const { return total_ > 0 ? std::round(1000.0 * n / total_) / 10.0 : 0.0; }
    double tableWidth() const { return tableWidth_; }
    // Rows of counts a page holds; the first page keeps room for its title and the chart its last.
    int rowsOnFirstPage() const {
        const double top = 21 + (subtitle_.isEmpty() ? 0 : 7);
        return std::max(1, static_cast<int>((body_.height() - top - 2 * row_ - 70) / row_));
    }
    int rowsOnOtherPages() const {
        return std::max(1, static_cast<int>((body_.height() - 2 * row_ - 70) / row_));
    }
    size_t overflowPages() const {
        const int rest = static_cast<int>(counts_.size()) - rowsOnFirstPage();
        return rest <= 0 ? 0 : (rest + rowsOnOtherPages() - 1) / rowsOnOtherPages();
    }
    std::pair<int, int> rowsOf(int index) const {
        const int n = static_cast<int>(counts_.size());
        if (index == 0)
            return {0, std::min(n, rowsOnFirstPage())};
        const int first = rowsOnFirstPage() + (index - 1) * rowsOnOtherPages();
        return {std::min(n, first), std::min(n, first + rowsOnOtherPages())};
    }

    double drawTable(ReportPage& page, double y, int first, int last, bool withTotal) const {
        const double w = tableWidth(), left = body_.left() + (body_.width() - w) / 2;
        const double number = std::min(w * 0.22, 24.0);
        const double widths[3] = {w - 2 * number, number, number};
        const Qt::Alignment aligns[3] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignRight};
        auto line = [&](const QString(&cells)[3], bool bold, const QColor& fill) {
            if (fill != Qt::transparent)
                page.elements.push_back(BoxElement{QRectF(left, y, w, row_), 0, fill});
            double x = left;
            for (int c = 0; c < 3; ++c) {
                page.elements.push_back(
                    text(QRectF(x + 2, y, widths[c] - 4, row_), cells[c], font(tableSize_, bold), aligns[c]));
                x += widths[c];
            }
            y += row_;
        };
        const QString headings[3] = {layout_.countHeading, u"Nombre"_s, u"Part"_s};
        const double top = y;
        line(headings, true, heading_fill);
        for (int i = first; i < last; ++i) {
            const QString cells[3] = {counts_[i].first, QString::number(counts_[i].second),
                                      percent(counts_[i].second)};
            line(cells, false, i % 2 ? stripe_fill : QColor(Qt::transparent));
        }
        if (withTotal) {
            page.elements.push_back(LineElement{QLineF(left, y, left + w, y), 0.3});
            const QString cells[3] = {u"Total"_s, QString::number(total_),
                                      total_ > 0 ? u"100 %"_s : u"0 %"_s};
            line(cells, true, Qt::transparent);
        }
        page.elements.push_back(BoxElement{QRectF(left, top, w, y - top), 0.3});
        return y;
    }

    QString percent(int n) const { return QLocale(QLocale::French).toString(share(n), 'f', 1) + u" %"_s; }

    std::vector<std::pair<QString, int>> counts_;
    QStringList chartLabels_;
    QString subtitle_;
    double tableWidth_ = 140, tableSize_ = 0;
    int total_ = 0;
    double row_ = 7;
};

// An A4 sheet of address labels, placed as the label paper has them, one label a row.
class LabelReport : public Composed {
public:
    LabelReport(const Layout& layout, std::shared_ptr<ReportData> data, std::map<QString, QString> formulas,
                QString today)
        : Composed(layout, std::move(data), std::move(formulas), std::move(today)) {
        for (const QString& l : layout.labelLines)
            lines_.push_back(compile(l));
    }

    int perPage() const { return layout_.labelColumns * layout_.labelRows; }
    int pageCount() const override { return std::max(1, (data_->rowCount() + perPage() - 1) / perPage()); }

    ReportPage page(int index) const override {
        ReportPage page;
        const int first = index * perPage(), last = std::min(data_->rowCount(), first + perPage());
        for (int row = first; row < last; ++row) {
            const int slot = row - first;
            const QRectF label(content_.left() + (slot % layout_.labelColumns) * layout_.labelWidth,
                               content_.top() + (slot / layout_.labelColumns) * layout_.labelHeight,
                               layout_.labelWidth, layout_.labelHeight);
            const QRectF inside = label.adjusted(layout_.labelPadding, layout_.labelPadding,
                                                 -layout_.labelPadding, -layout_.labelPadding);
            const std::vector<std::pair<QString, int>> texts = linesOf(row);
            double height = 0;
            for (const auto& [t, i] : texts)
                height += lineHeight(styleOf(i).size);
            double y = inside.top() + std::max(0.0, (inside.height() - height) / 2);
            for (const auto& [t, i] : texts) {
                const TextStyle style = styleOf(i);
                const double h = lineHeight(style.size);
                page.elements.push_back(text(QRectF(inside.left(), y, inside.width(), h), t,
                                             font(style.size, style.bold, style.italic), style.align));
                y += h;
            }
        }
        return page;
    }

    int sheetRowCount() const override { return 1 + data_->rowCount(); }

    SheetRow sheetRow(int index) const override {
        SheetRow cells;
        if (index == 0) {
            for (int i = 0; i < lines_.size(); ++i)
                cells.push_back(u"Ligne %1"_s.arg(i + 1));
            return cells;
        }
        for (const auto& [t, i] : linesOf(index - 1))
            cells.push_back(t);
        return cells;
    }

private:
    // A line without its own style: the first bold, the others plain, at the layout's size.
    TextStyle styleOf(int line) const {
        const std::optional<TextStyle>& own = layout_.labelStyles[line];
        TextStyle style = own.value_or(TextStyle{0, line == 0});
        if (style.size <= 0)
            style.size = layout_.fontSize;
        return style;
    }

    // The lines with their number; a line left empty (no second address component) takes no room.
    std::vector<std::pair<QString, int>> linesOf(int row) const {
        std::vector<std::pair<QString, int>> texts;
        for (int i = 0; i < lines_.size(); ++i) {
            const QString s = lines_[i].render(row).simplified();
            if (!s.isEmpty())
                texts.push_back({s, i});
        }
        return texts;
    }

    QList<Template> lines_;
};

// A sheet of placed texts, boxes and lines: one page a row, or a single page when it reads no table.
class SheetReport : public Composed {
public:
    SheetReport(const Layout& layout, std::shared_ptr<ReportData> data, std::map<QString, QString> formulas,
                QString today)
        : Composed(layout, std::move(data), std::move(formulas), std::move(today)) {
        for (const SheetElement& e : layout.elements) {
            contents_.push_back(compile(e.content));
            captions_.push_back(compile(e.caption));
        }
    }

    int pageCount() const override { return layout_.table.isEmpty() ? 1 : std::max(1, data_->rowCount()); }

    ReportPage page(int index) const override {
        ReportPage page;
        const int row = layout_.table.isEmpty() || data_->rowCount() == 0 ? -1 : index;
        addBands(page, index, row);
        const QPointF origin = body_.topLeft();
        QRectF chain; // where the next flowing text of the current chain goes
        bool chainStarted = false;
        for (size_t i = 0; i < layout_.elements.size(); ++i) {
            const SheetElement& e = layout_.elements[i];
            switch (e.kind) {
            case SheetElement::Kind::Text: {
                const FontSpec f = font(e.style.size, e.style.bold, e.style.italic);
                page.elements.push_back(TextElement{
                    e.rect.translated(origin), contents_[i].render(row), f,
                    e.style.align | (e.style.wrap ? Qt::AlignTop : Qt::AlignVCenter), e.style.wrap});
                break;
            }
            case SheetElement::Kind::Box:
                page.elements.push_back(BoxElement{e.rect.translated(origin), 0.3});
                break;
            case SheetElement::Kind::Line:
                page.elements.push_back(LineElement{e.line.translated(origin), 0.3});
                break;
            case SheetElement::Kind::Field:
                addField(page, e, captions_[i].render(row), contents_[i].render(row), origin);
                break;
            case SheetElement::Kind::Image:
                addImage(page, e.rect.translated(origin), contents_[i].render(row));
                break;
            case SheetElement::Kind::FlowStart:
                chain = e.rect;
                chainStarted = false;
                break;
            case SheetElement::Kind::Flow:
                addFlow(page, e, contents_[i].render(row), origin, chain, chainStarted);
                break;
            }
        }
        return page;
    }

    ReportSheet makeSheet() const override {
        ReportSheet s{layout_.title, {}};
        for (int p = 0; p < pageCount(); ++p) {
            const int row = layout_.table.isEmpty() || data_->rowCount() == 0 ? -1 : p;
            for (size_t i = 0; i < layout_.elements.size(); ++i) {
                const SheetElement& e = layout_.elements[i];
                const QString caption = captions_[i].render(row), value = contents_[i].render(row);
                if (e.kind == SheetElement::Kind::Field && !(caption.isEmpty() && value.isEmpty()))
                    s.rows.push_back({caption, value});
                else if (e.kind == SheetElement::Kind::Text || e.kind == SheetElement::Kind::Flow)
                    s.rows.push_back({contents_[i].render(row)});
            }
        }
        return s;
    }

private:
    // A flowing text below the previous one of its chain, wrapped to the chain's width and as tall as
    // its lines; an empty one leaves neither a line nor a gap.
    void addFlow(ReportPage& page, const SheetElement& e, const QString& value, QPointF origin, QRectF& chain,
                 bool& started) const {
        if (value.isEmpty())
            return;
        if (started)
            chain.moveTop(chain.top() + e.spaceAbove);
        const FontSpec f = font(e.style.size, e.style.bold, e.style.italic);
        const double height = textHeight(f, value, chain.width()) + 0.5;
        const QRectF r(chain.left(), chain.top(), chain.width(), height);
        page.elements.push_back(
            TextElement{r.translated(origin), value, f, e.style.align | Qt::AlignTop, true});
        chain.moveTop(r.bottom());
        started = true;
    }

    // The picture a path names, in a thin frame; the frame alone, to take a photo glued by hand, when
    // there is none or the file cannot be read.
    void addImage(ReportPage& page, const QRectF& r, const QString& path) const {
        page.elements.push_back(BoxElement{r, 0.2});
        QImageReader reader;
        if (!path.isEmpty())
            reader.setFileName(path);
        reader.setAutoTransform(true);
        const QSize size = path.isEmpty() ? QSize() : reader.size();
        if (size.isValid()) {
            // Read at the size of its print at 300 dots an inch, no larger: a camera's photo is huge.
            const QSize wanted = size.scaled(
                QSize(qRound(r.width() / 25.4 * 300), qRound(r.height() / 25.4 * 300)), Qt::KeepAspectRatio);
            if (wanted.width() < size.width())
                reader.setScaledSize(wanted);
            const QImage image = reader.read();
            if (!image.isNull()) {
                page.elements.push_back(ImageElement{r.adjusted(0.4, 0.4, -0.4, -0.4), image});
                return;
            }
        }
        page.elements.push_back(text(r, u"Photo"_s, font(0, false, true), Qt::AlignHCenter));
    }

    // A caption, then the value on a dotted line, or the dotted line alone to be filled by hand. A
    // field whose caption and value both come out empty (a free field the school does not use) is
    // left out.
    void addField(ReportPage& page, const SheetElement& e, const QString& caption, const QString& value,
                  QPointF origin) const {
        if (caption.isEmpty() && value.isEmpty())
            return;
        const double h = lineHeight(layout_.fontSize) + 1.5;
        const QRectF r = QRectF(e.rect.left(), e.rect.top(), e.rect.width(), h).translated(origin);
        const FontSpec f = font();
        const QString shownCaption = caption.isEmpty() ? QString() : caption + u" :"_s;
        const double captionWidth = caption.isEmpty() ? 0 : textWidth(f, shownCaption) + 2;
        page.elements.push_back(text(QRectF(r.left(), r.top(), captionWidth, h), shownCaption, f));
        const double baseline = r.bottom() - 1;
        page.elements.push_back(
            LineElement{QLineF(r.left() + captionWidth, baseline, r.right(), baseline), 0.2, true});
        if (!value.isEmpty())
            page.elements.push_back(
                text(QRectF(r.left() + captionWidth + 1, r.top(), r.width() - captionWidth - 1, h - 1.2),
                     value, font(0, true)));
    }

    std::vector<Template> contents_, captions_;
};

} // namespace

namespace {

// A device of ten dots a millimetre, on which texts are measured in tenths of a millimetre.
QFontMetricsF metrics(const FontSpec& spec) {
    static const QImage device = [] {
        QImage image(1, 1, QImage::Format_RGB32);
        image.setDotsPerMeterX(10000);
        image.setDotsPerMeterY(10000);
        return image;
    }();
    QFont f;
    f.setFamilies(spec.families);
    f.setPointSizeF(spec.size);
    f.setBold(spec.bold);
    f.setItalic(spec.italic);
    return QFontMetricsF(f, &device);
}

} // namespace

double textHeight(const FontSpec& spec, const QString& text, double width) {
    return metrics(spec).boundingRect(QRectF(0, 0, width * 10, 100000), Qt::TextWordWrap, text).height() /
           10.0;
}

double textWidth(const FontSpec& spec, const QString& text) {
    return metrics(spec).horizontalAdvance(text) / 10.0;
}

std::unique_ptr<RenderedReport> composeReport(const Layout& layout, const QString& databasePath,
                                              const QString& selection,
                                              const std::map<QString, QString>& formulas,
                                              const QDate& today) {
    auto data = std::make_shared<ReportData>(
        ReportData::load(layout, databasePath, selection, fieldsOf(layout), today));
    const QString day = today.toString(u"dd/MM/yyyy"_s);
    switch (layout.kind) {
    case Layout::Kind::List:
        return std::make_unique<ListReport>(layout, data, formulas, day);
    case Layout::Kind::Statistic:
        return std::make_unique<StatisticReport>(layout, data, formulas, day);
    case Layout::Kind::Labels:
        return std::make_unique<LabelReport>(layout, data, formulas, day);
    case Layout::Kind::Sheet:
        break;
    }
    return std::make_unique<SheetReport>(layout, data, formulas, day);
}
