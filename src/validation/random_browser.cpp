// Module Random: opening the maker's web site.
#include <string>

#include "component/context.h"
#include "component/show_error.h"
#include "component/trace.h"
#include "platform/message_box.h"
#include "validation/error_trap.h"
#include "validation/random.h"

namespace nvrandom {

namespace {
constexpr int kShowMaximized = 3;
constexpr int32_t kLowestSuccess = 31;
// The code tested for a missing file association. The system reports that case as 31 and a
// missing library as 32; the message is kept on 32, so a missing association shows nothing.
constexpr int32_t kNoAssociationAsTested = 32;
constexpr std::string_view kCaption = "Browser Unavailable";
}  // namespace

void Random::OpenBrowser() {
  OpenBrowser(kMakerWebSite);
}

void Random::OpenBrowser(std::string_view address) {
  TraceEntry(ctx_, "Random - OpenBrowser");
  try {
    const int32_t code = ctx_.services.shell->Execute("open", address, kShowMaximized);
    std::string message;
    if (code < kLowestSuccess) {
      message =
          "Problem running your web browser. You should check that your browser is correctly "
          "installed. (Error " +
          std::to_string(code) + ")";
    } else if (code == kNoAssociationAsTested) {
      message = std::string(kApplicationTitle) + " could not find a file association for ";
      message += address;
      message +=
          " on your system. You should check that your browser is correctly installed and "
          "associated with this type of file.";
    }
    if (!message.empty()) {
      ctx_.services.message_box->Show(message, msgbox::kOKOnly | msgbox::kExclamation, kCaption);
    }
  } catch (...) {
    validation::ReportTrappedError(ctx_, "Random.OpenBrowser");
  }
}

}  // namespace nvrandom
