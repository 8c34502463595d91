#pragma once

#include <optional>

// The keyboard's lock keys: Caps Lock, Num Lock and the insert mode.
struct VerrousClavier {
    bool majuscules = false;
    bool numérique = false;
    bool insertion = false;
    bool operator==(const VerrousClavier&) const = default;
};

// The lock keys as the system keeps them, where it lets the program read them (X11, Windows); nothing
// where it does not, as on the offscreen platform of the tests. A test fixes them.
class Clavier {
public:
    std::optional<VerrousClavier> verrous() const;

    void fixer(const VerrousClavier& verrous) { fixés_ = verrous; }
    void libérer() { fixés_.reset(); }

private:
    std::optional<VerrousClavier> fixés_;
};

// The program's one keyboard.
inline Clavier& clavier() {
    static Clavier clavier;
    return clavier;
}
