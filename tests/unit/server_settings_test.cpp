#include "driver/web/server_settings.h"

#include "child_process.h"

#include <cstdlib>

#include <gmock/gmock.h>

using namespace pozhil;

namespace {

/// Every test runs in a process of its own when ctest starts it; alone, each one sets what it reads.
class ServerOf : public testing::Test {
protected:
    void SetUp() override {
        unsetenv("POZHIL_STRICT");
        unsetenv("POZHIL_HOST");
    }
};

TEST_F(ServerOf, TheFirstEditionGivesAnyFileAndThatOfTheSecondTheApplicationsOwn) {
    EXPECT_EQ(serverSettings(Edition::First).access, Access::Open);
    EXPECT_EQ(serverSettings(Edition::Second).access, Access::Files);
    EXPECT_EQ(serverSettings(Edition::First).host, "");
    EXPECT_EQ(serverSettings(Edition::Second).host, "");
}

TEST_F(ServerOf, EitherEditionCanBeStrict) {
    setenv("POZHIL_STRICT", "1", 1);
    setenv("POZHIL_HOST", "0.0.0.0", 1);
    for (const Edition edition : {Edition::First, Edition::Second}) {
        EXPECT_EQ(serverSettings(edition).access, Access::Strict);
        EXPECT_EQ(serverSettings(edition).host, "127.0.0.1");
    }
}

TEST_F(ServerOf, EitherEditionListensWhereTheUserSays) {
    setenv("POZHIL_HOST", "127.0.0.2", 1);
    for (const Edition edition : {Edition::First, Edition::Second}) {
        const ServerSettings server = serverSettings(edition);
        EXPECT_EQ(server.host, "127.0.0.2");
        EXPECT_NE(server.access, Access::Strict);
        EXPECT_EQ(addressOf(server), "http://127.0.0.2:6931");
    }
    EXPECT_EQ(addressOf({"0.0.0.0"}), "http://127.0.0.1:6931");
    EXPECT_EQ(addressOf({""}), "http://127.0.0.1:6931");
}

TEST_F(ServerOf, EitherEditionEndsWhereTheUserNamesNoAddress) {
    setenv("POZHIL_HOST", "என்வீடு", 1);
    for (const Edition edition : {Edition::First, Edition::Second}) {
        const ChildResult result = runInChild([&] { serverSettings(edition); });
        EXPECT_EQ(result.exitStatus, 1);
        EXPECT_THAT(result.errors, testing::HasSubstr("POZHIL_HOST"));
    }
}

} // namespace
