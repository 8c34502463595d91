#include "platform/ui/ErrorBoxes.h"

#include "platform/ui/Interaction.h"

using namespace Qt::StringLiterals;

namespace {

QString premier_morceau(ErrorBoxKind kind) {
    switch (kind) {
    case ErrorBoxKind::données:
        return u"Le gestionnaire d'erreurs des données a rencontré l'erreur : "_s;
    case ErrorBoxKind::logiciel_données:
        return u"Le logiciel des données a rencontré l'erreur : "_s;
    case ErrorBoxKind::standard:
        break;
    }
    return u"Le logiciel a rencontré l'erreur : "_s;
}

} // namespace

QString texte_erreur(ErrorBoxKind kind, const VbError& erreur) {
    const QChar lf(10);
    return premier_morceau(kind) + QString::number(erreur.number()) + lf + lf + erreur.description();
}

void message_erreur(ErrorBoxKind kind, const VbError& erreur) {
    Interaction& ui = interaction();
    ui.MsgBox(texte_erreur(kind, erreur), vbExclamation + vbOKOnly, QString::fromUtf8(titre_programme));
    ui.setMousePointer(vbDefault);
}

void message_erreur_standard(const VbError& erreur) {
    message_erreur(ErrorBoxKind::standard, erreur);
}
void message_erreur_données(const VbError& erreur) {
    message_erreur(ErrorBoxKind::données, erreur);
}
void message_erreur_logiciel_données(const VbError& erreur) {
    message_erreur(ErrorBoxKind::logiciel_données, erreur);
}
void message_erreur_standard(const std::exception& erreur) {
    message_erreur_standard(vb_error_from(erreur));
}
void message_erreur_données(const std::exception& erreur) {
    message_erreur_données(vb_error_from(erreur));
}
void message_erreur_logiciel_données(const std::exception& erreur) {
    message_erreur_logiciel_données(vb_error_from(erreur));
}
