#include "driver/server/http_response.h"

#include "driver/server/build_fault.h"
#include "driver/server/web_state.h"
#include "support/working_folder.h"

#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

#include <gmock/gmock.h>

using namespace pozhil;
using namespace std::string_literals;

namespace {

std::string head(const std::string& type, std::size_t length) {
    return "HTTP/1.1 200 OK\r\nContent-Type: " + type + "\r\nContent-Length: " + std::to_string(length) +
           "\r\nConnection: close\r\nAccess-Control-Allow-Origin: *\r\n\r\n";
}

const std::string NOT_FOUND = "HTTP/1.1 404 Not Found\r\nContent-Length: 26\r\n\r\n404 - பக்கம் காணவில்லை";

/// All that is sent for a request.
std::string answerTo(const HttpRequest& request, Access access = Access::Open) {
    auto response = HttpResponse::to(request, access);
    if (!response) {
        return "nothing";
    }
    std::string answer;
    for (auto piece = response->nextPiece(); !piece.empty(); piece = response->nextPiece()) {
        answer += piece;
    }
    return answer;
}

/// All that is sent for \p path.
std::string answerTo(const std::string& path) {
    return answerTo(HttpRequest{path});
}

/// Page and version as they are before the first build.
class Answers : public test::WorkingFolder {
protected:
    void TearDown() override {
        g_appVersion = 1;
        g_web_html.store({});
        WorkingFolder::TearDown();
    }
};

TEST(MimeType, FollowsTheEnding) {
    EXPECT_EQ(getMimeType("/a.html"), "text/html; charset=utf-8");
    EXPECT_EQ(getMimeType("/a.js"), "application/javascript");
    EXPECT_EQ(getMimeType("/a.wasm"), "application/wasm");
    EXPECT_EQ(getMimeType("/a.css"), "text/css");
    EXPECT_EQ(getMimeType("/a.png"), "image/png");
    EXPECT_EQ(getMimeType("/a.jpg"), "image/jpeg");
    EXPECT_EQ(getMimeType("/a.jpeg"), "image/jpeg");
    EXPECT_EQ(getMimeType("/a.svg"), "image/svg+xml");
    EXPECT_EQ(getMimeType("/a.json"), "application/json");
    EXPECT_EQ(getMimeType("/a.gif"), "image/gif");
    EXPECT_EQ(getMimeType("/a.mp4"), "video/mp4");
    EXPECT_EQ(getMimeType("/a.ttf"), "font/ttf");
    EXPECT_EQ(getMimeType("/a.woff"), "font/woff");
    EXPECT_EQ(getMimeType("/a.woff2"), "font/woff2");
}

TEST(MimeType, IsThatOfAnyBytesOtherwise) {
    for (const char* path :
         {"", "/", "/a", "/a.otf", "/index.data", "/a.PNG", "/a.Html", "/a.html?x", "/js", "/a.js/"}) {
        EXPECT_EQ(getMimeType(path), "application/octet-stream") << path;
    }
}

TEST(MimeType, TheEndingMayBeAll) {
    EXPECT_EQ(getMimeType(".png"), "image/png");
}

TEST(ServedFile, LiesBelowTheCurrentFolder) {
    EXPECT_EQ(servedFile("/assets/a.png", "வெளியீடு"), "./assets/a.png");
    EXPECT_EQ(servedFile("/index.css", "வெளியீடு"), "./index.css");
    EXPECT_EQ(servedFile("/index.js?x", "வெளியீடு"), "./index.js?x");
    EXPECT_EQ(servedFile("/a/index.js", "வெளியீடு"), "./a/index.js");
    EXPECT_EQ(servedFile("x", "வெளியீடு"), ".x");
}

TEST(ServedFile, OfTheBuildLiesInItsFolder) {
    EXPECT_EQ(servedFile("/index.js", "வெளியீடு"), "./வெளியீடு/index.js");
    EXPECT_EQ(servedFile("/index.wasm", "வெளியீடு"), "./வெளியீடு/index.wasm");
    EXPECT_EQ(servedFile("/index.data", "வெளியீடு"), "./வெளியீடு/index.data");
    EXPECT_EQ(servedFile("/index.js", "வெளியீடு/அ.பொழில்"), "./வெளியீடு/அ.பொழில்/index.js");
    EXPECT_EQ(servedFile("/a.js", "வெளியீடு/அ.பொழில்"), "./a.js");
}

TEST_F(Answers, VersionIsTheNumberOfTheLastGoodBuildPlusOne) {
    EXPECT_EQ(answerTo("/version"), head("text/plain", 1) + "1");
    g_appVersion = 120;
    EXPECT_EQ(answerTo("/version"), head("text/plain", 3) + "120");
}

TEST_F(Answers, FaultOfTheLastBuildIsToldBesideTheVersion) {
    EXPECT_EQ(answerTo("/version/fault"), head("application/json", 2) + "{}");
    tellPages({"பொழி-1", "", 0, "ஏதோ"});
    const std::string told = answerToPage();
    EXPECT_EQ(answerTo("/version/fault"), head("application/json", told.size()) + told);
    tellPagesOfSuccess();
}

TEST_F(Answers, VersionGoesInOnePiece) {
    auto response = HttpResponse::to({"/version"});
    ASSERT_TRUE(response);
    EXPECT_EQ(response->nextPiece(), head("text/plain", 1) + "1");
    EXPECT_EQ(response->nextPiece(), "");
}

TEST_F(Answers, PageIsThatOfTheLastBuild) {
    write("index.html", "a file of this name counts for nothing");
    EXPECT_EQ(answerTo("/"), head("text/html; charset=utf-8", 0));
    g_web_html.store({"<p>வணக்கம்</p>"});
    EXPECT_EQ(answerTo("/"), head("text/html; charset=utf-8", 28) + "<p>வணக்கம்</p>");
    EXPECT_EQ(answerTo("/index.html"), answerTo("/"));
}

TEST_F(Answers, PageStaysWhatItWasWhenTheAnswerBegan) {
    g_web_html.store({"பழையது"});
    auto response = HttpResponse::to({"/"});
    ASSERT_TRUE(response);
    EXPECT_EQ(response->nextPiece(), head("text/html; charset=utf-8", 18));
    g_web_html.store({"புதிது"});
    EXPECT_EQ(response->nextPiece(), "பழையது");
    EXPECT_EQ(response->nextPiece(), "");
}

TEST_F(Answers, QueryBelongsToTheName) {
    g_web_html.store({"page"});
    EXPECT_EQ(answerTo("/?x"), NOT_FOUND);
    EXPECT_EQ(answerTo("/index.html?x"), NOT_FOUND);
    EXPECT_EQ(answerTo("/version?x"), NOT_FOUND);
    write("index.html?x", "file");
    EXPECT_EQ(answerTo("/index.html?x"), head("application/octet-stream", 4) + "file");
}

TEST_F(Answers, FilesOfTheBuildComeFromItsFolder) {
    write("index.js", "not this one");
    EXPECT_EQ(answerTo("/index.js"), NOT_FOUND);
    write("வெளியீடு/index.js", "script");
    write("வெளியீடு/index.wasm", "\0asm"s);
    write("வெளியீடு/index.data", "data!");
    EXPECT_EQ(answerTo("/index.js"), head("application/javascript", 6) + "script");
    EXPECT_EQ(answerTo("/index.wasm"), head("application/wasm", 4) + "\0asm"s);
    EXPECT_EQ(answerTo("/index.data"), head("application/octet-stream", 5) + "data!");
}

TEST_F(Answers, OtherFilesComeFromTheCurrentFolder) {
    write("assets/சிறு படம்.png", "png");
    write("வெற்று.css", "");
    EXPECT_EQ(answerTo("/assets/சிறு படம்.png"), head("image/png", 3) + "png");
    EXPECT_EQ(answerTo("/வெற்று.css"), head("text/css", 0));
    EXPECT_EQ(answerTo("//assets//சிறு படம்.png"), head("image/png", 3) + "png");
}

TEST_F(Answers, PartsUpwardsAreFollowed) {
    write("அடைவு/கீழே/x.txt", "x");
    write("அடைவு/y.txt", "yy");
    std::filesystem::current_path("அடைவு/கீழே");
    EXPECT_EQ(answerTo("/../y.txt"), head("application/octet-stream", 2) + "yy");
}

TEST_F(Answers, MissingFileHasAShortLengthAndTheWholeText) {
    EXPECT_EQ(answerTo("/இல்லை.png"), NOT_FOUND);
    EXPECT_EQ(std::string("404 - பக்கம் காணவில்லை").size(), 52U);
}

TEST_F(Answers, WhatIsNoFileIsNotFound) {
    write("assets/a.png", "png");
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    std::filesystem::create_symlink("/dev/zero", "endless");
    for (const std::string& path :
         {"/assets"s, "/assets/"s, "/pipe"s, "/endless"s, ""s, "assets/a.png"s, "/assets/a.png/"s, "/assets/a.png\0"s,
          "/assets/a.png\0.png"s, "/" + std::string(5000, 'x')}) {
        EXPECT_EQ(answerTo(path), NOT_FOUND) << path.substr(0, 20);
    }
}

TEST_F(Answers, UnreadableFileIsNotAnswered) {
    std::filesystem::create_symlink("/proc/self/mem",
                                    "unreadable"); // opens like any file, but has nothing at its start
    EXPECT_EQ(answerTo("/unreadable"), "nothing");
}

TEST_F(Answers, LargeFileGoesPieceByPiece) {
    std::string text(3 * 1024 * 1024 + 17, '\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        text[i] = static_cast<char>(i * 31 >> 7);
    }
    write("large.mp4", text);
    EXPECT_TRUE(answerTo("/large.mp4") == head("video/mp4", text.size()) + text);
    auto response = HttpResponse::to({"/large.mp4"});
    ASSERT_TRUE(response);
    EXPECT_LT(response->nextPiece().size(), text.size() / 2);
}

TEST_F(Answers, FileThatShrinksMeanwhileBreaksOff) {
    write("large.mp4", std::string(1024 * 1024, 'x'));
    auto response = HttpResponse::to({"/large.mp4"});
    ASSERT_TRUE(response);
    EXPECT_FALSE(response->nextPiece().empty());
    std::filesystem::resize_file("large.mp4", 10);
    EXPECT_EQ(response->nextPiece(), "");
}

TEST_F(Answers, FileThatGrowsMeanwhileKeepsItsLength) {
    write("large.mp4", std::string(300 * 1024, 'x'));
    auto response = HttpResponse::to({"/large.mp4"});
    ASSERT_TRUE(response);
    std::string answer(response->nextPiece());
    write("large.mp4", std::string(900 * 1024, 'x'));
    for (auto piece = response->nextPiece(); !piece.empty(); piece = response->nextPiece()) {
        answer += piece;
    }
    EXPECT_EQ(answer.size(), head("video/mp4", 300 * 1024).size() + 300 * 1024);
}

HttpRequest asking(const std::string& path, const std::string& range) {
    HttpRequest request{path};
    request.range = range;
    return request;
}

HttpRequest takingGzip(const std::string& path) {
    HttpRequest request{path};
    request.acceptsGzip = true;
    return request;
}

HttpRequest headOnly(const std::string& path) {
    HttpRequest request{path};
    request.isHead = true;
    return request;
}

std::string headWith(const std::string& line, const std::string& type, std::size_t length,
                     const std::string& status = "200 OK") {
    return "HTTP/1.1 " + status + "\r\nContent-Type: " + type + "\r\nContent-Length: " + std::to_string(length) +
           "\r\n" + line + "\r\nConnection: close\r\nAccess-Control-Allow-Origin: *\r\n\r\n";
}

const std::string GZIP_LINES = "Content-Encoding: gzip\r\nVary: Accept-Encoding";

TEST_F(Answers, HeadIsThatOfTheWholeAnswer) {
    g_web_html.store({"page"});
    write("large.mp4", std::string(300 * 1024, 'x'));
    EXPECT_EQ(answerTo(headOnly("/version")), head("text/plain", 1));
    EXPECT_EQ(answerTo(headOnly("/version/fault")), head("application/json", 2));
    EXPECT_EQ(answerTo(headOnly("/")), head("text/html; charset=utf-8", 4));
    EXPECT_EQ(answerTo(headOnly("/large.mp4")), head("video/mp4", 300 * 1024));
    EXPECT_EQ(answerTo(headOnly("/no")), "HTTP/1.1 404 Not Found\r\nContent-Length: 26\r\n\r\n");
}

TEST_F(Answers, PartOfAFileIsSentAlone) {
    std::string text(300 * 1024, '\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        text[i] = static_cast<char>(i * 31 >> 7);
    }
    write("a.mp4", text);
    const auto part = [&](std::size_t first, std::size_t last) {
        const std::string place = std::to_string(first) + "-" + std::to_string(last) + "/307200";
        return headWith("Content-Range: bytes " + place, "video/mp4", last - first + 1, "206 Partial Content") +
               text.substr(first, last - first + 1);
    };
    EXPECT_EQ(answerTo(asking("/a.mp4", "bytes=0-0")), part(0, 0));
    EXPECT_EQ(answerTo(asking("/a.mp4", "bytes=10-19")), part(10, 19));
    EXPECT_TRUE(answerTo(asking("/a.mp4", "bytes=0-")) == part(0, 307199));
    EXPECT_TRUE(answerTo(asking("/a.mp4", "bytes=100-200000")) == part(100, 200000));
    EXPECT_EQ(answerTo(asking("/a.mp4", "bytes=-5")), part(307195, 307199));
    EXPECT_EQ(answerTo(asking("/a.mp4", "bytes=307199-99999999999999999999999999")), part(307199, 307199));
}

TEST_F(Answers, PartThatTheFileDoesNotHave) {
    write("a.mp4", "0123456789");
    write("empty.mp4", "");
    const auto impossible = [](const std::string& size) {
        return headWith("Content-Range: bytes */" + size, "video/mp4", 0, "416 Range Not Satisfiable");
    };
    EXPECT_EQ(answerTo(asking("/a.mp4", "bytes=10-")), impossible("10"));
    EXPECT_EQ(answerTo(asking("/a.mp4", "bytes=-0")), impossible("10"));
    EXPECT_EQ(answerTo(asking("/empty.mp4", "bytes=0-")), impossible("0"));
}

TEST_F(Answers, WholeFileWhereThePartsMakeNoSense) {
    write("a.mp4", "0123456789");
    for (const char* range :
         {"bytes=5-2", "bytes=0-3,5-7", "bytes=0-,0-,0-", "lines=1-2", "bytes", "bytes=-", "bytes=a-b"}) {
        EXPECT_EQ(answerTo(asking("/a.mp4", range)), head("video/mp4", 10) + "0123456789") << range;
    }
    EXPECT_EQ(answerTo(asking("/version", "bytes=0-0")), head("text/plain", 1) + "1");
}

TEST_F(Answers, CompressedPageGoesToWhoeverTakesIt) {
    g_web_html.store({"a long page", "short"});
    EXPECT_EQ(answerTo(takingGzip("/")), headWith(GZIP_LINES, "text/html; charset=utf-8", 5) + "short");
    EXPECT_EQ(answerTo("/"), head("text/html; charset=utf-8", 11) + "a long page");
    g_web_html.store({"a long page"});
    EXPECT_EQ(answerTo(takingGzip("/")), head("text/html; charset=utf-8", 11) + "a long page");
}

/// Gives the copy the time of the original, as gzip does.
void writeCopy(const std::string& name, const std::string& text) {
    std::ofstream(name + ".gz") << text;
    std::filesystem::last_write_time(name + ".gz", std::filesystem::last_write_time(name));
}

TEST_F(Answers, CompressedCopyGoesToWhoeverTakesIt) {
    write("வெளியீடு/index.wasm", "a long program");
    EXPECT_EQ(answerTo(takingGzip("/index.wasm")), answerTo("/index.wasm"));
    writeCopy("வெளியீடு/index.wasm", "short");
    EXPECT_EQ(answerTo(takingGzip("/index.wasm")), headWith(GZIP_LINES, "application/wasm", 5) + "short");
    EXPECT_EQ(answerTo("/index.wasm"), head("application/wasm", 14) + "a long program");
    HttpRequest part = takingGzip("/index.wasm");
    part.range = "bytes=0-0";
    EXPECT_THAT(answerTo(part), testing::EndsWith("\r\n\r\na"));
    HttpRequest headAlone = takingGzip("/index.wasm");
    headAlone.isHead = true;
    EXPECT_EQ(answerTo(headAlone), headWith(GZIP_LINES, "application/wasm", 5));
}

TEST_F(Answers, CopyOfAnotherBuildIsNoCopy) {
    write("வெளியீடு/index.js", "a newer program");
    writeCopy("வெளியீடு/index.js", "older");
    const auto time = std::filesystem::last_write_time("வெளியீடு/index.js");
    std::filesystem::last_write_time("வெளியீடு/index.js", time + std::chrono::milliseconds(1));
    EXPECT_EQ(answerTo(takingGzip("/index.js")), head("application/javascript", 15) + "a newer program");
}

TEST_F(Answers, OnlyWhatIsBuiltHasCopies) {
    write("assets/a.js", "a long script");
    writeCopy("assets/a.js", "short");
    EXPECT_EQ(answerTo(takingGzip("/assets/a.js")), head("application/javascript", 13) + "a long script");
    EXPECT_THAT(answerTo("/assets/a.js.gz"), testing::EndsWith("short"));
}

/// What a page of this server sends.
HttpRequest own(const std::string& path) {
    HttpRequest request{path};
    request.host = "127.0.0.1:6931";
    return request;
}

std::string strictHead(const std::string& type, std::size_t length) {
    return "HTTP/1.1 200 OK\r\nContent-Type: " + type + "\r\nContent-Length: " + std::to_string(length) +
           "\r\nConnection: close\r\nCross-Origin-Resource-Policy: same-origin\r\n\r\n";
}

TEST_F(Answers, StrictOnesAreForNoOtherPages) {
    g_web_html.store({"page"});
    EXPECT_EQ(answerTo(own("/"), Access::Strict), strictHead("text/html; charset=utf-8", 4) + "page");
    EXPECT_EQ(answerTo(own("/version"), Access::Strict), strictHead("text/plain", 1) + "1");
    HttpRequest foreign = own("/");
    foreign.host = "attacker.example";
    EXPECT_THAT(answerTo(foreign, Access::Strict), testing::StartsWith("HTTP/1.1 403 Forbidden\r\n"));
    EXPECT_THAT(answerTo(foreign, Access::Strict), testing::EndsWith("\r\n\r\n403 - அனுமதி இல்லை"));
    EXPECT_EQ(answerTo(foreign), head("text/html; charset=utf-8", 4) + "page");
}

TEST_F(Answers, StrictOnesAreOfTheApplicationAlone) {
    write("assets/a.png", "png");
    write("secret.txt", "secret");
    write("video.mp4", "video");
    write("வெளியீடு/index.js", "script");
    write("வெளியீடு/other.txt", "other");
    g_web_html.store({"page", "", {"assets", "video.mp4", "../up.png", "/etc/passwd"}});
    EXPECT_EQ(answerTo(own("/assets/a.png"), Access::Strict), strictHead("image/png", 3) + "png");
    EXPECT_EQ(answerTo(own("/video.mp4"), Access::Strict), strictHead("video/mp4", 5) + "video");
    EXPECT_EQ(answerTo(own("/index.js"), Access::Strict), strictHead("application/javascript", 6) + "script");
    for (const char* path : {"/secret.txt", "/வெளியீடு/other.txt", "/assets/../secret.txt", "/../up.png", "//etc/passwd",
                             "/etc/passwd", "/video.mp4/../secret.txt", "/assets", "/assets2/a.png", ""}) {
        EXPECT_EQ(answerTo(own(path), Access::Strict), NOT_FOUND) << path;
    }
}

TEST_F(Answers, OfTheApplicationsFilesAloneAreForWhoeverAsks) {
    write("assets/a.png", "png");
    write("secret.txt", "secret");
    write("வெளியீடு/index.js", "script");
    g_web_html.store({"page", "", {"assets"}});
    HttpRequest foreign = own("/assets/a.png");
    foreign.host = "192.168.1.5:6931";
    EXPECT_EQ(answerTo(foreign, Access::Files), head("image/png", 3) + "png");
    EXPECT_EQ(answerTo(own("/"), Access::Files), head("text/html; charset=utf-8", 4) + "page");
    EXPECT_EQ(answerTo(own("/index.js"), Access::Files), head("application/javascript", 6) + "script");
    for (const char* path : {"/secret.txt", "/assets/../secret.txt", "/../up.png", "//etc/passwd"}) {
        EXPECT_EQ(answerTo(own(path), Access::Files), NOT_FOUND) << path;
    }
}

} // namespace
