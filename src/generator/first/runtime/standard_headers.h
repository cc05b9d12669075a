#pragma once

/// Standard headers of every generated program. Their order is fixed, so the formatter leaves this file alone.

// clang-format off
// --- emitted from here ---
#include <iostream>
#include <string>
#include <iomanip>
#include <cmath>
#include <thread>
#include <chrono>
#include <ctime>
#include <any>
#include <vector>
#include <map>
#include <set>
#include <memory>
#include <functional>
#include <algorithm>
#include <sstream>
#include <fstream>
#include <cstdio>
#include <cstdlib>
