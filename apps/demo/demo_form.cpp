#include "apps/demo/demo_form.h"

#include "control/glyphon_constants.h"
#include "control/host/saved_form_bags.h"

namespace glyphon::apps {

namespace {

constexpr int kButtonWidth = 120;
constexpr int kButtonHeight = 32;
constexpr int kLeft = 16;
constexpr int kTop = 16;
constexpr int kStepX = 134;
constexpr int kStepY = 48;

FormOptions DemoFormOptions() {
  FormOptions options;
  options.caption = "Glyphon demo";
  options.width = DemoForm::kWidth;
  options.height = DemoForm::kHeight;
  options.record = false;
  return options;
}

std::int32_t IntegerEntry(const SavedEntries& entries, std::string_view key, std::int32_t fallback) {
  const PropertyValue* value = FindSavedEntry(entries, key);
  if (value == nullptr) return fallback;
  if (const auto* wide = std::get_if<std::int32_t>(value)) return *wide;
  if (const auto* narrow = std::get_if<std::int16_t>(value)) return *narrow;
  return fallback;
}

// A dozen looks: each style, then the flags and features a form shows off.
struct DozenEntry {
  const char* name;
  const char* caption;
  std::int32_t style;
  void (*extra)(Glyphon&);
};

const DozenEntry kDozen[] = {
    {"cmdOK", "&OK", zonStyleWin9x, nullptr},
    {"cmdWin3x", "Windows 3.&x", zonStyleWin3x, nullptr},
    {"cmdBlue", "XP &Blue", zonStyleWinXPBlue, nullptr},
    {"cmdOlive", "Olive &Green", zonStyleWinXPOliveGreen, nullptr},
    {"cmdSilver", "&Silver", zonStyleWinXPSilver, nullptr},
    {"cmdMac", "&Mac OS 8", zonStyleMac8x, nullptr},
    {"cmdDisabled", "Disabled", zonStyleWin9x, [](Glyphon& b) { b.SetEnabled(false); }},
    {"cmdTip", "&Hover me", zonStyleWinXPBlue,
     [](Glyphon& b) { b.SetToolTipText("A Glyphon button with a tooltip"); }},
    {"cmdAccess", "&Alt+A clicks me", zonStyleWin9x, nullptr},
    {"cmdWrap", "A long caption that wraps", zonStyleWinXPSilver, nullptr},
    {"cmdNoFocus", "&Keeps no focus", zonStyleWinXPOliveGreen,
     [](Glyphon& b) { b.SetStealFocus(false); }},
    {"cmdRight", "Right &aligned", zonStyleWin3x,
     [](Glyphon& b) { b.SetAlignment(zonAlignRight); }},
};

}  // namespace

DemoForm::DemoForm(const SavedForm* saved) : form_(DemoFormOptions()) {
  if (saved != nullptr) {
    Load(*saved);
  } else {
    BuildDozen();
  }
}

// The buttons end before their windows do.
DemoForm::~DemoForm() {
  for (DemoButton& entry : buttons_) entry.site->Attach(nullptr);
  buttons_.clear();
}

void DemoForm::AddButton(const std::string& name, const SiteRect& rect) {
  FormSite& site = form_.AddSite(name, rect);
  buttons_.push_back({&site, std::make_unique<Glyphon>(site)});
  site.Attach(buttons_.back().button.get());
}

void DemoForm::BuildDozen() {
  int index = 0;
  for (const DozenEntry& entry : kDozen) {
    const SiteRect rect{kLeft + (index % 4) * kStepX, kTop + (index / 4) * kStepY, kButtonWidth,
                        kButtonHeight};
    AddButton(entry.name, rect);
    Glyphon& button = *buttons_.back().button;
    button.InitProperties();
    button.SetStyle(entry.style);
    button.SetCaption(entry.caption);
    if (entry.extra != nullptr) entry.extra(button);
    ++index;
  }
  form_.SetDefaultSite(buttons_.front().site);
}

void DemoForm::Load(const SavedForm& saved) {
  for (const SavedControl& control : saved.controls) {
    const SiteRect rect{IntegerEntry(control.extender, "Left", kLeft),
                        IntegerEntry(control.extender, "Top", kTop),
                        static_cast<double>(IntegerEntry(control.extender, "Width", kButtonWidth)),
                        static_cast<double>(
                            IntegerEntry(control.extender, "Height", kButtonHeight))};
    AddButton(control.name, rect);
    MemoryPropertyBag bag = BagOfEntries(control.properties);
    buttons_.back().button->ReadProperties(bag);
  }
  if (const PropertyValue* name = FindSavedEntry(saved.form, "DefaultButton")) {
    if (const auto* text = std::get_if<std::string>(name)) {
      if (DemoButton* button = Find(*text)) form_.SetDefaultSite(button->site);
    }
  }
}

SavedForm DemoForm::Save() const {
  SavedForm saved;
  if (const FormSite* site = form_.DefaultSite()) {
    saved.form.push_back({"DefaultButton", site->Name()});
  }
  for (const DemoButton& entry : buttons_) {
    const SiteRect& rect = entry.site->Rect();
    SavedControl control{entry.site->Name(),
                         {{"Left", rect.left},
                          {"Top", rect.top},
                          {"Width", static_cast<std::int32_t>(rect.width)},
                          {"Height", static_cast<std::int32_t>(rect.height)}},
                         {}};
    MemoryPropertyBag bag;
    entry.button->WriteProperties(bag);
    control.properties = EntriesOfBag(bag);
    saved.controls.push_back(std::move(control));
  }
  return saved;
}

DemoButton* DemoForm::Find(std::string_view name) {
  for (DemoButton& entry : buttons_) {
    if (entry.site->Name() == name) return &entry;
  }
  return nullptr;
}

DemoButton* DemoForm::At(int x, int y) {
  for (DemoButton& entry : buttons_) {
    const SiteRect& rect = entry.site->Rect();
    if (x >= rect.left && y >= rect.top && x < rect.left + rect.width &&
        y < rect.top + rect.height) {
      return &entry;
    }
  }
  return nullptr;
}

void DemoForm::SetListener(
    std::function<void(const std::string& name, const std::string& line)> listener) {
  for (DemoButton& entry : buttons_) {
    const std::string name = entry.site->Name();
    entry.site->Recorder().SetListener(
        [listener, name](const std::string& line) { listener(name, line); });
  }
}

}  // namespace glyphon::apps
