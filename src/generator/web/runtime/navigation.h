#pragma once

/// The page being shown and the switch to another. The generator puts the name of the first page in place of
/// the marker and its quotes.

#include "page_headers.h"

// --- emitted from here ---

// --- NAVIGATION STATE ---
std::string g_currentPage = "@START_PAGE@"; // தானாகக் கண்டுபிடிக்கப்பட்ட பக்கம்

void செல்க(std::string pageName) {
    g_currentPage = pageName;
    // std::cout << pageName << std::endl;
}
