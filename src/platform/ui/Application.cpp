#include "platform/ui/Application.h"

#include "platform/ui/ErrorBoxes.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QTranslator>
#include <memory>

using namespace Qt::StringLiterals;

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    traduire_qt_en_français();
}

// Qt's own words (a sub-window's menu, a text box's context menu) in French, as all the rest. The
// translations are Qt's, found beside the program first, then where Qt was installed.
bool Application::traduire_qt_en_français() {
    auto traducteur = std::make_unique<QTranslator>();
    const QString nom = u"qtbase_fr"_s;
    const QStringList lieux = {QCoreApplication::applicationDirPath() + u"/translations"_s,
                               QLibraryInfo::path(QLibraryInfo::TranslationsPath)};
    for (const QString& lieu : lieux)
        if (traducteur->load(nom, lieu)) {
            traducteur->setParent(this); // owned by the application from here on
            return installTranslator(traducteur.release());
        }
    return false;
}

namespace {

// Qt selects the whole text of a box reached with Tab, so the next key typed would wipe the field. A
// school head moving through a record with Tab expects the text left as it is, the caret at its start.
// The cells of a grid keep Qt's way: typing over a cell is what a grid is for.
void laisser_sans_sélection(QObject* receiver, Qt::FocusReason raison) {
    if (raison != Qt::TabFocusReason && raison != Qt::BacktabFocusReason)
        return;
    auto* zone = qobject_cast<QLineEdit*>(receiver);
    if (!zone || !zone->hasSelectedText())
        return;
    for (QObject* p = zone->parent(); p; p = p->parent())
        if (qobject_cast<QAbstractItemView*>(p))
            return;
    zone->deselect();
    zone->setCursorPosition(0);
}

} // namespace

bool Application::notify(QObject* receiver, QEvent* event) {
    bool traité = false;
    avec_filet([&] {
        traité = QApplication::notify(receiver, event);
        if (event->type() == QEvent::FocusIn)
            laisser_sans_sélection(receiver, static_cast<QFocusEvent*>(event)->reason());
    });
    return traité;
}
