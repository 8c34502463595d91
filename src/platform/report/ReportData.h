#pragma once

#include "platform/dao/Recordset.h"
#include "platform/report/Layout.h"

#include <QString>
#include <QStringList>
#include <map>
#include <vector>

// The rows a report shows: the layout's tables joined, the selection applied, in the layout's order,
// each value as the page shows it (a date as JJ/MM/AAAA, a yes/no as Oui or Non, nothing as "").
// Fields of a table outside the query (the school's sheet) are read from that table's first row.
class ReportData {
public:
    // Opens the work database, checks every field the layout names, translates the selection formula
    // and reads the rows. `fields` are the "table.column" names the layout's texts use.
    static ReportData load(const Layout& layout, const QString& databasePath, const QString& selection,
                           const QStringList& fields);

    int rowCount() const { return static_cast<int>(rows_.size()); }
    int columnCount() const { return static_cast<int>(columns_.size()); }
    // Column of a field of the query; -1 when it is not one.
    int columnOf(const QString& field) const;
    FieldType typeOf(int column) const { return types_[column]; }
    const QString& value(int row, int column) const { return rows_[row][column]; }
    // A field read from the first row of its table; "" when the table is empty.
    QString sideValue(const QString& field) const;
    bool isSideField(const QString& field) const { return side_.contains(field); }

private:
    std::vector<QString> columns_; // "table.column", as the layout writes them
    std::vector<FieldType> types_;
    std::vector<std::vector<QString>> rows_;
    std::map<QString, QString> side_;
};
