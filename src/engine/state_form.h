#pragma once

#include "engine/value.h"

#include <cstddef>
#include <string>
#include <string_view>

/// Values as a text from which they can be made again. It has no zero byte, so that it can go wherever texts of C go.

namespace pozhil::engine {

enum class Writing { Done, NotKept, TooLarge };

/// Appends the form of a value: of nothing, a truth value, number, text, or a list or map of such. Others are NotKept, and so
/// is what is nested too deeply; what is appended then has no meaning.
/// \param most how long \p out may become
Writing writeState(std::string& out, const Value& value, std::size_t most);

/// Appends a text on its own.
void writeStateText(std::string& out, std::string_view text);

/// Reads forms from the beginning of a text on, whatever it is: once something is no form, all that is read is nothing.
class StateReader {
public:
    explicit StateReader(std::string_view text) : rest_(text) {}

    Value value() { return valueAt(0); }
    /// A text on its own.
    std::string text();

    /// Whether all was read that there is.
    bool isAtEnd() const { return rest_.empty(); }
    /// Whether all that was read was a form.
    bool isGood() const { return isGood_; }

private:
    Value valueAt(int depth);
    Value list(int depth);
    Value map(int depth);
    Value whole();
    Value decimal();
    char next();
    bool takes(char wanted);
    std::string_view until(char end);
    Value fail();

    std::string_view rest_;
    bool isGood_ = true;
};

} // namespace pozhil::engine
