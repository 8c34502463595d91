#include "support/ScriptedInteraction.h"

#include "platform/forms/Feuille.h"

#include <gtest/gtest.h>
#include <optional>

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

// The next queued answer, taken off its queue; none when the queue is empty.
template <class T> std::optional<T> prendre(std::deque<T>& file) {
    if (file.empty())
        return std::nullopt;
    T suivante = std::move(file.front());
    file.pop_front();
    return suivante;
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
    if (const auto answer = prendre(msg_answers_))
        return *answer;
    ADD_FAILURE() << "Boîte inattendue : « " << prompt.toStdString() << " » (" << title.toStdString() << ", "
                  << buttons << ")";
    return first_button(buttons);
}

QString ScriptedInteraction::InputBox(const QString& prompt, const QString& title,
                                      const QString& defaultValue) {
    inputs_.push_back({prompt, title, defaultValue});
    if (auto answer = prendre(input_answers_))
        return *answer;
    ADD_FAILURE() << "Boîte de saisie inattendue : « " << prompt.toStdString() << " »";
    return QString();
}

void ScriptedInteraction::showModal(ModalScreen& screen) {
    auto& feuille = dynamic_cast<Feuille&>(screen);
    modals_.push_back(feuille.objectName());
    feuille.Show();
    if (const auto user = prendre(modal_users_))
        (*user)(feuille);
    else
        ADD_FAILURE() << "Écran modal inattendu : " << feuille.objectName().toStdString();
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
