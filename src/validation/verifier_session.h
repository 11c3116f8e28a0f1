#pragma once

#include <memory>

#include "platform/account_verifier.h"

namespace nvrandom {

class Context;

namespace validation {

// A fresh account verifier from the installation, given the session's values in the order the
// verifier expects them: PlayByPlay, DataPath, BusinessPIN, BillerSearchID, AccessNumber,
// ProgramVersion, BillerSearchURL, SessionNumber, RequestSourceCode. Raises RuntimeError 429
// when no verifier can be created.
std::unique_ptr<AccountVerifier> NewVerifier(Context& ctx);

}  // namespace validation
}  // namespace nvrandom
