#include "driver/server/http_response.h"

#include "driver/server/build_fault.h"
#include "driver/server/web_state.h"
#include "support/working_folder.h"

#include <sys/stat.h>

#include <filesystem>
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

/// All that is sent for \p path.
std::string answerTo(const std::string& path) {
    auto response = HttpResponse::to(path);
    if (!response) {
        return "nothing";
    }
    std::string answer;
    for (auto piece = response->nextPiece(); !piece.empty(); piece = response->nextPiece()) {
        answer += piece;
    }
    return answer;
}

/// Page and version as they are before the first build.
class Answers : public test::WorkingFolder {
protected:
    void TearDown() override {
        g_appVersion = 1;
        g_web_html.store("");
        WorkingFolder::TearDown();
    }
};

TEST(UrlDecode, CopiesWhatNeedsNoDecoding) {
    EXPECT_EQ(urlDecode(""), "");
    EXPECT_EQ(urlDecode("/assets/a-b_c.png?x=1&y=2#z"), "/assets/a-b_c.png?x=1&y=2#z");
    EXPECT_EQ(urlDecode("/படம்.png"), "/படம்.png");
}

TEST(UrlDecode, MakesAPlusABlank) {
    EXPECT_EQ(urlDecode("/a+b++"), "/a b  ");
    EXPECT_EQ(urlDecode("/a%2Bb"), "/a+b");
}

TEST(UrlDecode, MakesBytesOfNumbers) {
    EXPECT_EQ(urlDecode("/%E0%AE%85.png"), "/அ.png");
    EXPECT_EQ(urlDecode("/%e0%ae%85.png"), "/அ.png");
    EXPECT_EQ(urlDecode("%41"), "A");
    EXPECT_EQ(urlDecode("/a%20b"), "/a b");
    EXPECT_EQ(urlDecode("%00"), "\0"s);
}

TEST(UrlDecode, DecodesOnlyOnce) {
    EXPECT_EQ(urlDecode("%2541"), "%41");
}

TEST(UrlDecode, KeepsAPercentSignWithoutANumber) {
    EXPECT_EQ(urlDecode("/100%"), "/100%");
    EXPECT_EQ(urlDecode("/100%4"), "/100%4");
    EXPECT_EQ(urlDecode("/%zz"), "/%zz");
    EXPECT_EQ(urlDecode("/%z1"), "/%z1");
    EXPECT_EQ(urlDecode("%%41"), "%A");
    EXPECT_EQ(urlDecode("%"), "%");
}

TEST(UrlDecode, TakesANumberThatEndsEarly) {
    EXPECT_EQ(urlDecode("/%1z"), "/\x01");
    EXPECT_EQ(urlDecode("/%-1"), "/\xff");
    EXPECT_EQ(urlDecode("/%0x"), "/\0"s);
}

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

TEST(RequestedPath, StandsBetweenTheFirstTwoBlanks) {
    EXPECT_EQ(requestedPath("GET /a.png HTTP/1.1\r\nHost: x\r\n\r\n"), "/a.png");
    EXPECT_EQ(requestedPath("GET /a.png "), "/a.png");
    EXPECT_EQ(requestedPath(" / "), "/");
    EXPECT_EQ(requestedPath("GET  /a HTTP/1.1"), "");
    EXPECT_EQ(requestedPath("GET /a\r\nHost: x y"), "/a\r\nHost:");
}

TEST(RequestedPath, NeedsTwoBlanks) {
    for (const char* text : {"", "GET", "GET ", "GET /", "GET /version", "\r\n\r\n", "GET /version\r\n\r\n"}) {
        EXPECT_EQ(requestedPath(text), std::nullopt) << text;
    }
}

TEST(RequestedPath, EndsWithTheTextAtANullByte) {
    EXPECT_EQ(requestedPath("GET / HTTP\0 x"s), "/");
    EXPECT_EQ(requestedPath("GET /\0 HTTP/1.1"s), std::nullopt);
    EXPECT_EQ(requestedPath("\0GET / HTTP/1.1"s), std::nullopt);
}

TEST(RequestedPath, IsDecodedBehindTheCut) {
    EXPECT_EQ(requestedPath("GET /a%20b+c HTTP/1.1"), "/a b c");
    EXPECT_EQ(requestedPath("GET /%E0%AE%85 HTTP/1.1"), "/அ");
}

TEST(RequestedPath, AnyMethodWillDo) {
    EXPECT_EQ(requestedPath("HEAD /x HTTP/1.1"), "/x");
    EXPECT_EQ(requestedPath("எதுவும் /x y"), "/x");
}

TEST(ServedFile, LiesBelowTheCurrentFolder) {
    EXPECT_EQ(servedFile("/assets/a.png"), "./assets/a.png");
    EXPECT_EQ(servedFile("/index.css"), "./index.css");
    EXPECT_EQ(servedFile("/index.js?x"), "./index.js?x");
    EXPECT_EQ(servedFile("/a/index.js"), "./a/index.js");
    EXPECT_EQ(servedFile("x"), ".x");
}

TEST(ServedFile, OfTheBuildLiesInItsFolder) {
    EXPECT_EQ(servedFile("/index.js"), "./வெளியீடு/index.js");
    EXPECT_EQ(servedFile("/index.wasm"), "./வெளியீடு/index.wasm");
    EXPECT_EQ(servedFile("/index.data"), "./வெளியீடு/index.data");
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
    auto response = HttpResponse::to("/version");
    ASSERT_TRUE(response);
    EXPECT_EQ(response->nextPiece(), head("text/plain", 1) + "1");
    EXPECT_EQ(response->nextPiece(), "");
}

TEST_F(Answers, PageIsThatOfTheLastBuild) {
    write("index.html", "a file of this name counts for nothing");
    EXPECT_EQ(answerTo("/"), head("text/html; charset=utf-8", 0));
    g_web_html.store("<p>வணக்கம்</p>");
    EXPECT_EQ(answerTo("/"), head("text/html; charset=utf-8", 28) + "<p>வணக்கம்</p>");
    EXPECT_EQ(answerTo("/index.html"), answerTo("/"));
}

TEST_F(Answers, PageStaysWhatItWasWhenTheAnswerBegan) {
    g_web_html.store("பழையது");
    auto response = HttpResponse::to("/");
    ASSERT_TRUE(response);
    EXPECT_EQ(response->nextPiece(), head("text/html; charset=utf-8", 18));
    g_web_html.store("புதிது");
    EXPECT_EQ(response->nextPiece(), "பழையது");
    EXPECT_EQ(response->nextPiece(), "");
}

TEST_F(Answers, QueryBelongsToTheName) {
    g_web_html.store("page");
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
    auto response = HttpResponse::to("/large.mp4");
    ASSERT_TRUE(response);
    EXPECT_LT(response->nextPiece().size(), text.size() / 2);
}

TEST_F(Answers, FileThatShrinksMeanwhileBreaksOff) {
    write("large.mp4", std::string(1024 * 1024, 'x'));
    auto response = HttpResponse::to("/large.mp4");
    ASSERT_TRUE(response);
    EXPECT_FALSE(response->nextPiece().empty());
    std::filesystem::resize_file("large.mp4", 10);
    EXPECT_EQ(response->nextPiece(), "");
}

TEST_F(Answers, FileThatGrowsMeanwhileKeepsItsLength) {
    write("large.mp4", std::string(300 * 1024, 'x'));
    auto response = HttpResponse::to("/large.mp4");
    ASSERT_TRUE(response);
    std::string answer(response->nextPiece());
    write("large.mp4", std::string(900 * 1024, 'x'));
    for (auto piece = response->nextPiece(); !piece.empty(); piece = response->nextPiece()) {
        answer += piece;
    }
    EXPECT_EQ(answer.size(), head("video/mp4", 300 * 1024).size() + 300 * 1024);
}

} // namespace
