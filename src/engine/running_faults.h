#pragma once

/// Numbers of the catalogue's faults that a running program raises apart from those of operators and texts.

namespace pozhil::engine {

enum RunningFault : int {
    TOO_DEEP = 640,
    OUT_OF_MEMORY = 641,

    NO_SUCH_INDEX = 642,
    NO_SUCH_LETTER = 643,
    NO_SUCH_KEY = 644,
    NO_KEY = 645,
    HAS_NO_ELEMENTS = 646,
    LETTERS_STAY = 647,
    NOT_ITERABLE = 648,
    NOT_IN_LIST = 649,
    WRONG_CONTAINER = 650,
    STEP_OF_ZERO = 651,
    NO_INDEX = 652,

    NOT_A_FUNCTION = 655,
    WRONG_COUNT = 656,

    NO_SUCH_MEMBER = 657,
    HAS_NO_MEMBERS = 658,
    PRIVATE_MEMBER = 659,
    UNSET_FIELD = 660,
    ABSTRACT_STRUCTURE = 661,
    METHOD_ASSIGNED = 662,
    MEMBER_FIXED = 663,
    METHOD_NOT_CALLED = 665,
    PART_CALLED = 666,

    FILE_NOT_OPENED = 670,
    BAD_PATH = 671,
    FILE_NOT_WRITTEN = 672,
    FILE_NOT_READ = 673,
    PATH_NOT_TEXT = 674,
    NO_INPUT = 675,

    BAD_WAIT = 680,
    BOUNDS_CROSSED = 681,
    NOT_A_TIME = 682,
    TIME_FIXED = 683,
    CANNOT_WAIT = 684,
    ENDLESS_WORK = 685,

    WRONG_STATE = 690,

    TEST_FAILED = 691,
    NOT_AS_WANTED = 692,

    FAULT_OF_OURS = 699
};

} // namespace pozhil::engine
