#include "platform/forms/FieldRows.h"

#include "platform/errors/VbError.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/Feuille.h"
#include "platform/forms/LimiteSaisie.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <algorithm>

namespace {

QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

// Short entries get a box about their own width, so that a code of five letters does not stretch over
// the page; long ones take what the row gives them.
void fitWidth(QLineEdit& box, int limit) {
    const int letters = limit == 0 ? 11 : limit;
    const int digit = box.fontMetrics().horizontalAdvance(QLatin1Char('0'));
    if (letters <= 12)
        box.setFixedWidth(digit * (letters + 3));
    else
        box.setMinimumWidth(digit * std::min(10 + letters / 4, 24));
}

} // namespace

QPushButton* namedButton(QWidget* parent, const char* name, const char* caption, const char* tip) {
    auto* button = new QPushButton(text(caption), parent);
    button->setObjectName(text(name));
    if (tip)
        button->setToolTip(text(tip));
    return button;
}

void fitButtonToCaption(QPushButton& button) {
    button.setMinimumWidth(std::min(button.minimumSizeHint().width(),
                                    button.fontMetrics().horizontalAdvance(button.text()) + 16));
}

FieldBuilder::FieldBuilder(DataControl& source, FieldStyle style) : source_(source), style_(style) {}

void FieldBuilder::addGroup(const QString& name, QGridLayout* grid, Qt::Alignment boxAlignment) {
    groups_.push_back({name, grid, boxAlignment});
}

QGroupBox* FieldBuilder::addGroupBox(const QString& name, QWidget* parent, Qt::Alignment boxAlignment) {
    auto* box = new QGroupBox(parent);
    box->setObjectName(name);
    addGroup(name, new QGridLayout(box), boxAlignment);
    return box;
}

FieldBuilder::Group& FieldBuilder::group(const QString& name) {
    return const_cast<Group&>(std::as_const(*this).group(name));
}

// A row naming a group nobody declared is an error of the screen's declaration.
const FieldBuilder::Group& FieldBuilder::group(const QString& name) const {
    for (const Group& g : groups_)
        if (g.name == name)
            return g;
    throw VbError(424);
}

QGridLayout* FieldBuilder::grid(const QString& name) const {
    return group(name).grid;
}

int FieldBuilder::takeRow(const QString& name) {
    return ++group(name).row;
}

int FieldBuilder::nextRow(const QString& name) const {
    return group(name).row + 1;
}

int FieldBuilder::columns(const QString& name) const {
    return 2 * group(name).pairs + 1;
}

std::vector<FieldBuilder::Made> FieldBuilder::build(std::span<const Spec> specs) {
    // The widest row of each group decides how many columns its grid has.
    for (Group& g : groups_) {
        int pairs = 0;
        for (const Spec& s : specs) {
            if (text(s.group) != g.name || s.hidden)
                continue;
            pairs = s.sameLine ? pairs + 1 : 1;
            g.pairs = std::max(g.pairs, pairs);
        }
    }
    std::vector<Made> made;
    for (std::size_t i = 0; i < specs.size(); ++i) {
        const Spec& s = specs[i];
        Group& g = group(text(s.group));
        QWidget* parent = g.grid->parentWidget();
        QWidget* control = make(s, parent, g);
        QPushButton* button = nullptr;
        if (s.button) {
            button = namedButton(parent, s.button, s.caption, s.buttonTip);
            if (style_.tightButtons)
                fitButtonToCaption(*button);
            // A screen reader names the field by the caption it reads on the button.
            control->setAccessibleName(button->text().remove(QLatin1Char('&')));
        }
        made.push_back({control, button});
        if (s.hidden) {
            control->hide();
            continue;
        }
        fields_.push_back(control);
        int pairsOfTheRow = 1;
        for (std::size_t j = i + 1; j < specs.size() && specs[j].sameLine; ++j)
            ++pairsOfTheRow;
        place(g, s, control, button, pairsOfTheRow);
    }
    return made;
}

QWidget* FieldBuilder::make(const Spec& s, QWidget* parent, const Group& g) const {
    const QString column = s.column ? text(s.column) : text(s.name);
    QWidget* control = nullptr;
    switch (s.kind) {
    case Kind::line: {
        auto* box = new QLineEdit(parent);
        if (s.limit > 0)
            limiter_saisie(*box, s.limit);
        if (style_.fitBoxWidths)
            fitWidth(*box, s.limit);
        if (g.boxAlignment)
            box->setAlignment(g.boxAlignment);
        source_.bind(box, column);
        control = box;
        break;
    }
    case Kind::text: {
        auto* area = new QPlainTextEdit(parent);
        if (style_.textScrollBarShown)
            area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        area->setTabChangesFocus(true);
        if (style_.fixedTextHeight)
            area->setFixedHeight(area->fontMetrics().height() * style_.textLines + 8);
        else
            area->setMinimumHeight(style_.textLines * area->fontMetrics().lineSpacing());
        if (s.limit > 0)
            limiter_saisie(*area, s.limit);
        source_.bind(area, column);
        control = area;
        break;
    }
    case Kind::check: {
        auto* check = new QCheckBox(text(s.caption), parent);
        // The caption may change (blink); the name a screen reader gives stays.
        check->setAccessibleName(text(s.caption));
        source_.bind(check, column);
        control = check;
        break;
    }
    case Kind::label: {
        auto* label = new QLabel(parent);
        label->setFrameShape(QFrame::Panel);
        label->setFrameShadow(QFrame::Sunken);
        control = label;
        break;
    }
    }
    control->setObjectName(text(s.name));
    if (s.tip)
        control->setToolTip(text(s.tip));
    if (s.lookupFed)
        control->setEnabled(false);
    return control;
}

// A field goes right of the previous one on its row, or starts a new row of `pairsOfTheRow` pairs;
// the last field of a row stretches over the columns that the row leaves free.
void FieldBuilder::place(Group& g, const Spec& s, QWidget* control, QPushButton* button, int pairsOfTheRow) {
    if (!s.sameLine) {
        ++g.row;
        g.column = 0;
        g.remaining = pairsOfTheRow;
    }
    --g.remaining;
    const int span = g.remaining == 0 ? 2 + 2 * (g.pairs - g.column / 2 - 1) : 1;
    QWidget* caption = button;
    if (!caption && s.kind != Kind::check) {
        auto* label = new QLabel(text(s.caption), control->parentWidget());
        label->setBuddy(control);
        caption = label;
    }
    const bool top = style_.captionsAtTop || s.kind == Kind::text;
    if (caption)
        g.grid->addWidget(caption, g.row, g.column, top ? Qt::AlignTop : Qt::Alignment());
    g.grid->addWidget(control, g.row, g.column + 1, 1, span);
    // Only the spare column stretches, so that a caption stays beside the field before it.
    g.grid->setColumnStretch(2 * g.pairs, 1);
    g.column += 2;
}

void FieldBuilder::chainTabOrder() const {
    for (std::size_t i = 1; i < fields_.size(); ++i)
        QWidget::setTabOrder(fields_[i - 1], fields_[i]);
}

void followPages(Feuille& screen, QTabWidget& tabs) {
    QPointer<QTabWidget> guarded(&tabs);
    for (int page = 0; page < tabs.count(); ++page)
        for (QWidget* w : tabs.widget(page)->findChildren<QWidget*>()) {
            if (w->focusPolicy() == Qt::NoFocus)
                continue;
            screen.surGotFocus(w, [guarded, page] {
                if (guarded)
                    guarded->setCurrentIndex(page);
            });
        }
}
