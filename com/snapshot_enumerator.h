#pragma once

#include <windows.h>
// windows.h first: the OLE headers use its types.
#include <ocidl.h>

#include <atomic>
#include <memory>
#include <new>
#include <utility>
#include <vector>

#include "platform/win32/com_handles.h"

// The enumerators of the connection-point interfaces (IEnumConnections, IEnumConnectionPoints):
// each walks a snapshot taken when it was made, so a sink that advises or unadvises meanwhile
// changes nothing under a walk; clones share the snapshot and start at the clone's position.
// Every item handed out carries a reference of its own for the caller.
namespace nvrandom::com {

// Item: what the enumeration hands out (CONNECTDATA, IConnectionPoint*); Held: how the snapshot
// keeps it (with its reference). Traits::Out(const Held&) gives an Item with a fresh reference.
template <typename Interface, typename Item, typename Held, typename Traits>
class SnapshotEnumerator final : public Interface {
 public:
  using Snapshot = std::shared_ptr<const std::vector<Held>>;

  // A new enumerator for the caller (one reference), or E_OUTOFMEMORY.
  static HRESULT Create(Snapshot items, size_t position, Interface** out) {
    if (out == nullptr) return E_POINTER;
    *out = new (std::nothrow) SnapshotEnumerator(std::move(items), position);
    return *out == nullptr ? E_OUTOFMEMORY : S_OK;
  }

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    return QueryOneInterface<Interface>(this, __uuidof(Interface), iid, out);
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  // S_OK when `count` items were handed out, S_FALSE when fewer were left. `fetched` may be null
  // only when one item is asked for.
  STDMETHODIMP Next(ULONG count, Item* items, ULONG* fetched) override {
    if (fetched != nullptr) *fetched = 0;
    if (items == nullptr) return E_POINTER;
    if (fetched == nullptr && count != 1) return E_INVALIDARG;
    ULONG done = 0;
    for (; done < count && position_ < items_->size(); ++done, ++position_) {
      items[done] = Traits::Out((*items_)[position_]);
    }
    if (fetched != nullptr) *fetched = done;
    return done == count ? S_OK : S_FALSE;
  }
  // S_FALSE, at the end, when fewer than `count` items were left.
  STDMETHODIMP Skip(ULONG count) override {
    const size_t left = items_->size() - position_;
    if (count > left) {
      position_ = items_->size();
      return S_FALSE;
    }
    position_ += count;
    return S_OK;
  }
  STDMETHODIMP Reset() override {
    position_ = 0;
    return S_OK;
  }
  STDMETHODIMP Clone(Interface** out) override {
    if (out != nullptr) *out = nullptr;
    return Create(items_, position_, out);
  }

 private:
  SnapshotEnumerator(Snapshot items, size_t position)
      : items_(std::move(items)), position_(position) {}
  ~SnapshotEnumerator() = default;

  std::atomic<ULONG> references_{1};
  Snapshot items_;
  size_t position_;
};

struct HeldConnection {
  ComPtr<IUnknown> sink;
  DWORD cookie = 0;
};
struct ConnectionTraits {
  static CONNECTDATA Out(const HeldConnection& held) {
    held.sink->AddRef();
    return CONNECTDATA{held.sink.get(), held.cookie};
  }
};
using ConnectionEnumerator =
    SnapshotEnumerator<IEnumConnections, CONNECTDATA, HeldConnection, ConnectionTraits>;

struct ConnectionPointTraits {
  static IConnectionPoint* Out(const ComPtr<IConnectionPoint>& held) {
    held->AddRef();
    return held.get();
  }
};
using ConnectionPointEnumerator =
    SnapshotEnumerator<IEnumConnectionPoints, IConnectionPoint*, ComPtr<IConnectionPoint>,
                       ConnectionPointTraits>;

}  // namespace nvrandom::com
