#include "engine/difference.h"
#include "engine/library.h"
#include "engine/operations.h"
#include "engine/raise.h"
#include "engine/running_faults.h"
#include "engine/stop.h"
#include "engine/text.h"
#include "report/test_run.h"

#include <cstdlib>
#include <string>

/// What tests ask of their values.

namespace pozhil::engine {
namespace {

/// Whether the test that the program was started for has been come to.
bool hasRun = false;

/// Not a fault that பிடி sees: a test that tries whether something fails would take it for that.
[[noreturn]] void fail(int number, Place place, const std::string& text) {
    try {
        raise(number, place, {text});
    } catch (const Fault& fault) {
        throw Stop{fault};
    }
}

} // namespace

Value ensure(const Value& condition, const Value& message, Place place) {
    if (!truthOf(condition, place)) {
        fail(TEST_FAILED, place, textForm(message));
    }
    return Value();
}

Value ensureEqual(const Value& got, const Value& wanted, Place place) {
    if (!equalValues(got, wanted)) {
        fail(NOT_AS_WANTED, place, "\n" + differenceOf(got, wanted));
    }
    return Value();
}

bool isChosenTest(const Value& name, Place /*place*/) {
    const char* const chosen = std::getenv(report::CHOSEN_TEST);
    const bool isIt = chosen != nullptr && textOf(name) == chosen;
    hasRun = hasRun || isIt;
    return isIt;
}

Value requireChosenTest(Place place) {
    if (std::getenv(report::CHOSEN_TEST) != nullptr && !hasRun) {
        fail(TEST_FAILED, place, "தொகுத்த நிரலில் இந்தச் சோதனை இல்லை; கோப்பு இடையில் மாறியிருக்கலாம்.");
    }
    return Value();
}

} // namespace pozhil::engine
