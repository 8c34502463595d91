#include "platform/ui/Application.h"

#include <gtest/gtest.h>

// Every test executable runs inside the program's own application object, offscreen unless told
// otherwise, so failures that reach the event loop are caught as in the program.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Application app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
