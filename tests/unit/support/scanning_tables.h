#pragma once

#include "support/scanning.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace pozhil::test {

struct TokensOfSource {
    std::string source;
    std::string written; ///< as tokens() writes them
};

inline void expectTokens(const std::vector<TokensOfSource>& table) {
    for (const auto& [source, written] : table) {
        EXPECT_EQ(tokens(source), written) << source;
    }
}

struct FaultOfSource {
    std::string source;
    std::string fault; ///< as scanFault() tells it
};

inline void expectFaults(const std::vector<FaultOfSource>& table) {
    for (const auto& [source, fault] : table) {
        EXPECT_EQ(scanFault(source), fault) << source;
    }
}

} // namespace pozhil::test
