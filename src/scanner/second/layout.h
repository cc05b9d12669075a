#pragma once

#include "scanner/second/token_list.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil::second {

/// The blanks and tabs at the beginning of a line.
struct Indentation {
    /// Blanks of another kind count as blanks.
    std::string blanks;
    /// Where they stand.
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// Makes tokens of line ends, indentation and brackets.
///
/// A bracket that is open joins lines. Three things in brackets have lines of their own all the same: the block of a
/// function value, which ends where a line is indented no further than the one that began it; a group of members after a
/// visibility word; and the statements of an application, of a widget's handler and of what reads a database. The last
/// two end at their bracket.
class Layout {
public:
    explicit Layout(TokenList& tokens) : tokens_(tokens) {}

    Layout(const Layout&) = delete;
    Layout& operator=(const Layout&) = delete;

    /// A line of the text begins with a token.
    /// \param position of its first token
    /// \param isClosing whether that is a closing bracket
    void beginLine(const Indentation& indentation, std::size_t position, bool isClosing);
    /// A line of the text ends.
    void endLine(std::size_t position);
    /// A semicolon.
    void endStatement(std::size_t position);

    void openBracket(char bracket, std::size_t position);
    void closeBracket(char bracket, std::size_t position);
    /// The word வினை, whose next colon may begin a block.
    void noteFunctionWord();
    void noteColon();

    /// Whether an open bracket joins the lines here.
    bool joinsLines() const { return brackets_.size() > frames_.back().depth; }
    /// How far the line is indented that the first of the brackets that join lines here stands on.
    std::size_t joinedWidth() const { return brackets_[frames_.back().depth].width; }
    static std::size_t widthOf(std::string_view blanks);
    /// Closes the brackets that join lines here, the last of which somebody forgot to close.
    void abandonBrackets();
    /// Closes them without a word: what would have closed them was taken for something else.
    void dropBrackets() { brackets_.resize(frames_.back().depth); }

    /// Whether the bracket that joins lines here holds properties and widgets of an application: there no statement begins,
    /// but the next section.
    bool isAmongItems() const { return joinsLines() && brackets_.back().role == Role::Items; }
    /// Whether an application is open around what comes next.
    bool isInApplication() const { return !brackets_.empty() && brackets_.front().role == Role::Application; }
    /// Closes the brackets inside of the application, the last of which somebody forgot to close.
    void closeSection(std::size_t position);
    /// Whether a brace belongs to the call of a database that the last token ends.
    bool isAfterDatabaseCall() const { return tokens_.tokens().size() == tokensToDatabaseBracket_; }

    /// The text ends: no bracket may be open.
    void checkBrackets();
    /// Closes all that is open.
    void close(std::size_t position);

private:
    /// What a bracket holds, as far as it matters for lines.
    enum class Role { Any, Application, Items, DatabasePath, DatabaseRead };
    struct Bracket {
        char sign;
        std::size_t position;
        /// How far its line is indented.
        std::size_t width;
        Role role;
    };
    enum class Kind { Text, Function, Group, Statements };
    /// Lines that count, and how far their blocks are indented.
    struct Frame {
        Kind kind;
        /// Brackets that are open around it.
        std::size_t depth;
        /// Blanks of the open blocks. The first of them begins no block; a frame that ends at its bracket has none before
        /// its first line.
        std::vector<std::string> indents;
        /// Whether the first line outside of its first block is still to tell how far it is indented.
        bool isBaseOpen = false;

        bool endsAtBracket() const { return kind == Kind::Group || kind == Kind::Statements; }
    };

    void openFrame(Kind kind, std::string base) {
        frames_.push_back({kind, brackets_.size(), {std::move(base)}, false});
    }
    void closeFrame(std::size_t position);
    void pushLineEnd(const char* value, std::size_t position);
    void pushDedents(std::size_t remaining, std::size_t position);
    void changeIndent(const Indentation& indentation, std::size_t position);
    void repairIndent(const Indentation& indentation, std::size_t position);
    void faultOf(Bracket open);
    void pushClosing(char bracket, std::size_t position);
    void popBracket(std::size_t position);
    bool beginsGroup() const;
    bool beginsStatements(char bracket) const;
    bool beginsApplication() const;
    Role roleOf(char bracket) const;
    bool isWordBefore(std::size_t offset, std::string_view word) const;
    bool isDotBefore() const;
    bool isWidgetBefore() const;
    bool isHandlerBefore() const;
    bool isBlockDue() const;

    TokenList& tokens_;
    std::vector<Bracket> brackets_;
    std::vector<Frame> frames_{{Kind::Text, 0, {""}, false}};
    /// Of the line at hand.
    std::string blanks_;
    /// How many brackets stood open around each word வினை whose colon is still to come.
    std::vector<std::size_t> functionWords_;
    /// How many tokens there were with the colon of a function value at their end.
    std::size_t tokensToFunctionColon_ = 0;
    /// How many tokens there were with the closing bracket of a database call at their end, and whether it reads.
    std::size_t tokensToDatabaseBracket_ = 0;
    bool isDatabaseRead_ = false;
};

} // namespace pozhil::second
