#include "validation/verifier_session.h"

#include "component/context.h"
#include "platform/runtime_error.h"
#include "validation/number_text.h"

namespace nvrandom::validation {

std::unique_ptr<AccountVerifier> NewVerifier(Context& ctx) {
  if (!ctx.services.verifiers) throw RuntimeError(vb_error::kCannotCreateObject);
  std::unique_ptr<AccountVerifier> verifier = ctx.services.verifiers->Create();
  if (!verifier) throw RuntimeError(vb_error::kCannotCreateObject);
  const ComponentStore& store = ctx.store;
  verifier->put_PlayByPlay(store.PlayByPlayEnabled != 0);
  verifier->put_DataPath(DataPathOf(store.DLLPath));
  verifier->put_BusinessPIN(store.BusinessPIN);
  verifier->put_BillerSearchID(store.BillerSearchNorvikID);
  verifier->put_AccessNumber(store.AccessNumber);
  verifier->put_ProgramVersion(FormatProgramVersion(store.NorvikProgramVersion));
  verifier->put_BillerSearchURL(store.BillerSearchURL);
  verifier->put_SessionNumber(store.SessionNumber);
  verifier->put_RequestSourceCode(store.RequestSourceCode);
  return verifier;
}

}  // namespace nvrandom::validation
