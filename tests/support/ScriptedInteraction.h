#pragma once

#include "platform/ui/Interaction.h"

#include <QString>
#include <deque>
#include <functional>
#include <ostream>
#include <vector>

class Feuille;

// The user, as a test plays it: every box the program shows is recorded and answered from a queue of
// expected answers. A box that nobody expected fails the test and is answered with its first button.
class ScriptedInteraction : public Interaction {
public:
    struct Box {
        QString text;
        QString title;
        int buttons = 0; // buttons | icon, as the program asked
        bool operator==(const Box&) const = default;
        // A box with the program's title, as the error and question boxes have it.
        static Box titled(const QString& text, int buttons) {
            return {text, QStringLiteral("Norvane v2"), buttons};
        }
    };
    struct Input {
        QString prompt;
        QString title;
        QString defaultValue;
    };

    ~ScriptedInteraction() override;

    // Answers, in the order the boxes will come.
    ScriptedInteraction& expectMsgBox(int answer = vbOK);
    ScriptedInteraction& expectInputBox(const QString& answer); // "" plays Cancel
    // What the user does while the screen is shown modally; it should hide or unload the screen.
    ScriptedInteraction& expectModal(std::function<void(Feuille&)> user);

    int MsgBox(const QString& prompt, int buttons = vbOKOnly,
               const QString& title = QString::fromUtf8(titre_programme)) override;
    QString InputBox(const QString& prompt, const QString& title = QString::fromUtf8(titre_programme),
                     const QString& defaultValue = QString()) override;
    void showModal(ModalScreen& screen) override;
    void setMousePointer(int pointer) override;
    int mousePointer() const override { return pointer_; }

    const std::vector<Box>& boxes() const { return boxes_; }
    const std::vector<Input>& inputs() const { return inputs_; }
    const std::vector<QString>& modals() const { return modals_; } // object names of the screens
    const std::vector<int>& pointerHistory() const { return pointer_history_; }
    const Box& lastBox() const; // fails the test when there was none

    // Answers queued but never used.
    size_t pending() const { return msg_answers_.size() + input_answers_.size() + modal_users_.size(); }
    // Set false when a test leaves answers unused on purpose.
    bool failOnUnusedAnswers = true;

private:
    std::deque<int> msg_answers_;
    std::deque<QString> input_answers_;
    std::deque<std::function<void(Feuille&)>> modal_users_;
    std::vector<Box> boxes_;
    std::vector<Input> inputs_;
    std::vector<QString> modals_;
    std::vector<int> pointer_history_;
    int pointer_ = vbDefault;
};

// Shows a box as text, title and buttons when an assertion on boxes fails.
void PrintTo(const ScriptedInteraction::Box& box, std::ostream* os);
