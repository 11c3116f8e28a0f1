#pragma once

#include <string>
#include <string_view>

#include "component/context.h"

namespace nvrandom {

// Appends one line "<general date> NVRANDOM - <label>" CR LF to the trace file
// <install root><sep><sep>Norvik<sep>PBP.txt (the doubled separator is kept), opening and closing
// the file for the line. Does nothing when tracing is off or the root is empty; swallows every
// failure. `newFile` truncates the file first.
void WritePlayByPlay(Context& ctx, std::string_view label, bool newFile = false);

// The entry convention of every procedure: its label, when tracing is on.
inline void TraceEntry(Context& ctx, std::string_view label) {
  if (ctx.store.PlayByPlayEnabled != 0) WritePlayByPlay(ctx, label);
}

// The same for a label in parts ("ClsRandom - ", "Let ", "PayeeName"), joined only when tracing.
template <class... Parts>
void TraceEntry(Context& ctx, std::string_view first, const Parts&... rest) {
  if (ctx.store.PlayByPlayEnabled == 0) return;
  std::string label(first);
  (label.append(rest), ...);
  WritePlayByPlay(ctx, label);
}

// The trace file's path for the current root, as the trace writes it.
std::string_view TraceFilePath(Context& ctx);

}  // namespace nvrandom
