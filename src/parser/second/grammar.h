#pragma once

#include "parser/node_places.h"
#include "parser/second/recovery.h"
#include "parser/second/token_reader.h"
#include "parser/second/tree_height.h"
#include "parser/tree/program.h"
#include "parser/tree/second_edition.h"
#include "scanner/second/fault_numbers.h"

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace pozhil::second {

struct FileParse;

using BlockPtr = std::unique_ptr<BlockStatement>;

/// One family of the grammar's rules. The families of a file share its tokens, and reach each other through the parse
/// that they belong to.
class Grammar {
public:
    /// \param parse outlives the grammar, which is a part of it
    explicit Grammar(FileParse& parse);

    Grammar(const Grammar&) = delete;
    Grammar& operator=(const Grammar&) = delete;

protected:
    using Parts = TreeHeight::Parts;

    ~Grammar() = default;

    // Nodes.

    /// A node whose text reaches from token \p first up to the next one.
    template <class Node, class... Arguments> std::unique_ptr<Node> make(std::size_t first, Arguments&&... arguments) {
        auto node = std::make_unique<Node>(std::forward<Arguments>(arguments)...);
        place(*node, first);
        return node;
    }
    /// Gives a node its line, and notes where it stands.
    template <class Node> void place(Node& node, std::size_t first) {
        node.line = tokens_.at(first).line;
        notePlace(&node, tokens_.rangeFrom(first));
    }
    /// Notes where a part of a node stands that has no node of its own, such as a name.
    void notePlace(const void* part, ByteRange range);

    /// One more level of the tree.
    void enter();
    /// Begins the next part, beside one node that holds all before it.
    void wrap(Parts& parts);

    // Faults.

    [[noreturn]] void fail(int number, ByteRange range, std::vector<std::string> values = {}) const;
    /// A fault at the next token.
    [[noreturn]] void failHere(int number, std::vector<std::string> values = {}) const;
    /// A fault if the line ends and nothing closes the bracket at \p opening.
    void failIfLeftOpen(TokenType type, std::size_t opening) const;
    /// Keeps a fault and goes on.
    void note(int number, ByteRange range, std::vector<std::string> values = {});

    // Tokens that must come next.

    /// Takes a name, or tells that one is missing.
    /// \param what it is the name of, for the message
    /// \return its token, as a plain name
    Token consumeName(const char* what);
    /// Takes the bracket that closes the one at \p opening, or tells that it is missing after one of several parts.
    void consumeClosing(TokenType type, std::size_t opening);
    /// The same of a bracket around one part, in which no comma can stand.
    void consumeClosingOfOne(TokenType type, std::size_t opening);
    /// Takes the bracket '(', or tells that it is missing.
    /// \param what where it belongs, for the message
    void consumeOpening(const char* what);
    /// Takes a colon. One that is missing before a block is told, and taken for written.
    void consumeColon();
    /// The end of a simple statement.
    void consumeStatementEnd();

    ExpressionPtr parseExpression();

    FileParse& parse_;
    TokenReader& tokens_;
    Recovery& recovery_;
    TreeHeight& height_;
};

} // namespace pozhil::second
