// Module Random: text, file and folder helpers.
#include <filesystem>
#include <system_error>

#include "component/context.h"
#include "component/trace.h"
#include "platform/path.h"
#include "validation/random.h"
#include "validation/text.h"

namespace nvrandom {

namespace {
int16_t Truth(bool value) {
  return value ? kTrue : kFalse;
}

std::string WithTrailingSeparator(std::string folder) {
  if (folder.empty() || folder.back() != path::kSeparator) folder += path::kSeparator;
  return folder;
}
}  // namespace

std::string Random::CleanseCharacters(std::string_view text) {
  TraceEntry(ctx_, "Random - CleanseCharacters");
  return validation::CleanseCharacters(text);
}

std::string Random::PadLeft(std::string_view text, int16_t length) {
  TraceEntry(ctx_, "Random - PadLeft");
  return validation::PadLeft(text, length);
}

std::string Random::PadRight(std::string_view text, int16_t length) {
  TraceEntry(ctx_, "Random - PadRight");
  return validation::PadRight(text, length);
}

int16_t Random::IsAlpha(std::string_view text) {
  TraceEntry(ctx_, "Random - IsAlpha");
  return Truth(validation::IsAlpha(text));
}

int16_t Random::Fileexists(std::string_view file) {
  TraceEntry(ctx_, "Random - Fileexists");
  // The system's calls end a name at its first NUL byte: such a name would stand for another
  // file, so it names none.
  if (file.empty() || file.find('\0') != std::string_view::npos) return kFalse;
  std::error_code error;
  static_cast<void>(std::filesystem::file_size(std::filesystem::path(file), error));
  return Truth(!error);
}

void Random::Get_Windows_Dir() {
  TraceEntry(ctx_, "Random - Get_Windows_Dir");
  windows_dir_ = WithTrailingSeparator(ctx_.services.directories->WindowsDirectory());
  system_dir_ = WithTrailingSeparator(ctx_.services.directories->SystemDirectory());
}

}  // namespace nvrandom
