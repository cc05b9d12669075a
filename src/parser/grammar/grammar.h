#pragma once

#include "base/scoped_value.h"
#include "parser/declarations.h"
#include "parser/nesting_limit.h"
#include "parser/recovery.h"
#include "parser/syntax_tree.h"
#include "parser/token_cursor.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace pozhil {

struct FileParse;

using WidgetPtr = std::unique_ptr<WidgetNode>;

/// One family of the grammar's rules. The families of a file share its cursor and tables, and reach each other through
/// the parse they belong to.
class Grammar {
public:
    /// \param parse outlives the grammar, which is a part of it
    explicit Grammar(FileParse& parse);

    Grammar(const Grammar&) = delete;
    Grammar& operator=(const Grammar&) = delete;

protected:
    using SideBySide = NestingLimit::SideBySide;

    ~Grammar() = default;

    // What every family needs of the others.
    ExpressionPtr parseExpression();
    StatementPtr parseStatement(bool inStruct);
    WidgetPtr parseWidget();

    /// The colon and value after a key.
    ExpressionPtr parsePropertyValue();

    /// The key at the cursor, its colon and value, kept under \p name.
    void parseProperty(PropertyMap& properties, std::string_view name);

    /// Takes the items of a list whose bracket is open, and the closing bracket.
    /// \param level of the line that opened the list
    /// \param parseItem takes one item
    /// \param line where a missing bracket is reported, -1 being the current line
    template <class Item> void parseItems(int level, const Item& parseItem, std::int32_t line = -1) {
        const ScopedValue<bool> inList(isInList_, true);
        const TokenCursor::FreeLayout list(cursor_, level);
        SideBySide siblings(nesting_);
        while (cursor_.nextListItem(level)) {
            siblings.next();
            recovery_.attemptItem(level, parseItem);
        }
        cursor_.consume(TokenType::RPAREN, "பொழி-204", line);
    }

    /// \p node, whose place is noted as the text from token \p first up to the cursor. Null has no place.
    template <class Pointer> Pointer placed(std::size_t first, Pointer node) {
        if (node != nullptr) {
            notePlace(node.get(), first);
        }
        return node;
    }

    /// A node of this line, whose place is noted as the text from token \p first up to the cursor.
    template <class Node, class... Arguments>
    std::unique_ptr<Node> makeNode(std::size_t first, std::int32_t line, Arguments&&... arguments) {
        auto node = std::make_unique<Node>(std::forward<Arguments>(arguments)...);
        node->line = line;
        notePlace(node.get(), first);
        return node;
    }

    FileParse& parse_;
    TokenCursor& cursor_;
    NestingLimit& nesting_;
    Recovery& recovery_;
    Declarations& declarations_;
    /// Whether the next line belongs to a bracketed list rather than to the next statement.
    bool& isInList_;

private:
    void notePlace(const void* node, std::size_t first);
};

} // namespace pozhil
