#include "platform/forms/Clavier.h"

#include <QGuiApplication>

#if defined(Q_OS_WIN)
#include <windows.h>
#elif defined(NORVANE_AVEC_X11)
#include <X11/XKBlib.h>
#endif

namespace {

#if defined(Q_OS_WIN)

std::optional<VerrousClavier> verrous_du_système() {
    const auto allumé = [](int touche) { return (GetKeyState(touche) & 1) != 0; };
    return VerrousClavier{allumé(VK_CAPITAL), allumé(VK_NUMLOCK), allumé(VK_INSERT)};
}

#elif defined(NORVANE_AVEC_X11)

// The keyboard's lights by their names, whatever their places on the keyboard at hand.
bool allumé(Display* écran, const char* nom) {
    const Atom indicateur = XInternAtom(écran, nom, True);
    Bool état = False;
    return indicateur != None && XkbGetNamedIndicator(écran, indicateur, nullptr, &état, nullptr, nullptr) &&
           état;
}

// X11 keeps no insert mode: the program keeps its own, off at start.
std::optional<VerrousClavier> verrous_du_système() {
    const auto* x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    Display* écran = x11 ? x11->display() : nullptr;
    if (écran == nullptr)
        return std::nullopt;
    return VerrousClavier{allumé(écran, "Caps Lock"), allumé(écran, "Num Lock"), false};
}

#else

std::optional<VerrousClavier> verrous_du_système() {
    return std::nullopt;
}

#endif

} // namespace

std::optional<VerrousClavier> Clavier::verrous() const {
    return fixés_ ? fixés_ : verrous_du_système();
}
