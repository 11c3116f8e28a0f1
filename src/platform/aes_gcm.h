#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// AES-256-GCM with a 12-byte nonce and a 16-byte tag, and the random source for nonces: the only
// cryptography the component needs, kept this small so each platform supplies it from its own
// library (Nettle on POSIX, CNG on Windows).
namespace nvrandom::crypto {

inline constexpr size_t kAesGcmKeySize = 32;
inline constexpr size_t kAesGcmNonceSize = 12;
inline constexpr size_t kAesGcmTagSize = 16;

using AesGcmKey = std::span<const uint8_t, kAesGcmKeySize>;
using AesGcmNonce = std::span<const uint8_t, kAesGcmNonceSize>;

// Fills `out` from the system's cryptographic random source; false when that fails.
bool RandomBytes(std::span<uint8_t> out);

// The cipher text of `plain` followed by its tag over `associated` and the cipher text; nullopt
// when the library fails or the input is too long for it.
std::optional<std::string> SealAes256Gcm(AesGcmKey key, AesGcmNonce nonce,
                                         std::string_view associated, std::string_view plain);

// The plain text of `sealed` (cipher text then tag); nullopt when the tag does not match the key,
// nonce, associated data and cipher text, or `sealed` is shorter than a tag.
std::optional<std::string> OpenAes256Gcm(AesGcmKey key, AesGcmNonce nonce,
                                         std::string_view associated, std::string_view sealed);

}  // namespace nvrandom::crypto
