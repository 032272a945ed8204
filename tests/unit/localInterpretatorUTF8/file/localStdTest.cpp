#include "localInterpretatorUTF8/file/localStd.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "support/language.h"
#include "support/ownFolder.h"

namespace {

void touch(const std::string& name) {
    std::ofstream(name) << "";
}

TEST(localStd, theProgramPathIsKeptOnce) {
    EXPECT_IN_FRESH_PROCESS({
        EXPECT_EQ(localStd::argv0(), "");
        EXPECT_EQ(localStd::binaryPath(), u"");
        localStd::argv0Set("/opt/корво/bin/korvo");
        EXPECT_EQ(localStd::argv0(), "/opt/корво/bin/korvo");
        EXPECT_EQ(utf8(localStd::binaryPath()), "/opt/корво/bin");
    });
    EXPECT_HALT_IN_FRESH_PROCESS(
        {
            localStd::argv0Set("one");
            localStd::argv0Set("two");
        },
        "localStd::argv0 redefinition forbidden!!");
}

TEST(localStd, aProgramWithoutFolderHasNoPath) {
    EXPECT_IN_FRESH_PROCESS({
        localStd::argv0Set("korvo");
        EXPECT_EQ(localStd::binaryPath(), u"");
    });
}

TEST(localStd, theStartDirectoryStaysAsItWas) {
    const std::u16string before = localPlatform::workingDirectory();
    EXPECT_EQ(localStd::startDirectory(), before);
    const ownFolder folder;
    EXPECT_NE(localPlatform::workingDirectory(), before);
    EXPECT_EQ(localStd::startDirectory(), before);
}

TEST(localStd, pathsAreJoinedAndNormalized) {
    EXPECT_EQ(localStd::pathJoin(u"a", u"b"), u"a/b");
    EXPECT_EQ(localStd::pathJoin(u"a\\b", u"c\\d.txt"), u"a/b/c/d.txt");
}

TEST(localStd, aFileIsSearchedHereThenBesideTheProgramThenInTheSamples) {
    EXPECT_IN_FRESH_PROCESS({
        const std::string here = std::filesystem::current_path().string();
        std::filesystem::create_directories("prgTest");
        std::filesystem::create_directories("bin/prgTest");
        localStd::argv0Set(here + "/bin/korvo");
        const auto found = [](std::u16string_view name) {
            return utf8(localStd::fileSearch(name));
        };
        EXPECT_EQ(found(u"x.prg"), "");
        touch("bin/prgTest/x.prg");
        EXPECT_EQ(found(u"x.prg"), here + "/bin/prgTest");
        touch("bin/x.prg");
        EXPECT_EQ(found(u"x.prg"), here + "/bin");
        touch("prgTest/x.prg");
        EXPECT_EQ(found(u"x.prg"), here + "/prgTest");
        touch("x.prg");
        EXPECT_EQ(found(u"x.prg"), here);
        EXPECT_EQ(found(u"prgTest"), "") << "a folder is no file";
        EXPECT_EQ(found(u"prgTest\\x.prg"), here);
    });
}

}  // namespace
