#pragma once

/// Numbers of the catalogue's faults that operators, numbers and texts raise.

namespace pozhil::engine {

enum ValueFault : int {
    WRONG_OPERANDS = 601,
    WHOLE_OVERFLOW = 602,
    DIVISION_BY_ZERO = 603,
    WRONG_OPERAND = 604,
    WRONG_ORDER = 605,
    NO_TRUTH = 606,
    NO_WHOLE = 607,
    HAS_FRACTION = 608,
    DECIMAL_TOO_LARGE = 609,
    WRONG_SHIFT = 610,
    UNSET_VARIABLE = 611,

    NO_NUMBER_TEXT = 612,
    WHOLE_TEXT_TOO_LARGE = 613,
    NOT_CONVERTIBLE = 614,

    NUMBER_WANTED = 615,
    TEXT_WANTED = 616,
    EMPTY_SEARCH = 618,

    NEGATIVE_ROOT = 619,
    NO_LOGARITHM = 620,
    NO_POWER = 621,
    POWER_TOO_LARGE = 622,

    DECIMAL_TEXT_TOO_LARGE = 623,

    NUMBER_EXPECTED = 617
};

} // namespace pozhil::engine
