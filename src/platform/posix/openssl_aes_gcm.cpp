// AES-256-GCM through OpenSSL's EVP interface.
#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <sys/random.h>

#include <cerrno>
#include <climits>
#include <memory>

#include "platform/aes_gcm.h"

namespace nvrandom::crypto {

namespace {

using CipherContext = std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)>;

const unsigned char* Bytes(std::string_view text) {
  return reinterpret_cast<const unsigned char*>(text.data());
}

bool FitsInt(size_t size) {
  return size <= static_cast<size_t>(INT_MAX);
}

// A context set up for AES-256-GCM with the key, the 12-byte nonce and the associated data.
CipherContext Start(bool seal, AesGcmKey key, AesGcmNonce nonce, std::string_view associated) {
  // One cipher is all this needs: no configuration file, no error texts.
  static const bool initialised =
      OPENSSL_init_crypto(OPENSSL_INIT_NO_LOAD_CONFIG | OPENSSL_INIT_NO_LOAD_CRYPTO_STRINGS,
                          nullptr) == 1;
  (void)initialised;
  CipherContext ctx(EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free);
  const int enc = seal ? 1 : 0;
  int ignored = 0;
  if (!ctx || !FitsInt(associated.size()) ||
      EVP_CipherInit_ex(ctx.get(), EVP_aes_256_gcm(), nullptr, nullptr, nullptr, enc) != 1 ||
      EVP_CIPHER_CTX_ctrl(ctx.get(), EVP_CTRL_GCM_SET_IVLEN, static_cast<int>(nonce.size()),
                          nullptr) != 1 ||
      EVP_CipherInit_ex(ctx.get(), nullptr, nullptr, key.data(), nonce.data(), enc) != 1 ||
      EVP_CipherUpdate(ctx.get(), nullptr, &ignored, Bytes(associated),
                       static_cast<int>(associated.size())) != 1) {
    return CipherContext(nullptr, &EVP_CIPHER_CTX_free);
  }
  return ctx;
}

}  // namespace

// From the kernel's generator: OpenSSL's own (RAND_bytes) would set up its random-number
// providers, megabytes of memory, for the few bytes of a nonce.
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
  if (!FitsInt(plain.size())) return std::nullopt;
  const CipherContext ctx = Start(true, key, nonce, associated);
  if (!ctx) return std::nullopt;
  std::string out(plain.size() + kAesGcmTagSize, '\0');
  auto* bytes = reinterpret_cast<unsigned char*>(out.data());
  int written = 0;
  int last = 0;
  if (EVP_CipherUpdate(ctx.get(), bytes, &written, Bytes(plain), static_cast<int>(plain.size())) !=
          1 ||
      EVP_CipherFinal_ex(ctx.get(), bytes + written, &last) != 1 ||
      static_cast<size_t>(written + last) != plain.size() ||
      EVP_CIPHER_CTX_ctrl(ctx.get(), EVP_CTRL_GCM_GET_TAG, static_cast<int>(kAesGcmTagSize),
                          bytes + plain.size()) != 1) {
    return std::nullopt;
  }
  return out;
}

std::optional<std::string> OpenAes256Gcm(AesGcmKey key, AesGcmNonce nonce,
                                         std::string_view associated, std::string_view sealed) {
  if (sealed.size() < kAesGcmTagSize || !FitsInt(sealed.size())) return std::nullopt;
  const std::string_view text = sealed.substr(0, sealed.size() - kAesGcmTagSize);
  // OpenSSL takes the expected tag through a non-const pointer; it only reads it.
  std::string tag(sealed.substr(text.size()));
  const CipherContext ctx = Start(false, key, nonce, associated);
  if (!ctx) return std::nullopt;
  std::string out(text.size(), '\0');
  auto* bytes = reinterpret_cast<unsigned char*>(out.data());
  int written = 0;
  int last = 0;
  if (EVP_CipherUpdate(ctx.get(), bytes, &written, Bytes(text), static_cast<int>(text.size())) !=
          1 ||
      EVP_CIPHER_CTX_ctrl(ctx.get(), EVP_CTRL_GCM_SET_TAG, static_cast<int>(tag.size()),
                          tag.data()) != 1 ||
      EVP_CipherFinal_ex(ctx.get(), bytes + written, &last) != 1) {
    return std::nullopt;
  }
  out.resize(static_cast<size_t>(written + last));
  return out;
}

}  // namespace nvrandom::crypto
