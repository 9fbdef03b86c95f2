#include "control/host/form_host.h"

#include <algorithm>

namespace glyphon {

// ---- FormSite ----

FormSite::FormSite(FormHost& form, std::string name, const SiteRect& rect, bool record)
    : WindowSite(form.hWnd(), rect, record), form_(form), name_(std::move(name)) {}

void FormSite::Attach(HostedControl* control) {
  WindowSite::Attach(control);
  toldDisplayAsDefault_ = false;
  form_.UpdateDisplayAsDefault();
}

bool FormSite::OnAccessKey(char key) { return form_.PressAccessKey(key); }

// The form keeps Tab for moving the focus; the control never sees it.
bool FormSite::OnNavigationKey(win::UINT message, win::WPARAM key) {
  if (message == win::WM_CHAR) return key == '\t';
  if (key != win::VK_TAB) return false;
  if (message == win::WM_KEYDOWN) form_.MoveFocus(win::GetKeyState(win::VK_SHIFT) >= 0);
  return true;
}

void FormSite::OnFocusChanged() { form_.UpdateDisplayAsDefault(); }

bool FormSite::SiteAmbient::UserMode() const { return site_.form_.UserMode(); }

bool FormSite::SiteAmbient::DisplayAsDefault() const {
  return site_.form_.DisplaysAsDefault(site_);
}

StdFont FormSite::SiteAmbient::Font() const { return site_.form_.Font(); }

win::OLE_COLOR FormSite::SiteAmbient::BackColor() const { return site_.form_.BackColor(); }

bool FormSite::SiteExtender::SetTabStop(bool tabStop) {
  site_.tabStop_ = tabStop;
  return true;
}

bool FormSite::SiteExtender::SetDefault(bool isDefault) {
  if (isDefault) {
    site_.form_.SetDefaultSite(&site_);
  } else if (site_.form_.DefaultSite() == &site_) {
    site_.form_.SetDefaultSite(nullptr);
  }
  return true;
}

std::optional<win::OLE_COLOR> FormSite::SiteExtender::ContainerBackColor() const {
  return site_.form_.BackColor();
}

// ---- FormHost ----

FormHost::FormHost(const FormOptions& options)
    : form_(options.caption.c_str(), options.width, options.height, options.backColor),
      record_(options.record), userMode_(options.userMode), font_(options.font) {
  form_.SetKeyHandler([this](win::UINT message, win::WPARAM key) {
    switch (message) {
      case win::WM_SYSCHAR:
        return PressAccessKey(static_cast<char>(key));
      case win::WM_KEYDOWN:
        if (key != win::VK_TAB) return false;
        MoveFocus(win::GetKeyState(win::VK_SHIFT) >= 0);
        return true;
      case win::WM_CHAR:
        // Enter on the form is a press of the default button.
        if (key != '\r' || defaultSite_ == nullptr || defaultSite_->Control() == nullptr) {
          return false;
        }
        defaultSite_->Control()->AccessKeyPress('\r');
        return true;
      default:
        return false;
    }
  });
}

// The sites' windows go before the form's.
FormHost::~FormHost() { sites_.clear(); }

FormSite& FormHost::AddSite(std::string name, const SiteRect& rect) {
  sites_.push_back(std::make_unique<FormSite>(*this, std::move(name), rect, record_));
  return *sites_.back();
}

FormSite* FormHost::FindSite(std::string_view name) const {
  for (const auto& site : sites_) {
    if (site->Name() == name) return site.get();
  }
  return nullptr;
}

FormSite* FormHost::FocusedSite() const {
  const win::HWND focus = win::GetFocus();
  for (const auto& site : sites_) {
    if (site->hWnd() == focus) return site.get();
  }
  return nullptr;
}

void FormHost::SetUserMode(bool userMode) {
  userMode_ = userMode;
  TellAmbientChanged("UserMode");
}

void FormHost::SetBackColor(win::OLE_COLOR backColor) {
  form_.SetBackColor(backColor);
  TellAmbientChanged("BackColor");
}

void FormHost::SetFont(const StdFont& font) {
  font_ = font;
  TellAmbientChanged("Font");
}

void FormHost::TellAmbientChanged(std::string_view name) {
  for (const auto& site : sites_) {
    if (site->Control() != nullptr) site->Control()->AmbientChanged(name);
  }
}

void FormHost::SetDefaultSite(FormSite* site) {
  defaultSite_ = site;
  UpdateDisplayAsDefault();
}

bool FormHost::DisplaysAsDefault(const FormSite& site) const {
  const FormSite* focused = FocusedSite();
  return focused != nullptr ? focused == &site : defaultSite_ == &site;
}

void FormHost::UpdateDisplayAsDefault() {
  for (const auto& site : sites_) {
    const bool displayAsDefault = DisplaysAsDefault(*site);
    if (site->Control() == nullptr || displayAsDefault == site->toldDisplayAsDefault_) continue;
    site->toldDisplayAsDefault_ = displayAsDefault;
    site->Control()->AmbientChanged("DisplayAsDefault");
  }
}

void FormHost::MoveFocus(bool forward) {
  const auto count = static_cast<std::ptrdiff_t>(sites_.size());
  if (count == 0) return;
  const auto current = std::find_if(sites_.begin(), sites_.end(), [&](const auto& site) {
    return site.get() == FocusedSite();
  });
  // From nowhere, Tab starts at the first control and Shift+Tab at the last.
  std::ptrdiff_t index = current != sites_.end() ? current - sites_.begin() : (forward ? -1 : 0);
  for (std::ptrdiff_t step = 0; step < count; ++step) {
    index = (index + (forward ? 1 : count - 1)) % count;
    FormSite& site = *sites_[static_cast<std::size_t>(index)];
    if (site.TabStop() && site.Enabled() && win::IsWindowVisible(site.hWnd())) {
      win::SetFocus(site.hWnd());
      return;
    }
  }
}

bool FormHost::PressAccessKey(char key) {
  return std::any_of(sites_.begin(), sites_.end(),
                     [&](const auto& site) { return site->PressAccessKey(key); });
}

}  // namespace glyphon
