#include "platform/ui/Application.h"

#include <QMainWindow>

int main(int argc, char** argv) {
    Application app(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Norvane - version 2"));
    window.resize(1024, 768);
    window.show();
    return app.exec();
}
