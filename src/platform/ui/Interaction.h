#pragma once

#include <QString>
#include <memory>

class QWidget;

// Buttons of a message box.
inline constexpr int vbOKOnly = 0;
inline constexpr int vbOKCancel = 1;
inline constexpr int vbAbortRetryIgnore = 2;
inline constexpr int vbYesNoCancel = 3;
inline constexpr int vbYesNo = 4;
inline constexpr int vbRetryCancel = 5;
// Icons, added to the buttons.
inline constexpr int vbCritical = 16;
inline constexpr int vbQuestion = 32;
inline constexpr int vbExclamation = 48;
inline constexpr int vbInformation = 64;
// What the user answered.
inline constexpr int vbOK = 1;
inline constexpr int vbCancel = 2;
inline constexpr int vbAbort = 3;
inline constexpr int vbRetry = 4;
inline constexpr int vbIgnore = 5;
inline constexpr int vbYes = 6;
inline constexpr int vbNo = 7;
// Mouse pointers.
inline constexpr int vbDefault = 0;
inline constexpr int vbArrow = 1;
inline constexpr int vbHourglass = 11;

// The title of every box the program shows.
inline constexpr const char* titre_programme = "Norvane v2";

// What showing a screen modally needs of it: the window that carries it, and its own way of showing
// itself. Every screen (Feuille) is one.
class ModalScreen {
public:
    virtual QWidget& conteneur() = 0;
    virtual void Show() = 0;

protected:
    ~ModalScreen() = default;
};

// Every exchange that stops the user: message boxes, input boxes, modal screens, and the mouse pointer.
// The program talks to the user only through this service, so tests can answer in its place.
class Interaction {
public:
    virtual ~Interaction() = default;

    // `buttons` is a button code plus an icon code; returns one of vbOK..vbNo.
    virtual int MsgBox(const QString& prompt, int buttons = vbOKOnly,
                       const QString& title = QString::fromUtf8(titre_programme)) = 0;
    // The typed text, or "" when the user cancels.
    virtual QString InputBox(const QString& prompt, const QString& title = QString::fromUtf8(titre_programme),
                             const QString& defaultValue = QString()) = 0;
    // Shows the screen and returns once it is hidden or unloaded.
    virtual void showModal(ModalScreen& screen) = 0;

    virtual void setMousePointer(int pointer) = 0; // vbDefault, vbArrow or vbHourglass
    virtual int mousePointer() const = 0;
};

// The service the whole program talks to the user through: the real dialogs, unless another is in place.
Interaction& interaction();
// Puts another service in place (a test's scripted one); nullptr brings back the real dialogs.
void setInteraction(std::shared_ptr<Interaction> interaction);

// The button part and the icon part of a MsgBox code.
inline int boutons_de(int code) {
    return code & 0x0F;
}
inline int icône_de(int code) {
    return code & 0x70;
}
