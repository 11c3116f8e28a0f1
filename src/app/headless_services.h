#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/services.h"

namespace nvrandom::headless {

// The services a run without windows answers with. They are the scenario runner's (its scripted
// answers and its transcript), so they are product code, not test doubles.

// A message box as a test or a scenario sees it.
struct ShownBox {
  std::string text;
  std::string caption;
  int style = 0;
  int answer = 0;
};

// Records every box and answers from a queue of replies; an unanswered box takes its default.
class RecordingMessageBox final : public MessageBoxService {
 public:
  int Show(std::string_view text, int style, std::string_view caption) override;
  void QueueAnswer(int answer) { answers_.push_back(answer); }
  std::vector<ShownBox> shown;
  // Told of every box as it is shown (the runner's transcript).
  std::function<void(const ShownBox&)> on_show;

 private:
  std::deque<int> answers_;
};

struct ShellCall {
  std::string verb;
  std::string file;
  int show_mode = 0;
};

// Records what would be opened and answers with `result` (above 32: success).
class RecordingShell final : public ShellService {
 public:
  int32_t Execute(std::string_view verb, std::string_view file, int show_mode) override;
  std::vector<ShellCall> calls;
  int32_t result = 42;
  std::function<void(const ShellCall&)> on_call;
};

struct HelpCall {
  std::string help_path;
  uint32_t topic = 0;
};

class RecordingHelp final : public HelpService {
 public:
  void ShowTopic(std::string_view help_path, uint32_t topic) override;
  std::vector<HelpCall> calls;
  std::function<void(const HelpCall&)> on_call;
};

class FixedClock final : public Clock {
 public:
  explicit FixedClock(std::string now) : now_(std::move(now)) {}
  std::string Now() override { return now_; }
  void Set(std::string now) { now_ = std::move(now); }

 private:
  std::string now_;
};

class FixedDirectories final : public DirectoryService {
 public:
  FixedDirectories(std::string windows, std::string system)
      : windows_(std::move(windows)), system_(std::move(system)) {}
  std::string WindowsDirectory() override { return windows_; }
  std::string SystemDirectory() override { return system_; }

 private:
  std::string windows_;
  std::string system_;
};

struct FontCall {
  std::string operation;  // "copy" or "add"
  std::string file;       // the font file (for a copy: its source)
  int result = 0;         // a copy: 1 done, 0 failed; an add: the number of fonts added
};

// Copies font files for real (a headless run's folders are its own) and records what would be
// added to the system's fonts, answering by the file's signature, without touching the system.
class RecordingFonts final : public FontService {
 public:
  bool CopyFontFile(const std::string& source, const std::string& target) override;
  int AddFontResource(const std::string& font_file) override;
  std::vector<FontCall> calls;
  std::function<void(const FontCall&)> on_call;
};

// The services of a run without windows (the scenario runner, tests, benchmarks, fuzzers):
// scripted and recording boxes, shell, help and fonts, an in-memory clipboard, a fixed clock, the
// given folders; the real regex engine, the verifier, bank checks and country-file decipher chosen
// by `outside`. The returned pointers stay owned by the Services.
struct HeadlessServices {
  Services services;
  RecordingMessageBox* message_box = nullptr;
  RecordingShell* shell = nullptr;
  RecordingHelp* help = nullptr;
  FixedClock* clock = nullptr;
  RecordingFonts* fonts = nullptr;
};
// Which account verifier, bank-check library and country-file decipher a headless run asks: the
// component's own (tests and benchmarks, which must not depend on the machine), or those of the
// host installation where the platform has them (the scenario runner, which plays the host).
enum class OutsideComponents { kBuiltIn, kInstalled };
// The time a headless run's clock shows unless told otherwise.
inline constexpr const char* kFixedNow = "15/11/2026 1:58:04 PM";
HeadlessServices MakeHeadlessServices(const std::string& windows_dir = "/tmp/nvrandom-windows",
                                      const std::string& now = kFixedNow,
                                      OutsideComponents outside = OutsideComponents::kBuiltIn);

}  // namespace nvrandom::headless
