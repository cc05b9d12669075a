#pragma once

#include "language/rows.h"
#include "language/token_type.h"

#include <string_view>
#include <vector>

namespace pozhil::language {

/// What a keyword belongs to.
enum class KeywordGroup { Statement, Condition, Application, Widget, Animation, Operator };

/// A word that the scanner knows.
struct Keyword {
    std::string_view word;
    TokenType type;
    KeywordGroup group;
};

/// All keywords, group by group. A word may belong to several groups; the first one decides its kind wherever it
/// stands. The words of widgets and operators are those of their tables.
const std::vector<Keyword>& keywords();

/// The words that a misspelt name is compared with, in the order of comparison.
Rows<std::string_view> typoCandidates();

} // namespace pozhil::language
