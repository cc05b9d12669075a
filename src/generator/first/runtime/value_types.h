#pragma once

/// The two value types that the standard library does not offer, and the diagnostics that generated programs share
/// with the compiler.

#include "standard_headers.h"

// clang-format off
// --- emitted from here ---

// ஓர் எழுத்து (பல பைட்டுகளாக இருக்கலாம்); எல்லாப் பொருள்களின் அடித்தளம்
struct _PozhilChar { std::string val; };
struct _StructBase { std::map<std::string, std::any> properties; virtual ~_StructBase() = default; };

#include "error_codes.h"
#include "error_handler.h"
