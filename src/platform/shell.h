#pragma once

#include <cstdint>
#include <string_view>

namespace nvrandom {

// Opens documents and addresses with the user's programs.
class ShellService {
 public:
  virtual ~ShellService() = default;
  // Asks the system to carry out `verb` on `file`. Returns the platform's result code: above 32
  // on success; 2 file not found; 31 no program associated; 32 a missing library.
  virtual int32_t Execute(std::string_view verb, std::string_view file, int show_mode) = 0;
};

// Shows topics of the component's help file.
class HelpService {
 public:
  virtual ~HelpService() = default;
  // `help_path` is the help file, optionally followed by ">" and a window type.
  virtual void ShowTopic(std::string_view help_path, uint32_t topic) = 0;
};

}  // namespace nvrandom
