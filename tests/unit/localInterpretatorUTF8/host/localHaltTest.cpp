#include "localInterpretatorUTF8/host/localHalt.h"

#include <gmock/gmock.h>

#include "support/language.h"

namespace {

// Tells on the error stream what was asked of it before the process ends.
class haltingHost : public recordingHost {
public:
    void setCursor(Cursor cursor) override {
        recordingHost::setCursor(cursor);
        if (cursor == Cursor::restored) {
            for (const std::string& call : calls) {
                std::cerr << call << '\n';
            }
        }
    }
};

TEST(localHalt, writesTheMessageWithItsTailAndEndsWithCode1) {
    EXPECT_HALT(exit_FAILURE(u"Всё сломалось"), "Всё сломалось");
}

TEST(localHalt, showsTheBoxUnderTheArrowCursor) {
    EXPECT_EXIT(
        {
            std::cout.rdbuf(std::cerr.rdbuf());
            const haltingHost host;
            exit_FAILURE(u"broken");
        },
        testing::ExitedWithCode(1),
        testing::HasSubstr(
            "cursor arrow\nhalt [Halt!!! Runtime error.] [broken]\ncursor restored\n"));
}

}  // namespace
