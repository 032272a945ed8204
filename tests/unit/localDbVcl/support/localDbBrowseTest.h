// A data file for a browse, and the traces that its moves write.
#pragma once

#include <iostream>
#include <sstream>
#include <string>

#include "unit/localDb/support/localDbTest.h"

class localDbBrowseTest : public localDbTest {
public:
    localDbBrowseTest() : before_(std::cout.rdbuf(traces_.rdbuf())) {}
    ~localDbBrowseTest() override { std::cout.rdbuf(before_); }

    // What was written since this was last asked.
    std::string traces() {
        std::string text = traces_.str();
        traces_.str({});
        return text;
    }

private:
    std::stringstream traces_;
    std::streambuf* before_;
};
