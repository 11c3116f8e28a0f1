#include "platform/posix/posix_services.h"
#include <cstdlib>
#include <ctime>
#include <memory>
#include <string>

#include "platform/ascii.h"
#include "platform/general_date.h"
#include "platform/memory_clipboard.h"
#include "platform/path.h"
#include "platform/posix/posix_fonts.h"
#include "platform/posix/run_program.h"
#include "platform/re2_regex.h"

namespace nvrandom {

namespace {

using posix::RunProgram;

bool HasWebScheme(std::string_view address) {
  return ascii::StartsWithIgnoreCase(address, "http://") ||
         ascii::StartsWithIgnoreCase(address, "https://");
}

// Without a window system there is nobody to ask: every box takes its default button.
class DefaultAnswerMessageBox final : public MessageBoxService {
 public:
  int Show(std::string_view, int style, std::string_view) override { return DefaultAnswer(style); }
};

// Hands web addresses to the desktop's opener; anything else is refused as "file not found",
// never executed.
class XdgShell final : public ShellService {
 public:
  int32_t Execute(std::string_view verb, std::string_view file, int) override {
    constexpr int32_t kFileNotFound = 2;
    constexpr int32_t kNoAssociation = 31;
    constexpr int32_t kSuccess = 42;
    if (verb != "open" || !HasWebScheme(file)) return kFileNotFound;
    return RunProgram("xdg-open", std::string(file)) ? kSuccess : kNoAssociation;
  }
};

// Opens the help file itself when it exists and the desktop has a viewer for it.
class XdgHelp final : public HelpService {
 public:
  void ShowTopic(std::string_view help_path, uint32_t) override {
    const std::string file(help_path.substr(0, help_path.find('>')));
    if (path::FileExists(file)) RunProgram("xdg-open", file);
  }
};

// The per-user data folder plays the Windows directory's role: its "fonts" subfolder is the
// folder fontconfig reads the user's fonts from.
class XdgDirectories final : public DirectoryService {
 public:
  std::string WindowsDirectory() override {
    if (const char* data = std::getenv("XDG_DATA_HOME"); data != nullptr && *data == '/') {
      return data;
    }
    const char* home = std::getenv("HOME");
    return std::string(home != nullptr ? home : "") + "/.local/share";
  }
  std::string SystemDirectory() override { return "/usr/lib"; }
};

class LocalClock final : public Clock {
 public:
  std::string Now() override {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    return GeneralDate(local);
  }
};

}  // namespace

Services MakePosixServices() {
  Services s;
  s.message_box = std::make_unique<DefaultAnswerMessageBox>();
  s.shell = std::make_unique<XdgShell>();
  s.help = std::make_unique<XdgHelp>();
  s.clipboard = std::make_unique<MemoryClipboard>();
  s.directories = std::make_unique<XdgDirectories>();
  s.fonts =
      std::make_unique<posix::PosixFonts>(path::Join(s.directories->WindowsDirectory(), "fonts"));
  s.clock = std::make_unique<LocalClock>();
  s.regex = std::make_unique<Re2Regex>();
  return s;
}

}  // namespace nvrandom
