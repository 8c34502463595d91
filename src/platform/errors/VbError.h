#pragma once

#include <QString>
#include <QStringList>
#include <exception>
#include <stdexcept>

// A failure as the classic runtime reports it: a number the user can quote and a French text.
class VbError : public std::runtime_error {
public:
    VbError(int number, QString description);
    explicit VbError(int number); // text from the catalogue

    // The catalogue text with its '|' places filled in order, e.g. the missing file's name for 3024.
    static VbError avec(int number, const QStringList& valeurs);

    int number() const noexcept { return number_; }
    const QString& description() const noexcept { return description_; }

private:
    int number_;
    QString description_;
};

// The French text of a classic VB or Jet error number; a generic text for an unknown one.
// Places marked '|' in the text are filled from `valeurs` in order; an unfilled quoted place is dropped.
QString error_text(int number, const QStringList& valeurs = {});

// Whether the catalogue knows the number.
bool error_known(int number);

// Any failure as the user must see it: a VbError as it is, an out-of-memory as 7, anything else as
// 51 (internal error), always with a French text.
VbError vb_error_from(const std::exception& e);
