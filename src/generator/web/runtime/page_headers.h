#pragma once

/// Standard headers that the runtime of a page needs. An edition whose programs have them anyway leaves them out.

// --- emitted from here ---
#include <algorithm>
#include <cmath>
#include <exception>
#include <functional>
#include <iostream>
#include <map>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>
