#include "platform/text/Windows1252.h"

#include <array>

namespace {

// Bytes 0x80 to 0x9F, the only ones where the page differs from Latin-1. 0 marks an unused byte.
constexpr std::array<char16_t, 32> plage_80_9f = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char octet_pour(char16_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return static_cast<char>(c);
    for (std::size_t i = 0; i < plage_80_9f.size(); ++i)
        if (plage_80_9f[i] != 0 && plage_80_9f[i] == c)
            return static_cast<char>(0x80 + i);
    return '?';
}

} // namespace

QByteArray vers_windows1252(const QString& texte) {
    QByteArray octets;
    octets.reserve(texte.size());
    ajouter_en_windows1252(octets, texte);
    return octets;
}

qsizetype ajouter_en_windows1252(QByteArray& octets, QStringView texte) {
    // At most one byte a UTF-16 unit: the room is made once, and what a pair of halves left over given
    // back at the end.
    const qsizetype début = octets.size();
    octets.resize(début + texte.size());
    char* sortie = octets.data() + début;
    qsizetype remplacés = 0;
    for (qsizetype i = 0; i < texte.size(); ++i) {
        const QChar c = texte[i];
        if (c.unicode() < 0x80) {
            *sortie++ = static_cast<char>(c.unicode());
            continue;
        }
        if (c.isHighSurrogate() && i + 1 < texte.size() && texte[i + 1].isLowSurrogate())
            ++i; // both halves of one character
        const char octet = octet_pour(c.unicode());
        remplacés += octet == '?';
        *sortie++ = octet;
    }
    octets.resize(sortie - octets.constData());
    return remplacés;
}

QString depuis_windows1252(const QByteArray& octets) {
    QString texte;
    texte.reserve(octets.size());
    for (const char o : octets) {
        const auto u = static_cast<unsigned char>(o);
        if (u >= 0x80 && u <= 0x9F) {
            const char16_t c = plage_80_9f[u - 0x80];
            texte.append(c == 0 ? QChar(char16_t(u)) : QChar(c));
        } else {
            texte.append(QChar(char16_t(u)));
        }
    }
    return texte;
}
