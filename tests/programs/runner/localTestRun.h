// One test file acted on in a process of its own, so that a crash, a halt, an endless loop, the
// working directory and the log of one program are no matter of the next.
#pragma once

#include <filesystem>
#include <string>

// Runs the file in a fresh copy of its folder, made below the working directory. Gives the report
// of what was wrong, each finding beginning with `name`; empty when all was right. Besides the
// wanted output and status, the slots in use and the live counters must afterwards be what they
// were before.
std::string localTestRun(const std::filesystem::path& file, const std::string& name);
