#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVariant>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

class Database;
class Recordset;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class DataControl;

// The action codes that Validate receives, as the data control numbers them.
enum DataAction : int {
    vbDataActionCancel = 0,
    vbDataActionMoveFirst = 1,
    vbDataActionMovePrevious = 2,
    vbDataActionMoveNext = 3,
    vbDataActionMoveLast = 4,
    vbDataActionAddNew = 5,
    vbDataActionUpdate = 6,
    vbDataActionDelete = 7,
    vbDataActionFind = 8,
    vbDataActionBookmark = 9,
    vbDataActionClose = 10,
    vbDataActionUnload = 11,
};

// What the Error event leaves in Response: 0 says the failure has been dealt with.
enum DataErrResponse : int { vbDataErrContinue = 0, vbDataErrDisplay = 1 };

// The row set of a data control as handlers see it (`datPrimaryRS.Recordset`). Every move, add,
// delete or bookmark goes through the data control, so that Validate fires first, an edited row is
// written before the move, and Reposition follows, as when the user presses the navigator's arrows.
// A failure raises VbError to the calling handler.
class DataRecordset {
public:
    explicit DataRecordset(DataControl& control) : control_(control) {}

    void AddNew();
    void Edit();
    void Update();
    void CancelUpdate();
    void Delete();
    void MoveFirst();
    void MovePrevious();
    void MoveNext();
    void MoveLast();
    void FindFirst(const QString& criterion);

    bool isEOF() const;
    bool isBOF() const;
    bool NoMatch() const;
    int AbsolutePosition() const;
    int RecordCount() const;
    QByteArray Bookmark() const;
    void setBookmark(const QByteArray& bookmark);
    // The row last written through this data source; UpdateRecord on an unchanged row counts as a
    // write of that row, though nothing reaches the file.
    QByteArray LastModified() const;

    QVariant field(const QString& column) const;
    void setField(const QString& column, const QVariant& value);

    // The store's row set itself, for reading without the data control's events.
    Recordset& raw() const;

private:
    DataControl& control_;
};

// The bound data source of a record screen (`datPrimaryRS`, `Data1`, `Data2`): a navigator with
// first, previous, caption, next and last, which owns the open row set of its file and keeps the
// controls bound to it by column name in step with the current row.
class DataControl : public QWidget {
    Q_OBJECT
public:
    explicit DataControl(QWidget* parent = nullptr);
    ~DataControl() override;

    const QString& DatabaseName() const { return databaseName_; }
    void setDatabaseName(const QString& path) { databaseName_ = path; }
    const QString& RecordSource() const { return recordSource_; }
    void setRecordSource(const QString& source) { recordSource_ = source; }
    QString Caption() const;
    void setCaption(const QString& caption);

    // Writes an edited row, reruns the query on DatabaseName and shows the first record. An edit the
    // file refused because another user changed or deleted its row is given up, here and at unload.
    void Refresh();
    // Writes the bound controls to the current row without moving (Validate with vbDataActionUpdate).
    void UpdateRecord();
    // Raises 91 while no Refresh has opened the row set.
    DataRecordset& Recordset();
    bool isOpen() const { return static_cast<bool>(recordset_); }

    // Binding by column name. Booleans show as a check box 0/1, dates as JJ/MM/AAAA text.
    void bind(QLineEdit* box, const QString& column);
    void bind(QPlainTextEdit* box, const QString& column);
    void bind(QCheckBox* box, const QString& column);
    void bind(QLabel* label, const QString& column);

    // True once a bound control or a grid cell has changed since the row was shown.
    bool DataChanged() const;

    // The screen is going away: the final Validate (vbDataActionUnload), the edited row written,
    // the file released. A failed write goes to the Error event and keeps everything as it was:
    // false then, so the screen can stay with its edit rather than lose it.
    bool unload();
    // Closes the row set and the file at once, writing nothing, as closing the Database object under
    // a data control does. The next Refresh opens them again.
    void closeDatabase();
    // The number of the last failure met by the control itself (navigator, grid, unload); 0 if none.
    int lastError() const { return lastError_; }

    // Events, as the screen's handlers: Validate(Action, Save) before each data action, Reposition
    // after the current row changed, Error(DataErr, Response) for a failure met by the control itself.
    std::function<void(int& action, bool& save)> Validate;
    std::function<void()> Reposition;
    std::function<void(int dataErr, int& response)> Error;

    // For the grid: the row under edit, typed cell values and the grid's own new row.
    bool isAddingNew() const;
    QVariant pendingValue(const QString& column, bool* found) const;
    void setPendingValue(const QString& column, const QVariant& value);
    // The grid starts typing in its empty new row: AddNew without showing anything new.
    void beginGridNewRow();
    // The grid leaves its row: writes it if edited, and stays where the recordset is.
    void commitRow();
    void moveToPosition(int position);
    // Runs a navigator or grid action, sending any failure to the Error event; false on failure.
    bool runOutsideCode(const std::function<void()>& action);

signals:
    void repositioned();
    void rowsChanged();
    void reopened();

private:
    friend class DataRecordset;
    enum class BoundKind { LineEdit, PlainText, CheckBox, Label };
    struct Binding;

    ::Recordset& rs() const;
    // On an untouched new row of a set with no row at all.
    bool isStartingEmptySet() const;
    // Validate then, when Save stays set, the edited row written; false when Validate cancels.
    bool leaveRow(int action);
    void moveWith(int action, const std::function<void(::Recordset&)>& move);
    void navigateFirst();
    void navigatePrevious();
    void navigateNext();
    void navigateLast();
    void writeEdits();
    void discardEdits();
    void showCurrentRow();
    void firePositionChange();
    void markChanged();
    void addBinding(QWidget* control, BoundKind kind, const QString& column);
    // Finds each bound column in the row set just opened, or forgets it when the set is closed.
    void findColumns();

    QString databaseName_;
    QString recordSource_;
    std::shared_ptr<Database> database_;
    std::unique_ptr<::Recordset> recordset_;
    DataRecordset view_{*this};
    std::vector<std::unique_ptr<Binding>> bindings_;
    QHash<QString, QVariant> pending_;
    QByteArray lastWritten_;
    bool changed_ = false;
    // The current row's edit was refused because another user changed or deleted the row (3197, 3167).
    bool refusedByAnotherUser_ = false;
    int lastError_ = 0;
    bool filling_ = false;
    QLabel* caption_ = nullptr;
};
