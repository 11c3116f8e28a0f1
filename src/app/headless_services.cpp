#include "app/headless_services.h"

#include <memory>

#include "app/services_factory.h"
#include "platform/memory_clipboard.h"
#include "platform/path.h"
#include "platform/regex.h"

namespace nvrandom::headless {

using app::AddComponentServices;
using app::AddInstalledComponents;

int RecordingMessageBox::Show(std::string_view text, int style, std::string_view caption) {
  int answer = DefaultAnswer(style);
  if (!answers_.empty()) {
    answer = answers_.front();
    answers_.pop_front();
  }
  shown.push_back(ShownBox{std::string(text), std::string(caption), style, answer});
  if (on_show) on_show(shown.back());
  return answer;
}

int32_t RecordingShell::Execute(std::string_view verb, std::string_view file, int show_mode) {
  calls.push_back(ShellCall{std::string(verb), std::string(file), show_mode});
  if (on_call) on_call(calls.back());
  return result;
}

void RecordingHelp::ShowTopic(std::string_view help_path, uint32_t topic) {
  calls.push_back(HelpCall{std::string(help_path), topic});
  if (on_call) on_call(calls.back());
}

bool RecordingFonts::CopyFontFile(const std::string& source, const std::string& target) {
  const bool copied = path::CopyFileReplacing(source, target);
  calls.push_back(FontCall{"copy", source, copied ? 1 : 0});
  if (on_call) on_call(calls.back());
  return copied;
}

int RecordingFonts::AddFontResource(const std::string& font_file) {
  calls.push_back(FontCall{"add", font_file, FontsInFile(font_file)});
  if (on_call) on_call(calls.back());
  return calls.back().result;
}

HeadlessServices MakeHeadlessServices(const std::string& windows_dir, const std::string& now,
                                      OutsideComponents outside) {
  HeadlessServices h;
  auto box = std::make_unique<RecordingMessageBox>();
  auto shell = std::make_unique<RecordingShell>();
  auto help = std::make_unique<RecordingHelp>();
  auto clock = std::make_unique<FixedClock>(now);
  h.message_box = box.get();
  h.shell = shell.get();
  h.help = help.get();
  h.clock = clock.get();
  auto fonts = std::make_unique<RecordingFonts>();
  h.fonts = fonts.get();
  h.services.fonts = std::move(fonts);
  h.services.message_box = std::move(box);
  h.services.shell = std::move(shell);
  h.services.help = std::move(help);
  h.services.clock = std::move(clock);
  h.services.clipboard = std::make_unique<MemoryClipboard>();
  h.services.directories = std::make_unique<FixedDirectories>(windows_dir, "/usr/lib");
  h.services.regex = MakeSystemRegex();
  if (outside == OutsideComponents::kInstalled) AddInstalledComponents(h.services);
  AddComponentServices(h.services);
  return h;
}

}  // namespace nvrandom::headless
