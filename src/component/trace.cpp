#include "component/trace.h"

#include <string>

#include "component/context.h"
#include "platform/ascii.h"
#include "platform/path.h"

namespace nvrandom {

namespace {

std::string ComputeTraceFile(const std::string& root) {
  // The root ends in a separator already; joining "\Norvik\PBP.txt" doubles it on purpose.
  const std::string dir = root + path::kSeparator;
  return path::ResolveFolder(dir, "Norvik") + path::kSeparator + "PBP.txt";
}

}  // namespace

std::string_view TraceFilePath(Context& ctx) {
  const std::string& root = ctx.store.gstrInstallRoot;
  if (ctx.trace_root != root || ctx.trace_file.empty()) {
    ctx.trace_root = root;
    ctx.trace_file = ComputeTraceFile(root);
  }
  return ctx.trace_file;
}

void WritePlayByPlay(Context& ctx, std::string_view label, bool newFile) {
  if (ctx.store.PlayByPlayEnabled == 0) return;
  if (ascii::IsBlank(ctx.store.gstrInstallRoot)) return;
  std::string line = ctx.services.clock->Now();
  line += " NVRANDOM - ";
  line += label;
  line += "\r\n";
  const std::string file(TraceFilePath(ctx));
  if (!path::WriteToFile(file, line, newFile)) {
    // The folder may have appeared, or changed case, since the path was resolved: look again once.
    ctx.trace_file.clear();
    const std::string again(TraceFilePath(ctx));
    if (again != file) path::WriteToFile(again, line, newFile);
  }
}

}  // namespace nvrandom
