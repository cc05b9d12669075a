#pragma once

#include "parser/syntax_tree.h"

#include <string>

namespace pozhil::test {

/// Whether the written form of a tree tells the lines of its nodes.
enum class Lines { Hidden, Shown };

/// Writes a tree as nested brackets: the node's class without the ending that tells its family, then its fields in
/// their order. A name that is read stands for itself, null for a child that is missing:
///
///     அ = 1 கூட்டு ஆ        (Expression (Assignment அ = (Binary (Number 1) கூட்டு ஆ)))
///     எனில் அ: ...          (If அ (Block (Pass)) null)
///
/// A widget tells its class, its kind and what differs from a widget of that class without content: the alignment's
/// number, the fields of its class, properties, style, animation, statements of its press handler, children.
///
///     நெடுவரிசை(உரை("அ"))    (Column நெடுவரிசை (Widget உரை ("உரை" (String "அ"))))
///
/// With lines, "@3" stands behind the class or name of every node whose line isn't 0. A reference parameter has a "&"
/// before it; a private member has the word private, a structure with a parent has "< parent" behind its name.
std::string treeText(const Expression* expression, Lines lines = Lines::Hidden);
std::string treeText(const Statement* statement, Lines lines = Lines::Hidden);

/// The statements of \p program, one blank between them.
std::string treeText(const Program& program, Lines lines = Lines::Hidden);

} // namespace pozhil::test
