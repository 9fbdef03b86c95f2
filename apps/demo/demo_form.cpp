#include "apps/demo/demo_form.h"

#include "content/glyphon_constants.h"
#include "control/host/saved_form_bags.h"
#include "samples/sample_pictures.h"

namespace glyphon::apps {

namespace {

constexpr int kButtonWidth = 120;
constexpr int kButtonHeight = 40;
constexpr int kLeft = 16;
constexpr int kTop = 16;
constexpr int kStepX = 134;
constexpr int kStepY = 56;

FormOptions DemoFormOptions() {
  FormOptions options;
  options.caption = "Glyphon demo";
  options.width = DemoForm::kWidth;
  options.height = DemoForm::kHeight;
  options.record = false;
  return options;
}

std::int32_t IntegerEntry(const SavedEntries& entries, std::string_view key,
                          std::int32_t fallback) {
  const PropertyValue* value = FindSavedEntry(entries, key);
  if (value == nullptr) return fallback;
  if (const auto* wide = std::get_if<std::int32_t>(value)) return *wide;
  if (const auto* narrow = std::get_if<std::int16_t>(value)) return *narrow;
  return fallback;
}

std::string TextEntry(const SavedEntries& entries, std::string_view key) {
  const PropertyValue* value = FindSavedEntry(entries, key);
  const auto* text = value != nullptr ? std::get_if<std::string>(value) : nullptr;
  return text != nullptr ? *text : std::string();
}

// A dozen looks: each style, then the flags and features a form shows off.
struct DozenEntry {
  const char* name;
  const char* caption;
  std::int32_t style;
  void (*extra)(Glyphon&);
};

Glyphon& WithPicture(Glyphon& button, samples::SamplePicture picture) {
  button.SetPicture(samples::MakeSamplePicture(picture));
  return button;
}

const DozenEntry kDozen[] = {
    {"cmdOK", "&OK", zonStyleWin9x, nullptr},
    {"cmdWin3x", "Windows 3.&x", zonStyleWin3x, nullptr},
    {"cmdBlue", "XP &Blue", zonStyleWinXPBlue, nullptr},
    {"cmdOlive", "Olive &Green", zonStyleWinXPOliveGreen, nullptr},
    {"cmdSilver", "&Silver", zonStyleWinXPSilver, nullptr},
    {"cmdMac", "&Mac OS 8", zonStyleMac8x, nullptr},
    {"cmdDisabled", "Disabled", zonStyleWin9x,
     [](Glyphon& b) { WithPicture(b, samples::SamplePicture::Folder16).SetEnabled(false); }},
    {"cmdTip", "&Hover me", zonStyleWinXPBlue, nullptr},
    {"cmdOpen", "O&pen", zonStyleWinXPBlue,
     [](Glyphon& b) { WithPicture(b, samples::SamplePicture::Folder16); }},
    {"cmdPopup", "Pop&up", zonStyleWin9x,
     [](Glyphon& b) {
       WithPicture(b, samples::SamplePicture::Check16).SetPictureStyle(zonPicStylePopup);
       b.SetDropShadow(true);
     }},
    {"cmdActive", "A&ctive", zonStyleWinXPSilver,
     [](Glyphon& b) {
       WithPicture(b, samples::SamplePicture::Globe32Icon).SetPictureStyle(zonPicStyleActive);
     }},
    {"cmdStop", "S&top", zonStyleMac8x,
     [](Glyphon& b) {
       WithPicture(b, samples::SamplePicture::Stop16Icon).SetPictureAlignment(zonPicAlignRight);
     }},
};

constexpr const char* kTippedButton = "cmdTip";
constexpr const char* kTip = "A Glyphon button with a tooltip";

// What the form keeps for each button besides its bag: its place and its tooltip text.
SavedEntries ExtenderEntries(const SiteRect& rect, const std::string& toolTipText) {
  SavedEntries entries{{"Left", rect.left},
                       {"Top", rect.top},
                       {"Width", static_cast<std::int32_t>(rect.width)},
                       {"Height", static_cast<std::int32_t>(rect.height)}};
  if (!toolTipText.empty()) entries.push_back({"ToolTipText", toolTipText});
  return entries;
}

// The dozen as a form designer saves it: each button set up at design time and written to its
// property bag, so that the demo loads them as a form is loaded when it runs.
SavedForm DesignedDozen() {
  FormOptions designTime = DemoFormOptions();
  designTime.userMode = false;
  FormHost designer(designTime);
  SavedForm saved;
  saved.form.push_back({"DefaultButton", std::string(kDozen[0].name)});
  int index = 0;
  for (const DozenEntry& entry : kDozen) {
    const SiteRect rect{kLeft + (index % 4) * kStepX, kTop + (index / 4) * kStepY, kButtonWidth,
                        kButtonHeight};
    ++index;
    FormSite& site = designer.AddSite(entry.name, rect);
    Glyphon button(site);
    site.Attach(&button);
    button.InitProperties();
    button.SetStyle(entry.style);
    button.SetCaption(entry.caption);
    if (entry.extra != nullptr) entry.extra(button);
    MemoryPropertyBag bag;
    button.WriteProperties(bag);
    site.Attach(nullptr);
    const std::string tip = std::string_view(entry.name) == kTippedButton ? kTip : "";
    saved.controls.push_back({entry.name, ExtenderEntries(rect, tip), EntriesOfBag(bag)});
  }
  return saved;
}

}  // namespace

DemoForm::DemoForm(const SavedForm* saved) : form_(DemoFormOptions()) {
  Load(saved != nullptr ? *saved : DesignedDozen());
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

void DemoForm::Load(const SavedForm& saved) {
  for (const SavedControl& control : saved.controls) {
    const SiteRect rect{IntegerEntry(control.extender, "Left", kLeft),
                        IntegerEntry(control.extender, "Top", kTop),
                        static_cast<double>(IntegerEntry(control.extender, "Width", kButtonWidth)),
                        static_cast<double>(
                            IntegerEntry(control.extender, "Height", kButtonHeight))};
    AddButton(control.name, rect);
    buttons_.back().site->SetToolTipText(TextEntry(control.extender, "ToolTipText"));
    MemoryPropertyBag bag = BagOfEntries(control.properties);
    buttons_.back().button->ReadProperties(bag);
  }
  if (DemoButton* button = Find(TextEntry(saved.form, "DefaultButton"))) {
    form_.SetDefaultSite(button->site);
  }
}

SavedForm DemoForm::Save() const {
  SavedForm saved;
  if (const FormSite* site = form_.DefaultSite()) {
    saved.form.push_back({"DefaultButton", site->Name()});
  }
  for (const DemoButton& entry : buttons_) {
    SavedControl control{entry.site->Name(),
                         ExtenderEntries(entry.site->Rect(), entry.site->ToolTipText()), {}};
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
