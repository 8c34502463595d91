#include "platform/forms/DataControl.h"

#include "platform/dao/Database.h"
#include "platform/dao/Recordset.h"
#include "platform/errors/VbError.h"
#include "platform/ui/Interaction.h"
#include "platform/ui/Relier.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPolygonF>
#include <QTextDocument>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

// The engine's own box for a failure that no handler dealt with: its text alone.
void show_engine_error(const VbError& error) {
    Interaction& ui = interaction();
    ui.MsgBox(error.description(), vbExclamation + vbOKOnly, QString::fromUtf8(titre_programme));
    ui.setMousePointer(vbDefault);
}

constexpr int navigation_icon_side = 12;

// A navigator arrow: a triangle pointing the way, and for the two ends a bar against its tip, so that
// "first" reads |< and "last" >|. Drawn pointing left, then mirrored for the right.
QIcon navigation_icon(Qt::ArrowType direction, bool toTheEnd, const QColor& ink) {
    constexpr int scale = 4; // drawn large, so it stays sharp on a dense display
    const qreal s = navigation_icon_side;
    QImage image(QSize(navigation_icon_side, navigation_icon_side) * scale,
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        const qreal tip = toTheEnd ? 4.0 : 3.0;
        const qreal base = toTheEnd ? 10.0 : 9.0;
        painter.drawPolygon(QPolygonF{QPointF(tip, s / 2), QPointF(base, 2.0), QPointF(base, s - 2.0)});
        if (toTheEnd)
            painter.drawRect(QRectF(2.0, 2.0, 1.5, s - 4.0));
    }
    if (direction == Qt::RightArrow)
        image = image.mirrored(true, false);
    return QIcon(QPixmap::fromImage(image));
}

} // namespace

// One control bound to one column, its kind and its column's place in the row set found once, so that a
// move reads each value by position and leaves alone a control that already shows it. A label has no
// change signal: it counts as changed when its text differs from what the row put there.
struct DataControl::Binding {
    using Kind = BoundKind;

    Kind kind;
    QPointer<QWidget> control;
    QString column;
    int index = -1; // the column in the open row set; -1 while none is open or it has no such column
    QString shownLabelText;
    // What the control showed of its row. Only a control whose value has moved from it is written back,
    // so a value that a box could not show whole (longer than its entry limit) is never cut in the file.
    QVariant shownValue;

    QLineEdit* lineEdit() const { return static_cast<QLineEdit*>(control.data()); }
    QPlainTextEdit* plainText() const { return static_cast<QPlainTextEdit*>(control.data()); }
    QCheckBox* checkBox() const { return static_cast<QCheckBox*>(control.data()); }
    QLabel* label() const { return static_cast<QLabel*>(control.data()); }

    QVariant value() const {
        if (!control)
            return {};
        switch (kind) {
        case Kind::LineEdit:
            return textValue(lineEdit()->text());
        case Kind::PlainText:
            return textValue(plainText()->toPlainText());
        case Kind::CheckBox:
            return checkBox()->isChecked();
        case Kind::Label:
            return textValue(label()->text());
        }
        return {};
    }

    // An empty box stores no value, as a column never filled.
    static QVariant textValue(const QString& text) { return text.isEmpty() ? QVariant() : QVariant(text); }

    // Sets the control only when what it shows differs from the row, or when it holds an undo history:
    // the user typed into it since it was set (perhaps back to the same text), and a new row must not
    // let Ctrl+Z bring that edit back.
    void show(const QVariant& value) {
        if (!control)
            return;
        switch (kind) {
        case Kind::LineEdit: {
            QLineEdit* box = lineEdit();
            const QString text = value.toString();
            if (box->isUndoAvailable() || box->isRedoAvailable() || box->text() != text) {
                box->setText(text);
                // A value longer than its box shows its beginning, as one reads it.
                box->setCursorPosition(0);
            }
            break;
        }
        case Kind::PlainText: {
            QPlainTextEdit* box = plainText();
            const QString text = value.toString();
            const QTextDocument* document = box->document();
            if (document->isUndoAvailable() || document->isRedoAvailable() || box->toPlainText() != text)
                box->setPlainText(text);
            break;
        }
        case Kind::CheckBox:
            if (checkBox()->isChecked() != value.toBool())
                checkBox()->setChecked(value.toBool());
            break;
        case Kind::Label: {
            const QString text = value.toString();
            if (label()->text() != text)
                label()->setText(text);
            shownLabelText = label()->text();
            break;
        }
        }
        shownValue = this->value();
    }

    // A label only shows its column, unless code wrote into it: then it carries the new value. A box of a
    // new row is written whatever it holds, a box of an existing row when its value changed.
    bool writable(bool newRow) const {
        if (!control)
            return false;
        if (kind == Kind::Label)
            return labelChanged();
        return newRow || value() != shownValue;
    }

    bool labelChanged() const { return kind == Kind::Label && control && label()->text() != shownLabelText; }
};

DataControl::DataControl(QWidget* parent) : QWidget(parent) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto arrow = [this, layout](const char* name, const char* says, Qt::ArrowType type, bool bar,
                                void (DataControl::*move)()) {
        auto* button = new QToolButton(this);
        button->setObjectName(QString::fromUtf8(name));
        // An arrow has no text: its name is what a screen reader says and what the pointer shows.
        button->setAccessibleName(QString::fromUtf8(says));
        button->setToolTip(QString::fromUtf8(says));
        button->setIcon(navigation_icon(type, bar, palette().color(QPalette::ButtonText)));
        button->setIconSize(QSize(navigation_icon_side, navigation_icon_side));
        button->setToolButtonStyle(Qt::ToolButtonIconOnly);
        // Taking the focus on a click hands a cell being typed in over to its row before the move.
        button->setFocusPolicy(Qt::ClickFocus);
        relier(button, &QToolButton::clicked, this, move);
        layout->addWidget(button);
    };
    arrow("premier", "Première fiche", Qt::LeftArrow, true, &DataControl::navigateFirst);
    arrow("précédent", "Fiche précédente", Qt::LeftArrow, false, &DataControl::navigatePrevious);
    caption_ = new QLabel(this);
    caption_->setObjectName(u"caption"_s);
    caption_->setAlignment(Qt::AlignCenter);
    caption_->setFrameShape(QFrame::Panel);
    caption_->setFrameShadow(QFrame::Sunken);
    caption_->setText(u" "_s);
    layout->addWidget(caption_, 1);
    arrow("suivant", "Fiche suivante", Qt::RightArrow, false, &DataControl::navigateNext);
    arrow("dernier", "Dernière fiche", Qt::RightArrow, true, &DataControl::navigateLast);
}

DataControl::~DataControl() = default;

QString DataControl::Caption() const {
    return caption_->text();
}
void DataControl::setCaption(const QString& caption) {
    caption_->setText(caption);
}

::Recordset& DataControl::rs() const {
    if (!recordset_)
        throw VbError(91);
    return *recordset_;
}

DataRecordset& DataControl::Recordset() {
    rs();
    return view_;
}

void DataControl::Refresh() {
    if (recordset_ && !leaveRow(vbDataActionClose))
        return;
    closeDatabase();
    try {
        database_ = Database::open(databaseName_);
        recordset_ = database_->OpenRecordset(recordSource_);
        findColumns();
    } catch (...) {
        // No row set, no row: the bound controls must not go on showing the file read before.
        closeDatabase();
        showCurrentRow();
        throw;
    }
    showCurrentRow();
    emit reopened();
    firePositionChange();
}

void DataControl::UpdateRecord() {
    auto& r = rs();
    int action = vbDataActionUpdate;
    bool save = DataChanged();
    if (Validate)
        Validate(action, save);
    if (action == vbDataActionCancel)
        return;
    if (save || r.editMode() == EditMode::AddNew)
        writeEdits();
    else
        lastWritten_ = r.Bookmark();
}

bool DataControl::unload() {
    if (!recordset_)
        return true;
    if (!runOutsideCode([this] { leaveRow(vbDataActionUnload); }))
        return false; // the row set stays open, the edit on screen
    closeDatabase();
    return true;
}

void DataControl::closeDatabase() {
    recordset_.reset();
    findColumns();
    if (database_)
        database_->Close();
    database_.reset();
    lastWritten_.clear();
    pending_.clear();
    changed_ = false;
    refusedByAnotherUser_ = false;
    emit reopened();
}

bool DataControl::DataChanged() const {
    if (changed_ || !pending_.isEmpty())
        return true;
    for (const auto& binding : bindings_)
        if (binding->labelChanged())
            return true;
    return false;
}

// An edit the file refused because another user changed or deleted the row can never be written:
// refreshing or closing then gives it up, so the user is never held on that row. Every other way off
// the row tries the write again, and tells the refusal again, rather than lose the edit unseen.
bool DataControl::leaveRow(int action) {
    bool save = DataChanged();
    if (Validate)
        Validate(action, save);
    if (action == vbDataActionCancel)
        return false;
    const bool givenUp =
        refusedByAnotherUser_ && (action == vbDataActionClose || action == vbDataActionUnload);
    if (save && !givenUp)
        writeEdits();
    else
        discardEdits();
    return true;
}

void DataControl::writeEdits() {
    auto& r = rs();
    const bool added = r.editMode() == EditMode::AddNew;
    try {
        if (r.editMode() == EditMode::None)
            r.Edit();
        for (const auto& binding : bindings_)
            if (binding->index >= 0 && binding->writable(added))
                r.setField(binding->index, binding->value());
        for (auto it = pending_.cbegin(); it != pending_.cend(); ++it)
            r.setField(it.key(), it.value());
        r.Update();
    } catch (const VbError& error) {
        if (error.number() == 3167 || error.number() == 3197)
            refusedByAnotherUser_ = true;
        throw;
    }
    lastWritten_ = r.LastModified();
    changed_ = false;
    pending_.clear();
    for (const auto& binding : bindings_) {
        if (binding->kind == Binding::Kind::Label && binding->control)
            binding->shownLabelText = binding->label()->text();
        binding->shownValue = binding->value();
    }
    if (added)
        emit rowsChanged();
}

void DataControl::discardEdits() {
    const bool added = recordset_ && recordset_->editMode() == EditMode::AddNew;
    if (recordset_ && recordset_->editMode() != EditMode::None)
        recordset_->CancelUpdate();
    changed_ = false;
    pending_.clear();
    if (added)
        emit rowsChanged();
}

void DataControl::showCurrentRow() {
    refusedByAnotherUser_ = false;
    filling_ = true;
    bool onRow = static_cast<bool>(recordset_);
    for (const auto& binding : bindings_) {
        QVariant value;
        if (onRow && binding->index >= 0) {
            try {
                value = recordset_->field(binding->index);
            } catch (const VbError&) {
                // No current row (an empty set, EOF, a deleted row): the controls show nothing.
                onRow = false;
            }
        }
        binding->show(value);
    }
    filling_ = false;
    changed_ = false;
    pending_.clear();
}

void DataControl::firePositionChange() {
    if (Reposition)
        Reposition();
    emit repositioned();
}

void DataControl::markChanged() {
    if (!filling_)
        changed_ = true;
}

void DataControl::addBinding(QWidget* control, BoundKind kind, const QString& column) {
    auto binding = std::make_unique<Binding>();
    binding->kind = kind;
    binding->control = control;
    binding->column = column;
    binding->index = recordset_ ? recordset_->fieldIndex(column) : -1;
    bindings_.push_back(std::move(binding));
}

void DataControl::findColumns() {
    for (const auto& binding : bindings_)
        binding->index = recordset_ ? recordset_->fieldIndex(binding->column) : -1;
}

void DataControl::bind(QLineEdit* box, const QString& column) {
    addBinding(box, BoundKind::LineEdit, column);
    connect(box, &QLineEdit::textChanged, this, &DataControl::markChanged);
}

void DataControl::bind(QPlainTextEdit* box, const QString& column) {
    addBinding(box, BoundKind::PlainText, column);
    connect(box, &QPlainTextEdit::textChanged, this, &DataControl::markChanged);
}

void DataControl::bind(QCheckBox* box, const QString& column) {
    addBinding(box, BoundKind::CheckBox, column);
    connect(box, &QCheckBox::toggled, this, &DataControl::markChanged);
}

void DataControl::bind(QLabel* label, const QString& column) {
    addBinding(label, BoundKind::Label, column);
}

bool DataControl::isAddingNew() const {
    return recordset_ && recordset_->editMode() == EditMode::AddNew;
}

bool DataControl::isStartingEmptySet() const {
    return rs().editMode() == EditMode::AddNew && rs().RecordCount() == 0 && !DataChanged();
}

QVariant DataControl::pendingValue(const QString& column, bool* found) const {
    const auto it = pending_.constFind(column);
    *found = it != pending_.cend();
    return *found ? it.value() : QVariant();
}

void DataControl::setPendingValue(const QString& column, const QVariant& value) {
    pending_.insert(column, value);
}

void DataControl::beginGridNewRow() {
    auto& r = rs();
    if (r.editMode() == EditMode::AddNew)
        return;
    if (DataChanged())
        writeEdits();
    else
        discardEdits();
    r.AddNew();
}

void DataControl::commitRow() {
    if (!recordset_)
        return;
    if (!DataChanged()) {
        discardEdits();
        return;
    }
    if (!leaveRow(vbDataActionUpdate))
        return;
    firePositionChange();
}

void DataControl::moveWith(int action, const std::function<void(::Recordset&)>& move) {
    // The new row of a set that holds none (the first record a menu command starts on an empty table)
    // is the only row there is: untouched, a move has nowhere to go and keeps it, where dropping it
    // first would leave no row to move to.
    if (isStartingEmptySet())
        return;
    if (!leaveRow(action))
        return;
    move(rs());
    showCurrentRow();
    firePositionChange();
}

void DataControl::moveToPosition(int position) {
    if (!leaveRow(vbDataActionBookmark))
        return;
    rs().setAbsolutePosition(position);
    showCurrentRow();
    firePositionChange();
}

bool DataControl::runOutsideCode(const std::function<void()>& action) {
    try {
        action();
        return true;
    } catch (const std::exception& failure) {
        const VbError error = vb_error_from(failure);
        lastError_ = error.number();
        int response = vbDataErrDisplay;
        if (Error)
            Error(error.number(), response);
        if (response != vbDataErrContinue)
            show_engine_error(error);
        return false;
    }
}

void DataControl::navigateFirst() {
    runOutsideCode([this] { view_.MoveFirst(); });
}

void DataControl::navigatePrevious() {
    runOutsideCode([this] {
        view_.MovePrevious();
        if (view_.isBOF())
            view_.MoveFirst();
    });
}

void DataControl::navigateNext() {
    runOutsideCode([this] {
        view_.MoveNext();
        if (view_.isEOF())
            view_.MoveLast();
    });
}

void DataControl::navigateLast() {
    runOutsideCode([this] { view_.MoveLast(); });
}

// ---- the row set as handlers see it

Recordset& DataRecordset::raw() const {
    return control_.rs();
}

void DataRecordset::AddNew() {
    raw();
    if (!control_.leaveRow(vbDataActionAddNew))
        return;
    raw().AddNew();
    control_.showCurrentRow();
    control_.firePositionChange();
}

void DataRecordset::Edit() {
    raw().Edit();
}

void DataRecordset::Update() {
    auto& r = raw();
    const bool added = r.editMode() == EditMode::AddNew;
    r.Update();
    control_.lastWritten_ = r.LastModified();
    if (added)
        emit control_.rowsChanged();
}

void DataRecordset::CancelUpdate() {
    control_.discardEdits();
    control_.showCurrentRow();
}

void DataRecordset::Delete() {
    raw();
    int action = vbDataActionDelete;
    bool save = control_.DataChanged();
    if (control_.Validate)
        control_.Validate(action, save);
    if (action == vbDataActionCancel)
        return;
    // The engine refuses first (3021 on a new row not yet saved, no current row): the buffer and what
    // the screen shows stay, still to be saved. A row that goes is not written first.
    raw().Delete();
    control_.discardEdits();
    emit control_.rowsChanged();
}

void DataRecordset::MoveFirst() {
    control_.moveWith(vbDataActionMoveFirst, [](Recordset& r) { r.MoveFirst(); });
}
void DataRecordset::MovePrevious() {
    control_.moveWith(vbDataActionMovePrevious, [](Recordset& r) { r.MovePrevious(); });
}
void DataRecordset::MoveNext() {
    control_.moveWith(vbDataActionMoveNext, [](Recordset& r) { r.MoveNext(); });
}
void DataRecordset::MoveLast() {
    control_.moveWith(vbDataActionMoveLast, [](Recordset& r) { r.MoveLast(); });
}

void DataRecordset::FindFirst(const QString& criterion) {
    raw();
    if (!control_.leaveRow(vbDataActionFind))
        return;
    raw().FindFirst(criterion);
    if (raw().NoMatch())
        return;
    control_.showCurrentRow();
    control_.firePositionChange();
}

void DataRecordset::setBookmark(const QByteArray& bookmark) {
    control_.moveWith(vbDataActionBookmark, [&bookmark](Recordset& r) { r.setBookmark(bookmark); });
}

bool DataRecordset::isEOF() const {
    return raw().isEOF();
}
bool DataRecordset::isBOF() const {
    return raw().isBOF();
}
bool DataRecordset::NoMatch() const {
    return raw().NoMatch();
}
int DataRecordset::AbsolutePosition() const {
    return raw().AbsolutePosition();
}
int DataRecordset::RecordCount() const {
    return raw().RecordCount();
}
QByteArray DataRecordset::Bookmark() const {
    return raw().Bookmark();
}

QByteArray DataRecordset::LastModified() const {
    raw();
    return control_.lastWritten_.isEmpty() ? raw().LastModified() : control_.lastWritten_;
}

QVariant DataRecordset::field(const QString& column) const {
    return raw().field(column);
}
void DataRecordset::setField(const QString& column, const QVariant& value) {
    raw().setField(column, value);
}
