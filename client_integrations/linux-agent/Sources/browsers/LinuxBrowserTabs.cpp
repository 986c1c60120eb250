#include "browsers/LinuxBrowserTabs.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "browsers/Browsers.h"
#include "browsers/TabMessages.h"
#include "browsers/TabSocket.h"

namespace quillseal::linux {
namespace {

using desktop::Ticket;
using TabMessages::Answer;
using TabMessages::CloseAndRestore;
using TabMessages::CurrentTab;
using TabMessages::TabsClosed;
using TabMessages::TabShown;

/// Far more than a person's browsers and profiles.
constexpr std::size_t mostConnections = 32;

using ConnectionId = std::uint64_t;
using QueryId = std::int64_t;
using Operation = decltype(TabMessages::Request::operation);

/// A tab's name for the agent: each browser numbers its own tabs.
struct TabName {
  ConnectionId connection = 0;
  std::int64_t tab = 0;

  [[nodiscard]] std::string text() const {
    return std::to_string(connection) + "." + std::to_string(tab);
  }

  static std::optional<TabName> parse(std::string_view text) {
    TabName name;
    const char* const end = text.data() + text.size();
    const auto first = std::from_chars(text.data(), end, name.connection);
    if (first.ec != std::errc() || first.ptr == end || *first.ptr != '.') return std::nullopt;
    const auto second = std::from_chars(first.ptr + 1, end, name.tab);
    if (second.ec != std::errc() || second.ptr != end) return std::nullopt;
    return name;
  }
};

struct Connection {
  FileDescriptor socket;
  std::string program;  ///< empty until the greeting
  TabMessages::Deframer incoming;
  Ticket greetingTimer;
  Ticket watch;  // last: gone before the socket is
};

using Answers = std::map<ConnectionId, Answer>;

/// A request that was sent to one or more connections.
struct Query {
  std::size_t kind = 0;  ///< index of the operation, and so of its result
  std::vector<ConnectionId> awaited;
  Answers answers;
  std::function<void(const Answers&)> done;
  Ticket timer;
};

std::optional<std::string> tabLookedAtLast(const Answers& answers) {
  std::optional<std::string> tab;
  std::int64_t latest = 0;
  for (const auto& [connection, answer] : answers) {
    const auto& shown = std::get<TabShown>(answer.result);
    if (!shown.tab || (tab && shown.focusedAt <= latest)) continue;
    tab = TabName{.connection = connection, .tab = *shown.tab}.text();
    latest = shown.focusedAt;
  }
  return tab;
}

}  // namespace

/// The listening socket, its connections and the open requests. Completions run from the loop with
/// no frame of this object on the stack, so that they may destroy it.
class LinuxBrowserTabs::Hub : public std::enable_shared_from_this<Hub> {
 public:
  explicit Hub(const Services& services) : services_(services), listening_(-1) {}

  void listen() {
    try {
      listening_ = TabSocket::listen();
    } catch (const std::runtime_error& error) {
      log(std::string("browsers cannot connect: ") + error.what());
      return;
    }
    listeningWatch_ = services_.descriptors.watch(listening_.get(), Descriptors::Interest::reading,
                                                  [this](Descriptors::Interest) { accept(); });
  }

  [[nodiscard]] std::vector<ConnectionId> connectionsOf(std::string_view browser) const {
    std::vector<ConnectionId> result;
    for (const auto& [id, connection] : connections_) {
      if (Browsers::isProgramOf(browser, connection.program)) result.push_back(id);
    }
    return result;
  }

  /// Sends a request to each connection. `done` gets the answers that came in time.
  Ticket ask(const std::vector<ConnectionId>& connections,
             const std::function<Operation(ConnectionId)>& operationFor,
             std::function<void(const Answers&)> done) {
    const QueryId id = ++lastQuery_;
    Query query;
    query.awaited = connections;
    query.done = std::move(done);
    query.timer = services_.loop.after(longestWait, [this, id] { deliver(id); });
    queries_.emplace(id, std::move(query));
    for (const ConnectionId connection : connections) {
      const TabMessages::Request request{.id = id, .operation = operationFor(connection)};
      queries_.at(id).kind = request.operation.index();
      if (!send(connection, written(request))) drop(connection, "does not take messages");
    }
    return Ticket([hub = weak_from_this(), id] {
      if (const auto alive = hub.lock()) alive->queries_.erase(id);
    });
  }

 private:
  bool send(ConnectionId id, const std::string& message) {
    const auto found = connections_.find(id);
    return found != connections_.end() && message.size() <= TabMessages::longestMessage &&
           TabSocket::send(found->second.socket, TabMessages::framed(message));
  }

  /// When all places are taken, drops a connection that has sent no greeting: a relay greets at
  /// once.
  [[nodiscard]] bool hasRoom() {
    if (connections_.size() < mostConnections) return true;
    const auto silent = std::ranges::find_if(
        connections_, [](const auto& entry) { return entry.second.program.empty(); });
    if (silent != connections_.end()) connections_.erase(silent);
    return connections_.size() < mostConnections;
  }

  void accept() {
    std::optional<FileDescriptor> socket;
    try {
      socket = TabSocket::accept(listening_);
    } catch (const std::runtime_error& error) {
      log(std::string("no more browsers can connect: ") + error.what());
      listeningWatch_ = {};
      return;
    }
    if (!socket || !hasRoom()) return;
    const ConnectionId id = ++lastConnection_;
    const int descriptor = socket->get();
    Connection connection{
        .socket = std::move(*socket),
        .program = {},
        .incoming = {},
        .greetingTimer =
            services_.loop.after(greetingTimeout, [this, id] { drop(id, "has sent no greeting"); }),
        .watch = services_.descriptors.watch(descriptor, Descriptors::Interest::reading,
                                             [this, id](Descriptors::Interest) { receive(id); })};
    connections_.emplace(id, std::move(connection));
  }

  void receive(ConnectionId id) {
    Connection& connection = connections_.at(id);
    const std::string bytes = TabSocket::receive(connection.socket);
    if (bytes.empty()) {
      drop(id, "is gone");
      return;
    }
    try {
      connection.incoming.append(bytes);
      while (const auto message = connection.incoming.next()) {
        if (connection.program.empty())
          greet(connection, *message);
        else
          note(id, TabMessages::readAnswer(*message));
      }
    } catch (const TabMessages::ProtocolError& error) {
      drop(id, error.what());
    }
  }

  void greet(Connection& connection, const std::string& message) {
    connection.program = TabMessages::readGreeting(message).program;
    if (connection.program.empty())
      throw TabMessages::ProtocolError("A greeting names no browser.");
    connection.greetingTimer = {};
    log(connection.program + " is connected");
  }

  void note(ConnectionId connection, const Answer& answer) {
    const auto found = queries_.find(answer.id);
    if (found == queries_.end()) return;  // too late, or withdrawn
    Query& query = found->second;
    if (answer.result.index() != query.kind)
      throw TabMessages::ProtocolError("An answer is of the wrong kind.");
    if (std::erase(query.awaited, connection) == 0)
      throw TabMessages::ProtocolError("An answer came twice.");
    query.answers.emplace(connection, answer);
    deliverIfComplete(found->first, query);
  }

  void drop(ConnectionId id, std::string_view reason) {
    const auto found = connections_.find(id);
    if (found == connections_.end()) return;
    log((found->second.program.empty() ? "a relay" : found->second.program) + ": " +
        std::string(reason));
    connections_.erase(found);
    for (auto& [query, state] : queries_) {
      if (std::erase(state.awaited, id) != 0) deliverIfComplete(query, state);
    }
  }

  void deliverIfComplete(QueryId id, Query& query) {
    if (query.awaited.empty()) query.timer = services_.loop.after({}, [this, id] { deliver(id); });
  }

  void deliver(QueryId id) {
    const auto found = queries_.find(id);
    const Query query = std::move(found->second);
    queries_.erase(found);
    query.done(query.answers);
  }

  void log(const std::string& text) const { services_.log.write("[tabreturn] " + text); }

  Services services_;
  FileDescriptor listening_;
  Ticket listeningWatch_;
  ConnectionId lastConnection_ = 0;
  QueryId lastQuery_ = 0;
  std::map<ConnectionId, Connection> connections_;
  std::map<QueryId, Query> queries_;
};

LinuxBrowserTabs::LinuxBrowserTabs(const Services& services)
    : hub_(std::make_shared<Hub>(services)) {
  hub_->listen();
}

LinuxBrowserTabs::~LinuxBrowserTabs() = default;

Ticket LinuxBrowserTabs::currentTab(const std::string& browser,
                                    std::function<void(std::optional<std::string>)> done) {
  const auto connections = hub_->connectionsOf(browser);
  if (connections.empty()) {
    done(std::nullopt);
    return {};
  }
  return hub_->ask(
      connections, [](ConnectionId) { return CurrentTab{}; },
      [done = std::move(done)](const Answers& answers) { done(tabLookedAtLast(answers)); });
}

Ticket LinuxBrowserTabs::closeAndRestore(const desktop::TabReturn& request,
                                         std::function<void(bool)> done) {
  const auto connections = hub_->connectionsOf(request.browser);
  if (connections.empty() || !TabMessages::isSigningPageMark(request.urlContains)) {
    done(false);
    return {};
  }
  const std::optional<TabName> tab = request.tab ? TabName::parse(*request.tab) : std::nullopt;
  const auto operationFor = [&](ConnectionId connection) {
    CloseAndRestore close{.urlContains = request.urlContains, .tab = {}};
    if (tab && tab->connection == connection) close.tab = tab->tab;
    return close;
  };
  // The marked tab and the remembered tab may be in different profiles, and one of them may be
  // gone.
  const auto isDone = [tab, isTabAskedFor = request.tab.has_value()](const Answers& answers) {
    bool isClosed = false;
    bool isRestored = !isTabAskedFor;
    for (const auto& [connection, answer] : answers) {
      const auto& result = std::get<TabsClosed>(answer.result);
      isClosed = isClosed || result.closed;
      isRestored = isRestored || (tab && tab->connection == connection && result.restored);
    }
    return isClosed && isRestored;
  };
  return hub_->ask(
      connections, operationFor,
      [done = std::move(done), isDone](const Answers& answers) { done(isDone(answers)); });
}

}  // namespace quillseal::linux
