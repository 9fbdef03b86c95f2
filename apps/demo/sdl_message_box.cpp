#include "apps/demo/sdl_message_box.h"

#include <vector>

namespace glyphon::apps {

namespace {

constexpr win::UINT kButtonsMask = 0x0F;
constexpr win::UINT kOkCancel = 0x01;
constexpr win::UINT kYesNoCancel = 0x03;
constexpr win::UINT kYesNo = 0x04;
constexpr win::UINT kIconMask = 0xF0;
constexpr win::UINT kIconError = 0x10;
constexpr win::UINT kIconWarning = 0x30;

constexpr int kIdOk = 1;
constexpr int kIdCancel = 2;
constexpr int kIdYes = 6;
constexpr int kIdNo = 7;

Uint32 SdlFlags(win::UINT type) {
  switch (type & kIconMask) {
    case kIconError: return SDL_MESSAGEBOX_ERROR;
    case kIconWarning: return SDL_MESSAGEBOX_WARNING;
    default: return SDL_MESSAGEBOX_INFORMATION;
  }
}

}  // namespace

int ShowSdlMessageBox(SDL_Window* window, win::LPCSTR text, win::LPCSTR caption, win::UINT type) {
  std::vector<SDL_MessageBoxButtonData> buttons;
  int escape = kIdOk;
  switch (type & kButtonsMask) {
    case kOkCancel:
      buttons = {{SDL_MESSAGEBOX_BUTTON_RETURNKEY_DEFAULT, kIdOk, "OK"},
                 {SDL_MESSAGEBOX_BUTTON_ESCAPEKEY_DEFAULT, kIdCancel, "Cancel"}};
      escape = kIdCancel;
      break;
    case kYesNoCancel:
      buttons = {{SDL_MESSAGEBOX_BUTTON_RETURNKEY_DEFAULT, kIdYes, "Yes"},
                 {0, kIdNo, "No"},
                 {SDL_MESSAGEBOX_BUTTON_ESCAPEKEY_DEFAULT, kIdCancel, "Cancel"}};
      escape = kIdCancel;
      break;
    case kYesNo:
      buttons = {{SDL_MESSAGEBOX_BUTTON_RETURNKEY_DEFAULT, kIdYes, "Yes"},
                 {SDL_MESSAGEBOX_BUTTON_ESCAPEKEY_DEFAULT, kIdNo, "No"}};
      escape = kIdNo;
      break;
    default:
      buttons = {{SDL_MESSAGEBOX_BUTTON_RETURNKEY_DEFAULT | SDL_MESSAGEBOX_BUTTON_ESCAPEKEY_DEFAULT,
                  kIdOk, "OK"}};
      break;
  }
  const SDL_MessageBoxData data{SdlFlags(type),
                                window,
                                caption != nullptr ? caption : "Glyphon demo",
                                text != nullptr ? text : "",
                                static_cast<int>(buttons.size()),
                                buttons.data(),
                                nullptr};
  int answer = escape;
  if (SDL_ShowMessageBox(&data, &answer) != 0 || answer < 0) return escape;
  return answer;
}

}  // namespace glyphon::apps
