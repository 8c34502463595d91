#pragma once

#include "platform/errors/VbError.h"

#include <QString>

// The report engine's failures, numbered as a print engine numbers them, with French texts that say
// what to mend. A status run reports the number; a direct run raises the error.
namespace report_error {

inline constexpr int layout_missing = 20504;     // the layout file is not there
inline constexpr int layout_invalid = 20505;     // the layout file cannot be read
inline constexpr int formula_refused = 20515;    // a selection or named formula is refused
inline constexpr int destination_failed = 20520; // the printer, the preview or the file failed

inline VbError layoutMissing(const QString& path) {
    return VbError(layout_missing,
                   QStringLiteral("Le fichier de mise en page « %1 » est introuvable.").arg(path));
}
inline VbError layoutInvalid(const QString& path, int line, const QString& reason) {
    return VbError(layout_invalid,
                   QStringLiteral("Le fichier de mise en page « %1 » est incorrect, ligne %2 : %3")
                       .arg(path)
                       .arg(line)
                       .arg(reason));
}
inline VbError formulaRefused(const QString& formula, const QString& reason) {
    return VbError(formula_refused,
                   QStringLiteral("Erreur dans la formule « %1 » : %2").arg(formula, reason));
}

} // namespace report_error
