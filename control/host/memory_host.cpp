#include "control/host/memory_host.h"

#include <algorithm>
#include <cmath>

namespace glyphon {

namespace {

// Room around the control, so that the pointer can leave it and still be over the form.
int FormExtent(int offset, double size, int minimum) {
  return std::max(minimum, offset + static_cast<int>(std::ceil(std::max(size, 0.0))) + 40);
}

}  // namespace

detail::MemoryHostForm::MemoryHostForm(const MemoryHostOptions& options)
    : form("Form1", FormExtent(options.left, options.width, 400),
           FormExtent(options.top, options.height, 300), 0x8000000F) {}

MemoryHost::MemoryHost(const MemoryHostOptions& options)
    : MemoryHostForm(options),
      WindowSite(form.hWnd(), SiteRect{options.left, options.top, options.width, options.height},
                 options.record) {
  ambient_.userMode = options.userMode;
  form.SetKeyHandler([this](win::UINT message, win::WPARAM key) {
    return message == win::WM_SYSCHAR && PressAccessKey(static_cast<char>(key));
  });
}

void MemoryHost::SetDisplayAsDefault(bool displayAsDefault) {
  ambient_.displayAsDefault = displayAsDefault;
  if (Control() != nullptr) Control()->AmbientChanged("DisplayAsDefault");
}

}  // namespace glyphon
