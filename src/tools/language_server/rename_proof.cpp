#include "tools/language_server/rename_proof.h"

#include "base/text.h"
#include "diagnostics/fault.h"
#include "driver/second_translation.h"
#include "driver/translation.h"
#include "front_end/second_edition.h"
#include "tools/test/test_files.h"

#include <algorithm>
#include <exception>
#include <map>
#include <set>
#include <utility>
#include <vector>

namespace pozhil::language_server {
namespace {

constexpr std::string_view SOURCES = "static const Source sources[]";

enum class PieceKind { Name, Text, Sign };

/// A name, a text with its quotes, or a sign or character of a C++ text.
struct Piece {
    PieceKind kind;
    std::string_view text;
};

bool isNameByte(char byte) {
    constexpr unsigned char FIRST_LONG = 0x80;
    return static_cast<unsigned char>(byte) >= FIRST_LONG || byte == '_' || (byte >= '0' && byte <= '9') ||
           (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

std::size_t textEnd(std::string_view text, std::size_t begin) {
    std::size_t at = begin + 1;
    while (at < text.size() && text[at] != text[begin]) {
        at += text[at] == '\\' ? 2 : 1;
    }
    return std::min(at + 1, text.size());
}

/// Long texts are written in several parts, which count as one.
void addText(std::vector<Piece>& pieces, std::string_view text) {
    if (pieces.empty() || pieces.back().kind != PieceKind::Text) {
        pieces.push_back({PieceKind::Text, text});
        return;
    }
    std::string_view& whole = pieces.back().text;
    whole = {whole.data(), static_cast<std::size_t>(text.data() + text.size() - whole.data())};
}

/// Without blanks and comments, which tell of the source.
std::vector<Piece> piecesOf(std::string_view text) {
    std::vector<Piece> pieces;
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = at + 1;
        if (startsWith(text.substr(at), "//")) {
            end = std::min(text.find('\n', at), text.size());
        } else if (startsWith(text.substr(at), "/*")) {
            end = std::min(text.find("*/", at), text.size() - 2) + 2;
        } else if (text[at] == '"') {
            end = textEnd(text, at);
            addText(pieces, text.substr(at, end - at));
        } else if (text[at] == '\'') {
            end = textEnd(text, at);
            pieces.push_back({PieceKind::Sign, text.substr(at, end - at)});
        } else if (isNameByte(text[at])) {
            while (end < text.size() && isNameByte(text[end])) {
                ++end;
            }
            pieces.push_back({PieceKind::Name, text.substr(at, end - at)});
        } else if (text[at] != ' ' && text[at] != '\n') {
            pieces.push_back({PieceKind::Sign, text.substr(at, 1)});
        }
        at = end;
    }
    return pieces;
}

/// Whether a name that is made of the program's names, such as v_name or f_structure_name, is the other one with the new
/// name at some of the places where the old one stood.
bool isRenamed(std::string_view before, std::string_view after, std::string_view oldName, std::string_view newName) {
    for (std::size_t at = before.find(oldName); at != std::string_view::npos; at = before.find(oldName, at + 1)) {
        if (before.substr(0, at) != after.substr(0, at)) {
            return false;
        }
        const std::string_view rest = before.substr(at + oldName.size());
        const std::string_view newRest = after.substr(at);
        if (startsWith(newRest, newName) && (rest == newRest.substr(newName.size()) ||
                                             isRenamed(rest, newRest.substr(newName.size()), oldName, newName))) {
            return true;
        }
    }
    return false;
}

/// Compares the texts of a program piece by piece.
class Comparison {
public:
    Comparison(std::string_view oldName, std::string_view newName, bool namesAreTexts)
        : oldName_(oldName), newName_(newName), namesAreTexts_(namesAreTexts) {}

    bool isSame(const std::vector<Piece>& before, const std::vector<Piece>& after) {
        if (before.size() != after.size()) {
            return false;
        }
        for (std::size_t i = 0; i < before.size(); ++i) {
            isKey_ = i > 0 && before[i - 1].text == "[";
            if (before[i].kind != after[i].kind || !fits(before[i], after[i].text)) {
                return false;
            }
            trackDefinitions(before[i]);
        }
        // One variable must neither take the place of another nor become two.
        return std::none_of(renamedKeys_.begin(), renamedKeys_.end(),
                            [&](std::string_view key) { return keptKeys_.count(key) != 0; });
    }

private:
    bool fits(const Piece& before, std::string_view after) {
        const bool isKept = before.text == after;
        if (before.kind == PieceKind::Sign) {
            return isKept;
        }
        if (before.kind == PieceKind::Text && !namesAreTexts_) {
            return true; // places, and what faults are told with
        }
        if (!isKept && !isRenamed(before.text, after, oldName_, newName_)) {
            return false;
        }
        if (before.kind == PieceKind::Text) {
            noteKey(before.text, after);
            return true;
        }
        const auto [known, isNew] = meant_.insert({after, before.text});
        return isNew || known->second == before.text;
    }

    void noteKey(std::string_view before, std::string_view after) {
        if (isKey_ && before == after) {
            keptKeys_.insert(before);
        } else if (isKey_) {
            renamedKeys_.insert({before, after});
        }
    }

    /// Names of one function may be those of another.
    void trackDefinitions(const Piece& piece) {
        if (piece.kind != PieceKind::Sign) {
            return;
        }
        depth_ += piece.text == "{" ? 1 : piece.text == "}" ? -1 : 0;
        if (depth_ == 0 && (piece.text == "}" || piece.text == ";")) {
            meant_.clear();
        }
    }

    const std::string_view oldName_;
    const std::string_view newName_;
    /// Variables and fields are looked up by their names while the program runs, as in the first edition.
    const bool namesAreTexts_;
    int depth_ = 0;
    /// By each name of the second text in the definition at hand, that of the first.
    std::map<std::string_view, std::string_view> meant_;
    /// Whether the piece at hand stands right after a bracket, as the names of variables do.
    bool isKey_ = false;
    std::set<std::string_view> keptKeys_;
    /// Both the old and the new ones.
    std::set<std::string_view> renamedKeys_;
};

CompiledText firstEditionText(const SourcePtr& source, const FrontEndOptions& options) {
    const ParsedSource parsed = parseSource(source, options);
    OutputText output = generateText(parsed);
    return {false, output.text.substr(output.runtimeLength)};
}

/// The text of the sources, from which faults of the running program quote, isn't the program.
std::string withoutSources(std::string text) {
    std::size_t begin = text.find(SOURCES);
    while (begin != std::string::npos) {
        const std::size_t end = text.find("\n};", begin);
        text.erase(begin, end == std::string::npos ? end : end - begin);
        begin = text.find(SOURCES, begin);
    }
    return text;
}

std::optional<CompiledText> secondEditionText(const SourcePtr& source, const FrontEndOptions& options) {
    SecondTranslation translation = translateSecondEdition(source, options);
    if (!translation.faults.empty()) {
        return std::nullopt;
    }
    return CompiledText{true, withoutSources(translation.output.text.substr(translation.output.runtimeLength))};
}

} // namespace

std::optional<CompiledText> compiledText(const SourcePtr& source, FrontEndOptions options) {
    options.isTest = tools::isTestFile(source->path);
    SecondFaults faults;
    const Edition edition = editionOf(source, faults);
    if (!faults.empty()) {
        return std::nullopt;
    }
    try {
        return edition == Edition::First ? firstEditionText(source, options) : secondEditionText(source, options);
    } catch (const Fault&) {
        return std::nullopt;
    } catch (const std::exception&) {
        return std::nullopt; // a stage that failed, or an import that can be opened but not read
    }
}

bool isSameButForName(const CompiledText& before, const CompiledText& after, std::string_view oldName,
                      std::string_view newName) {
    return before.isSecondEdition == after.isSecondEdition &&
           Comparison(oldName, newName, !before.isSecondEdition).isSame(piecesOf(before.text), piecesOf(after.text));
}

} // namespace pozhil::language_server
