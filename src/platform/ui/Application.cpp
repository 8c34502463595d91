#include "platform/ui/Application.h"

#include "platform/errors/ErrorBoxes.h"
#include "platform/forms/Module1.h"

#include <QLibraryInfo>
#include <QTranslator>
#include <memory>

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    traduire_qt_en_français();
}

// Qt's own words (a sub-window's menu, a text box's context menu) in French, as all the rest. The
// translations are Qt's, found beside the program first, then where Qt was installed.
bool Application::traduire_qt_en_français() {
    auto traducteur = std::make_unique<QTranslator>();
    const QString nom = QStringLiteral("qtbase_fr");
    const QStringList lieux = {QCoreApplication::applicationDirPath() + QStringLiteral("/translations"),
                               QLibraryInfo::path(QLibraryInfo::TranslationsPath)};
    for (const QString& lieu : lieux)
        if (traducteur->load(nom, lieu)) {
            traducteur->setParent(this); // owned by the application from here on
            return installTranslator(traducteur.release());
        }
    return false;
}

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
