#include "receiver/Session.h"

#include <string_view>
#include <utility>

#include "receiver/Error.h"

namespace receiver {
namespace {

constexpr std::chrono::milliseconds lingerTime{2000};

void checkUser(const std::string& user) {
  if (user != userName) {
    throw Error("There is no such user; the user's name is \"" + std::string(userName) + "\".");
  }
}

}  // namespace

Session::Session(asio::ip::tcp::socket socket, Store& store, asio::thread_pool& workers,
                 Manner manner)
    : socket_(std::move(socket)),
      timer_(socket_.get_executor()),
      store_(store),
      workers_(workers),
      manner_(std::move(manner)) {}

void Session::readHeader() {
  limit(manner_.frameTime);
  asio::async_read(socket_, asio::buffer(header_),
                   [self = shared_from_this()](const asio::error_code& error, std::size_t bytes) {
                     if (self->arrived(error, bytes)) self->readPayload();
                   });
}

void Session::readPayload() {
  try {
    const auto header = Frame::decodeHeader(std::string_view(header_.data(), header_.size()));
    frame_.type = header.type;
    frame_.payload.resize(header.length);
  } catch (const Error& error) {
    return refuse(error.what());
  }
  asio::async_read(socket_, asio::buffer(frame_.payload),
                   [self = shared_from_this()](const asio::error_code& error, std::size_t) {
                     if (self->arrived(error, Frame::headerSize)) self->handle();
                   });
}

bool Session::arrived(const asio::error_code& error, std::size_t bytes) {
  if (ending_) return false;
  if (!error) return true;
  if (error == asio::error::eof && bytes > 0) {
    refuse("The connection ended in the middle of a frame.");
  } else {
    close();
  }
  return false;
}

void Session::handle() {
  try {
    std::visit([this](const auto& message) { take(message); }, readMessage(frame_));
  } catch (const std::exception& error) {
    refuse(error.what());
  }
}

void Session::answer(const Message& message) {
  if (ending_) return;
  out_ = writeMessage(message).encode();
  limit(manner_.frameTime);
  asio::async_write(socket_, asio::buffer(out_),
                    [self = shared_from_this()](const asio::error_code& error, std::size_t) {
                      if (self->ending_) return;
                      self->out_.clear();
                      error ? self->close() : self->readHeader();
                    });
}

void Session::refuse(const std::string& reason) {
  if (ending_) return;
  ending_ = true;
  upload_.reset();
  asio::error_code ignored;
  socket_.cancel(ignored);
  out_ = writeMessage(Refusal{reason}).encode();
  limit(lingerTime);
  asio::async_write(socket_, asio::buffer(out_),
                    [self = shared_from_this()](const asio::error_code& error, std::size_t) {
                      if (error) return self->close();
                      asio::error_code unused;
                      self->socket_.shutdown(asio::ip::tcp::socket::shutdown_send, unused);
                      self->drain();
                    });
}

/// A socket that is closed with unread bytes takes back what it sent, and the other side would
/// never learn the reason.
void Session::drain() {
  socket_.async_read_some(asio::buffer(header_),
                          [self = shared_from_this()](const asio::error_code& error, std::size_t) {
                            error ? self->close() : self->drain();
                          });
}

void Session::close() {
  ending_ = true;
  upload_.reset();
  timer_.cancel();
  asio::error_code ignored;
  socket_.close(ignored);
}

void Session::limit(std::chrono::milliseconds time) {
  timer_.expires_after(time);
  timer_.async_wait([weak = weak_from_this()](const asio::error_code& error) {
    if (const auto self = weak.lock(); self && !error) self->timeIsUp();
  });
}

void Session::timeIsUp() {
  // It may have been set anew after it ran out and before this call.
  if (timer_.expiry() > asio::steady_timer::clock_type::now()) return;
  if (ending_ || !out_.empty()) return close();
  refuse("Nothing came for too long; the connection is closed.");
}

void Session::doApart(std::function<void()> work, const std::string& arrival) {
  timer_.expires_at(asio::steady_timer::time_point::max());
  const auto executor = socket_.get_executor();
  asio::post(workers_, [self = shared_from_this(), work = std::move(work), arrival, executor,
                        guard = asio::make_work_guard(executor)]() mutable {
    std::string failure;
    try {
      work();
    } catch (const std::exception& error) {
      failure = error.what();
    }
    work = nullptr;
    asio::post(executor, [self = std::move(self), arrival, failure] {
      if (!failure.empty()) return self->refuse(failure);
      if (!arrival.empty() && self->manner_.arrived) self->manner_.arrived(arrival);
      self->answer(Accepted());
    });
  });
}

void Session::take(const AnnounceProgram& message) {
  if (upload_) throw Error("Another program is still being sent on this connection.");
  upload_ = store_.begin(message);
  announced_ = message.program.name;
  answer(Accepted());
}

void Session::take(const Chunk& message) {
  if (!upload_) throw Error("Bytes of a program came before its description.");
  upload_->add(message.bytes);
  answer(Accepted());
}

void Session::take(const Commit&) {
  if (!upload_) throw Error("There is no program to be stored.");
  doApart([upload = std::shared_ptr<Store::Upload>(std::move(upload_))] { upload->commit(); },
          "program \"" + announced_ + "\" arrived");
}

void Session::take(const SetPassword& message) {
  checkUser(message.user);
  doApart([this, password = message.password] { store_.setPassword(password); },
          message.password.empty() ? "password cleared" : "password set");
}

void Session::take(const CheckPassword& message) {
  checkUser(message.user);
  doApart([this, password = message.password] {
    if (!store_.accepts(password)) throw Error("The password is wrong.");
  });
}

void Session::take(const Query&) { answer(store_.holdings()); }

void Session::take(const SetProperties& message) {
  doApart([this, properties = message.properties] { store_.setProperties(properties); },
          "properties changed");
}

template <typename Answer>
void Session::take(const Answer&) {
  throw Error("This message comes from a receiver and is not taken by one.");
}

}  // namespace receiver
