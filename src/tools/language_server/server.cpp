#include "tools/language_server/server.h"

#include "diagnostics/fault.h"
#include "platform/standard_streams.h"
#include "tools/check/positions.h"
#include "tools/language_server/protocol.h"
#include "tools/language_server/requests.h"
#include "tools/language_server/requests/diagnostics.h"
#include "tools/language_server/uri.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <iostream>
#include <system_error>
#include <utility>

namespace pozhil::language_server {
namespace {

using std::chrono::milliseconds;

constexpr int TOOK_LEAVE = 0;
constexpr int VANISHED = 1;

constexpr milliseconds FOREVER(-1);
/// A look through the sources that is no longer than this may keep the next key waiting.
constexpr milliseconds SHORT_LOOK(80);
/// How long typing must pause before a longer one.
constexpr milliseconds PAUSE(300);

/// As the protocol numbers it.
constexpr int LOG_WARNING = 2;

constexpr std::size_t ESCAPE_LENGTH = 6;

bool isSurrogate(std::string_view escape, const char* thirdDigits) {
    return escape.size() >= ESCAPE_LENGTH && escape.substr(0, 2) == "\\u" && (escape[2] == 'd' || escape[2] == 'D') &&
           std::string_view(thirdDigits).find(escape[3]) != std::string_view::npos;
}

/// A message that no parser takes, with U+FFFD for halves of characters and for bytes that aren't UTF-8: editors let
/// users make such texts.
std::string mended(const std::string& content) {
    std::string whole;
    std::string_view rest = content;
    while (!rest.empty()) {
        std::size_t size = rest[0] == '\\' ? 2 : 1;
        std::string_view written = rest.substr(0, size);
        if (isSurrogate(rest, "89abAB") && isSurrogate(rest.substr(ESCAPE_LENGTH), "cdefCDEF")) {
            size = 2 * ESCAPE_LENGTH;
            written = rest.substr(0, size);
        } else if (isSurrogate(rest, "89abABcdefCDEF")) {
            size = ESCAPE_LENGTH;
            written = "\\ufffd";
        }
        whole += written;
        rest.remove_prefix(std::min(size, rest.size()));
    }
    return tools::validUtf8(whole);
}

/// Never copied: what nests deep takes as many calls to copy.
Json parsed(const std::string& content) {
    Json json = Json::parse(content, nullptr, false);
    if (json.is_discarded()) {
        json = Json::parse(mended(content), nullptr, false);
    }
    return json;
}

bool isIdentification(const Json& id) {
    return id.is_string() || id.is_number_integer();
}

} // namespace

int Server::run() {
    platform::failWritesToNobody();
    while (!status_) {
        const milliseconds wait = !waiting_.empty()         ? milliseconds(0)
                                  : !workspace_.hasNews()   ? FOREVER
                                  : lastLook_ <= SHORT_LOOK ? milliseconds(0)
                                                            : PAUSE;
        const bool isNews = takeInput(wait);
        if (status_) {
            break;
        }
        if (!waiting_.empty()) {
            const Json message = std::move(waiting_.front());
            waiting_.pop_front();
            handle(message);
        } else if (!isNews && workspace_.hasNews()) {
            publishVerdicts();
        }
    }
    return *status_;
}

/// \return whether any bytes arrived
bool Server::takeInput(milliseconds wait) {
    const std::optional<std::string> bytes = platform::readStandardInput(wait);
    if (!bytes) {
        // What it asked before it left is still waiting, but nobody would take the answers.
        status_ = VANISHED;
        return false;
    }
    reader_.add(*bytes);
    try {
        while (const std::optional<std::string> content = reader_.next()) {
            takeMessage(*content);
        }
    } catch (const BrokenStream& broken) {
        std::cerr << "பிழை: மொழிச்சேவைக்கு வந்தது செய்தி அல்ல (" << broken.what() << ")" << std::endl;
        status_ = VANISHED;
    }
    return !bytes->empty();
}

void Server::takeMessage(const std::string& content) {
    Json message = parsed(content);
    if (message.is_discarded()) {
        send(errorResponse(nullptr, ErrorCode::ParseError, "not JSON"));
        return;
    }
    if (memberOf(message, "method") == "$/cancelRequest") {
        const Json& id = memberOf(memberOf(message, "params"), "id");
        const bool isWaiting =
            isIdentification(id) && std::any_of(waiting_.begin(), waiting_.end(),
                                                [&](const Json& other) { return memberOf(other, "id") == id; });
        if (isWaiting) {
            cancelled_.insert(id.dump());
        }
        return;
    }
    waiting_.push_back(std::move(message));
}

void Server::handle(const Json& message) {
    const Json& method = memberOf(message, "method");
    const Json& id = memberOf(message, "id");
    const bool isIdentified = isIdentification(id);
    if (!method.is_string() || !(isIdentified || id.is_null())) {
        const bool isAnswer = !memberOf(message, "result").is_null() || !memberOf(message, "error").is_null();
        if (!isAnswer) {
            send(errorResponse(isIdentified ? id : Json(), ErrorCode::InvalidRequest, "neither request nor answer"));
        }
    } else if (isIdentified) {
        handleRequest(id, method.get<std::string>(), memberOf(message, "params"));
    } else {
        handleNotification(method.get<std::string>(), memberOf(message, "params"));
    }
}

void Server::handleRequest(const Json& id, const std::string& method, const Json& params) {
    if (cancelled_.erase(id.dump()) != 0) {
        send(errorResponse(id, ErrorCode::RequestCancelled, "cancelled"));
        return;
    }
    try {
        send(response(id, answer(method, params)));
    } catch (const RequestError& error) {
        send(errorResponse(id, error.code, error.what()));
    } catch (const Json::exception& error) {
        send(errorResponse(id, ErrorCode::InvalidParams, error.what()));
    } catch (const Fault& fault) {
        send(errorResponse(id, ErrorCode::RequestFailed, messageOf(fault)));
    } catch (const std::exception& error) {
        send(errorResponse(id, ErrorCode::InternalError, error.what()));
    }
}

Json Server::answer(const std::string& method, const Json& params) {
    if (method == "initialize") {
        return initialize(params);
    }
    if (phase_ == Phase::Fresh) {
        throw RequestError(ErrorCode::ServerNotInitialized, "before initialize: " + method);
    }
    if (phase_ == Phase::ShutDown) {
        throw RequestError(ErrorCode::InvalidRequest, "after shutdown: " + method);
    }
    if (method == "shutdown") {
        phase_ = Phase::ShutDown;
        return nullptr;
    }
    const RequestHandler handler = findRequest(method);
    if (handler == nullptr) {
        throw RequestError(ErrorCode::MethodNotFound, "unknown: " + method);
    }
    return handler(workspace_, params);
}

Json Server::initialize(const Json& params) {
    if (phase_ != Phase::Fresh) {
        throw RequestError(ErrorCode::InvalidRequest, "initialize, again");
    }
    phase_ = Phase::Serving;
    for (const Json& offered : memberOf(memberOf(memberOf(params, "capabilities"), "general"), "positionEncodings")) {
        if (offered == "utf-8") {
            workspace_.setEncoding(Encoding::Utf8);
        }
    }
    const Json& root = memberOf(params, "rootUri");
    if (root.is_string()) {
        // Programs look for what they import in the folder that they are built in; without it, in this one.
        std::error_code ignored;
        const std::string folder = pathOf(root.get<std::string>());
        std::filesystem::current_path(std::filesystem::u8path(folder), ignored);
        workspace_.setFolder(ignored ? "" : folder);
    }
    return {{"capabilities", capabilities(workspace_.encoding())}, {"serverInfo", {{"name", "பொழில்"}}}};
}

void Server::handleNotification(const std::string& method, const Json& params) {
    if (method == "exit") {
        status_ = phase_ == Phase::ShutDown ? TOOK_LEAVE : VANISHED;
        return;
    }
    const NotificationHandler handler = findNotification(method);
    if (handler == nullptr || phase_ != Phase::Serving) {
        return;
    }
    try {
        handler(workspace_, params);
    } catch (const std::exception& error) {
        log(method + ": " + error.what());
    }
}

void Server::publishVerdicts() {
    const auto begin = std::chrono::steady_clock::now();
    for (const Verdict& verdict : workspace_.takeVerdicts()) {
        Json told = diagnosticsOf(workspace_, verdict);
        const auto before = told_.find(verdict.uri);
        if (before != told_.end() && before->second == told) {
            continue;
        }
        send(notification("textDocument/publishDiagnostics", told));
        if (verdict.document != nullptr || !verdict.findings.empty()) {
            told_[verdict.uri] = std::move(told);
        } else {
            told_.erase(verdict.uri);
        }
    }
    lastLook_ = std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - begin);
}

void Server::log(const std::string& text) {
    send(notification("window/logMessage", {{"type", LOG_WARNING}, {"message", text}}));
}

void Server::send(const Json& message) {
    const std::string content = message.dump(-1, ' ', false, Json::error_handler_t::replace);
    if (!platform::writeStandardOutput(framed(content))) {
        status_ = VANISHED;
    }
}

} // namespace pozhil::language_server
