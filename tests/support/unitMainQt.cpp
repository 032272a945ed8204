// Entry of the unit tests of a library that uses Qt: there is an application, and no display.

#include "support/freshFolder.h"

#include <gmock/gmock.h>

#include <QApplication>

#include <clocale>

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS();
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    // The application takes the user's locale for everything; numbers of the language do not.
    std::setlocale(LC_NUMERIC, "C");
    const freshFolder folder;
    return RUN_ALL_TESTS();
}
