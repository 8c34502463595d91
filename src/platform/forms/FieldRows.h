#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QString>
#include <Qt>
#include <span>
#include <variant>
#include <vector>

class DataControl;
class Feuille;
class QGridLayout;
class QGroupBox;
class QTabWidget;
class QWidget;

// One field of a screen, as the screen declares it. The defaults are the common case: a one-line box
// bound to the column of its own name, with a label caption, typed freely, alone on its row.
template <class Screen> struct FieldRow {
    // The kind of the member is the kind of control: one line, several lines, a check box, or a label
    // that the code writes (never bound).
    using Member = std::variant<QLineEdit * Screen::*, QPlainTextEdit * Screen::*, QCheckBox * Screen::*,
                                QLabel * Screen::*>;
    const char* name;                             // object name of the control
    Member member;                                // where the screen keeps it
    const char* column = nullptr;                 // bound column; nullptr: the column named as the field
    const char* caption = nullptr;                // label beside it, caption button's or check box's text
    const char* button = nullptr;                 // object name of the caption button, nullptr for a label
    QPushButton* Screen::*buttonMember = nullptr; // where the screen keeps its caption button
    const char* buttonTip = nullptr;              // help text of the caption button
    int limit = 0;                                // entry limit in characters, 0 for none
    const char* tip = nullptr;                    // help text of the field
    const char* group = "";                       // the group whose grid lays it out
    bool lookupFed = false;                       // filled by a lookup only: disabled
    bool hidden = false;                          // holds a value for the binding only
    bool sameLine = false;                        // beside the previous field rather than below it
};

// What sets the look of a screen's fields apart from another screen's.
struct FieldStyle {
    bool fitBoxWidths = false;      // a short entry gets a box about its own width
    bool tightButtons = false;      // a caption button may shrink to its caption
    bool captionsAtTop = false;     // every caption stands at the top of its row
    int textLines = 4;              // height of a multi-line box, in lines
    bool fixedTextHeight = false;   // exactly that height, rather than at least
    bool textScrollBarShown = true; // a multi-line box always shows its scroll bar
};

// Makes a screen's fields from its rows: the controls with their limits, help texts and captions, the
// binding to the data source, a label buddy for each caption (so a screen reader names each field by
// its caption), the layout in the groups' grids and the keyboard order of the rows.
class FieldBuilder {
public:
    FieldBuilder(DataControl& source, FieldStyle style = {});

    // A group the rows name, laid out on `grid`; `boxAlignment` aligns the text of its one-line boxes.
    void addGroup(const QString& name, QGridLayout* grid, Qt::Alignment boxAlignment = {});
    // A group box of that object name with its own grid, made a group.
    QGroupBox* addGroupBox(const QString& name, QWidget* parent, Qt::Alignment boxAlignment = {});
    QGridLayout* grid(const QString& name) const;
    // A row of the group's grid kept for what the screen places there, above the fields to come.
    int takeRow(const QString& name);
    // The first row of a group's grid below its fields, for what a screen places beside them.
    int nextRow(const QString& name) const;
    // Columns of the group's widest row: a caption and its field make two, and one spare column follows.
    int columns(const QString& name) const;

    template <class Screen> void build(Screen& screen, std::span<const FieldRow<Screen>> rows) {
        std::vector<Spec> specs;
        specs.reserve(rows.size());
        for (const FieldRow<Screen>& r : rows)
            specs.push_back({r.name, r.column, r.caption, r.button, r.buttonTip, r.limit, r.tip, r.group,
                             r.lookupFed, r.hidden, r.sameLine, static_cast<Kind>(r.member.index())});
        const std::vector<Made> made = build(specs);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            std::visit(
                [&](auto member) {
                    using Control = std::remove_reference_t<decltype(*(screen.*member))>;
                    screen.*member = static_cast<Control*>(made[i].control);
                },
                rows[i].member);
            if (rows[i].buttonMember)
                screen.*(rows[i].buttonMember) = made[i].button;
        }
    }

    // The Tab key walks the fields in the order of the rows.
    void chainTabOrder() const;

private:
    enum class Kind { line, text, check, label };
    struct Spec {
        const char *name, *column, *caption, *button, *buttonTip;
        int limit;
        const char *tip, *group;
        bool lookupFed, hidden, sameLine;
        Kind kind;
    };
    struct Made {
        QWidget* control;
        QPushButton* button;
    };
    struct Group {
        QString name;
        QGridLayout* grid;
        Qt::Alignment boxAlignment;
        int row = -1;
        int column = 0;
        int pairs = 1;     // widest row of the group, in pairs of caption and field
        int remaining = 0; // pairs still to come on the current row
    };

    std::vector<Made> build(std::span<const Spec> specs);
    QWidget* make(const Spec& s, QWidget* parent, const Group& g) const;
    void place(Group& g, const Spec& s, QWidget* control, QPushButton* button, int pairsOfTheRow);
    Group& group(const QString& name);
    const Group& group(const QString& name) const;

    DataControl& source_;
    FieldStyle style_;
    std::vector<Group> groups_;
    std::vector<QWidget*> fields_;
};

// A button as a screen declares it: its object name, caption and help text (none when null).
QPushButton* namedButton(QWidget* parent, const char* name, const char* caption, const char* tip = nullptr);

// A button may shrink to its caption on a small display, where the style makes every button as wide.
void fitButtonToCaption(QPushButton& button);

// Every control that can take the focus on a page of `tabs` brings that page forward when it takes
// the focus, so that a user who moves on with the Tab key never types into a hidden page.
void followPages(Feuille& screen, QTabWidget& tabs);
