#pragma once

#include <windows.h>
// windows.h first: the OLE headers use its types.
#include <ole2.h>

#include <string_view>
#include <utility>

// Owners for the COM resources the Windows code holds: an interface pointer, a BSTR, a VARIANT,
// a SAFEARRAY. Each releases what it owns once; put() hands out the address of an emptied slot
// for an out parameter, so nothing leaks when it is filled again.
namespace nvrandom::com {

template <typename T>
class ComPtr {
 public:
  ComPtr() = default;
  ComPtr(std::nullptr_t) {}  // NOLINT(google-explicit-constructor)
  // Takes a reference of its own.
  explicit ComPtr(T* p) : p_(p) {
    if (p_ != nullptr) p_->AddRef();
  }
  ComPtr(const ComPtr& other) : ComPtr(other.p_) {}
  ComPtr(ComPtr&& other) noexcept : p_(std::exchange(other.p_, nullptr)) {}
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(p_, other.p_);
    return *this;
  }
  ~ComPtr() { reset(); }

  void reset() {
    if (T* p = std::exchange(p_, nullptr)) p->Release();
  }
  T* get() const { return p_; }
  T* operator->() const { return p_; }
  T& operator*() const { return *p_; }
  explicit operator bool() const { return p_ != nullptr; }
  T** put() {
    reset();
    return &p_;
  }
  void** put_void() { return reinterpret_cast<void**>(put()); }
  // Hands the reference to the caller (an out parameter).
  T* detach() { return std::exchange(p_, nullptr); }

  template <typename U>
  HRESULT As(ComPtr<U>& out) const {
    return p_ == nullptr ? E_POINTER : p_->QueryInterface(__uuidof(U), out.put_void());
  }

 private:
  T* p_ = nullptr;
};

// QueryInterface of an object that answers IUnknown and its one interface `own`, as `self`.
template <typename Interface>
HRESULT QueryOneInterface(Interface* self, REFIID own, REFIID iid, void** out) {
  if (out == nullptr) return E_POINTER;
  if (iid == IID_IUnknown || iid == own) {
    *out = self;
    self->AddRef();
    return S_OK;
  }
  *out = nullptr;
  return E_NOINTERFACE;
}

class Bstr {
 public:
  Bstr() = default;
  explicit Bstr(std::wstring_view text)
      : b_(::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  Bstr(Bstr&& other) noexcept : b_(std::exchange(other.b_, nullptr)) {}
  Bstr& operator=(Bstr&& other) noexcept {
    std::swap(b_, other.b_);
    return *this;
  }
  ~Bstr() { ::SysFreeString(b_); }

  BSTR get() const { return b_; }
  BSTR* put() {
    ::SysFreeString(std::exchange(b_, nullptr));
    return &b_;
  }
  BSTR detach() { return std::exchange(b_, nullptr); }
  // For an in/out argument: the callee may free the text and put another in its place.
  BSTR* inout() { return &b_; }
  std::wstring_view view() const { return {b_ == nullptr ? L"" : b_, ::SysStringLen(b_)}; }

 private:
  BSTR b_ = nullptr;
};

class OwnedVariant {
 public:
  OwnedVariant() { ::VariantInit(&v_); }
  OwnedVariant(const OwnedVariant&) = delete;
  OwnedVariant& operator=(const OwnedVariant&) = delete;
  ~OwnedVariant() { ::VariantClear(&v_); }

  VARIANT* get() { return &v_; }
  const VARIANT* get() const { return &v_; }
  VARIANT* put() {
    ::VariantClear(&v_);
    return &v_;
  }
  // Moves the value into `out` (which must be uninitialised or empty).
  void detach(VARIANT* out) {
    *out = v_;
    ::VariantInit(&v_);
  }

 private:
  VARIANT v_;
};

class SafeArray {
 public:
  SafeArray() = default;
  explicit SafeArray(SAFEARRAY* owned) : a_(owned) {}
  SafeArray(const SafeArray&) = delete;
  SafeArray& operator=(const SafeArray&) = delete;
  ~SafeArray() {
    if (a_ != nullptr) ::SafeArrayDestroy(a_);
  }
  SAFEARRAY* get() const { return a_; }
  SAFEARRAY* detach() { return std::exchange(a_, nullptr); }

 private:
  SAFEARRAY* a_ = nullptr;
};

// CoInitializeEx for the life of the object on this thread; balanced only when it succeeded.
class ApartmentScope {
 public:
  ApartmentScope() : hr_(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
  ApartmentScope(const ApartmentScope&) = delete;
  ApartmentScope& operator=(const ApartmentScope&) = delete;
  ~ApartmentScope() {
    if (SUCCEEDED(hr_)) ::CoUninitialize();
  }
  // False only when COM cannot be used on this thread at all.
  bool usable() const { return SUCCEEDED(hr_) || hr_ == RPC_E_CHANGED_MODE; }

 private:
  HRESULT hr_;
};

}  // namespace nvrandom::com
