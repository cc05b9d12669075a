#pragma once

#include "platform/process.h"
#include "tools/test/test_programs.h"

#include <chrono>
#include <cstddef>
#include <vector>

namespace pozhil::tools {

/// How tests are run, and told.
struct TestSettings {
    /// How long a test may take before it is stopped.
    std::chrono::seconds limit{10};
    bool coloured = false;
};

/// How many tests ended how.
struct TestCounts {
    std::size_t passed = 0;
    std::size_t failed = 0;
};

/// Runs every test in a process of its own, several at a time, and tells on standard output how each ended, and of those
/// that failed all that they printed. What keeps the tests of a file from running is told in its turn.
TestCounts runTests(const std::vector<TestProgram>& programs, const TestSettings& settings);

} // namespace pozhil::tools
