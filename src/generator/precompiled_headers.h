// Precompiled into உள்ளடக்கம்/iostream.gch: g++ finds that file at the `#include <iostream>` with which every generated
// program begins, and so has all of these headers at once.
#include "runtime/standard_headers.h"
// The diagnostics headers include it too.
#include <unordered_map>
