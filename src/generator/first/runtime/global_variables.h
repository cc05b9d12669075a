#pragma once

/// The variables of a generated program.

#include "standard_headers.h"

// --- emitted from here ---

// பொழிலின் மாறிகள் அனைத்தும், பெயர் வாரியாக
std::map<std::string, std::any> global_vars;
