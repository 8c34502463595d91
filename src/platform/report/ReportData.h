#pragma once

#include "platform/dao/Connection.h"
#include "platform/dao/Recordset.h"
#include "platform/report/Layout.h"

#include <QDate>
#include <QString>
#include <QStringDecoder>
#include <QStringList>
#include <map>
#include <vector>

class ReportSchema;

// The rows a report shows: the layout's tables joined, the selection and the layout's filter applied,
// each row unfolded into the lines of the layout's [lignes], in the layout's order, each value as the
// page shows it (a date as JJ/MM/AAAA, a yes/no as Oui or Non, nothing as ""). Fields of a table
// outside the query (the school's sheet) are read from that table's first row.
class ReportData {
public:
    // Opens the work database, checks every field the layout names, translates the selection formula
    // and reads the rows. `fields` are the "table.column" names the layout's texts use; an age
    // ("table.column|âge") is counted at the layout's reference date for a run on `today`.
    static ReportData load(const Layout& layout, const QString& databasePath, const QString& selection,
                           const QStringList& fields, const QDate& today = QDate::currentDate());

    int rowCount() const { return rows_; }
    int columnCount() const { return static_cast<int>(columns_.size()); }
    // Column of a field of the query; -1 when it is not one.
    int columnOf(const QString& field) const;
    FieldType typeOf(int column) const { return types_[column]; }
    QStringView value(int row, int column) const {
        const size_t cell = static_cast<size_t>(row) * columns_.size() + column;
        return QStringView(text_).mid(starts_[cell], starts_[cell + 1] - starts_[cell]);
    }
    // A field read from the first row of its table; "" when the table is empty.
    QString sideValue(const QString& field) const;
    bool isSideField(const QString& field) const { return side_.contains(field); }
    // The day ages are counted at.
    const QDate& reference() const { return reference_; }

private:
    std::vector<QStringList> columnsOf(const ReportSchema& schema, const Layout& layout,
                                       const std::vector<QStringList>& lines, const QStringList& wanted);
    void readSideFields(dao::Connection& connection, const Layout& layout);
    void readRows(dao::Statement& statement);
    void append(const dao::Statement& statement, int column, QStringDecoder& utf8);

    std::vector<QString> columns_; // "table.column", as the layout writes them
    std::vector<FieldType> types_;
    // Every value of every row, one after the other, and where each starts: one allocation, not one a
    // value, for the hundred columns of a hundred thousand pupils.
    QString text_;
    std::vector<quint32> starts_;
    int rows_ = 0;
    std::map<QString, QString> side_;
    QDate reference_;
};
