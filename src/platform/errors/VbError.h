#pragma once

#include <QString>
#include <stdexcept>

// A failure as the classic runtime reports it: a number the user can quote and a French text.
class VbError : public std::runtime_error {
public:
    VbError(int number, QString description);
    explicit VbError(int number); // text from the catalogue

    int number() const noexcept { return number_; }
    const QString& description() const noexcept { return description_; }

private:
    int number_;
    QString description_;
};

// The French text of a classic VB or Jet error number; a generic text for an unknown one.
QString error_text(int number);
