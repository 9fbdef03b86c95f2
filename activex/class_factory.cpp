#include "activex/class_factory.h"

#include "activex/glyphon_object.h"
#include "activex/guids.h"
#include "activex/module.h"
#include "activex/page/general_page_object.h"

namespace glyphon::activex {

namespace {

using CreateFunction = HRESULT (*)(REFIID id, void** object);

class ClassFactory final : public IClassFactory {
 public:
  explicit ClassFactory(CreateFunction create) : create_(create) {}

  STDMETHODIMP QueryInterface(REFIID id, void** object) override {
    if (object == nullptr) return E_POINTER;
    if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IClassFactory)) {
      *object = static_cast<IClassFactory*>(this);
      return S_OK;
    }
    *object = nullptr;
    return E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }

  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    return create_(id, object);
  }

  STDMETHODIMP LockServer(BOOL lock) override {
    if (lock) {
      LockModule();
    } else {
      UnlockModule();
    }
    return S_OK;
  }

 private:
  CreateFunction create_;
};

}  // namespace

IClassFactory* FindClassFactory(REFCLSID classId) {
  static ClassFactory control(&CreateGlyphonObject);
  static ClassFactory generalPage(&CreateGeneralPageObject);
  if (IsEqualCLSID(classId, kGlyphonClassId)) return &control;
  if (IsEqualCLSID(classId, kGeneralPageClassId)) return &generalPage;
  return nullptr;
}

}  // namespace glyphon::activex
