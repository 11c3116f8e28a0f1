#pragma once

#include <memory>

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/country_file_source.h"
#include "platform/directories.h"
#include "platform/fonts.h"
#include "platform/message_box.h"
#include "platform/regex.h"
#include "platform/shell.h"

namespace nvrandom {

class AccountVerifierFactory;
class BankCheckLibrary;

// Everything the core asks of the outside world. Each member is a small interface with a real
// implementation per platform and a recording one for the scenario runner; which ones a run gets
// is decided only by the composition root (src/app).
struct Services {
  std::unique_ptr<MessageBoxService> message_box;
  std::unique_ptr<ShellService> shell;
  std::unique_ptr<HelpService> help;
  std::unique_ptr<ClipboardService> clipboard;
  std::unique_ptr<DirectoryService> directories;
  std::unique_ptr<FontService> fonts;
  std::unique_ptr<Clock> clock;
  std::unique_ptr<RegexService> regex;
  std::shared_ptr<AccountVerifierFactory> verifiers;
  std::shared_ptr<BankCheckLibrary> bank_checks;
  std::unique_ptr<CountryFileDecipher> country_file;
};

}  // namespace nvrandom
