#include "receiver/Server.h"

#include <csignal>
#include <utility>
#include <vector>

#include "receiver/Error.h"
#include "receiver/Network.h"
#include "receiver/Session.h"
#include "receiver/Store.h"

namespace receiver {
namespace {

constexpr std::chrono::milliseconds pauseAfterFailure{200};

[[noreturn]] void cannotListen(const Address& address, const asio::error_code& error) {
  throw Error("Cannot listen on " + address.text() + ": " + error.message() + ".");
}

asio::ip::tcp::acceptor listenOn(asio::io_context& context, const Address& address) {
  asio::error_code error;
  asio::ip::tcp::resolver resolver(context);
  const auto found = resolver.resolve(address.host, std::to_string(address.port),
                                      asio::ip::tcp::resolver::passive, error);
  if (error) cannotListen(address, error);
  const asio::ip::tcp::endpoint endpoint = *found.begin();
  asio::ip::tcp::acceptor acceptor(context);
  acceptor.open(endpoint.protocol(), error);
  if (!error) acceptor.set_option(asio::socket_base::reuse_address(true), error);
  if (!error) acceptor.bind(endpoint, error);
  if (!error) acceptor.listen(asio::socket_base::max_listen_connections, error);
  if (error) cannotListen(address, error);
  return acceptor;
}

}  // namespace

struct Server::Impl {
  explicit Impl(const Options& given)
      : options(given),
        store(options.folder),
        acceptor(listenOn(context, options.listen)),
        pause(context),
        signals(context),
        address{options.listen.host, acceptor.local_endpoint().port()} {}

  void accept();
  void accepted(asio::ip::tcp::socket socket);
  void waitForSignals();
  void end();

  Options options;
  Store store;
  asio::io_context context;
  asio::ip::tcp::acceptor acceptor;
  asio::steady_timer pause;
  asio::signal_set signals;
  Address address;
  std::vector<std::weak_ptr<Session>> sessions;
  // Its destruction waits for the work that uses what stands above.
  asio::thread_pool workers{1};
};

void Server::Impl::accept() {
  acceptor.async_accept([this](const asio::error_code& error, asio::ip::tcp::socket socket) {
    if (!acceptor.is_open()) return;
    if (!error) {
      accepted(std::move(socket));
      return accept();
    }
    // The machine may be short of sockets for a moment.
    pause.expires_after(pauseAfterFailure);
    pause.async_wait([this](const asio::error_code& stopped) {
      if (!stopped) accept();
    });
  });
}

void Server::Impl::accepted(asio::ip::tcp::socket socket) {
  std::erase_if(sessions, [](const auto& session) { return session.expired(); });
  const auto session = std::make_shared<Session>(
      std::move(socket), store, workers, Session::Manner{options.frameTime, options.arrived});
  const bool room = sessions.size() < options.connections;
  sessions.push_back(session);
  if (room) {
    session->start();
  } else {
    session->refuse("The receiver has too many connections. Try again later.");
  }
}

void Server::Impl::waitForSignals() {
  signals.add(SIGTERM);
  signals.add(SIGINT);
  signals.async_wait([this](const asio::error_code& error, int) {
    if (!error) end();
  });
}

void Server::Impl::end() {
  asio::error_code ignored;
  acceptor.close(ignored);
  pause.cancel();
  signals.cancel(ignored);
  for (const auto& session : sessions) {
    if (const auto open = session.lock()) open->close();
  }
}

Server::Server(const Options& options) : impl_(std::make_unique<Impl>(options)) {
  impl_->accept();
  if (options.stopOnSignals) impl_->waitForSignals();
}

Server::~Server() = default;

const Address& Server::address() const { return impl_->address; }

const std::string& Server::warning() const { return impl_->store.warning(); }

void Server::run() { impl_->context.run(); }

void Server::stop() {
  asio::post(impl_->context, [impl = impl_.get()] { impl->end(); });
}

}  // namespace receiver
