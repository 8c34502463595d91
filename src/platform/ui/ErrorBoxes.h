#pragma once

#include "platform/errors/VbError.h"

#include <QString>
#include <exception>
#include <utility>

// The three shapes of error box: an exclamation box with OK and the program's title, whose text is
// the shape's first piece, the error number in decimal, two line feeds and the error's text. Each
// then puts the mouse pointer back to the default.
enum class ErrorBoxKind {
    standard,         // "Le logiciel a rencontré l'erreur : "
    données,          // "Le gestionnaire d'erreurs des données a rencontré l'erreur : "
    logiciel_données, // "Le logiciel des données a rencontré l'erreur : "
};

// The text of a box, as the user reads it.
QString texte_erreur(ErrorBoxKind kind, const VbError& erreur);

void message_erreur(ErrorBoxKind kind, const VbError& erreur);
void message_erreur_standard(const VbError& erreur);
void message_erreur_données(const VbError& erreur);
void message_erreur_logiciel_données(const VbError& erreur);
void message_erreur_standard(const std::exception& erreur);
void message_erreur_données(const std::exception& erreur);
void message_erreur_logiciel_données(const std::exception& erreur);

// A handler's error trap: runs `body`; on a failure shows the named box (which resets the mouse
// pointer), then runs `après_la_boîte` (the handler's own tidying, such as hiding the wait notice),
// and ends there, so the caller goes on. What the body did before the failure stays done.
// Returns true when the body ran to its end.
template <class F, class G> bool avec_piège(ErrorBoxKind kind, F&& body, G&& après_la_boîte) {
    try {
        body();
        return true;
    } catch (const std::exception& e) {
        message_erreur(kind, vb_error_from(e));
    }
    après_la_boîte();
    return false;
}

template <class F> bool avec_piège(ErrorBoxKind kind, F&& body) {
    return avec_piège(kind, std::forward<F>(body), [] {});
}

// The net under every handler that Qt calls: runs `body`; a failure it did not trap itself is shown
// with the standard box, as an untrapped failure, and the program goes on with the next event. Nothing
// thrown ever unwinds through Qt. Returns true when the body ran to its end.
template <class F> bool avec_filet(F&& body) {
    try {
        body();
        return true;
    } catch (const std::exception& e) {
        message_erreur_standard(e);
    } catch (...) {
        message_erreur_standard(VbError(51)); // "Erreur interne"
    }
    return false;
}

// A trap that ignores the failure without a word, for the few steps that must go on regardless.
template <class F> bool en_silence(F&& body) {
    try {
        body();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}
