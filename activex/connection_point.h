// One outgoing interface of the control (its events, or property-change notifications) and the
// sinks connected to it. It lives inside the control object and shares its reference count.
#pragma once

#include <vector>

#include "activex/windows_api.h"

namespace glyphon::activex {

class ConnectionPoint final : public IConnectionPoint {
 public:
  ConnectionPoint(IConnectionPointContainer& owner, REFIID interfaceId)
      : owner_(owner), interfaceId_(interfaceId) {}
  ConnectionPoint(const ConnectionPoint&) = delete;
  ConnectionPoint& operator=(const ConnectionPoint&) = delete;

  const IID& InterfaceId() const { return interfaceId_; }
  // The sinks as they are now; a sink may disconnect while it is being called.
  std::vector<ComPtr<IUnknown>> Sinks() const;
  void DisconnectAll() { sinks_.clear(); }

  STDMETHODIMP QueryInterface(REFIID id, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return owner_.AddRef(); }
  STDMETHODIMP_(ULONG) Release() override { return owner_.Release(); }

  STDMETHODIMP GetConnectionInterface(IID* id) override;
  STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) override;
  STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override;
  STDMETHODIMP Unadvise(DWORD cookie) override;
  STDMETHODIMP EnumConnections(IEnumConnections** connections) override;

 private:
  struct Connection {
    DWORD cookie;
    ComPtr<IUnknown> sink;
  };

  IConnectionPointContainer& owner_;
  IID interfaceId_;
  std::vector<Connection> sinks_;
  DWORD nextCookie_ = 1;
};

// Enumerates a fixed list of connection points of one container.
HRESULT EnumerateConnectionPoints(std::vector<IConnectionPoint*> points,
                                  IEnumConnectionPoints** enumerator);

}  // namespace glyphon::activex
