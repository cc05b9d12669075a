#include "diagnostics/refusals/toolchain_errors.h"

#include "base/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace pozhil {
namespace {

constexpr std::array<std::string_view, 4> LINKER_WORDS = {"undefined reference to", "undefined symbol",
                                                          "multiple definition of", "cannot find "};

bool holds(std::string_view text, std::string_view piece) {
    return text.find(piece) != std::string_view::npos;
}

/// Takes a number and the colon after it from the front of a text.
std::optional<std::size_t> takeNumber(std::string_view& text) {
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const auto length = static_cast<std::size_t>(end - text.data());
    if (error != std::errc() || length == text.size() || text[length] != ':') {
        return std::nullopt;
    }
    text.remove_prefix(length + 1);
    return number;
}

/// What is said after "error: ", nothing if that isn't how the text begins.
std::optional<std::string_view> errorIn(std::string_view text) {
    for (const std::string_view word : {"error: ", "fatal error: "}) {
        if (startsWith(text, word)) {
            return text.substr(word.size());
        }
    }
    return std::nullopt;
}

class Reader {
public:
    explicit Reader(std::string_view file) : file_(file) {}

    void read(std::string_view line) {
        if (startsWith(line, file_) && line.size() > file_.size() && line[file_.size()] == ':') {
            std::string_view rest = line.substr(file_.size() + 1);
            if (const auto number = takeNumber(rest)) {
                takeNumber(rest); // the column
                readOfText(*number, rest.substr(std::min(rest.find_first_not_of(' '), rest.size())));
                return;
            }
        }
        readOther(line);
    }

    std::vector<ToolchainError> take() { return std::move(errors_); }

private:
    /// A line about line \p number of the compiled text.
    void readOfText(std::size_t number, std::string_view said) {
        if (const auto message = errorIn(said)) {
            errors_.push_back({number, *message});
            user_ = 0;
        } else if (holds(said, "required from here")) {
            user_ = number; // g++ says so before the error
        } else if (holds(said, "requested here") && !errors_.empty() && errors_.back().line == 0) {
            errors_.back().line = number; // clang says so after it
        }
    }

    void readOther(std::string_view line) {
        constexpr std::string_view MARK = ": error: ";
        const auto isLinkers = [&](std::string_view word) { return holds(line, word); };
        if (startsWith(line, " ")) {
            return; // an excerpt of the text
        }
        if (std::any_of(LINKER_WORDS.begin(), LINKER_WORDS.end(), isLinkers)) {
            errors_.push_back({0, line});
        } else if (const std::size_t mark = line.find(MARK); mark != std::string_view::npos && !isOfDriver(line)) {
            errors_.push_back({user_, line.substr(mark + MARK.size())});
        }
    }

    /// "em++: error: ... failed" only tells that there were errors.
    static bool isOfDriver(std::string_view line) {
        return startsWith(line, "em++: ") || startsWith(line, "emcc: ") || startsWith(line, "g++: ") ||
               startsWith(line, "collect2: ") || startsWith(line, "clang");
    }

    const std::string_view file_;
    /// The line of the compiled text that made use of the header that g++ is about to speak of.
    std::size_t user_ = 0;
    std::vector<ToolchainError> errors_;
};

} // namespace

std::vector<ToolchainError> readToolchainErrors(std::string_view written, std::string_view file) {
    Reader reader(file);
    while (!written.empty()) {
        const std::size_t end = std::min(written.find('\n'), written.size());
        reader.read(written.substr(0, end));
        written.remove_prefix(std::min(end + 1, written.size()));
    }
    return reader.take();
}

} // namespace pozhil
