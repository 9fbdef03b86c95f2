#include "activex/connection_point.h"

#include <algorithm>
#include <new>
#include <utility>

#include "activex/module.h"

namespace glyphon::activex {

namespace {

// A snapshot enumerator over AddRef'ed items, for connection points and connections alike.
template <class Enumerator, class Item, const IID& kId>
class SnapshotEnumerator final : public Enumerator {
 public:
  explicit SnapshotEnumerator(std::vector<Item> items, std::size_t position = 0)
      : items_(std::move(items)), position_(position) {
    for (Item& item : items_) AddRefItem(item);
    LockModule();
  }
  ~SnapshotEnumerator() {
    for (Item& item : items_) ReleaseItem(item);
    UnlockModule();
  }
  SnapshotEnumerator(const SnapshotEnumerator&) = delete;
  SnapshotEnumerator& operator=(const SnapshotEnumerator&) = delete;

  STDMETHODIMP QueryInterface(REFIID id, void** object) override {
    if (object == nullptr) return E_POINTER;
    if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, kId)) {
      *object = static_cast<Enumerator*>(this);
      AddRef();
      return S_OK;
    }
    *object = nullptr;
    return E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  STDMETHODIMP Next(ULONG count, Item* result, ULONG* fetched) override {
    if (result == nullptr || (count > 1 && fetched == nullptr)) return E_POINTER;
    ULONG given = 0;
    for (; given < count && position_ < items_.size(); ++given, ++position_) {
      result[given] = items_[position_];
      AddRefItem(result[given]);
    }
    if (fetched != nullptr) *fetched = given;
    return given == count ? S_OK : S_FALSE;
  }
  STDMETHODIMP Skip(ULONG count) override {
    const std::size_t left = items_.size() - position_;
    position_ += std::min<std::size_t>(count, left);
    return count <= left ? S_OK : S_FALSE;
  }
  STDMETHODIMP Reset() override {
    position_ = 0;
    return S_OK;
  }
  STDMETHODIMP Clone(Enumerator** clone) override {
    if (clone == nullptr) return E_POINTER;
    *clone = new (std::nothrow) SnapshotEnumerator(items_, position_);
    return *clone != nullptr ? S_OK : E_OUTOFMEMORY;
  }

 private:
  static void AddRefItem(IConnectionPoint* point) { point->AddRef(); }
  static void AddRefItem(CONNECTDATA& data) { data.pUnk->AddRef(); }
  static void ReleaseItem(IConnectionPoint* point) { point->Release(); }
  static void ReleaseItem(CONNECTDATA& data) { data.pUnk->Release(); }

  std::vector<Item> items_;
  std::size_t position_;
  ULONG references_ = 1;
};

using ConnectionPointEnumerator =
    SnapshotEnumerator<IEnumConnectionPoints, IConnectionPoint*, IID_IEnumConnectionPoints>;
using ConnectionEnumerator =
    SnapshotEnumerator<IEnumConnections, CONNECTDATA, IID_IEnumConnections>;

}  // namespace

std::vector<ComPtr<IUnknown>> ConnectionPoint::Sinks() const {
  std::vector<ComPtr<IUnknown>> sinks;
  for (const Connection& connection : sinks_) sinks.push_back(connection.sink);
  return sinks;
}

STDMETHODIMP ConnectionPoint::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IConnectionPoint)) {
    *object = static_cast<IConnectionPoint*>(this);
    AddRef();
    return S_OK;
  }
  *object = nullptr;
  return E_NOINTERFACE;
}

STDMETHODIMP ConnectionPoint::GetConnectionInterface(IID* id) {
  if (id == nullptr) return E_POINTER;
  *id = interfaceId_;
  return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) {
  if (container == nullptr) return E_POINTER;
  *container = &owner_;
  owner_.AddRef();
  return S_OK;
}

STDMETHODIMP ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) {
  if (sink == nullptr || cookie == nullptr) return E_POINTER;
  *cookie = 0;
  ComPtr<IUnknown> typed;
  if (FAILED(sink->QueryInterface(interfaceId_, reinterpret_cast<void**>(typed.GetAddressOf())))) {
    return CONNECT_E_CANNOTCONNECT;
  }
  *cookie = nextCookie_++;
  sinks_.push_back(Connection{*cookie, typed});
  return S_OK;
}

STDMETHODIMP ConnectionPoint::Unadvise(DWORD cookie) {
  const auto found = std::find_if(sinks_.begin(), sinks_.end(),
                                  [&](const Connection& c) { return c.cookie == cookie; });
  if (found == sinks_.end()) return CONNECT_E_NOCONNECTION;
  sinks_.erase(found);
  return S_OK;
}

STDMETHODIMP ConnectionPoint::EnumConnections(IEnumConnections** connections) {
  if (connections == nullptr) return E_POINTER;
  std::vector<CONNECTDATA> data;
  for (const Connection& connection : sinks_) {
    data.push_back(CONNECTDATA{connection.sink.Get(), connection.cookie});
  }
  *connections = new (std::nothrow) ConnectionEnumerator(std::move(data));
  return *connections != nullptr ? S_OK : E_OUTOFMEMORY;
}

HRESULT EnumerateConnectionPoints(std::vector<IConnectionPoint*> points,
                                  IEnumConnectionPoints** enumerator) {
  if (enumerator == nullptr) return E_POINTER;
  *enumerator = new (std::nothrow) ConnectionPointEnumerator(std::move(points));
  return *enumerator != nullptr ? S_OK : E_OUTOFMEMORY;
}

}  // namespace glyphon::activex
