#pragma once

#include "tools/language_server/json.h"
#include "tools/language_server/transport.h"
#include "tools/language_server/workspace.h"

#include <chrono>
#include <deque>
#include <map>
#include <optional>
#include <set>
#include <string>

namespace pozhil::language_server {

/// Serves one client over standard input and output, until it says so or vanishes.
class Server {
public:
    /// \return 0 if the client took its leave as the protocol asks, 1 if not
    int run();

private:
    enum class Phase { Fresh, Serving, ShutDown };

    bool takeInput(std::chrono::milliseconds wait);
    void takeMessage(const std::string& content);
    void handle(const Json& message);
    void handleRequest(const Json& id, const std::string& method, const Json& params);
    void handleNotification(const std::string& method, const Json& params);
    Json answer(const std::string& method, const Json& params);
    Json initialize(const Json& params);
    void publishVerdicts();
    void log(const std::string& text);
    void send(const Json& message);

    MessageReader reader_;
    /// Messages that arrived and are still to be handled.
    std::deque<Json> waiting_;
    /// Of requests that are waiting, those that nobody wants answered any more, as JSON.
    std::set<std::string> cancelled_;
    Workspace workspace_;
    Phase phase_ = Phase::Fresh;
    /// Set when there is nothing more to do.
    std::optional<int> status_;
    /// How long the last look through the sources took.
    std::chrono::milliseconds lastLook_{0};
    /// What was told of each source, by URI, unless that was nothing.
    std::map<std::string, Json> told_;
};

} // namespace pozhil::language_server
