#pragma once

#include <sodium/crypto_hash_sha256.h>

#include <string>
#include <string_view>

namespace base {

/// Makes the cryptography usable; any number of calls from any thread. Raises Error when the
/// machine has no random numbers.
void prepareSodium();

/// SHA-256 of bytes that come in pieces.
class Digest {
 public:
  Digest();

  void add(std::string_view bytes);
  /// 64 lower case hexadecimal digits. Nothing is added any more.
  std::string finish();

  static std::string of(std::string_view bytes);

 private:
  crypto_hash_sha256_state state_;
};

/// Tells bytes that were changed by chance or by hand, at a tenth of a digest's cost: 32 lower case
/// hexadecimal digits. It does not stand up to someone who means to deceive.
std::string checksum(std::string_view bytes);

}  // namespace base
