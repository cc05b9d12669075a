#pragma once

#include "analysis/second/model.h"

namespace pozhil::second {

/// Tells every way on which a constant is given a value twice. Each way through எனில், தேர்வு and முயற்சி may give it one.
void checkConstants(Model& model);

/// The constant that an expression is, or an element of; null for anything else.
const resolved::Variable* constantAtRoot(const resolved::Expression* expression);

} // namespace pozhil::second
