#pragma once

/// The report of a diagnostic. Generated programs include this header too and link the reporter, so it pulls in as
/// little as it can.

#include <string>
#include <vector>

/// Who raised a diagnostic. The report prints its word.
enum class பிழைவகை {
    சொல்_பிழை = 0,       ///< scanner
    இலக்கண_பிழை = 1,     ///< parser
    பொருள்_பிழை = 2,     ///< generator
    செயல்பாட்டு_பிழை = 3, ///< reserved
    இயக்கநேர_பிழை = 4,   ///< reserved
};

/// Prints diagnostics. It has no state beyond the list of sayings and the random generator that picks one of them.
class ErrorHandler {
public:
    /// Prints the box of a diagnostic to standard output and ends the process with status 1.
    ///
    /// @param category     who raised it; any value outside the enumeration prints the plain word "பிழை"
    /// @param code         its code, such as "பொழி-101"
    /// @param description  what is wrong
    /// @param file         the source file, as the user named it
    /// @param line         line number, counted from 1; shown with at least two digits
    /// @param lineText     the text of that line; may be empty
    /// @param remedy       how to put it right
    [[noreturn]] static void அறிக்கை(பிழைவகை category, std::string code, std::string description, std::string file,
                                    int line, std::string lineText, std::string remedy);

    /// The word for who raised a diagnostic, as the box shows it.
    static const char* வகைச்சொல்(பிழைவகை category);

    /// One of the sayings, drawn anew and evenly on every call.
    static std::string பொன்மொழி_பெறு();

    /// All sayings in their own order.
    static const std::vector<std::string>& பொன்மொழிகள்();

    /// Columns that a UTF-8 text takes on a terminal: two for a sequence of four bytes (emoji), one for any other.
    /// Every vowel sign counts as a column of its own. Text that isn't UTF-8 gives a number, but no meaningful one.
    static int visualWidth(const std::string& text);
};

/// Raises a diagnostic that can be caught, where `ErrorHandler::அறிக்கை` would end the process. It carries no line.
///
/// @param code    a code of the catalogue
/// @param detail  added in parentheses at the end of the message; empty adds nothing
/// @throws std::runtime_error  with code, description and remedy; for a code that the catalogue doesn't hold, with a
///                             message that names the code
[[noreturn]] void throw_static_error(const std::string& code, const std::string& detail);
