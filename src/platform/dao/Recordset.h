#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <memory>
#include <vector>

namespace dao {
class Connection;
class RecordsetPrivate;
} // namespace dao

// What a column holds, so that a bound control can show it: text has a maximum length, memo none;
// a date reads and writes as "JJ/MM/AAAA" text; a boolean binds to a check box.
enum class FieldType { Text, Memo, Date, Boolean, Number };

struct FieldInfo {
    QString name;
    FieldType type = FieldType::Text;
    int size = 0; // maximum characters for Text; 0 otherwise
};

// Whether the copy buffer holds an edit: none, an edited current row, or a new row.
enum class EditMode { None, Edit, AddNew };

// A dynaset, as a DAO Recordset of that type behaves. Opening fixes the ordered list of row keys; rows
// are read on demand. A row added joins the end until Requery; a deleted row stays a hole that moves
// skip and that reading reports (3167); so does a row another data source removed. A move forgets an
// edit that Update did not write, as the engine does (the data control writes first). Locking is
// optimistic: Update refuses a row that another data source changed since this one read it (3197).
// EOF and BOF are spelt isEOF()/isBOF(), EOF being a C macro.
//
// Errors (VbError): 3021 no current record, 3020 Update or CancelUpdate without AddNew/Edit,
// 3167 record deleted, 3197 record changed by another user since it was read, 3265 unknown column,
// 3077 syntax in a FindFirst criterion, 3163 text too long, 3421 not a date, 3022 duplicate key,
// 3420 database closed.
class Recordset {
public:
    Recordset(std::shared_ptr<dao::Connection> connection, const QString& jetSelect);
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    // Columns in the order of the query, with their types.
    const std::vector<FieldInfo>& fields() const;
    int fieldIndex(const QString& column) const; // -1 when unknown

    // Current row's value, or the copy buffer's during AddNew/Edit. Text and Memo: QString; Date:
    // "JJ/MM/AAAA" QString; Number: qlonglong or double; an empty value of these is a null QVariant.
    // Boolean: bool, never null.
    QVariant field(const QString& column) const;
    QVariant field(int index) const;
    // Writes into the copy buffer; starts nothing by itself (call Edit or AddNew first, else 3020).
    // A date takes "JJ/MM/AAAA" (or a QDate); "" or a null stores no date; anything else raises 3421.
    void setField(const QString& column, const QVariant& value);
    void setField(int index, const QVariant& value);

    void AddNew();
    void Edit();
    void Update(); // one transaction; the row stays current (an added row: the current row is unchanged)
    void CancelUpdate();
    void Delete(); // the current row becomes a hole and stays current; 3021 on a new, unsaved row
    EditMode editMode() const;

    void MoveFirst();
    void MovePrevious();
    void MoveNext();
    void MoveLast();
    bool isEOF() const;
    bool isBOF() const;

    // 0-based position of the current row among the rows left; -1 on a new row, on a deleted row, at
    // EOF/BOF or on an empty set.
    int AbsolutePosition() const;
    void setAbsolutePosition(int position); // 3001 if out of range
    int RecordCount() const;                // rows of the key list, holes left out

    // An opaque value that names a row of this recordset; assigning it makes that row current.
    QByteArray Bookmark() const;
    void setBookmark(const QByteArray& bookmark);
    QByteArray LastModified() const; // the row last added or changed through this recordset

    // Searches in the recordset's own order, from the first row, for a row matching a Jet criterion
    // ("nom_élève like 'DUP*'", "intitulé_bouton = \"Certificat\""). On a match it becomes current and
    // NoMatch() is false; otherwise the current row stays and NoMatch() is true.
    void FindFirst(const QString& criterion);
    void FindNext(const QString& criterion);
    bool NoMatch() const;

    // Reruns the query: new key list, on the first row.
    void Requery();

    // A value for a grid, without moving: position as AbsolutePosition counts; a row gone or a position
    // out of range gives a null QVariant.
    QVariant valueAt(int position, int index) const;

private:
    std::unique_ptr<dao::RecordsetPrivate> d;
};
