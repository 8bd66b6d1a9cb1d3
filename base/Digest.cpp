#include "base/Digest.h"

#include <sodium.h>

#include <array>

#include "base/Error.h"

namespace base {

void prepareSodium() {
  if (sodium_init() < 0) throw Error("This machine gives no random numbers.");
}

Digest::Digest() { crypto_hash_sha256_init(&state_); }

void Digest::add(std::string_view bytes) {
  // The library's own type of a byte.
  crypto_hash_sha256_update(&state_, reinterpret_cast<const unsigned char*>(bytes.data()),
                            bytes.size());
}

std::string Digest::finish() {
  std::array<unsigned char, crypto_hash_sha256_BYTES> hash{};
  crypto_hash_sha256_final(&state_, hash.data());
  std::array<char, 2 * crypto_hash_sha256_BYTES + 1> text{};
  return sodium_bin2hex(text.data(), text.size(), hash.data(), hash.size());
}

std::string Digest::of(std::string_view bytes) {
  Digest digest;
  digest.add(bytes);
  return digest.finish();
}

std::string checksum(std::string_view bytes) {
  constexpr std::array<unsigned char, crypto_shorthash_siphashx24_KEYBYTES> noKey{};
  std::array<unsigned char, crypto_shorthash_siphashx24_BYTES> hash{};
  crypto_shorthash_siphashx24(hash.data(), reinterpret_cast<const unsigned char*>(bytes.data()),
                              bytes.size(), noKey.data());
  std::array<char, 2 * crypto_shorthash_siphashx24_BYTES + 1> text{};
  return sodium_bin2hex(text.data(), text.size(), hash.data(), hash.size());
}

}  // namespace base
