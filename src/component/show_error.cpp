#include "component/show_error.h"
#include "platform/ascii.h"

#include <fstream>
#include <string>

#include "component/context.h"
#include "component/trace.h"
#include "platform/path.h"
#include "platform/runtime_error.h"

namespace nvrandom {

std::string ErrorMessage(int32_t errNumber, std::string_view description,
                         std::string_view procName) {
  std::string m = "The following error: '";
  m += description;
  m += " (Error ";
  m += std::to_string(errNumber);
  m += ")' occurred in procedure '";
  m += procName;
  m += "'.";
  return m;
}

namespace {

void AppendToErrorLog(Context& ctx, int32_t errNumber, std::string_view description,
                      std::string_view procName) {
  const std::string log = path::Join(ctx.store.gstrInstallRoot, "error.log");
  std::string line = ctx.services.clock->Now();
  line += ",NVRandom, , ,";
  line += std::to_string(errNumber);
  line += ",\"";
  line += description;
  line += "\",\"";
  line += procName;
  line += "\"\r\n";
  // Opening for append creates a missing file; a folder or a read-only file simply fails.
  std::ofstream out(log, std::ios::binary | std::ios::app);
  if (out) out << line;
}

}  // namespace

void ShowError(Context& ctx, int32_t errNumber, std::string_view description,
               std::string_view procName, bool silent, std::string_view title) {
  try {
    if (ctx.store.PlayByPlayEnabled != 0) {
      std::string label = "Random - ShowError ";
      label += description;
      label += "\r\nLastOP=";
      label += procName;
      WritePlayByPlay(ctx, label);
    }
    const std::string message = ErrorMessage(errNumber, description, procName);
    if (!silent) {
      ctx.services.message_box->Show(
          message, msgbox::kOKOnly | msgbox::kCritical,
          ascii::IsBlank(title) ? std::string_view(kApplicationTitle) : title);
    }
    AppendToErrorLog(ctx, errNumber, description, procName);
  } catch (...) {
    // The reporter of errors reports none of its own.
  }
}

void ShowError(Context& ctx, const RuntimeError& error, std::string_view procName) {
  ShowError(ctx, error.number(), error.description(), procName);
}

}  // namespace nvrandom
