// The soft engine's text functions in builds without a glyph source (Windows, which has no
// FreeType or fontconfig): font objects can be created, selected and read back, but measuring and
// drawing text fail the way GDI fails on a bad DC, so a caller sees the failure instead of
// plausible metrics and an empty picture. Text on Windows goes through the native engine.
#include "platform/soft/soft_engine.h"
#include "platform/soft/text/text_system.h"

namespace glyphon::win::soft {

std::unique_ptr<TextSystem, TextSystemDeleter> NewTextSystem(SoftEngine&) { return nullptr; }

// Never given a text system: this build makes none.
void TextSystemDeleter::operator()(TextSystem*) const {}

BOOL SoftEngine::GetTextMetricsA(HDC, TEXTMETRICA*) { return FALSE; }

int SoftEngine::GetTextFaceA(HDC, int, LPSTR) { return 0; }

BOOL SoftEngine::GetTextExtentPoint32A(HDC, LPCSTR, int, SIZE*) { return FALSE; }

BOOL SoftEngine::TextOutA(HDC, int, int, LPCSTR, int) { return FALSE; }

int SoftEngine::DrawTextA(HDC, LPCSTR, int, RECT*, UINT) { return 0; }

}  // namespace glyphon::win::soft
