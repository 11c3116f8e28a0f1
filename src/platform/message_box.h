#pragma once

#include <string>
#include <string_view>

namespace nvrandom {

// Message box styles and answers, with the platform's values so that the dialogs read as
// written: buttons + icon + default button.
namespace msgbox {
inline constexpr int kOKOnly = 0;
inline constexpr int kOKCancel = 1;
inline constexpr int kYesNoCancel = 3;
inline constexpr int kYesNo = 4;
inline constexpr int kCritical = 16;
inline constexpr int kQuestion = 32;
inline constexpr int kExclamation = 48;
inline constexpr int kInformation = 64;
inline constexpr int kDefaultButton2 = 256;
inline constexpr int kDefaultButton3 = 512;
inline constexpr int kDefaultMask = 0xF00;

inline constexpr int kButtonsMask = 0x0F;
inline constexpr int kIconMask = 0xF0;

inline constexpr int kOK = 1;
inline constexpr int kCancel = 2;
inline constexpr int kAbort = 3;
inline constexpr int kRetry = 4;
inline constexpr int kIgnore = 5;
inline constexpr int kYes = 6;
inline constexpr int kNo = 7;
}  // namespace msgbox

// Shows a modal message and waits for the user's answer (one of msgbox::kOK ... kNo).
class MessageBoxService {
 public:
  virtual ~MessageBoxService() = default;
  virtual int Show(std::string_view text, int style, std::string_view caption) = 0;
};

// The answer of a box whose user just confirms it: its default button (the first unless the
// style names the second or third).
int DefaultAnswer(int style);

// Names of a style's parts, for transcripts: "OK", "YesNo"; "Critical", "Information".
std::string ButtonsName(int style);
std::string IconName(int style);

}  // namespace nvrandom
