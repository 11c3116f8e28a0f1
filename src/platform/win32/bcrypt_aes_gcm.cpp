// AES-256-GCM through Windows CNG (bcrypt), the same sealed format as the Nettle build, so one
// country file serves both platforms.
#include <windows.h>
// windows.h first: bcrypt.h uses its types.
#include <bcrypt.h>

#include <climits>
#include <memory>

#include "platform/aes_gcm.h"

namespace nvrandom::crypto {

namespace {

struct AlgorithmCloser {
  void operator()(void* handle) const { ::BCryptCloseAlgorithmProvider(handle, 0); }
};
struct KeyDestroyer {
  void operator()(void* handle) const { ::BCryptDestroyKey(handle); }
};
using Algorithm = std::unique_ptr<void, AlgorithmCloser>;
using Key = std::unique_ptr<void, KeyDestroyer>;

bool FitsUlong(size_t size) {
  return size <= ULONG_MAX;
}

PUCHAR Bytes(std::string_view text) {
  // CNG takes input buffers through non-const pointers; it only reads them.
  return reinterpret_cast<PUCHAR>(const_cast<char*>(text.data()));
}

// An AES-GCM key object for `key`; empty when CNG refuses.
Key MakeKey(AesGcmKey key, Algorithm& algorithm) {
  BCRYPT_ALG_HANDLE alg = nullptr;
  if (!BCRYPT_SUCCESS(::BCryptOpenAlgorithmProvider(&alg, BCRYPT_AES_ALGORITHM, nullptr, 0))) {
    return nullptr;
  }
  algorithm.reset(alg);
  auto* mode = reinterpret_cast<PUCHAR>(const_cast<wchar_t*>(BCRYPT_CHAIN_MODE_GCM));
  if (!BCRYPT_SUCCESS(
          ::BCryptSetProperty(alg, BCRYPT_CHAINING_MODE, mode, sizeof(BCRYPT_CHAIN_MODE_GCM), 0))) {
    return nullptr;
  }
  BCRYPT_KEY_HANDLE handle = nullptr;
  if (!BCRYPT_SUCCESS(::BCryptGenerateSymmetricKey(alg, &handle, nullptr, 0,
                                                   const_cast<PUCHAR>(key.data()),
                                                   static_cast<ULONG>(key.size()), 0))) {
    return nullptr;
  }
  return Key(handle);
}

BCRYPT_AUTHENTICATED_CIPHER_MODE_INFO ModeInfo(AesGcmNonce nonce, std::string_view associated,
                                               PUCHAR tag) {
  BCRYPT_AUTHENTICATED_CIPHER_MODE_INFO info;
  BCRYPT_INIT_AUTH_MODE_INFO(info);
  info.pbNonce = const_cast<PUCHAR>(nonce.data());
  info.cbNonce = static_cast<ULONG>(nonce.size());
  info.pbAuthData = associated.empty() ? nullptr : Bytes(associated);
  info.cbAuthData = static_cast<ULONG>(associated.size());
  info.pbTag = tag;
  info.cbTag = static_cast<ULONG>(kAesGcmTagSize);
  return info;
}

}  // namespace

bool RandomBytes(std::span<uint8_t> out) {
  return FitsUlong(out.size()) &&
         BCRYPT_SUCCESS(::BCryptGenRandom(nullptr, out.data(), static_cast<ULONG>(out.size()),
                                          BCRYPT_USE_SYSTEM_PREFERRED_RNG));
}

std::optional<std::string> SealAes256Gcm(AesGcmKey key, AesGcmNonce nonce,
                                         std::string_view associated, std::string_view plain) {
  if (!FitsUlong(plain.size() + kAesGcmTagSize) || !FitsUlong(associated.size())) {
    return std::nullopt;
  }
  Algorithm algorithm;
  const Key handle = MakeKey(key, algorithm);
  if (!handle) return std::nullopt;
  std::string out(plain.size() + kAesGcmTagSize, '\0');
  auto* bytes = reinterpret_cast<PUCHAR>(out.data());
  auto info = ModeInfo(nonce, associated, bytes + plain.size());
  ULONG written = 0;
  if (!BCRYPT_SUCCESS(::BCryptEncrypt(handle.get(), plain.empty() ? nullptr : Bytes(plain),
                                      static_cast<ULONG>(plain.size()), &info, nullptr, 0,
                                      plain.empty() ? nullptr : bytes,
                                      static_cast<ULONG>(plain.size()), &written, 0)) ||
      written != plain.size()) {
    return std::nullopt;
  }
  return out;
}

std::optional<std::string> OpenAes256Gcm(AesGcmKey key, AesGcmNonce nonce,
                                         std::string_view associated, std::string_view sealed) {
  if (sealed.size() < kAesGcmTagSize || !FitsUlong(sealed.size()) ||
      !FitsUlong(associated.size())) {
    return std::nullopt;
  }
  const std::string_view text = sealed.substr(0, sealed.size() - kAesGcmTagSize);
  std::string tag(sealed.substr(text.size()));
  Algorithm algorithm;
  const Key handle = MakeKey(key, algorithm);
  if (!handle) return std::nullopt;
  std::string out(text.size(), '\0');
  auto info = ModeInfo(nonce, associated, reinterpret_cast<PUCHAR>(tag.data()));
  ULONG written = 0;
  if (!BCRYPT_SUCCESS(::BCryptDecrypt(handle.get(), text.empty() ? nullptr : Bytes(text),
                                      static_cast<ULONG>(text.size()), &info, nullptr, 0,
                                      text.empty() ? nullptr : reinterpret_cast<PUCHAR>(out.data()),
                                      static_cast<ULONG>(out.size()), &written, 0)) ||
      written != text.size()) {
    return std::nullopt;
  }
  return out;
}

}  // namespace nvrandom::crypto
