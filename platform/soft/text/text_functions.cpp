// The soft engine's text functions that need glyphs: metrics, extents and output.
#include <algorithm>
#include <cstring>
#include <memory>

#include "platform/soft/soft_engine.h"
#include "platform/soft/text/text_system.h"

namespace glyphon::win::soft {

BOOL SoftEngine::GetTextMetricsA(HDC hdc, TEXTMETRICA* metrics) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr || metrics == nullptr) return FALSE;
  *metrics = text_->FontOf(*dc).Metrics();
  return TRUE;
}

// Without a buffer: the size needed, terminator included. With one: the characters copied,
// terminator excluded.
int SoftEngine::GetTextFaceA(HDC hdc, int count, LPSTR faceName) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr) return 0;
  const std::string& name = text_->FontOf(*dc).FaceName();
  if (faceName == nullptr) return static_cast<int>(name.size()) + 1;
  if (count <= 0) return 0;
  const std::size_t copied = std::min(name.size(), static_cast<std::size_t>(count - 1));
  std::memcpy(faceName, name.data(), copied);
  faceName[copied] = '\0';
  return static_cast<int>(copied);
}

BOOL SoftEngine::GetTextExtentPoint32A(HDC hdc, LPCSTR text, int count, SIZE* size) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr || size == nullptr || count < 0 || (text == nullptr && count > 0)) {
    return FALSE;
  }
  *size = text_->Extent(*dc, text, static_cast<std::size_t>(count));
  return TRUE;
}

BOOL SoftEngine::TextOutA(HDC hdc, int x, int y, LPCSTR text, int count) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr || count < 0 || (text == nullptr && count > 0)) return FALSE;
  text_->TextOut(*dc, x, y, text, static_cast<std::size_t>(count));
  return TRUE;
}

// A negative count means a NUL-terminated string; a count of 0 does nothing.
int SoftEngine::DrawTextA(HDC hdc, LPCSTR text, int count, RECT* rect, UINT format) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr || rect == nullptr || count == 0 || (text == nullptr && count > 0)) return 0;
  const std::size_t size = text == nullptr ? 0
                           : count < 0     ? std::strlen(text)
                                           : static_cast<std::size_t>(count);
  return text_->DrawText(*dc, text, size, *rect, format);
}

}  // namespace glyphon::win::soft
