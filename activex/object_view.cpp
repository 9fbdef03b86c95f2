// IViewObject2: the button drawn into any device context (print preview, design surfaces,
// containers without windows for their controls), through the control's own repaint.
#include "activex/com_error.h"
#include "activex/glyphon_object.h"

namespace glyphon::activex {

STDMETHODIMP GlyphonObject::Draw(DWORD aspect, LONG /*index*/, void* /*aspectInfo*/,
                                 DVTARGETDEVICE* /*device*/, HDC /*targetDc*/, HDC drawDc,
                                 LPCRECTL bounds, LPCRECTL /*windowBounds*/,
                                 BOOL(STDMETHODCALLTYPE* /*shouldContinue*/)(ULONG_PTR),
                                 ULONG_PTR /*continueArgument*/) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (drawDc == nullptr || bounds == nullptr) return E_INVALIDARG;
  const int width = bounds->right - bounds->left;
  const int height = bounds->bottom - bounds->top;
  if (width <= 0 || height <= 0) return S_OK;
  return Guarded([&] {
    // The control paints its whole surface at the origin; a bitmap of the bounds' size takes it.
    HDC surface = CreateCompatibleDC(drawDc);
    HBITMAP bitmap = CreateCompatibleBitmap(drawDc, width, height);
    HGDIOBJ previous = SelectObject(surface, bitmap);
    site_.RedirectDrawing(surface, width, height);
    control_->Refresh();
    site_.StopRedirect();
    BitBlt(drawDc, bounds->left, bounds->top, width, height, surface, 0, 0, SRCCOPY);
    SelectObject(surface, previous);
    DeleteObject(bitmap);
    DeleteDC(surface);
    return S_OK;
  });
}

STDMETHODIMP GlyphonObject::GetColorSet(DWORD /*aspect*/, LONG /*index*/, void* /*aspectInfo*/,
                                        DVTARGETDEVICE* /*device*/, HDC /*targetDc*/,
                                        LOGPALETTE** colors) {
  if (colors == nullptr) return E_POINTER;
  *colors = nullptr;
  return S_FALSE;
}

STDMETHODIMP GlyphonObject::Freeze(DWORD /*aspect*/, LONG /*index*/, void* /*aspectInfo*/,
                                   DWORD* /*freeze*/) {
  return E_NOTIMPL;
}

STDMETHODIMP GlyphonObject::Unfreeze(DWORD /*freeze*/) { return E_NOTIMPL; }

STDMETHODIMP GlyphonObject::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) {
  viewAspects_ = aspects;
  viewAdviseFlags_ = flags;
  viewSink_ = sink;
  return S_OK;
}

STDMETHODIMP GlyphonObject::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) {
  if (aspects != nullptr) *aspects = viewAspects_;
  if (flags != nullptr) *flags = viewAdviseFlags_;
  if (sink != nullptr) {
    *sink = viewSink_.Get();
    if (*sink != nullptr) (*sink)->AddRef();
  }
  return S_OK;
}

STDMETHODIMP GlyphonObject::GetExtent(DWORD aspect, LONG /*index*/, DVTARGETDEVICE* /*device*/,
                                      LPSIZEL size) {
  return GetExtent(aspect, size);
}

}  // namespace glyphon::activex
