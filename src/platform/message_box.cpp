#include "platform/message_box.h"

namespace nvrandom {

int DefaultAnswer(int style) {
  static constexpr int kButtons[6][3] = {
      {msgbox::kOK, msgbox::kOK, msgbox::kOK},
      {msgbox::kOK, msgbox::kCancel, msgbox::kCancel},
      {msgbox::kAbort, msgbox::kRetry, msgbox::kIgnore},
      {msgbox::kYes, msgbox::kNo, msgbox::kCancel},
      {msgbox::kYes, msgbox::kNo, msgbox::kNo},
      {msgbox::kRetry, msgbox::kCancel, msgbox::kCancel},
  };
  const int buttons = style & msgbox::kButtonsMask;
  const int which = (style & msgbox::kDefaultMask) >> 8;
  if (buttons > 5 || which > 2) return msgbox::kOK;
  return kButtons[buttons][which];
}

std::string ButtonsName(int style) {
  switch (style & msgbox::kButtonsMask) {
    case msgbox::kOKOnly:
      return "OK";
    case msgbox::kOKCancel:
      return "OKCancel";
    case 2:
      return "AbortRetryIgnore";
    case msgbox::kYesNoCancel:
      return "YesNoCancel";
    case msgbox::kYesNo:
      return "YesNo";
    case 5:
      return "RetryCancel";
    default:
      return "Buttons" + std::to_string(style & msgbox::kButtonsMask);
  }
}

std::string IconName(int style) {
  switch (style & msgbox::kIconMask) {
    case 0:
      return "None";
    case msgbox::kCritical:
      return "Critical";
    case msgbox::kQuestion:
      return "Question";
    case msgbox::kExclamation:
      return "Exclamation";
    case msgbox::kInformation:
      return "Information";
    default:
      return "Icon" + std::to_string(style & msgbox::kIconMask);
  }
}

}  // namespace nvrandom
