#include "activex/text.h"

namespace glyphon::activex {

std::wstring Widen(std::string_view text) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), length);
  return wide;
}

std::string Narrow(std::wstring_view text) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  const int length =
      WideCharToMultiByte(CP_ACP, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_ACP, 0, text.data(), size, narrow.data(), length, nullptr, nullptr);
  return narrow;
}

BSTR MakeBstr(std::string_view text) {
  const std::wstring wide = Widen(text);
  return SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
}

std::string FromBstr(BSTR text) {
  if (text == nullptr) return {};
  return Narrow(std::wstring_view(text, SysStringLen(text)));
}

}  // namespace glyphon::activex
