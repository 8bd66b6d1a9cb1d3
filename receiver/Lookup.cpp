#include "receiver/Lookup.h"

#include <system_error>
#include <thread>
#include <utility>

namespace receiver {
namespace {

using Found = std::function<void(const Endpoints&, const std::string& reason)>;

void resolve(const std::shared_ptr<asio::io_context>& context, const Address& address,
             Found found) {
  asio::io_context own;
  asio::ip::tcp::resolver resolver(own);
  asio::error_code error;
  Endpoints endpoints;
  for (const auto& entry : resolver.resolve(address.host, std::to_string(address.port), error)) {
    endpoints.push_back(entry.endpoint());
  }
  asio::post(*context, [found = std::move(found), endpoints,
                        reason = error ? error.message() : ""] { found(endpoints, reason); });
}

}  // namespace

void lookUp(const std::shared_ptr<asio::io_context>& context, const Address& address, Found found) {
  asio::error_code error;
  const auto numeric = asio::ip::make_address(address.host, error);
  if (!error) {
    asio::post(*context, [found = std::move(found), numeric, port = address.port] {
      found({{numeric, port}}, "");
    });
    return;
  }
  try {
    std::thread([context, address, found] { resolve(context, address, found); }).detach();
  } catch (const std::system_error& failure) {
    asio::post(*context, [found = std::move(found), reason = std::string(failure.what())] {
      found({}, reason);
    });
  }
}

}  // namespace receiver
