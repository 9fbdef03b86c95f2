// IPersistPropertyBag and IPersistStreamInit: the same thirty keys, in the container's property
// bag or in a stream.
#include "activex/com_error.h"
#include "activex/glyphon_object.h"
#include "activex/guids.h"
#include "activex/property_bags.h"

namespace glyphon::activex {

STDMETHODIMP GlyphonObject::GetClassID(CLSID* classId) {
  if (classId == nullptr) return E_POINTER;
  *classId = kGlyphonClassId;
  return S_OK;
}

STDMETHODIMP GlyphonObject::InitNew() {
  if (loaded_) return E_UNEXPECTED;
  return Guarded([&] {
    control_->InitProperties();
    loaded_ = true;
    dirty_ = false;
    return S_OK;
  });
}

HRESULT GlyphonObject::LoadFrom(PropertyBag& bag) {
  if (loaded_) return E_UNEXPECTED;
  control_->ReadProperties(bag);
  loaded_ = true;
  dirty_ = false;
  return S_OK;
}

STDMETHODIMP GlyphonObject::Load(IPropertyBag* bag, IErrorLog* errorLog) {
  if (bag == nullptr) return E_POINTER;
  return Guarded([&] {
    PropertyBagAdapter adapter(*bag, errorLog);
    return LoadFrom(adapter);
  });
}

STDMETHODIMP GlyphonObject::Save(IPropertyBag* bag, BOOL clearDirty, BOOL /*saveAll*/) {
  if (bag == nullptr) return E_POINTER;
  return Guarded([&] {
    PropertyBagAdapter adapter(*bag, nullptr);
    control_->WriteProperties(adapter);
    if (clearDirty) dirty_ = false;
    return S_OK;
  });
}

STDMETHODIMP GlyphonObject::IsDirty() { return dirty_ ? S_OK : S_FALSE; }

STDMETHODIMP GlyphonObject::Load(LPSTREAM stream) {
  if (stream == nullptr) return E_POINTER;
  return Guarded([&] {
    StreamPropertyBag bag = StreamPropertyBag::Load(*stream);
    return LoadFrom(bag);
  });
}

STDMETHODIMP GlyphonObject::Save(LPSTREAM stream, BOOL clearDirty) {
  if (stream == nullptr) return E_POINTER;
  return Guarded([&] {
    StreamPropertyBag bag;
    control_->WriteProperties(bag);
    const HRESULT result = bag.Save(*stream);
    if (SUCCEEDED(result) && clearDirty) dirty_ = false;
    return result;
  });
}

STDMETHODIMP GlyphonObject::GetSizeMax(ULARGE_INTEGER* size) {
  if (size == nullptr) return E_POINTER;
  return Guarded([&] {
    StreamPropertyBag bag;
    control_->WriteProperties(bag);
    size->QuadPart = bag.SizeMax();
    return S_OK;
  });
}

}  // namespace glyphon::activex
