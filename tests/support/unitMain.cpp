// Entry of the unit tests of a library without Qt.

#include "support/freshFolder.h"

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    const freshFolder folder;
    return RUN_ALL_TESTS();
}
