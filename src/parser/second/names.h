#pragma once

#include "scanner/token.h"

namespace pozhil::second {

/// Whether \p token is a word: a name, or one of the language's own.
bool isWord(const Token& token);

/// Whether a name may be spelt like \p token. Words that mean something wherever they stand, such as அச்சிடு or மெய், can't
/// be names; the others can.
bool canBeName(const Token& token);

/// Whether a value can begin with \p token, an operator before its operand included.
bool canBeginValue(const Token& token);

} // namespace pozhil::second
