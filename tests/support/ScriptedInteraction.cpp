#include "support/ScriptedInteraction.h"

#include "platform/forms/Feuille.h"

#include <gtest/gtest.h>

namespace {

int first_button(int buttons) {
    switch (boutons_de(buttons)) {
    case vbAbortRetryIgnore:
        return vbAbort;
    case vbYesNoCancel:
    case vbYesNo:
        return vbYes;
    case vbRetryCancel:
        return vbRetry;
    default:
        return vbOK;
    }
}

} // namespace

ScriptedInteraction::~ScriptedInteraction() {
    if (failOnUnusedAnswers && pending() != 0)
        ADD_FAILURE() << pending() << " réponse(s) préparée(s) jamais demandée(s) par le programme";
}

ScriptedInteraction& ScriptedInteraction::expectMsgBox(int answer) {
    msg_answers_.push_back(answer);
    return *this;
}

ScriptedInteraction& ScriptedInteraction::expectInputBox(const QString& answer) {
    input_answers_.push_back(answer);
    return *this;
}

ScriptedInteraction& ScriptedInteraction::expectModal(std::function<void(Feuille&)> user) {
    modal_users_.push_back(std::move(user));
    return *this;
}

int ScriptedInteraction::MsgBox(const QString& prompt, int buttons, const QString& title) {
    boxes_.push_back({prompt, title, buttons});
    if (msg_answers_.empty()) {
        ADD_FAILURE() << "Boîte inattendue : « " << prompt.toStdString() << " » (" << title.toStdString()
                      << ", " << buttons << ")";
        return first_button(buttons);
    }
    const int answer = msg_answers_.front();
    msg_answers_.pop_front();
    return answer;
}

QString ScriptedInteraction::InputBox(const QString& prompt, const QString& title,
                                      const QString& defaultValue) {
    inputs_.push_back({prompt, title, defaultValue});
    if (input_answers_.empty()) {
        ADD_FAILURE() << "Boîte de saisie inattendue : « " << prompt.toStdString() << " »";
        return QString();
    }
    QString answer = input_answers_.front();
    input_answers_.pop_front();
    return answer;
}

void ScriptedInteraction::showModal(Feuille& feuille) {
    modals_.push_back(feuille.objectName());
    feuille.Show();
    if (modal_users_.empty()) {
        ADD_FAILURE() << "Écran modal inattendu : " << feuille.objectName().toStdString();
        return;
    }
    auto user = std::move(modal_users_.front());
    modal_users_.pop_front();
    user(feuille);
}

void ScriptedInteraction::setMousePointer(int pointer) {
    pointer_ = pointer;
    pointer_history_.push_back(pointer);
}

const ScriptedInteraction::Box& ScriptedInteraction::lastBox() const {
    static const Box none;
    if (boxes_.empty()) {
        ADD_FAILURE() << "Aucune boîte n'a été montrée";
        return none;
    }
    return boxes_.back();
}

void PrintTo(const ScriptedInteraction::Box& box, std::ostream* os) {
    *os << '"' << box.text.toStdString() << "\" / \"" << box.title.toStdString() << "\" / " << box.buttons;
}
