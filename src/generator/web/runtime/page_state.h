#pragma once

/// What a page keeps from frame to frame: faults of its fields, and what masks it.

#include "page_headers.h"

// --- emitted from here ---

// உள்ளீட்டுப் பிழைகள், காட்சிகள், எச்சரிக்கைகள்
std::map<std::string, std::string> g_inputErrors;
std::map<std::string, bool> g_kaatchi_nilai;
std::set<std::string> g_alert_names;
bool g_block_background_clicks = false;
bool g_inside_overlay = false;
