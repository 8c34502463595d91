#pragma once

#include <QByteArray>
#include <QString>

// The single-byte code page of the files that other Windows programs read (options.ini, the gateway
// export). A character the page cannot hold becomes '?', so a path never loses a letter silently.
QByteArray vers_windows1252(const QString& texte);
QString depuis_windows1252(const QByteArray& octets);
