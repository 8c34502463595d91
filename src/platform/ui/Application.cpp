#include "platform/ui/Application.h"

#include "platform/errors/ErrorBoxes.h"
#include "platform/forms/Module1.h"

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {}

// The screens go before the application object they need.
Application::~Application() {
    module1().réinitialiser();
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& e) {
        message_erreur_standard(e);
    } catch (...) {
        message_erreur_standard(VbError(51));
    }
    return false;
}
