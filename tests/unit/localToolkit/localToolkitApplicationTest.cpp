// The application where there is one already, as in the window program.
#include "localToolkit/localToolkitApplication.h"

#include <gmock/gmock.h>

#include <QGuiApplication>

namespace {

TEST(localToolkitApplication, theApplicationOfTheProgramServes) {
    const QString platform = QGuiApplication::platformName();
    EXPECT_EQ(&localToolkitApplication(), qGuiApp);
    EXPECT_EQ(QGuiApplication::platformName(), platform);
}

}  // namespace
