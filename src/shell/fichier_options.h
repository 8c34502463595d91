#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

#include "platform/errors/VbError.h"

// The text of options.ini, as a delimited write makes it and a delimited read takes it back: one
// value a line, CR LF, numbers bare, the string in double quotes, in the Windows-1252 code page.
struct ContenuOptions {
    int indicateurs[4] = {0, 0, 0, 0}; // Check1 .. Check4
    QString base;                      // the remembered base
};

QByteArray texte_options(const ContenuOptions& contenu);

// What a reading found: the values in file order (four flags as text, then the path), as far as it
// got, and the error that stopped it, if any.
struct LectureOptions {
    QStringList valeurs;
    std::optional<VbError> erreur;
};

LectureOptions lire_texte_options(const QByteArray& octets);

// The value of a check box from a flag read in the file: a number, 0, 1 or 2; anything else fails
// as assigning it to the box would.
int indicateur_lu(const QString& valeur);
