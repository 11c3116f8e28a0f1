#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

// The enciphered country file, byte by byte. Every build (Nettle here, CNG on Windows) writes
// and reads exactly this layout:
//
//   offset  size  field
//   0       4     magic "NVCF"
//   4       1     format version (2)
//   5       12    nonce, fresh random bytes for every file written
//   17      n     the plain text under AES-256-GCM
//   17+n    16    the GCM tag
//
// The 17 header bytes are the associated data, so a changed magic, version or nonce fails the
// tag like a changed byte of text does. Version 1 (AES-128-CBC, no tag) is no longer read: a
// flipped byte of it deciphered to garbage instead of being refused.
//
// The key is built in. The component ships without configuration and runs as the user, so any
// key it can read the user can read too; the file is not a secret. What the cipher buys is that
// the list is not edited by hand and that a damaged, truncated or altered file is refused rather
// than shown. Whoever extracts the key from the binary can still forge a file; the version byte
// leaves room to move to another key or scheme without guessing at old files.
namespace nvrandom::country_file {

inline constexpr std::string_view kMagic = "NVCF";
inline constexpr uint8_t kVersion = 2;
inline constexpr size_t kNonceSize = 12;
inline constexpr size_t kTagSize = 16;
inline constexpr size_t kHeaderSize = 4 + 1 + kNonceSize;
inline constexpr size_t kKeySize = 32;

// 32 random bytes drawn once for format version 2.
inline constexpr std::array<uint8_t, kKeySize> kKey = {
    0x2c, 0x74, 0xeb, 0x45, 0xaa, 0xa9, 0xee, 0x26, 0xe9, 0x18, 0x4f, 0xb2, 0x73, 0xfd, 0xfb, 0x10,
    0xbc, 0x19, 0x37, 0xb1, 0x7c, 0x8e, 0x3f, 0xc5, 0xbb, 0xa5, 0xd3, 0x52, 0x38, 0x7a, 0x52, 0x42};

}  // namespace nvrandom::country_file
