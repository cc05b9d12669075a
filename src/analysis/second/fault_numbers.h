#pragma once

/// Numbers of what means nothing, in the catalogue of src/report.

namespace pozhil::second::fault {

constexpr int NO_DATABASE = 546;
// Names.
constexpr int UNKNOWN_NAME = 551;
constexpr int UNKNOWN_FUNCTION = 552;
constexpr int NAME_OF_OTHER_FUNCTION = 553;
constexpr int NAME_OF_OTHER_FILE = 554;
constexpr int UNKNOWN_MEMBER = 555;
constexpr int UNSET_VARIABLE = 556;
constexpr int UNSET_OWN_VARIABLE = 557;
constexpr int SECOND_DEFINITION = 562;
constexpr int SECOND_PAGE = 599;
constexpr int CLASHING_IMPORTS = 563;
constexpr int DOUBLE_PARAMETER = 564;
constexpr int SELF_OUTSIDE_METHOD = 566;
constexpr int INNER_FUNCTION = 592;
constexpr int BARE_MEMBER = 593;
constexpr int PARAMETER_OF_FILE = 583;
constexpr int STRUCTURE_AS_VALUE = 584;
constexpr int ENUMERATION_AS_VALUE = 585;

// Widgets.
constexpr int UNREAD_PROPERTY = 596;

// Statements, calls, places.
constexpr int WRONG_COUNT = 558;
constexpr int BREAK_OUTSIDE_LOOP = 559;
constexpr int CONTINUE_OUTSIDE_LOOP = 560;
constexpr int RETURN_OUTSIDE_FUNCTION = 561;
constexpr int CHANGED_CONSTANT = 572;
constexpr int CHANGED_ELEMENT = 598;
constexpr int NO_PLACE = 573;
constexpr int NO_PLACE_TO_CHANGE = 574;
constexpr int DOUBLE_KEY = 579;
constexpr int NESTED_PLACES = 591;
constexpr int LATE_PLACE = 595;

constexpr int TEST_WITH_PARAMETERS = 693;

// Structures.
constexpr int PARENT_CIRCLE = 567;
constexpr int MISSING_METHOD = 568;
constexpr int OTHER_METHOD_COUNT = 569;
constexpr int ABSTRACT_CONSTRUCTION = 570;
constexpr int PRIVATE_MEMBER = 571;
constexpr int UNKNOWN_PARENT = 586;
constexpr int ABSTRACT_CALL = 587;

// Kinds.
constexpr int NO_TRUTH = 575;
constexpr int WRONG_OPERANDS = 576;
constexpr int WRONG_OPERAND = 577;
constexpr int NO_FUNCTION = 578;
constexpr int WRONG_INDEX = 580;
constexpr int WRONG_ORDERING = 581;
constexpr int WRONG_BOUND = 582;
constexpr int NO_ELEMENTS = 588;
constexpr int NOTHING_TO_GO_OVER = 589;

} // namespace pozhil::second::fault
