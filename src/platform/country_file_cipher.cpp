#include "platform/country_file_cipher.h"
#include "platform/path.h"

#include <openssl/evp.h>
#include <openssl/rand.h>

#include <array>
#include <fstream>
#include <memory>

namespace nvrandom::country_file {

namespace {

constexpr std::string_view kMagic = "NVC1";
constexpr size_t kBlock = 16;
constexpr std::array<unsigned char, 16> kKey = {0x4e, 0x56, 0x52, 0x61, 0x6e, 0x64, 0x6f, 0x6d,
                                                0x2d, 0x43, 0x6f, 0x75, 0x6e, 0x74, 0x72, 0x79};

using CipherContext = std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)>;

std::optional<std::string> Run(bool encipher, const unsigned char* iv, std::string_view input) {
  CipherContext ctx(EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free);
  if (!ctx || EVP_CipherInit_ex(ctx.get(), EVP_aes_128_cbc(), nullptr, kKey.data(), iv,
                                encipher ? 1 : 0) != 1) {
    return std::nullopt;
  }
  std::string out(input.size() + kBlock, '\0');
  int written = 0;
  int last = 0;
  auto* out_bytes = reinterpret_cast<unsigned char*>(out.data());
  if (EVP_CipherUpdate(ctx.get(), out_bytes, &written,
                       reinterpret_cast<const unsigned char*>(input.data()),
                       static_cast<int>(input.size())) != 1 ||
      EVP_CipherFinal_ex(ctx.get(), out_bytes + written, &last) != 1) {
    return std::nullopt;
  }
  out.resize(static_cast<size_t>(written + last));
  return out;
}

bool WriteFile(const std::string& file, const std::string& data) {
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  return static_cast<bool>(out << data);
}

}  // namespace

std::string Encipher(std::string_view plain_text) {
  std::array<unsigned char, kBlock> iv{};
  if (RAND_bytes(iv.data(), static_cast<int>(iv.size())) != 1) iv.fill(0x5a);
  std::string out(kMagic);
  out.append(reinterpret_cast<const char*>(iv.data()), iv.size());
  out += Run(true, iv.data(), plain_text).value_or(std::string());
  return out;
}

std::optional<std::string> Decipher(std::string_view enciphered) {
  if (enciphered.size() < kMagic.size() + kBlock || enciphered.substr(0, kMagic.size()) != kMagic) {
    return std::nullopt;
  }
  const auto* iv = reinterpret_cast<const unsigned char*>(enciphered.data() + kMagic.size());
  return Run(false, iv, enciphered.substr(kMagic.size() + kBlock));
}

bool DecipherFile(const std::string& from, const std::string& to) {
  const auto data = path::ReadFile(from);
  if (!data) return false;
  const auto plain = Decipher(*data);
  return plain && WriteFile(to, *plain);
}

}  // namespace nvrandom::country_file
