// Logical font objects: records of what was asked for, realised only when text is measured or
// drawn, so that they exist in every build.
#include <cstring>
#include <memory>

#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

HFONT SoftEngine::CreateFontA(int height, int width, int escapement, int orientation, int weight,
                              DWORD italic, DWORD underline, DWORD strikeOut, DWORD charSet,
                              DWORD outPrecision, DWORD clipPrecision, DWORD quality,
                              DWORD pitchAndFamily, LPCSTR faceName) {
  LOGFONTA logFont{};
  logFont.lfHeight = height;
  logFont.lfWidth = width;
  logFont.lfEscapement = escapement;
  logFont.lfOrientation = orientation;
  logFont.lfWeight = weight;
  logFont.lfItalic = static_cast<BYTE>(italic);
  logFont.lfUnderline = static_cast<BYTE>(underline);
  logFont.lfStrikeOut = static_cast<BYTE>(strikeOut);
  logFont.lfCharSet = static_cast<BYTE>(charSet);
  logFont.lfOutPrecision = static_cast<BYTE>(outPrecision);
  logFont.lfClipPrecision = static_cast<BYTE>(clipPrecision);
  logFont.lfQuality = static_cast<BYTE>(quality);
  logFont.lfPitchAndFamily = static_cast<BYTE>(pitchAndFamily);
  if (faceName != nullptr) std::strncpy(logFont.lfFaceName, faceName, LF_FACESIZE - 1);
  return CreateFontIndirectA(&logFont);
}

HFONT SoftEngine::CreateFontIndirectA(const LOGFONTA* logFont) {
  if (logFont == nullptr) return nullptr;
  auto font = std::make_unique<FontObject>();
  font->logFont = *logFont;
  font->logFont.lfFaceName[LF_FACESIZE - 1] = '\0';
  return AddObject<HFONT>(std::move(font));
}

}  // namespace glyphon::win::soft
