#pragma once

#include <QApplication>

// The application object of the program. A failure that no event handler traps reaches the top of the
// event loop here (the handlers of signals have their own net, relier): it is shown with the standard
// error box's words and the program goes on with the next event, instead of ending. The screens need
// the application object: whoever makes one destroys the screens before it goes.
class Application : public QApplication {
    Q_OBJECT
public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

    // Puts Qt's own French translations in place; false when they cannot be found.
    bool traduire_qt_en_français();
};
