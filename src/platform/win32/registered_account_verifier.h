#pragma once

#include <memory>

#include "platform/account_verifier.h"

namespace nvrandom {

// The ProgID under which a host installation registers its account verifier (class
// AccountVerifier of the installation's verifier library).
inline constexpr const wchar_t* kAccountVerifierProgId = L"NVVerifier.AccountVerifier";

// The installation's account verifier when its class is registered, else `fallback` (the built-in
// one). Asked at each check, so a verifier registered while the host runs is used from then on.
//
// Each verifier is a new in-process object driven through IDispatch by member name, which holds
// whatever the order of its interface's slots and whichever dual interface it has. Results come
// back through by-reference arguments (VARIANT references to BSTR and 16-bit integers). A member
// that fails raises RuntimeError: the error the object raised (a FACILITY_CONTROL HRESULT gives
// its run-time error number, any other HRESULT itself) with its description; a registered class
// that cannot be created raises 429.
class RegisteredAccountVerifierFactory final : public AccountVerifierFactory {
 public:
  explicit RegisteredAccountVerifierFactory(std::shared_ptr<AccountVerifierFactory> fallback,
                                            const wchar_t* prog_id = kAccountVerifierProgId)
      : fallback_(std::move(fallback)), prog_id_(prog_id) {}
  std::unique_ptr<AccountVerifier> Create() override;

 private:
  std::shared_ptr<AccountVerifierFactory> fallback_;
  const wchar_t* prog_id_;
};

}  // namespace nvrandom
