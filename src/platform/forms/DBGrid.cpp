#include "platform/forms/DBGrid.h"

#include "platform/dao/Recordset.h"
#include "platform/errors/VbError.h"
#include "platform/forms/DataControl.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>
#include <QStyledItemDelegate>
#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

// The lines of the grid: the row set's live rows by position, then the empty new row. Typed cells go to the
// data control's row buffer, which writes them.
class GridModel : public QAbstractTableModel {
public:
    explicit GridModel(DBGrid& grid) : QAbstractTableModel(&grid), grid_(grid) {}

    struct Column {
        QString name;
        QString heading;
    };
    std::vector<Column> columns;
    int lines = 0; // rows of the row set as last counted

    bool open() const { return grid_.source_ && grid_.source_->isOpen(); }
    Recordset* rs() const { return open() ? &grid_.source_->Recordset().raw() : nullptr; }
    int countNow() const { return open() ? rs()->RecordCount() : 0; }
    int newRow() const { return lines; }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() || !open() ? 0 : lines + 1;
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(columns.size());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole) || !open())
            return {};
        const QString& name = columns[index.column()].name;
        DataControl& source = *grid_.source_;
        const bool newLine = index.row() == newRow();
        const bool currentLine = !newLine && !source.isAddingNew() && index.row() == rs()->AbsolutePosition();
        if (newLine && !source.isAddingNew())
            return QString();
        if (newLine || currentLine) {
            bool found = false;
            const QVariant typed = source.pendingValue(name, &found);
            if (found || newLine)
                return typed.toString();
        }
        return rs()->valueAt(index.row(), rs()->fieldIndex(name)).toString();
    }

    bool setData(const QModelIndex& index, const QVariant& value, int role) override {
        if (!index.isValid() || role != Qt::EditRole || !open())
            return false;
        const QString text = value.toString();
        if (text == data(index, Qt::EditRole).toString())
            return false; // an editor closed without a change edits nothing
        DataControl& source = *grid_.source_;
        if (index.row() == newRow() && !source.runOutsideCode([&source] { source.beginGridNewRow(); }))
            return false;
        source.setPendingValue(columns[index.column()].name, text.isEmpty() ? QVariant() : QVariant(text));
        emit dataChanged(this->index(index.row(), 0), this->index(index.row(), columnCount() - 1));
        emit headerDataChanged(Qt::Vertical, index.row(), index.row());
        return true;
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override {
        return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (role != Qt::DisplayRole)
            return {};
        if (orientation == Qt::Horizontal)
            return section < columnCount() ? columns[section].heading : QString();
        if (section == newRow())
            return grid_.source_ && grid_.source_->isAddingNew() ? u"✎"_s : u"*"_s;
        return QString();
    }

    // The entry limit of a text column, 0 for none.
    int limitOf(int column) const {
        if (!open() || column < 0 || column >= columnCount())
            return 0;
        const int index = rs()->fieldIndex(columns[column].name);
        if (index < 0)
            return 0;
        const FieldInfo& field = rs()->fields()[index];
        return field.type == FieldType::Text ? field.size : 0;
    }

    void addColumn(const QString& name, const QString& heading) {
        beginResetModel();
        columns.push_back({name, heading});
        endResetModel();
    }

    void reset() {
        beginResetModel();
        lines = countNow();
        endResetModel();
    }

    // Rows written at the end join before the new row; anything else is read again as it is.
    void grow() {
        const int now = countNow();
        if (now > lines) {
            beginInsertRows({}, lines, now - 1);
            lines = now;
            endInsertRows();
        } else if (now < lines) {
            reset();
            return;
        }
        if (rowCount() > 0)
            emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        emit headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
    }

private:
    DBGrid& grid_;
};

namespace {

// Remembers the open cell editor, so the grid can hand its text over before the row is read or saved.
class GridDelegate : public QStyledItemDelegate {
public:
    GridDelegate(QObject* parent, QPointer<QWidget>& editor) : QStyledItemDelegate(parent), editor_(editor) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
        auto* line = qobject_cast<QLineEdit*>(editor);
        const auto* model = static_cast<const GridModel*>(index.model());
        if (line && model->limitOf(index.column()) > 0)
            line->setMaxLength(model->limitOf(index.column()));
        editor_ = editor;
        return editor;
    }

private:
    QPointer<QWidget>& editor_;
};

} // namespace

DBGrid::DBGrid(QWidget* parent) : QTableView(parent) {
    model_ = new GridModel(*this);
    setModel(model_);
    setItemDelegate(new GridDelegate(this, editor_));
    setSelectionBehavior(QAbstractItemView::SelectItems);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::SelectedClicked);
    horizontalHeader()->setStretchLastSection(true);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    connect(model_, &QAbstractItemModel::modelReset, this, &DBGrid::showNewRowAsAllowed);
    connect(model_, &QAbstractItemModel::rowsInserted, this, &DBGrid::showNewRowAsAllowed);
    connect(model_, &QAbstractItemModel::rowsRemoved, this, &DBGrid::showNewRowAsAllowed);
}

DBGrid::~DBGrid() = default;

void DBGrid::setDataSource(DataControl* source) {
    if (source_)
        disconnect(source_, nullptr, this, nullptr);
    source_ = source;
    if (source_) {
        connect(source_, &DataControl::repositioned, this, &DBGrid::followDataControl);
        connect(source_, &DataControl::rowsChanged, this, &DBGrid::rowsOfSourceChanged);
        connect(source_, &DataControl::reopened, this, &DBGrid::reopened);
    }
    reopened();
}

void DBGrid::addColumn(const QString& column, const QString& heading) {
    model_->addColumn(column, heading);
}

int DBGrid::Col() const {
    return currentIndex().isValid() ? currentIndex().column() : 0;
}

void DBGrid::setCol(int column) {
    if (column < 0 || column >= model_->columnCount())
        throw VbError(380);
    setCurrentLine(currentIndex().isValid() ? currentIndex().row() : 0, column);
}

QString DBGrid::Text() {
    commitEditor();
    return model_->data(currentIndex(), Qt::DisplayRole).toString();
}

int DBGrid::newRow() const {
    return model_->newRow();
}

void DBGrid::setAllowAddNew(bool allow) {
    if (allow == allowAddNew_)
        return;
    allowAddNew_ = allow;
    if (allow)
        setRowHidden(newRow(), false);
    else
        showNewRowAsAllowed();
}

// The new row moves down as rows are added: every line is shown again but the new row's.
void DBGrid::showNewRowAsAllowed() {
    if (allowAddNew_)
        return;
    for (int row = 0; row < model_->rowCount(); ++row)
        setRowHidden(row, !allowAddNew_ && row == newRow());
}

void DBGrid::stepDown() {
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QApplication::sendEvent(this, &down);
    if (currentIndex().isValid() && currentIndex().row() == newRow())
        edit(currentIndex());
}

void DBGrid::commitEditor() {
    if (editor_ && state() == QAbstractItemView::EditingState)
        commitData(editor_);
}

void DBGrid::finishEditing() {
    if (!editor_ || state() != QAbstractItemView::EditingState)
        return;
    QWidget* editor = editor_;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void DBGrid::setCurrentLine(int row, int column) {
    if (row < 0 || row >= model_->rowCount())
        return;
    const bool wasSyncing = syncing_;
    syncing_ = true;
    setCurrentIndex(model_->index(row, column));
    syncing_ = wasSyncing;
}

// A move of the data control (navigator, code, refresh) brings the grid's current line along.
void DBGrid::followDataControl() {
    if (syncing_ || !model_->open())
        return;
    const int position = model_->rs()->AbsolutePosition();
    if (position >= 0)
        setCurrentLine(position, Col());
}

void DBGrid::rowsOfSourceChanged() {
    const bool wasSyncing = syncing_;
    syncing_ = true;
    model_->grow();
    syncing_ = wasSyncing;
}

void DBGrid::reopened() {
    syncing_ = true;
    model_->reset();
    syncing_ = false;
    fitColumns();
    followDataControl();
}

// A short column (a code, a cycle, a postal code) takes the room of its heading or of its longest
// value; the others share what is left, so that a text such as a level's details reads whole.
void DBGrid::fitColumns() {
    if (!model_->open())
        return;
    constexpr int shortColumn = 10; // characters
    QHeaderView& header = *horizontalHeader();
    const int cellMargins = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
    bool shared = false;
    for (int column = 0; column < model_->columnCount(); ++column) {
        const int size = model_->limitOf(column);
        if (size <= 0 || size > shortColumn) {
            header.setSectionResizeMode(column, QHeaderView::Stretch);
            shared = true;
            continue;
        }
        header.setSectionResizeMode(column, QHeaderView::Interactive);
        const int values = fontMetrics().averageCharWidth() * size + cellMargins;
        setColumnWidth(column, std::max(header.sectionSizeHint(column), values));
    }
    header.setStretchLastSection(!shared);
}

void DBGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous); // commits an open editor of the line left
    if (syncing_ || !current.isValid() || !previous.isValid() || current.row() == previous.row())
        return;
    leaveRow(previous.row(), current.row());
}

// Leaving a line writes it when edited; landing on a row makes it the data control's current row.
void DBGrid::leaveRow(int from, int to) {
    if (!model_->open())
        return;
    syncing_ = true;
    DataControl& source = *source_;
    const bool done = to == newRow() ? source.runOutsideCode([&source] { source.commitRow(); })
                                     : source.runOutsideCode([&source, to] { source.moveToPosition(to); });
    syncing_ = false;
    if (!done)
        setCurrentLine(from, Col()); // the refused line stays under edit
}

void DBGrid::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete && state() != QAbstractItemView::EditingState) {
        clearCurrentCell();
        return;
    }
    QTableView::keyPressEvent(event);
}

// The Delete key acts on the text of the cell, as typing does: the cell opens with its text gone, which
// Escape brings back. A whole row goes only by the screen's own button.
void DBGrid::clearCurrentCell() {
    if (!currentIndex().isValid() || !edit(currentIndex(), QAbstractItemView::EditKeyPressed, nullptr))
        return;
    if (auto* line = qobject_cast<QLineEdit*>(editor_.data()))
        line->clear();
}

// Tab walks the cells of one line and no further: past its last cell (or before its first with
// Shift+Tab) it leaves the grid for the next control, so that no other row comes under the user's
// fingers unasked.
QModelIndex DBGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const QModelIndex here = currentIndex();
    const QModelIndex there = QTableView::moveCursor(action, modifiers);
    if ((action == MoveNext || action == MovePrevious) && here.isValid() && there.row() != here.row())
        return {};
    return there;
}

void DBGrid::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    const bool forward = hint == QAbstractItemDelegate::EditNextItem;
    const bool leaves = (forward || hint == QAbstractItemDelegate::EditPreviousItem) &&
                        !moveCursor(forward ? MoveNext : MovePrevious, Qt::NoModifier).isValid();
    QTableView::closeEditor(editor, leaves ? QAbstractItemDelegate::NoHint : hint);
    if (leaves)
        QWidget::focusNextPrevChild(forward);
}
