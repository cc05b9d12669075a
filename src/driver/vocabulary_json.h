#pragma once

#include <string>

namespace pozhil {

/// All tables of the language and the catalogue of diagnostics, for what derives from them outside of the compiler:
/// documents, grammars of editors, tests. One object with an array for each table:
///
/// - keywords: word, kind (the number of its kind of token), group, reserved (whether no variable may be called so)
/// - typo_candidates: words
/// - operators: word, kind, token, level, symbol, arithmetic
/// - builtins: name, form, topic, arguments (their number, -1 for any), parameters, value, description, remark
/// - widgets: word, token, keyword, role, description, properties
/// - common_properties, and properties in a widget: name, style, kind, description
/// - alignments: words
/// - colours: word, english, components
/// - curves: name, family, place, further (whether it is a further name of a curve), exponent
/// - diagnostics: code, description, cause, remedy; what nothing raises has no cause
///
/// What is told to users has the members ta and en.
std::string vocabularyJson();

} // namespace pozhil
