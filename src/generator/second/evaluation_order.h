#pragma once

#include "analysis/second/resolved/program.h"

namespace pozhil::resolved::writer {

/// Whether it matters that \p earlier is evaluated before \p later, because one of them changes what the other one reads or
/// does, or because both may fail and the first fault is the one that is told. C++ leaves the order of operands open.
bool mustComeBefore(const Expression& earlier, const Expression& later);

/// Whether evaluating \p expression may change what \p variable holds.
bool mayChange(const Expression& expression, const Variable& variable);

/// Whether evaluating \p expression does more than read.
bool changesSomething(const Expression& expression);

/// Whether it shows that \p expression has been evaluated: it may fail, or it changes something. A fault that comes before it
/// must be found out before.
bool leavesTraces(const Expression& expression);

/// Whether \p expression reads \p variable, itself or in a function that it calls.
bool mayRead(const Expression& expression, const Variable& variable);

/// Whether \p value has to be evaluated, in a statement of its own, before \p target is looked up. It may change what the
/// place stands in, or hold on to it: writing to the place would then write to the value too, or copy the whole list, since
/// temporaries of C++ live until the end of their statement.
bool mustComeBeforePlace(const Expression& value, const TargetPlace& target);

/// Whether evaluating \p value may change what \p target stands in.
bool mayChangeWhatHolds(const Expression& value, const TargetPlace& target);

/// Whether looking up what \p target holds may fail.
bool mayBeMissing(const TargetPlace& target);

/// Whether an expression can be written again later and still gives the same: literals, and native variables of the call,
/// which nobody else writes while one expression is evaluated.
bool staysTheSame(const Expression& expression);

/// The variable in whose value \p target stands, null if that is in an object.
const Variable* rootOf(const TargetPlace& target);

} // namespace pozhil::resolved::writer
