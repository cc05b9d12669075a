// A classic guard instead of #pragma once: the precompiled headers of generated programs hold this file too, from
// another place.
#ifndef POZHIL_ERROR_RECORD_H
#define POZHIL_ERROR_RECORD_H

#include <string>

/// What the catalogue says about one diagnostic.
struct பிழைதகவல் {
    std::string விளக்கம்; ///< what is wrong
    std::string தீர்வு;   ///< how to put it right, in friendly spoken Tamil
};

#endif
