// AES-256-GCM through Nettle: a small library that maps little and sets nothing up, where a
// general-purpose one costs megabytes of resident memory for this one cipher.
#include <nettle/gcm.h>
#include <nettle/memops.h>
#include <sys/random.h>

#include <array>
#include <cerrno>

#include "platform/aes_gcm.h"

namespace nvrandom::crypto {

namespace {

// The longest text one GCM nonce may cover (2^39 - 256 bits); Nettle leaves the check to us.
constexpr uint64_t kMaxGcmText = (uint64_t{1} << 36) - 32;

const uint8_t* Bytes(std::string_view text) {
  return reinterpret_cast<const uint8_t*>(text.data());
}

uint8_t* Bytes(std::string& text) {
  return reinterpret_cast<uint8_t*>(text.data());
}

// A context keyed, with the nonce and the associated data taken in.
gcm_aes256_ctx Start(AesGcmKey key, AesGcmNonce nonce, std::string_view associated) {
  gcm_aes256_ctx ctx;
  gcm_aes256_set_key(&ctx, key.data());
  gcm_aes256_set_iv(&ctx, nonce.size(), nonce.data());
  gcm_aes256_update(&ctx, associated.size(), Bytes(associated));
  return ctx;
}

}  // namespace

// From the kernel's generator: the nonces need nothing more.
bool RandomBytes(std::span<uint8_t> out) {
  size_t done = 0;
  while (done < out.size()) {
    const ssize_t got = getrandom(out.data() + done, out.size() - done, 0);
    if (got < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    done += static_cast<size_t>(got);
  }
  return true;
}

std::optional<std::string> SealAes256Gcm(AesGcmKey key, AesGcmNonce nonce,
                                         std::string_view associated, std::string_view plain) {
  if (plain.size() > kMaxGcmText) return std::nullopt;
  gcm_aes256_ctx ctx = Start(key, nonce, associated);
  std::string out(plain.size() + kAesGcmTagSize, '\0');
  gcm_aes256_encrypt(&ctx, plain.size(), Bytes(out), Bytes(plain));
  gcm_aes256_digest(&ctx, kAesGcmTagSize, Bytes(out) + plain.size());
  return out;
}

std::optional<std::string> OpenAes256Gcm(AesGcmKey key, AesGcmNonce nonce,
                                         std::string_view associated, std::string_view sealed) {
  if (sealed.size() < kAesGcmTagSize || sealed.size() - kAesGcmTagSize > kMaxGcmText) {
    return std::nullopt;
  }
  const std::string_view text = sealed.substr(0, sealed.size() - kAesGcmTagSize);
  gcm_aes256_ctx ctx = Start(key, nonce, associated);
  std::string out(text.size(), '\0');
  gcm_aes256_decrypt(&ctx, text.size(), Bytes(out), Bytes(text));
  std::array<uint8_t, kAesGcmTagSize> tag{};
  gcm_aes256_digest(&ctx, tag.size(), tag.data());
  // Compared in constant time: how far a forged tag matched must not show in the time taken.
  if (memeql_sec(tag.data(), Bytes(sealed.substr(text.size())), tag.size()) == 0) {
    return std::nullopt;
  }
  return out;
}

}  // namespace nvrandom::crypto
