#pragma once

#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <system_error>

// The working directory of a test process: a new empty folder below the one it was started in.
//
// Test cases run side by side as processes of their own, and many of them write files under fixed
// names. Each process gets a folder that nobody else uses; it goes away with this object. A death
// test starts its process anew and ends without removing anything, so that second process lays its
// folder into the first one's.
class freshFolder {
public:
    // Makes the folder and enters it.
    freshFolder() : startedIn(std::filesystem::current_path()) {
        const char* const outer = std::getenv(variable);
        const std::filesystem::path parent = outer != nullptr ? outer : startedIn;
        std::random_device random;
        do {
            path = parent / ("test" + std::to_string(random()));
        } while (!std::filesystem::create_directory(path));
        std::filesystem::current_path(path);
        setenv(variable, path.c_str(), 1);
    }

    freshFolder(const freshFolder&) = delete;
    freshFolder& operator=(const freshFolder&) = delete;

    // Goes back and removes the folder with all that tests left in it.
    ~freshFolder() {
        std::error_code ignored;
        std::filesystem::current_path(startedIn, ignored);
        std::filesystem::remove_all(path, ignored);
    }

private:
    static constexpr const char* variable = "KORVO_TEST_FOLDER";

    std::filesystem::path startedIn;
    std::filesystem::path path;
};
