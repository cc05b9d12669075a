#pragma once

/// Numbers of what is written wrong, in the catalogue of src/report.
namespace pozhil::second::fault {

// The file.
constexpr int UNKNOWN_EDITION = 501;
constexpr int EDITION_TWICE = 502;
constexpr int EDITION_TOO_LATE = 503;
constexpr int NO_UTF8 = 504;

// Characters, texts, numbers.
constexpr int UNKNOWN_CHARACTER = 505;
constexpr int SIGN_FOR_WORD = 506;
constexpr int CURLY_QUOTE = 507;
constexpr int SPECIAL_BLANK = 508;
constexpr int INVISIBLE_CHARACTER = 509;
constexpr int OPEN_TEXT = 510;
constexpr int OPEN_LETTER = 511;
constexpr int EMPTY_LETTER = 512;
constexpr int UNKNOWN_ESCAPE = 513;
constexpr int OPEN_COMMENT = 514;
constexpr int LONE_SIGN = 515;
constexpr int SIGN_AFTER_VOWEL = 516;
constexpr int GRANTHA_LETTER = 517;
constexpr int MIXED_DIGITS = 518;
constexpr int WORD_AFTER_NUMBER = 519;
constexpr int SEVERAL_POINTS = 520;
constexpr int LARGE_NUMBER = 521;

// Lines and brackets.
constexpr int MIXED_INDENTATION = 522;
constexpr int UNEVEN_INDENTATION = 523;
constexpr int UNEXPECTED_INDENTATION = 524;
constexpr int OPEN_BRACKET = 525;
constexpr int CLOSING_BRACKET = 526;

// Statements and values.
constexpr int NO_SIGN = 527;
constexpr int NO_BLOCK = 528;
constexpr int NO_VALUE = 529;
constexpr int NO_STATEMENT_END = 530;
constexpr int NO_NAME = 531;
constexpr int NO_COMMA = 532;
constexpr int VALUE_ALONE = 533;
constexpr int NO_PLACE = 534;
constexpr int ASSIGNMENT_IN_CONDITION = 535;
constexpr int CHAINED_COMPARISON = 536;
constexpr int NO_MEMBER = 537;
constexpr int METHOD_WITHOUT_SELF = 538;
constexpr int NO_CASE = 539;
constexpr int SECOND_DEFAULT_CASE = 540;
constexpr int NO_CATCH = 541;
constexpr int PART_WITHOUT_STATEMENT = 542;
constexpr int FILE_VARIABLES_OUTSIDE_FUNCTION = 543;
constexpr int IMPORT_PATH = 544;
constexpr int NO_SUCH_FILE = 545;

constexpr int NESTED_TOO_DEEP = 547;
constexpr int RESERVED_WORD = 548;
constexpr int SPLIT_WORD = 549;

// Web applications.
constexpr int NO_SECTION = 624;
constexpr int SECOND_SECTION = 625;
constexpr int NO_APPLICATION_PART = 626;
constexpr int UNKNOWN_WIDGET = 627;
constexpr int NO_WIDGET = 628;
constexpr int UNKNOWN_PROPERTY = 629;
constexpr int PROPERTY_TWICE = 630;
constexpr int WRONG_KIND = 631;
constexpr int NO_LITERAL = 632;
constexpr int UNKNOWN_COLOUR = 633;
constexpr int UNKNOWN_ALIGNMENT = 634;
constexpr int UNKNOWN_CHOICE = 635;
constexpr int MISPLACED_CHILD = 636;
constexpr int MISPLACED_PERCENTAGE = 637;
constexpr int NO_PROPERTY = 638;
constexpr int SECOND_ROOT = 639;

} // namespace pozhil::second::fault
