// Precompiled into உள்ளடக்கம்/iostream.gch: g++ finds that file at the `#include <iostream>` with which every generated
// program begins, and so has all of this at once.
#include "../generator/first/runtime/standard_headers.h"

#define POZHIL_SHARED_TEMPLATE extern template
#include "shared_templates.h"
