#include "platform/ui/Application.h"
#include "store/Module1.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QtMessageHandler defaultHandler = nullptr;

// The offscreen platform cannot raise windows and says so at every screen brought to the front.
void quietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (message == u"This plugin does not support raise()"_s)
        return;
    defaultHandler(type, context, message);
}

} // namespace

// Every test executable runs inside the program's own application object, offscreen unless told
// otherwise, so failures that reach the event loop are caught as in the program.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    defaultHandler = qInstallMessageHandler(quietHandler);
    Application app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    const int code = RUN_ALL_TESTS();
    module1().réinitialiser(); // the screens go before the application object they need
    return code;
}
