#pragma once

#include "platform/report/ReportData.h"

#include <QString>
#include <QStringList>
#include <map>
#include <vector>

// A text of a layout with its places: {table.column} a field, {table.column|majuscules} the same in
// capitals, {table.column|âge} the age in years that a date gives at the reference date, {@name} a
// named formula, and {titre}, {date}, {date de référence}, {mois} (the reference date's month and
// year), {année scolaire} (the reference date's, "2025-2026"), {page}, {pages}, {numéro} (the row's number in
// its group), {nombre} (the rows of the group), {total} (all the rows). A part between brackets that holds
// fields, "[ – {équipe.nom_enseignant}]", is left out when they are all empty.
class Template {
public:
    // What a place takes its value from, besides the row.
    struct Counters {
        int page = 0;
        int pages = 0;
        int number = 0;
        int count = 0;
        int total = 0;
    };

    Template() = default;
    // Fields are looked up in `data`; named formulas and the title are fixed now.
    Template(const QString& text, const ReportData& data, const std::map<QString, QString>& formulas,
             const QString& title, const QString& today);

    QString render(int row, const Counters& counters) const;
    QString render(int row) const { return render(row, Counters()); }
    bool isEmpty() const { return segments_.empty(); }
    // The one column this text shows whole, or -1: a spreadsheet cell takes that column's kind.
    int soleColumn() const;
    bool isSoleNumber() const; // {numéro}, {nombre} or {total} alone
    // Whether it reads a row: without one it says all it has to say (a reference date, a title).
    bool readsRows() const;

    // The "table.column" names a text uses, "table.column|âge" for an age.
    static QStringList fieldsOf(const QString& text);

private:
    enum class Kind { Literal, Fixed, Open, Close, Column, Page, Pages, Number, Count, Total };
    struct Segment {
        Kind kind;
        QString text;
        int column = -1;
        bool upper = false;
    };
    std::vector<Segment> segments_;
    const ReportData* data_ = nullptr;
};
