#include "driver/server/access.h"

#include "support/working_folder.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

using namespace pozhil;
using namespace std::string_literals;

namespace {

HttpRequest request(const std::optional<std::string>& host, const std::optional<std::string>& origin = std::nullopt) {
    HttpRequest made{"/"};
    made.host = host;
    made.origin = origin;
    made.hasOrigin = origin.has_value();
    return made;
}

TEST(OwnPage, IsAskedForByThisMachinesNames) {
    for (const char* host : {"127.0.0.1", "127.0.0.1:6931", "localhost", "localhost:8080"}) {
        EXPECT_TRUE(comesFromOwnPage(request(host))) << host;
    }
    for (const char* host : {"", ":6931", "attacker.example", "attacker.example:6931", "127.0.0.1.attacker.example",
                             "localhost.attacker.example:6931", "127.0.0.1:6931@attacker.example", "127.0.0.1:x",
                             "0.0.0.0", "192.168.1.5:6931", "localhost:6931:6931", "127.0.0.1 attacker.example"}) {
        EXPECT_FALSE(comesFromOwnPage(request(host))) << host;
    }
    EXPECT_FALSE(comesFromOwnPage(request(std::nullopt)));
}

TEST(OwnPage, IsTheOriginOfItsRequests) {
    EXPECT_TRUE(comesFromOwnPage(request("127.0.0.1:6931", "http://127.0.0.1:6931")));
    for (const char* origin : {"null", "", "http://attacker.example", "http://127.0.0.1", "http://127.0.0.1:8080",
                               "https://127.0.0.1:6931", "http://localhost:6931", "http://127.0.0.1:69310"}) {
        EXPECT_FALSE(comesFromOwnPage(request("127.0.0.1:6931", origin))) << origin;
    }
    HttpRequest two = request("127.0.0.1:6931");
    two.hasOrigin = true;
    EXPECT_FALSE(comesFromOwnPage(two));
}

class ApplicationFiles : public test::WorkingFolder {
protected:
    bool isOne(const std::string& path) const { return isApplicationFile(path, files_); }

    std::vector<std::string> files_ = {"assets", "./சின்னம்.png", "வேறு/a.mp4"};
};

TEST_F(ApplicationFiles, AreThoseThatArePacked) {
    write("assets/font/a.ttf", "");
    write("சின்னம்.png", "");
    write("வேறு/a.mp4", "");
    for (const char* path : {"/assets/font/a.ttf", "/assets/missing.png", "/சின்னம்.png", "/வேறு/a.mp4"}) {
        EXPECT_TRUE(isOne(path)) << path;
    }
}

TEST_F(ApplicationFiles, AreNothingBesideThem) {
    write("assets/a.png", "");
    write("secret.txt", "");
    for (const std::string& path :
         {""s, "/"s, "assets/a.png"s, "/secret.txt"s, "/assets.txt"s, "/வேறு"s, "/வேறு/b.mp4"s,
          "/assets/../secret.txt"s, "/./assets/a.png"s, "/assets/./a.png"s, "//assets/a.png"s, "/assets/a.png/"s,
          "/.."s, "/../a.png"s, "/assets/..\0/secret.txt"s}) {
        EXPECT_FALSE(isOne(path)) << path;
    }
}

TEST_F(ApplicationFiles, AreNotWhereLinksLeadAway) {
    write("assets/a.png", "");
    write("away/secret.txt", "");
    std::filesystem::create_directory_symlink(std::filesystem::absolute("away"), "assets/away");
    std::filesystem::create_symlink("../away/secret.txt", "assets/b.png");
    std::filesystem::create_symlink("a.png", "assets/c.png");
    EXPECT_FALSE(isOne("/assets/away/secret.txt"));
    EXPECT_FALSE(isOne("/assets/b.png"));
    EXPECT_TRUE(isOne("/assets/c.png"));
}

TEST_F(ApplicationFiles, MayLieInALinkedFolder) {
    write("shared/a.png", "");
    std::filesystem::create_directory_symlink("shared", "assets");
    EXPECT_TRUE(isOne("/assets/a.png"));
}

} // namespace
