#include "platform/vb/Conversions.h"

#include "platform/errors/VbError.h"

#include <cmath>

std::optional<double> valeur_numérique(const QString& texte) {
    QString t = texte.trimmed();
    if (t.isEmpty())
        return std::nullopt;
    // Only the plain forms: a sign, digits, one separator, an exponent. No thousands, no currency.
    qsizetype i = 0;
    if (t[i] == QLatin1Char('+') || t[i] == QLatin1Char('-'))
        ++i;
    qsizetype chiffres = 0;
    bool séparateur = false;
    for (; i < t.size(); ++i) {
        const QChar c = t[i];
        if (c.isDigit() && c.unicode() < 128) {
            ++chiffres;
        } else if ((c == QLatin1Char(',') || c == QLatin1Char('.')) && !séparateur) {
            séparateur = true;
            t[i] = QLatin1Char('.');
        } else {
            break;
        }
    }
    if (chiffres == 0)
        return std::nullopt;
    if (i < t.size()) {
        if (t[i] != QLatin1Char('e') && t[i] != QLatin1Char('E'))
            return std::nullopt;
        qsizetype j = i + 1;
        if (j < t.size() && (t[j] == QLatin1Char('+') || t[j] == QLatin1Char('-')))
            ++j;
        if (j == t.size())
            return std::nullopt;
        for (; j < t.size(); ++j)
            if (!t[j].isDigit() || t[j].unicode() >= 128)
                return std::nullopt;
    }
    bool ok = false;
    const double valeur = t.toDouble(&ok);
    if (!ok || !std::isfinite(valeur))
        return std::nullopt;
    return valeur;
}

double CDbl(const QString& texte) {
    if (auto valeur = valeur_numérique(texte))
        return *valeur;
    throw VbError(13);
}

QString texte_du_nombre(double valeur) {
    if (valeur == std::trunc(valeur) && std::fabs(valeur) < 1e15)
        return QString::number(static_cast<long long>(valeur));
    return QString::number(valeur, 'g', 15);
}

QString format_zéros(const QString& texte, int chiffres) {
    const auto valeur = valeur_numérique(texte);
    if (!valeur)
        return texte;
    const double arrondi = std::round(*valeur); // halves away from zero
    if (std::fabs(arrondi) >= 1e18)
        return texte_du_nombre(arrondi);
    const long long entier = static_cast<long long>(arrondi);
    const QString corps =
        QString::number(entier < 0 ? -entier : entier).rightJustified(chiffres, QLatin1Char('0'));
    return entier < 0 ? QLatin1Char('-') + corps : corps;
}
