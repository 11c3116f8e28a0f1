#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/clipboard.h"
#include "platform/fonts.h"
#include "platform/message_box.h"
#include "platform/shell.h"

class QMessageBox;

namespace nvrandom::qt {

// QMessageBox with the style's icon, buttons and default button, over the active window.
class QtMessageBoxService final : public MessageBoxService {
 public:
  int Show(std::string_view text, int style, std::string_view caption) override;
  // Called with each box once it is on screen, before it waits for an answer (a scripted session
  // takes its picture and answers it; a test answers it). Empty: the person answers.
  std::function<void(QMessageBox&)> on_shown;
};

// The system clipboard.
class QtClipboardService final : public ClipboardService {
 public:
  std::string Text() override;
  void SetText(const std::string& text) override;
  void Clear() override;
};

// Addresses and documents open with the desktop's programs (QDesktopServices).
class QtShellService final : public ShellService {
 public:
  int32_t Execute(std::string_view verb, std::string_view file, int show_mode) override;
};

// A help topic opens its help file with the desktop's viewer for it, when one exists.
class QtHelpService final : public HelpService {
 public:
  void ShowTopic(std::string_view help_path, uint32_t topic) override;
};

// The platform's font installation, and the installed font added to the application's fonts at
// once (Qt reads fontconfig's list only when it starts).
class QtFontService final : public FontService {
 public:
  explicit QtFontService(std::unique_ptr<FontService> platform) : platform_(std::move(platform)) {}
  bool CopyFontFile(const std::string& source, const std::string& target) override;
  int AddFontResource(const std::string& font_file) override;

 private:
  std::unique_ptr<FontService> platform_;
};

}  // namespace nvrandom::qt
