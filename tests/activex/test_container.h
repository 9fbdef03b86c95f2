// A COM container for the tests of zonGlyphon.dll: a form window and, for each control it holds,
// a client site (with in-place site, control site and ambient properties), an extender, an
// in-memory property bag, and a sink that records the control's events and property-change
// notifications in order, in the form "Click", "MouseDown(1,0,5,5)", "changed Caption".
// The control is created by its programmatic identifier, as a form loads it.
#pragma once

#include <windows.h>
#include <ocidl.h>
#include <olectl.h>
#include <wrl/client.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace glyphon::activex::testing {

using Microsoft::WRL::ComPtr;

// What the container keeps and tells the control; tests read and change it.
struct ContainerState {
  bool userMode = true;
  bool displayAsDefault = false;
  std::wstring ambientFontName = L"Tahoma";
  std::wstring extenderName = L"Command1";
  std::optional<std::wstring> extenderToolTipText;
  bool extenderDefault = false;
  bool extenderTabStop = true;
  std::vector<std::string> log;
  int controlInfoChanges = 0;
  // When set, a KeyPress handler replaces the key with this one.
  std::optional<short> replaceKeyAscii;
};

// Values for IDispatch calls; the caller owns the text's string.
VARIANT BoolValue(bool value);
VARIANT LongValue(long value);
VARIANT TextValue(const std::wstring& value);

// A new instance of the control, created by its programmatic identifier; throws when it cannot be.
ComPtr<IOleObject> NewGlyphon();
// A property read by name through the object's IDispatch; throws on failure.
VARIANT GetByName(IDispatch* object, const wchar_t* name);

// An IPropertyBag kept in memory.
class MemoryBag final : public IPropertyBag {
 public:
  MemoryBag() = default;
  ~MemoryBag();
  MemoryBag(const MemoryBag&) = delete;
  MemoryBag& operator=(const MemoryBag&) = delete;

  STDMETHODIMP QueryInterface(REFIID id, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP Read(LPCOLESTR name, VARIANT* value, IErrorLog* log) override;
  STDMETHODIMP Write(LPCOLESTR name, VARIANT* value) override;

  // Null when the key is absent.
  const VARIANT* Find(const std::wstring& name) const;
  void Store(const std::wstring& name, const VARIANT& value);
  std::size_t Size() const { return values_.size(); }

 private:
  std::map<std::wstring, VARIANT> values_;
};

class Site;

// One control on the form.
class HostedGlyphon {
 public:
  // With a bag the control loads from it, else it starts as a new instance.
  explicit HostedGlyphon(HWND form, const ContainerState& initial = {}, MemoryBag* bag = nullptr);
  ~HostedGlyphon();
  HostedGlyphon(const HostedGlyphon&) = delete;
  HostedGlyphon& operator=(const HostedGlyphon&) = delete;

  IDispatch* Dispatch() const { return dispatch_.Get(); }
  IOleObject* Object() const { return object_.Get(); }
  HWND Window() const { return window_; }
  ContainerState& State();
  std::vector<std::string> TakeLog();

  // Property access by name through IDispatch.
  VARIANT Get(const wchar_t* name);
  HRESULT Put(const wchar_t* name, VARIANT value, EXCEPINFO* exception = nullptr);
  HRESULT PutRef(const wchar_t* name, IDispatch* value, EXCEPINFO* exception = nullptr);
  HRESULT Call(const wchar_t* name);
  long GetLong(const wchar_t* name);
  bool GetBool(const wchar_t* name);
  std::wstring GetText(const wchar_t* name);
  void PutLong(const wchar_t* name, long value);
  void PutBool(const wchar_t* name, bool value);
  void PutText(const wchar_t* name, const wchar_t* value);

  // The container changes an ambient property and tells the control.
  void SetDisplayAsDefault(bool displayAsDefault);
  // The container's handling of Alt+key on its form: the control's accelerators decide whether
  // the key is its mnemonic. False when it is not.
  bool FormMnemonic(char key);

 private:
  HRESULT Assign(const wchar_t* name, WORD flags, VARIANT& value, EXCEPINFO* exception);

  ComPtr<Site> site_;
  ComPtr<IOleObject> object_;
  ComPtr<IDispatch> dispatch_;
  HWND window_ = nullptr;
  IID eventsId_{};
  DWORD eventsCookie_ = 0;
  DWORD notifyCookie_ = 0;
};

// The form window, shown, 400 by 300.
class Form {
 public:
  Form();
  ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  HWND Window() const { return window_; }

 private:
  HWND window_;
};

}  // namespace glyphon::activex::testing
