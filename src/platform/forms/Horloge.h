#pragma once

#include <QDateTime>
#include <optional>

// Today's date and time for the whole program; a test fixes them.
class Horloge {
public:
    QDateTime maintenant() const { return fixée_ ? *fixée_ : QDateTime::currentDateTime(); }
    QDate aujourdhui() const { return maintenant().date(); }

    void fixer(const QDateTime& moment) { fixée_ = moment; }
    void libérer() { fixée_.reset(); }

private:
    std::optional<QDateTime> fixée_;
};

// The program's one clock.
inline Horloge& horloge() {
    static Horloge horloge;
    return horloge;
}
