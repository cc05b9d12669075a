#pragma once

/// What the input fields of a page hold, by the field's id.

#include "page_headers.h"

// --- emitted from here ---

// உள்ளீட்டுப் பெட்டிகளின் நிலை
std::map<std::string, std::string> g_inputValues;
std::map<std::string, int> g_inputCursorPos;
std::string g_focusedInput;
std::map<std::string, bool> g_inputSelected;
