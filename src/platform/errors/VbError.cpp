#include "platform/errors/VbError.h"

#include <map>

VbError::VbError(int number, QString description)
    : std::runtime_error(description.toStdString()), number_(number), description_(std::move(description)) {}

VbError::VbError(int number) : VbError(number, error_text(number)) {}

QString error_text(int number) {
    static const std::map<int, const char*> catalogue = {
        {3021, "Aucun enregistrement en cours."},
    };
    const auto it = catalogue.find(number);
    if (it == catalogue.end())
        return QStringLiteral("Erreur définie par l'application ou par l'objet.");
    return QString::fromUtf8(it->second);
}
