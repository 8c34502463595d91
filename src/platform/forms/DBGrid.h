#pragma once

#include <QPointer>
#include <QTableView>

class DataControl;
class GridModel;

// The data grid (`grdDataGrid`) over a data control: one line a row of its row set, typing in the
// cells, an empty new row at the end where typing starts a new record, and leaving an edited line
// writes it. The grid's current line is the data control's current row.
class DBGrid : public QTableView {
    Q_OBJECT
public:
    explicit DBGrid(QWidget* parent = nullptr);
    ~DBGrid() override;

    void setDataSource(DataControl* source);
    DataControl* dataSource() const { return source_; }

    // A column of the row set shown under a heading, in the order of the calls.
    void addColumn(const QString& column, const QString& heading);

    // The current column's number, and the text of the current cell, typed text included.
    int Col() const;
    void setCol(int column);
    QString Text();

    // The line of the empty new row.
    int newRow() const;
    // AllowAddNew: when false the empty new row is hidden, so the grid offers no line to start a
    // new record from. True by default.
    void setAllowAddNew(bool allow);
    bool AllowAddNew() const { return allowAddNew_; }
    // One step down, as the Down key pressed in the grid; landing on the empty new row starts the
    // editing of its first cell, so the user types straight in.
    void stepDown();
    // Carries the text of an open cell editor into the row being edited.
    void commitEditor();
    // Carries it over and closes the editor, as the focus leaving the grid does.
    void finishEditing();

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    friend class GridModel;
    void followDataControl();
    void rowsOfSourceChanged();
    void reopened();
    void leaveRow(int from, int to);
    void clearCurrentCell();
    void fitColumns();
    void setCurrentLine(int row, int column);
    void showNewRowAsAllowed();

    QPointer<DataControl> source_;
    GridModel* model_ = nullptr; // child of this grid
    QPointer<QWidget> editor_;
    bool syncing_ = false;
    bool allowAddNew_ = true;
};
