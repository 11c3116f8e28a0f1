#include "platform/country_file_cipher.h"

#include <array>
#include <cstdint>
#include <span>

#include "platform/aes_gcm.h"
#include "platform/country_file_format.h"

namespace nvrandom::country_file {

static_assert(kNonceSize == crypto::kAesGcmNonceSize && kTagSize == crypto::kAesGcmTagSize &&
              kKeySize == crypto::kAesGcmKeySize);

namespace {

constexpr size_t kNonceOffset = kMagic.size() + 1;

std::span<const uint8_t, kNonceSize> NonceOf(std::string_view header) {
  return std::span<const uint8_t, kNonceSize>(
      reinterpret_cast<const uint8_t*>(header.data() + kNonceOffset), kNonceSize);
}

}  // namespace

std::optional<std::string> Encipher(std::string_view plain_text) {
  std::array<uint8_t, kNonceSize> nonce{};
  if (!crypto::RandomBytes(nonce)) return std::nullopt;
  std::string out(kMagic);
  out += static_cast<char>(kVersion);
  out.append(reinterpret_cast<const char*>(nonce.data()), nonce.size());
  const auto sealed = crypto::SealAes256Gcm(kKey, nonce, out, plain_text);
  if (!sealed) return std::nullopt;
  out += *sealed;
  return out;
}

std::optional<std::string> Decipher(std::string_view enciphered) {
  if (enciphered.size() < kHeaderSize + kTagSize || !enciphered.starts_with(kMagic) ||
      static_cast<uint8_t>(enciphered[kMagic.size()]) != kVersion) {
    return std::nullopt;
  }
  const std::string_view header = enciphered.substr(0, kHeaderSize);
  return crypto::OpenAes256Gcm(kKey, NonceOf(header), header, enciphered.substr(kHeaderSize));
}

}  // namespace nvrandom::country_file
