#include "engine/library.h"
#include "engine/operations.h"
#include "engine/raise.h"
#include "engine/running_faults.h"

#include <cstdlib>
#include <random>
#include <string>

namespace pozhil::engine {
namespace {

/// Makes a run of a program repeatable, for its tests.
constexpr const char* SEED_VARIABLE = "POZHIL_SEED";

unsigned long long seed() {
    if (const char* const wanted = std::getenv(SEED_VARIABLE)) {
        return std::strtoull(wanted, nullptr, 10);
    }
    std::random_device device;
    constexpr unsigned HALF = 32;
    return (static_cast<unsigned long long>(device()) << HALF) | device();
}

} // namespace

Whole randomNumber(const Value& low, const Value& high, Place place) {
    const Whole lowest = whole(low, place);
    const Whole highest = whole(high, place);
    if (lowest > highest) {
        raise(BOUNDS_CROSSED, place, {std::to_string(lowest), std::to_string(highest)});
    }
    static std::mt19937_64 generator(seed());
    return std::uniform_int_distribution<Whole>(lowest, highest)(generator);
}

} // namespace pozhil::engine
