#include "driver/server/http_request.h"

#include <optional>
#include <string>

#include <gmock/gmock.h>

using namespace pozhil;
using namespace std::string_literals;

namespace {

std::optional<std::string> pathOf(const std::string& received) {
    const auto request = readRequest(received);
    return request ? std::optional<std::string>(request->path) : std::nullopt;
}

/// A request with these header lines.
HttpRequest withHeaders(const std::string& lines, const std::string& method = "GET") {
    return readRequest(method + " / HTTP/1.1\r\n" + lines).value_or(HttpRequest{"none"});
}

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

TEST(PathOfARequest, StandsBetweenTheFirstTwoBlanks) {
    EXPECT_EQ(pathOf("GET /a.png HTTP/1.1\r\nHost: x\r\n\r\n"), "/a.png");
    EXPECT_EQ(pathOf("GET /a.png "), "/a.png");
    EXPECT_EQ(pathOf(" / "), "/");
    EXPECT_EQ(pathOf("GET  /a HTTP/1.1"), "");
    EXPECT_EQ(pathOf("GET /a\r\nHost: x y"), "/a\r\nHost:");
}

TEST(PathOfARequest, NeedsTwoBlanks) {
    for (const char* text : {"", "GET", "GET ", "GET /", "GET /version", "\r\n\r\n", "GET /version\r\n\r\n"}) {
        EXPECT_EQ(pathOf(text), std::nullopt) << text;
    }
}

TEST(PathOfARequest, EndsWithTheTextAtANullByte) {
    EXPECT_EQ(pathOf("GET / HTTP\0 x"s), "/");
    EXPECT_EQ(pathOf("GET /\0 HTTP/1.1"s), std::nullopt);
    EXPECT_EQ(pathOf("\0GET / HTTP/1.1"s), std::nullopt);
}

TEST(PathOfARequest, IsDecodedBehindTheCut) {
    EXPECT_EQ(pathOf("GET /a%20b+c HTTP/1.1"), "/a b c");
    EXPECT_EQ(pathOf("GET /%E0%AE%85 HTTP/1.1"), "/அ");
}

TEST(PathOfARequest, AnyMethodWillDo) {
    EXPECT_EQ(pathOf("HEAD /x HTTP/1.1"), "/x");
    EXPECT_EQ(pathOf("எதுவும் /x y"), "/x");
}

TEST(RequestHeaders, HeadIsAMethodOfItsOwn) {
    EXPECT_TRUE(withHeaders("", "HEAD").isHead);
    for (const char* method : {"GET", "head", "HEADS", ""}) {
        EXPECT_FALSE(withHeaders("", method).isHead) << method;
    }
}

TEST(RequestHeaders, GzipIsTakenUnlessItsWeightIsNothing) {
    for (const char* value :
         {"gzip", "deflate, gzip, br", "GZIP", "x-gzip", "*", "br;q=1.0, gzip;q=0.1", " gzip ; q=1 ", "*;q=0, gzip"}) {
        EXPECT_TRUE(withHeaders("Accept-Encoding: "s + value + "\r\n\r\n").acceptsGzip) << value;
    }
    for (const char* value : {"", "br", "identity;q=1, *;q=0", "gzip;q=0", "gzip;q=0.000, *", "gzipped", "gzip;Q=0"}) {
        EXPECT_FALSE(withHeaders("Accept-Encoding: "s + value + "\r\n\r\n").acceptsGzip) << value;
    }
    EXPECT_FALSE(withHeaders("\r\n").acceptsGzip);
    EXPECT_TRUE(withHeaders("accept-encoding: br\r\nACCEPT-ENCODING: gzip\r\n\r\n").acceptsGzip);
}

TEST(RequestHeaders, RangeOfAGetCounts) {
    EXPECT_EQ(withHeaders("Range: bytes=0-\r\n\r\n").range, "bytes=0-");
    EXPECT_EQ(withHeaders("range:bytes=0-\r\n").range, "bytes=0-");
    EXPECT_EQ(withHeaders("Range: bytes=0-\r\n\r\n", "HEAD").range, "");
    EXPECT_EQ(withHeaders("Range: bytes=0-\r\nRange: bytes=1-\r\n\r\n").range, "");
    EXPECT_EQ(withHeaders("If-Range: \"tag\"\r\nRange: bytes=0-\r\n\r\n").range, "");
}

TEST(RequestHeaders, OnlyWholeLinesOfTheHeadCount) {
    EXPECT_EQ(withHeaders("Range: bytes=0-").range, "");
    EXPECT_EQ(withHeaders("Range: bytes=0-\r").range, "");
    EXPECT_EQ(withHeaders("\r\nRange: bytes=0-\r\n").range, "");
    EXPECT_EQ(withHeaders("A: b\r\nRange: bytes=0-\r\nC: d").range, "bytes=0-");
    EXPECT_EQ(withHeaders("no colon\r\n: no name\r\nX-Range: bytes=1-\r\n\r\n").range, "");
}

TEST(RequestHeaders, HostAndOriginStandThereOnce) {
    const HttpRequest request = withHeaders("Host: a:1\r\nOrigin: http://a:1\r\n\r\n");
    EXPECT_EQ(request.host, "a:1");
    EXPECT_EQ(request.origin, "http://a:1");
    EXPECT_TRUE(request.hasOrigin);
    const HttpRequest twice = withHeaders("Host: a\r\nHost: b\r\nOrigin: a\r\nOrigin: b\r\n\r\n");
    EXPECT_EQ(twice.host, std::nullopt);
    EXPECT_EQ(twice.origin, std::nullopt);
    EXPECT_TRUE(twice.hasOrigin);
    EXPECT_FALSE(withHeaders("\r\n").hasOrigin);
}

TEST(RequestHeaders, MayBeAFlood) {
    std::string lines;
    for (int i = 0; i < 100'000; ++i) {
        lines += "a:\r\n";
    }
    EXPECT_EQ(withHeaders(lines + "Range: bytes=0-\r\n\r\n").range, "bytes=0-");
    EXPECT_FALSE(withHeaders("Accept-Encoding: " + std::string(100'000, ',') + "\r\n\r\n").acceptsGzip);
    EXPECT_EQ(withHeaders(std::string(100'000, ':') + "\r\n\r\n").range, "");
}

} // namespace
