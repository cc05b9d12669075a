#include "driver/server/file_part.h"

#include <cstdint>
#include <limits>
#include <string>

#include <gtest/gtest.h>

using namespace pozhil;

namespace {

constexpr std::uint64_t LARGEST = std::numeric_limits<std::uint64_t>::max();

/// "whole", "impossible", or "first+length".
std::string written(const std::string& header, std::uint64_t size = 100) {
    const FilePart range = rangeOf(header, size);
    switch (range.kind) {
    case FilePart::Kind::Whole: return "whole";
    case FilePart::Kind::Impossible: return "impossible";
    case FilePart::Kind::Part: break;
    }
    return std::to_string(range.first) + "+" + std::to_string(range.length);
}

TEST(RangeOf, FromOneByteToAnother) {
    EXPECT_EQ(written("bytes=0-0"), "0+1");
    EXPECT_EQ(written("bytes=0-99"), "0+100");
    EXPECT_EQ(written("bytes=99-99"), "99+1");
    EXPECT_EQ(written("BYTES=010-019"), "10+10");
}

TEST(RangeOf, ToTheEnd) {
    EXPECT_EQ(written("bytes=0-"), "0+100");
    EXPECT_EQ(written("bytes=99-"), "99+1");
    EXPECT_EQ(written("bytes=50-1000"), "50+50");
    EXPECT_EQ(written("bytes=50-99999999999999999999999999999999"), "50+50");
    EXPECT_EQ(written("bytes=0-18446744073709551615", LARGEST), "0+18446744073709551615");
}

TEST(RangeOf, TheLastBytes) {
    EXPECT_EQ(written("bytes=-1"), "99+1");
    EXPECT_EQ(written("bytes=-100"), "0+100");
    EXPECT_EQ(written("bytes=-101"), "0+100");
    EXPECT_EQ(written("bytes=-99999999999999999999999999999999"), "0+100");
}

TEST(RangeOf, BytesThatAreNotThere) {
    for (const char* header : {"bytes=100-", "bytes=100-200", "bytes=-0", "bytes=18446744073709551615-",
                               "bytes=99999999999999999999999-99999999999999999999999"}) {
        EXPECT_EQ(written(header), "impossible") << header;
    }
    EXPECT_EQ(written("bytes=0-", 0), "impossible");
    EXPECT_EQ(written("bytes=-5", 0), "impossible");
}

TEST(RangeOf, NothingThatHasAnAnswer) {
    for (const char* header :
         {"", "bytes", "bytes=", "bytes=-", "bytes=5", "bytes=9-5", "bytes=a-", "bytes=0-b", "bytes=+1-2", "bytes= 1-2",
          "bytes=1 -2", "bytes=1--2", "bytes=--2", "items=0-1", "bytes:0-1"}) {
        EXPECT_EQ(written(header), "whole") << header;
    }
}

TEST(RangeOf, SeveralPartsAreTheWhole) {
    for (const char* header : {"bytes=0-1,3-4", "bytes=0-,0-,0-", "bytes=-1,-2", "bytes=0-1,"}) {
        EXPECT_EQ(written(header), "whole") << header;
    }
    std::string many = "bytes=0-";
    for (int i = 0; i < 10'000; ++i) {
        many += ",0-";
    }
    EXPECT_EQ(written(many), "whole");
}

} // namespace
