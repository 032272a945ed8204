// A new empty working directory for one test, gone with all that it holds when this object goes.
#pragma once

#include <gmock/gmock.h>

#include <filesystem>
#include <string>
#include <system_error>

#include "localInterpretatorUTF8/file/localStd.h"

class ownFolder {
public:
    ownFolder() : startedIn_(std::filesystem::current_path()) {
        localStd::startDirectory();  // the log stays in the folder of the process
        const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
        path_ = startedIn_ / (std::string(test->test_suite_name()) + "." + test->name());
        std::filesystem::remove_all(path_);
        std::filesystem::create_directory(path_);
        std::filesystem::current_path(path_);
    }
    ~ownFolder() {
        std::error_code ignored;
        std::filesystem::current_path(startedIn_, ignored);
        std::filesystem::remove_all(path_, ignored);
    }
    ownFolder(const ownFolder&) = delete;
    ownFolder& operator=(const ownFolder&) = delete;

private:
    std::filesystem::path startedIn_;
    std::filesystem::path path_;
};
