#include "platform/forms/Feuilles.h"
#include "platform/ui/Application.h"
#include "shell/dessins.h"
#include "shell/ecrans_connus.h"
#include "shell/feuille_accueil.h"

#include <QIcon>

using namespace Qt::StringLiterals;

// The program starts on its splash, in the folder it was started from, which is where it looks for
// options.ini and its report layouts.
int main(int argc, char** argv) {
    Application app(argc, argv);
    app.setApplicationName(u"Norvane"_s);
    app.setQuitOnLastWindowClosed(false);
    app.setWindowIcon(QIcon(dessin_cahier(QSize(64, 64))));
    faire_connaître_les_écrans();
    feuilles().get<feuille_accueil>();
    const int code = app.exec();
    feuilles().toutDétruire(); // the screens go before the application object they need
    return code;
}
