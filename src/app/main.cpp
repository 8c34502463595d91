#include "platform/forms/Module1.h"
#include "platform/ui/Application.h"
#include "shell/dessins.h"
#include "shell/feuille_accueil.h"

#include <QIcon>

// The program starts on its splash, in the folder it was started from, which is where it looks for
// options.ini and its report layouts.
int main(int argc, char** argv) {
    Application app(argc, argv);
    app.setApplicationName(QStringLiteral("Norvane"));
    app.setQuitOnLastWindowClosed(false);
    app.setWindowIcon(QIcon(dessin_cahier(QSize(64, 64))));
    module1().feuilles().get<feuille_accueil>();
    const int code = app.exec();
    module1().feuilles().toutDétruire();
    return code;
}
