// An account verifier for the tests of the Windows build: an in-process COM server registering the
// class AccountVerifier (ProgID NVVerifier.AccountVerifier) with the dual interface the component
// drives. It decides by the built-in verifier's published institution rules, answers in its own
// words with the session's search id as a reference, hands out a new search id for every valid
// bank id, and raises an error when its data folder (DataPath) does not exist, as a verifier
// that reads its rule files from there would.
#include <windows.h>
// Defines the type library's GUIDs in this one file.
#include <initguid.h>
// After initguid.h.
#include "NVVerifier_h.h"

#include <atomic>
#include <string>

#include "com/inproc_server.h"
#include "verifier/bank_rules.h"

namespace {

namespace rules = nvrandom::verifier;
using namespace nvrandom::com;

constexpr const wchar_t* kProgId = L"NVVerifier.AccountVerifier";
constexpr int kPathNotFound = 76;

std::atomic<int> g_search_ids{0};

std::string Utf8(BSTR text) {
  return nvrandom::wide::ToUtf8({text == nullptr ? L"" : text, ::SysStringLen(text)});
}

HRESULT SetText(BSTR* out, const std::string& text) {
  if (out == nullptr) return E_POINTER;
  const std::wstring wide = nvrandom::wide::FromUtf8(text);
  ::SysFreeString(*out);
  *out = ::SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  return *out == nullptr ? E_OUTOFMEMORY : S_OK;
}

// A run-time error of the verifier, as a script's Err.Raise reports it.
HRESULT RaiseError(int number, const std::string& description) {
  SetServerErrorInfo(description, kProgId, IID__AccountVerifier);
  return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
}

std::string_view FirstOf(std::string_view text, short length) {
  return length > 0 ? text.substr(0, static_cast<size_t>(length)) : text;
}

class AccountVerifierObject final : public ServerObject<_AccountVerifier, IID__AccountVerifier> {
 public:
  // The session's values.
  STDMETHODIMP put_PlayByPlay(VARIANT_BOOL) override { return S_OK; }
  STDMETHODIMP put_BusinessPIN(BSTR value) override { return Keep(business_pin_, value); }
  STDMETHODIMP get_BillerSearchID(BSTR* value) override {
    if (value == nullptr) return E_POINTER;
    *value = nullptr;
    return SetText(value, search_id_);
  }
  STDMETHODIMP put_BillerSearchID(BSTR value) override { return Keep(search_id_, value); }
  STDMETHODIMP put_AccessNumber(BSTR value) override { return Keep(access_number_, value); }
  STDMETHODIMP put_ProgramVersion(BSTR value) override { return Keep(program_version_, value); }
  STDMETHODIMP put_BillerSearchURL(BSTR value) override { return Keep(search_url_, value); }
  STDMETHODIMP put_SessionNumber(BSTR value) override { return Keep(session_number_, value); }
  STDMETHODIMP put_DataPath(BSTR value) override { return Keep(data_path_, value); }
  STDMETHODIMP put_RequestSourceCode(BSTR value) override { return Keep(request_source_, value); }
  STDMETHODIMP put_BankIdLength(short value) override {
    bank_id_length_ = value;
    return S_OK;
  }
  STDMETHODIMP put_AccountLength(short value) override {
    account_length_ = value;
    return S_OK;
  }

  // The questions.
  STDMETHODIMP VerifyAccount(BSTR bank_id, BSTR account, VARIANT_BOOL, BSTR* error_message,
                             short* second_result, short* result) override {
    if (error_message == nullptr || second_result == nullptr || result == nullptr) return E_POINTER;
    if (const HRESULT hr = CheckDataPath(); FAILED(hr)) return hr;
    const std::string id = Utf8(bank_id);
    const std::string acct = Utf8(account);
    const rules::BankIdReading reading = rules::ReadBankId(FirstOf(id, bank_id_length_));
    *second_result = static_cast<short>(reading.number.empty() ? 0 : std::stoi(reading.number));
    const rules::CheckOutcome outcome =
        rules::CheckAccount(FirstOf(id, bank_id_length_), FirstOf(acct, account_length_));
    *result = outcome.result;
    return SetText(error_message, Refusal(outcome));
  }
  STDMETHODIMP ValidateBankId(BSTR bank_id, VARIANT_BOOL, BSTR* error_message, short* error_length,
                              short* result) override {
    if (error_message == nullptr || error_length == nullptr || result == nullptr) return E_POINTER;
    if (const HRESULT hr = CheckDataPath(); FAILED(hr)) return hr;
    const std::string id = Utf8(bank_id);
    const rules::BankIdReading reading = rules::ReadBankId(id);
    std::string message;
    if (reading.institution != nullptr) {
      *result = rules::check_result::kValid;
      HandOutSearchId(reading.number);
    } else {
      *result = rules::check_result::kRefused;
      message = reading.number.empty() ? "Bank id " + id + " is not an institution number."
                                       : "Bank id " + reading.number +
                                             " is not on the verifier's list of institutions.";
      message += Reference();
    }
    *error_length = static_cast<short>(message.size());
    return SetText(error_message, message);
  }
  STDMETHODIMP ValidateBankAccount(BSTR bank_id, BSTR transit, BSTR account, BSTR* error_message,
                                   short* error_length, VARIANT_BOOL, short* result) override {
    if (error_message == nullptr || error_length == nullptr || result == nullptr) return E_POINTER;
    if (const HRESULT hr = CheckDataPath(); FAILED(hr)) return hr;
    const rules::CheckOutcome outcome =
        rules::CheckBankAccount(Utf8(bank_id), Utf8(transit), Utf8(account));
    *result = outcome.result;
    if (outcome.result == rules::check_result::kValid) {
      HandOutSearchId(rules::ReadBankId(Utf8(bank_id)).number);
    }
    const std::string message = Refusal(outcome);
    *error_length = static_cast<short>(message.size());
    return SetText(error_message, message);
  }

 private:
  static HRESULT Keep(std::string& slot, BSTR value) {
    slot = Utf8(value);
    return S_OK;
  }
  HRESULT CheckDataPath() const {
    const DWORD attributes = ::GetFileAttributesW(nvrandom::wide::FromUtf8(data_path_).c_str());
    if (data_path_.empty() || attributes == INVALID_FILE_ATTRIBUTES ||
        (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
      return RaiseError(kPathNotFound,
                        "The verifier's data folder \"" + data_path_ + "\" was not found.");
    }
    return S_OK;
  }
  void HandOutSearchId(const std::string& institution) {
    search_id_ = "NV" + institution + "-" + std::to_string(++g_search_ids);
  }
  std::string Reference() const {
    return search_id_.empty() ? std::string() : " (reference " + search_id_ + ")";
  }
  std::string Refusal(const rules::CheckOutcome& outcome) const {
    if (outcome.result != rules::check_result::kRefused) return {};
    return "The verifier refused the account: " + outcome.message + Reference();
  }

  std::string business_pin_, search_id_, access_number_, program_version_, search_url_,
      session_number_, data_path_, request_source_;
  short bank_id_length_ = 0;
  short account_length_ = 0;
};

HRESULT CreateVerifier(REFIID iid, void** out) {
  auto* object = new (std::nothrow) AccountVerifierObject();
  return object == nullptr ? E_OUTOFMEMORY : AccountVerifierObject::HandOut(object, iid, out);
}

// An installer's registration: for the machine (where Wine's COM looks), else for the user.
const ServerClass kServerClass{CLSID_AccountVerifier, L"AccountVerifier", kProgId, nullptr,
                               nullptr};

}  // namespace

extern "C" {

HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID clsid, REFIID iid, void** out) {
  return GetServerClassObject<&CreateVerifier>(clsid, CLSID_AccountVerifier, iid, out);
}

HRESULT STDAPICALLTYPE DllCanUnloadNow() {
  return CanUnloadServer();
}

HRESULT STDAPICALLTYPE DllRegisterServer() {
  return RegisterServerClass(HKEY_LOCAL_MACHINE, kServerClass) ||
                 RegisterServerClass(HKEY_CURRENT_USER, kServerClass)
             ? S_OK
             : SELFREG_E_CLASS;
}

HRESULT STDAPICALLTYPE DllUnregisterServer() {
  UnregisterServerClass(HKEY_LOCAL_MACHINE, kServerClass);
  UnregisterServerClass(HKEY_CURRENT_USER, kServerClass);
  return S_OK;
}

}  // extern "C"
