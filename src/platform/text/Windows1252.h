#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

// The single-byte code page of the files that other Windows programs read (options.ini, the gateway
// export). A character the page cannot hold becomes '?', so a path never loses a letter silently; a
// character beyond the first 65,536 (an emoji) is one character, and one '?'.
QByteArray vers_windows1252(const QString& texte);
// Appends the bytes of `texte` to `octets`; returns how many characters became '?'.
qsizetype ajouter_en_windows1252(QByteArray& octets, QStringView texte);
QString depuis_windows1252(const QByteArray& octets);
