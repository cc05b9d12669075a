#include "driver/server/local_server.h"

#include "child_process.h"
#include "driver/server/web_state.h"
#include "support/test_client.h"
#include "support/working_folder.h"

#include <sys/resource.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

using namespace pozhil;
using namespace std::chrono_literals;
using test::TestClient;
using testing::EndsWith;
using testing::StartsWith;

namespace {

const std::string VERSION_REQUEST = "GET /version HTTP/1.1\r\nHost: localhost:6931\r\nAccept: */*\r\n\r\n";
const std::string VERSION_ANSWER = "HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\nContent-Length: 1\r\n"
                                   "Connection: close\r\nAccess-Control-Allow-Origin: *\r\n\r\n1";
const std::string LARGE(32 * 1024 * 1024, 'x');

/// A server on a thread of its own that serves an empty folder.
class RunningServer : public test::WorkingFolder {
protected:
    void SetUp() override {
        WorkingFolder::SetUp();
        start({});
    }

    void TearDown() override {
        stop();
        WorkingFolder::TearDown();
    }

    void start(const ServerLimits& limits) {
        stop();
        isStopping_ = false;
        auto server = std::make_unique<LocalServer>(0, limits);
        port_ = server->port();
        thread_ = std::thread([this, server = std::move(server)] {
            while (!isStopping_) {
                server->serve(5ms);
            }
        });
    }

    TestClient client() const { return TestClient(port_); }

    /// Clients that only connect, none so fast that the system turns it away.
    std::vector<TestClient> silentClients(int count) const {
        std::vector<TestClient> clients;
        for (int i = 0; i < count; ++i) {
            clients.emplace_back(port_);
            std::this_thread::sleep_for(1ms);
        }
        return clients;
    }

    std::string answerTo(const std::string& request) const {
        TestClient client(port_);
        client.send(request);
        return client.receiveAll();
    }

    /// How long the next client has to wait.
    std::chrono::steady_clock::duration delay() const {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(answerTo(VERSION_REQUEST), VERSION_ANSWER);
        return std::chrono::steady_clock::now() - start;
    }

    int port() const { return port_; }

private:
    void stop() {
        isStopping_ = true;
        if (thread_.joinable()) {
            thread_.join();
        }
    }

    int port_ = 0;
    std::atomic<bool> isStopping_{false};
    std::thread thread_;
};

TEST_F(RunningServer, AnswersAndCloses) {
    EXPECT_EQ(answerTo(VERSION_REQUEST), VERSION_ANSWER);
    EXPECT_THAT(answerTo("GET /no HTTP/1.1\r\n\r\n"), EndsWith("\r\n\r\n404 - பக்கம் காணவில்லை"));
}

TEST_F(RunningServer, HeadIsAnsweredWithoutTheText) {
    EXPECT_EQ(answerTo("HEAD /version HTTP/1.1\r\n\r\n"), VERSION_ANSWER.substr(0, VERSION_ANSWER.size() - 1));
}

TEST_F(RunningServer, AnyOtherMethodIsAnsweredLikeGet) {
    EXPECT_EQ(answerTo("DELETE /version HTTP/1.1\r\n\r\n"), VERSION_ANSWER);
    EXPECT_EQ(answerTo("POST /version HTTP/1.1\r\nContent-Length: 4\r\n\r\nbody"), VERSION_ANSWER);
}

TEST_F(RunningServer, DecodesThePath) {
    write("assets/சிறு படம்.png", "png");
    EXPECT_THAT(answerTo("GET /assets/%E0%AE%9A%E0%AE%BF%E0%AE%B1%E0%AF%81+%E0%AE%AA%E0%AE%9F%E0%AE%AE%E0%AF%8D.png "
                         "HTTP/1.1\r\n\r\n"),
                EndsWith("Content-Type: image/png\r\nContent-Length: 3\r\nConnection: close\r\n"
                         "Access-Control-Allow-Origin: *\r\n\r\npng"));
}

TEST_F(RunningServer, RequestWithoutTwoBlanksIsClosedWithoutAnAnswer) {
    for (const char* request : {"GET", "GET ", "GET /version", "GET /version\r\n\r\n", "\r\n"}) {
        EXPECT_EQ(answerTo(request), "") << request;
    }
    EXPECT_EQ(answerTo(std::string("\0GET / HTTP/1.1", 15)), "");
}

TEST_F(RunningServer, RequestCutAtAnyByteIsAnsweredFromTheSecondBlankOn) {
    const std::size_t secondBlank = VERSION_REQUEST.find(' ', 4);
    for (std::size_t length = 1; length <= VERSION_REQUEST.size(); ++length) {
        const std::string expected = length > secondBlank ? VERSION_ANSWER : "";
        const std::string cut = VERSION_REQUEST.substr(0, length);
        EXPECT_EQ(answerTo(cut), expected) << length;

        TestClient halfClosed(port());
        halfClosed.send(cut);
        halfClosed.endSending();
        EXPECT_EQ(halfClosed.receiveAll(), expected) << length;

        TestClient(port()).send(cut); // and away
        TestClient reset(port());
        reset.send(cut);
        reset.reset();
    }
    EXPECT_EQ(answerTo(VERSION_REQUEST), VERSION_ANSWER);
}

TEST_F(RunningServer, WhatComesBehindTheFirstReadIsIgnored) {
    TestClient split = client();
    split.send("GET /ver");
    EXPECT_EQ(split.receiveAll(), "");
    split.send("sion HTTP/1.1\r\n\r\n");
    EXPECT_EQ(split.receiveAll(), "");
    EXPECT_EQ(answerTo(VERSION_REQUEST), VERSION_ANSWER);
}

TEST_F(RunningServer, LongRequestIsCutButStillAnswered) {
    const std::string cookies = "Cookie: " + std::string(200 * 1024, 'c') + "\r\n\r\n";
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(answerTo("GET /version HTTP/1.1\r\n" + cookies), VERSION_ANSWER);
    }
    EXPECT_EQ(answerTo("GET /" + std::string(5000, 'x') + " HTTP/1.1\r\n\r\n"), "");
    EXPECT_THAT(answerTo("GET /" + std::string(4090, 'x') + " HTTP/1.1\r\n\r\n"), StartsWith("HTTP/1.1 404 Not Found"));
    EXPECT_EQ(answerTo("GET /" + std::string(4091, 'x') + " HTTP/1.1\r\n\r\n"), "");
}

TEST_F(RunningServer, LongRequestDoesNotCutALargeAnswer) {
    write("large.mp4", LARGE);
    const std::string answer =
        answerTo("GET /large.mp4 HTTP/1.1\r\nCookie: " + std::string(60 * 1024, 'c') + "\r\n\r\n");
    EXPECT_EQ(answer.size() - answer.find("\r\n\r\n") - 4, LARGE.size());
}

TEST_F(RunningServer, ThousandsOfRequestsInARow) {
    write("a.js", "script");
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(answerTo(VERSION_REQUEST), VERSION_ANSWER) << i;
        ASSERT_THAT(answerTo("GET /a.js HTTP/1.1\r\n\r\n"), EndsWith("\r\n\r\nscript")) << i;
    }
}

TEST_F(RunningServer, ManyClientsAtATime) {
    write("large.mp4", LARGE.substr(0, 1024 * 1024));
    std::atomic<int> whole{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < 16; ++i) {
        threads.emplace_back([&] {
            for (int j = 0; j < 5; ++j) {
                whole += answerTo(VERSION_REQUEST) == VERSION_ANSWER ? 1 : 0;
                whole += answerTo("GET /large.mp4 HTTP/1.1\r\n\r\n").size() > 1024 * 1024 ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(whole, 16 * 5 * 2);
}

TEST_F(RunningServer, PageMayChangeWhileItIsServed) {
    const std::string even(100'000, '0');
    const std::string odd(200'000, '1');
    g_web_html.store({even});
    std::atomic<bool> isDone{false};
    std::thread build([&] {
        while (!isDone) {
            g_web_html.store({odd});
            g_web_html.store({even});
        }
    });
    for (int i = 0; i < 200; ++i) {
        const std::string answer = answerTo("GET / HTTP/1.1\r\n\r\n");
        const std::string page = answer.substr(answer.find("\r\n\r\n") + 4);
        EXPECT_TRUE(page == even || page == odd);
        EXPECT_THAT(answer, testing::HasSubstr("Content-Length: " + std::to_string(page.size()) + "\r\n"));
    }
    isDone = true;
    build.join();
    g_web_html.store({});
}

TEST_F(RunningServer, SilentClientsHoldUpNobody) {
    ServerLimits limits;
    limits.silence = 1h;
    start(limits);
    std::vector<TestClient> silent = silentClients(50);
    EXPECT_LT(delay(), 30s);
    silent.back().send(VERSION_REQUEST);
    EXPECT_EQ(silent.back().receiveAll(), VERSION_ANSWER);
}

TEST_F(RunningServer, SilentClientIsClosedInTime) {
    ServerLimits limits;
    limits.silence = 50ms;
    start(limits);
    TestClient silent = client();
    EXPECT_EQ(silent.receiveAll(), "");
}

TEST_F(RunningServer, OfTooManySilentClientsTheFirstIsDropped) {
    ServerLimits limits;
    limits.clients = 3;
    start(limits);
    TestClient first = client();
    std::vector<TestClient> others = silentClients(3);
    EXPECT_EQ(first.receiveAll(), "");
    others.back().send(VERSION_REQUEST);
    EXPECT_EQ(others.back().receiveAll(), VERSION_ANSWER);
}

TEST_F(RunningServer, ManyMoreSilentClientsThanAreKept) {
    const std::vector<TestClient> silent = silentClients(400);
    EXPECT_EQ(answerTo(VERSION_REQUEST), VERSION_ANSWER);
}

TEST_F(RunningServer, ClientThatNeverReadsIsGivenUp) {
    ServerLimits limits;
    limits.standstill = 100ms;
    start(limits);
    write("large.mp4", LARGE);
    std::vector<TestClient> deaf;
    for (int i = 0; i < 5; ++i) {
        deaf.push_back(client());
        deaf.back().send("GET /large.mp4 HTTP/1.1\r\n\r\n");
    }
    EXPECT_LT(delay(), 5s);
}

TEST_F(RunningServer, ClientsThatNeverReadHoldUpNobody) {
    ServerLimits limits;
    limits.standstill = 1h;
    start(limits);
    write("large.mp4", LARGE);
    write("small.js", "script");
    std::vector<TestClient> deaf;
    for (int i = 0; i < 20; ++i) {
        deaf.push_back(client());
        deaf.back().send("GET /large.mp4 HTTP/1.1\r\n\r\n");
    }
    for (int i = 0; i < 10; ++i) {
        EXPECT_LT(delay(), 30s);
        EXPECT_THAT(answerTo("GET /small.js HTTP/1.1\r\n\r\n"), EndsWith("\r\n\r\nscript"));
    }
    const std::string answer = answerTo("GET /large.mp4 HTTP/1.1\r\n\r\n");
    EXPECT_EQ(answer.size() - answer.find("\r\n\r\n") - 4, LARGE.size());
}

TEST_F(RunningServer, OfTooManyClientsTheOnesThatAreAnsweredStay) {
    ServerLimits limits;
    limits.clients = 3;
    start(limits);
    write("large.mp4", LARGE);
    TestClient loading = client();
    loading.send("GET /large.mp4 HTTP/1.1\r\n\r\n");
    std::string answer = loading.receiveSome();
    const std::vector<TestClient> silent = silentClients(10);
    answer += loading.receiveAll();
    EXPECT_EQ(answer.size() - answer.find("\r\n\r\n") - 4, LARGE.size());
}

TEST_F(RunningServer, OfTooManyClientsThatNeverReadTheFirstIsDropped) {
    ServerLimits limits;
    limits.clients = 3;
    limits.standstill = 1h;
    start(limits);
    write("large.mp4", LARGE);
    std::vector<TestClient> deaf;
    for (int i = 0; i < 10; ++i) {
        deaf.push_back(client());
        deaf.back().send("GET /large.mp4 HTTP/1.1\r\n\r\n");
        deaf.back().receiveSome();
    }
    EXPECT_LT(delay(), 30s);
}

TEST_F(RunningServer, SlowClientGetsItsWholeFile) {
    ServerLimits limits;
    limits.standstill = 300ms;
    start(limits);
    write("large.mp4", LARGE);
    TestClient slow = client();
    slow.send("GET /large.mp4 HTTP/1.1\r\n\r\n");
    const std::string answer = slow.receiveAll(5ms);
    EXPECT_EQ(answer.size() - answer.find("\r\n\r\n") - 4, LARGE.size());
}

TEST_F(RunningServer, ClientsThatGoAwayInTheMiddleHarmNobody) {
    write("large.mp4", LARGE);
    for (int i = 0; i < 20; ++i) {
        TestClient closing = client();
        closing.send("GET /large.mp4 HTTP/1.1\r\n\r\n");
        closing.receiveSome();
        TestClient resetting = client();
        resetting.send("GET /large.mp4 HTTP/1.1\r\n\r\n");
        if (i % 2 == 0) {
            std::this_thread::sleep_for(2ms);
        }
        resetting.reset();
        client().reset();
        client();
    }
    EXPECT_EQ(answerTo(VERSION_REQUEST), VERSION_ANSWER);
}

TEST_F(RunningServer, AnswerToAClientThatHasGoneDoesNotEndTheProcess) {
    write("large.mp4", LARGE);
    LocalServer idle(0);
    for (int i = 0; i < 5; ++i) {
        TestClient(idle.port()).send("GET /large.mp4 HTTP/1.1\r\n\r\n");
        idle.serve(20ms); // accepts, when the client has closed long since
        idle.serve(20ms);
    }
}

TEST_F(RunningServer, ClientThatGoesOnSendingIsClosedInTime) {
    ServerLimits limits;
    limits.farewell = 100ms;
    start(limits);
    TestClient talking = client();
    talking.send(VERSION_REQUEST);
    const auto start = std::chrono::steady_clock::now();
    while (talking.send("x") && std::chrono::steady_clock::now() - start < 10s) {
        std::this_thread::sleep_for(1ms);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, 5s);
}

TEST_F(RunningServer, UnreadableFileIsClosedWithoutAnAnswer) {
    std::filesystem::create_symlink("/proc/self/mem", "unreadable");
    EXPECT_EQ(answerTo("GET /unreadable HTTP/1.1\r\n\r\n"), "");
}

TEST(StartFailure, EachStepHasItsText) {
    using platform::ListenStep;
    EXPECT_EQ(startFailureText(ListenStep::Library, "6931"), "🚨 விண்டோஸ் சாக்கெட் (WSAStartup) பிழை!\n");
    EXPECT_EQ(startFailureText(ListenStep::Socket, "6931"), "🚨 சாக்கெட் உருவாக்க முடியவில்லை!\n");
    EXPECT_EQ(startFailureText(ListenStep::Option, "6931"), "🚨 சாக்கெட் ஆப்ஷன் பிழை!\n");
    EXPECT_EQ(startFailureText(ListenStep::Bind, "6931"), "🚨 6931 போர்ட்டில் சர்வரைத் தொடங்க முடியவில்லை!\n");
    EXPECT_EQ(startFailureText(ListenStep::Listen, "6931"), "🚨 சர்வர் கவனிப்பதில் பிழை!\n");
}

TEST(StartFailure, IsToldAndTheServerReturns) {
    const LocalServer other(0);
    const ChildResult result = runInChild([&] {
        startLocalServer(other.port());
        const rlimit noMoreDescriptors{3, 3};
        setrlimit(RLIMIT_NOFILE, &noMoreDescriptors);
        startLocalServer(0);
    });
    EXPECT_EQ(result.exitStatus, -1);
    EXPECT_EQ(result.output, "");
    const std::string busyPort = "🚨 " + std::to_string(other.port()) + " போர்ட்டில் சர்வரைத் தொடங்க முடியவில்லை!\n";
    EXPECT_EQ(result.errors, busyPort + "🚨 சாக்கெட் உருவாக்க முடியவில்லை!\n");
}

TEST(StartFailure, PortOfAnEndedServerIsFreeAtOnce) {
    int port = 0;
    {
        LocalServer server(0);
        port = server.port();
        TestClient client(port);
        client.send(VERSION_REQUEST);
        for (int i = 0; i < 3; ++i) {
            server.serve(20ms);
        }
        EXPECT_EQ(client.receiveAll(), VERSION_ANSWER);
    }
    EXPECT_NO_THROW(LocalServer{port});
}

TEST(Interrupt, SaysGoodbyeAndEndsWell) {
    const LocalServer other(0);
    for (const int port : {0, other.port()}) {
        const ChildResult result = runInChild([port] {
            std::thread([port] { runLocalServer(port); }).detach();
            struct sigaction current = {};
            while (sigaction(SIGINT, nullptr, &current) == 0 && current.sa_handler == SIG_DFL) {
                std::this_thread::sleep_for(10ms);
            }
            std::this_thread::sleep_for(300ms);
            kill(getpid(), SIGINT);
            std::this_thread::sleep_for(10s);
        });
        EXPECT_EQ(result.exitStatus, 0);
        EXPECT_EQ(result.output, "\n👋 சேவையகம் நிறுத்தப்பட்டது \n");
        EXPECT_EQ(result.errors.empty(), port == 0);
    }
}

} // namespace
