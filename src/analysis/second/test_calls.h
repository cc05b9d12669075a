#pragma once

namespace pozhil::second {

struct Model;

/// In a file of tests, has the program call each test function after its statements, if it was started for that one: every
/// test runs in a process of its own. Nothing in any other program.
void callTests(Model& model);

} // namespace pozhil::second
