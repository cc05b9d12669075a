#pragma once

#include "parser/syntax_tree.h"

#include <memory>
#include <string>
#include <utility>

namespace pozhil::test {

/// The text that \p source, the file நிரல்.பொழில், is translated into. Statements that no source has come \p behind it.
std::string generatedText(const std::string& source, StatementList behind = {});

/// The part of \p text behind the runtime: structures, functions, init_globals and main.
std::string ownPart(const std::string& text);

/// What stands between the braces of main, but for its last line.
std::string mainBody(const std::string& source, StatementList behind = {});

/// What \p statements become in a function வினவு(உ) behind \p source: the lines between the call guard and the
/// default return.
std::string functionBody(StatementList statements, const std::string& source = "");

/// Code and line of the diagnostic that generating the text ends with, such as "பொழி-301 வரி 3"; "none" if it is
/// generated; "exception" and the message for a fault without a line.
std::string generatorFault(const std::string& source, StatementList behind = {});

/// The whole box that generating the text ends with.
std::string generatorReport(const std::string& source, StatementList behind = {});

/// Nodes for trees that no source has. Those with a line stand in line 3.
template <class Node, class... Arguments> std::unique_ptr<Node> make(Arguments&&... arguments) {
    return std::make_unique<Node>(std::forward<Arguments>(arguments)...);
}

ExpressionPtr variable(const std::string& name);
ExpressionPtr number(const std::string& value);
ExpressionPtr text(const std::string& value);
ExpressionPtr member(ExpressionPtr object, const std::string& name);
ExpressionPtr call(const std::string& name, ExpressionList arguments = {});
StatementPtr assignment(const std::string& name, ExpressionPtr value);
Token word(const std::string& value);

/// A list of nodes that takes them over.
template <class List = StatementList, class... Nodes> List listOf(Nodes&&... nodes) {
    List list;
    (list.push_back(std::forward<Nodes>(nodes)), ...);
    return list;
}

} // namespace pozhil::test
