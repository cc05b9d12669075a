#pragma once

/// What who runs tests and the program that holds them agree on.

namespace pozhil::report {

/// The environment variable that names the test function to run.
constexpr const char* CHOSEN_TEST = "POZHIL_TEST";

/// The environment variable that has a fault told without colours.
constexpr const char* PLAIN_BOX = "POZHIL_TEST_PLAIN";

} // namespace pozhil::report
