#include "propertypage/general_page.h"

#include <optional>
#include <utility>

#include "control/glyphon_errors.h"
#include "control/glyphon_metadata.h"
#include "control/value_coercion.h"
#include "propertypage/enumeration_items.h"
#include "propertypage/general_page_layout.h"
#include "propertypage/picture_spacing_text.h"

namespace glyphon {

namespace {

using namespace general_page_layout;

// Reads a property of the selected control as the type a page control shows.
template <class T>
T Read(const LateBoundObject& source, std::string_view name,
       std::optional<T> (*convert)(const PropertyValue&)) {
  std::optional<T> value = convert(source.GetProperty(name));
  if (!value) RaiseError(kTypeMismatchNumber, name, kTypeMismatchMessage);
  return *value;
}

std::string ReadText(const LateBoundObject& source, std::string_view name) {
  return Read(source, name, &ToText);
}

std::int32_t ReadNumber(const LateBoundObject& source, std::string_view name) {
  return Read(source, name, &ToInt32);
}

// True is -1, so the low bit is the check box's value.
std::int16_t ReadCheck(const LateBoundObject& source, std::string_view name) {
  return static_cast<std::int16_t>(ReadNumber(source, name) & CheckBox::kChecked);
}

bool IsWritable(std::string_view name) {
  const MemberInfo* member = FindMember(name, MemberKind::Property);
  return member != nullptr &&
         (member->access & (kAccessLet | kAccessLetByRef | kAccessSet)) != 0;
}

void Enable(PageControl& control, Enabling enabling) {
  if (enabling != Enabling::Keep) control.SetEnabled(enabling == Enabling::Enable);
}

// Clears the loading flag however filling the page ends.
class LoadingScope {
 public:
  explicit LoadingScope(bool& loading) : loading_(loading) { loading_ = true; }
  ~LoadingScope() { loading_ = false; }
  LoadingScope(const LoadingScope&) = delete;
  LoadingScope& operator=(const LoadingScope&) = delete;

 private:
  bool& loading_;
};

}  // namespace

GeneralPage::GeneralPage()
    : txtCaption(Editor("txtCaption", Kind::TextBox, 0), *this),
      lblCaption(RowLabel("lblCaption", "&Caption:", 0), *this, &txtCaption),
      cboStyle(Editor("cboStyle", Kind::DropDownList, 1), *this),
      lblStyle(RowLabel("lblStyle", "&Style:", 1), *this, &cboStyle),
      cboBorderStyle(Editor("cboBorderStyle", Kind::DropDownList, 2), *this),
      lblBorderStyle(RowLabel("lblBorderStyle", "&Border Style", 2), *this, &cboBorderStyle),
      cboAlignment(Editor("cboAlignment", Kind::DropDownList, 3), *this),
      lblAlignment(RowLabel("lblAlignment", "A&lignment:", 3), *this, &cboAlignment),
      cboPictureStyle(Editor("cboPictureStyle", Kind::DropDownList, 4), *this),
      lblPictureStyle(RowLabel("lblPictureStyle", "Pictu&re Style:", 4), *this, &cboPictureStyle),
      cboPictureAlignment(Editor("cboPictureAlignment", Kind::DropDownList, 5), *this),
      lblPictureAlignment(RowLabel("lblPictureAlignment", "&Picture Alignment:", 5), *this,
                          &cboPictureAlignment),
      txtPictureSpacing(Editor("txtPictureSpacing", Kind::TextBox, 6), *this),
      lblPictureSpacing(RowLabel("lblPictureSpacing", "P&icture Spacing:", 6), *this,
                        &txtPictureSpacing),
      txtTag(Editor("txtTag", Kind::TextBox, 7), *this),
      lblTag(RowLabel("lblTag", "&Tag:", 7), *this, &txtTag),
      Label1(OptionsTitle("Label1", "Display Options:"), *this, nullptr),
      chkEnabled(Option("chkEnabled", "&Enabled", 0), *this),
      chkShowDefault(Option("chkShowDefault", "Show&Default", 1), *this),
      chkShowFocus(Option("chkShowFocus", "Show&Focus", 2), *this),
      chkDropShadow(Option("chkDropShadow", "Dr&opShadow", 3), *this),
      chkUseMaskColor(Option("chkUseMaskColor", "&UseMaskColor", 4), *this),
      tabOrder_{&lblCaption, &txtCaption,
                &lblStyle, &cboStyle,
                &lblBorderStyle, &cboBorderStyle,
                &lblAlignment, &cboAlignment,
                &lblPictureStyle, &cboPictureStyle,
                &lblPictureAlignment, &cboPictureAlignment,
                &lblPictureSpacing, &txtPictureSpacing,
                &lblTag, &txtTag,
                &Label1, &chkEnabled, &chkShowDefault, &chkShowFocus, &chkDropShadow,
                &chkUseMaskColor} {
  ConnectHandlers();
}

void GeneralPage::ConnectHandlers() {
  cboStyle.onClick = [this] { cboStyle_Click(); };
  for (DropDownList* list : {&cboAlignment, &cboBorderStyle, &cboPictureAlignment,
                             &cboPictureStyle}) {
    list->onClick = [this] { MarkChanged(); };
  }
  for (CheckBox* check : {&chkDropShadow, &chkUseMaskColor, &chkEnabled, &chkShowDefault,
                          &chkShowFocus}) {
    check->onClick = [this] { MarkChanged(); };
  }
  for (TextBox* box : {&txtCaption, &txtPictureSpacing, &txtTag}) {
    box->onChange = [this] { MarkChanged(); };
    // A box that is left keeps its whole text selected for the next visit.
    box->onLostFocus = [box] { box->SelectAllText(); };
  }
  txtPictureSpacing.onKeyPress = [this](std::int16_t& keyAscii) {
    txtPictureSpacing_KeyPress(keyAscii);
  };
}

void GeneralPage::SetPromptOwner(win::HWND owner, std::string applicationTitle) {
  promptOwner_ = owner;
  applicationTitle_ = std::move(applicationTitle);
}

void GeneralPage::SetChanged(bool changed) {
  if (changed_ == changed) return;
  changed_ = changed;
  if (listener_ != nullptr) listener_->PageChanged(changed_);
}

void GeneralPage::ControlChanged(const PageControl& control) {
  if (listener_ != nullptr) listener_->ControlChanged(control);
}

// ---- SelectionChanged ----

void GeneralPage::SelectionChanged(std::span<LateBoundObject* const> selectedControls) {
  selection_.assign(selectedControls.begin(), selectedControls.end());
  LoadingScope loading(loading_);
  FillLists();
  if (!selection_.empty()) ShowProperties(*selection_.front());
}

void GeneralPage::FillLists() {
  const std::pair<DropDownList*, std::vector<std::string>> lists[] = {
      {&cboStyle, EnumerationItems("zonButtonStyleConstants")},
      {&cboBorderStyle, EnumerationItems("zonBorderStyleConstants")},
      {&cboPictureAlignment, EnumerationItems("zonPictureAlignmentConstants")},
      // The last picture style, zonPicStyleActive, is not offered on the page.
      {&cboPictureStyle, EnumerationItems("zonPictureStyleConstants", "zonPicStyleStatic")},
      {&cboAlignment, EnumerationItems("zonAlignmentConstants")},
  };
  for (const auto& [list, items] : lists) {
    list->Clear();
    for (const std::string& item : items) list->AddItem(item);
  }
}

void GeneralPage::ShowProperties(const LateBoundObject& source) {
  txtCaption.SetText(ReadText(source, "Caption"));
  txtPictureSpacing.SetText(ReadText(source, "PictureSpacing"));
  txtTag.SetText(ReadText(source, "Tag"));
  txtCaption.SelectAllText();
  txtPictureSpacing.SelectAllText();
  txtTag.SelectAllText();

  chkUseMaskColor.SetValue(ReadCheck(source, "UseMaskColor"));
  chkEnabled.SetValue(ReadCheck(source, "Enabled"));
  chkShowDefault.SetValue(ReadCheck(source, "ShowDefault"));
  chkShowFocus.SetValue(ReadCheck(source, "ShowFocus"));
  chkDropShadow.SetValue(ReadCheck(source, "DropShadow"));

  cboStyle.SetListIndex(ReadNumber(source, "Style"));
  cboBorderStyle.SetListIndex(ReadNumber(source, "BorderStyle"));
  cboPictureAlignment.SetListIndex(ReadNumber(source, "PictureAlignment"));
  cboPictureStyle.SetListIndex(ReadNumber(source, "PictureStyle"));
  cboAlignment.SetListIndex(ReadNumber(source, "Alignment"));

  ApplyEnabling(ReadNumber(source, "Style"), EnablingPath::SelectionChanged);
}

// ---- ApplyChanges ----

void GeneralPage::ApplyChanges() {
  if (selection_.empty()) return;
  LateBoundObject& target = *selection_.front();
  WriteProperty(target, "Caption", txtCaption.Text());
  WriteProperty(target, "PictureSpacing", LeadingNumber(txtPictureSpacing.Text()));
  WriteProperty(target, "Tag", txtTag.Text());
  WriteProperty(target, "UseMaskColor", chkUseMaskColor.Value());
  WriteProperty(target, "Enabled", chkEnabled.Value());
  WriteListIndex(target, "Style", cboStyle);
  WriteProperty(target, "ShowDefault", chkShowDefault.Value());
  WriteProperty(target, "ShowFocus", chkShowFocus.Value());
  WriteListIndex(target, "PictureAlignment", cboPictureAlignment);
  WriteListIndex(target, "PictureStyle", cboPictureStyle);
  WriteListIndex(target, "Alignment", cboAlignment);
  WriteProperty(target, "DropShadow", chkDropShadow.Value());
  // BorderStyle is shown but never written: it is changed in the property grid, where the
  // control's own rule (Win3x only) reports misuse.
  SetChanged(false);
}

// ShowDefault is read-only to clients, so its check box only shows the button's value and the
// style's default; the Style setter itself restores ShowDefault for Win9x and Win3x.
void GeneralPage::WriteProperty(LateBoundObject& target, std::string_view name,
                                const PropertyValue& value) {
  if (IsWritable(name)) target.SetProperty(name, value);
}

// A list showing no item (a value the page does not offer, such as zonPicStyleActive) leaves the
// property as it is.
void GeneralPage::WriteListIndex(LateBoundObject& target, std::string_view name,
                                 const DropDownList& list) {
  if (list.ListIndex() != DropDownList::kNoSelection) {
    WriteProperty(target, name, std::int32_t{list.ListIndex()});
  }
}

// ---- Handlers ----

void GeneralPage::cboStyle_Click() {
  if (loading_) return;
  if (AskForStyleDefaults()) {
    if (const auto defaults = DefaultsForStyle(cboStyle.ListIndex())) ApplyStyleDefaults(*defaults);
  }
  ApplyEnabling(cboStyle.ListIndex(), EnablingPath::StyleClick);
  SetChanged(true);
}

void GeneralPage::MarkChanged() {
  if (!loading_) SetChanged(true);
}

void GeneralPage::txtPictureSpacing_KeyPress(std::int16_t& keyAscii) const {
  if (IsSpacingKey(keyAscii)) return;
  win::MessageBeep(win::MB_OK);
  keyAscii = 0;
}

bool GeneralPage::AskForStyleDefaults() const {
  const char* title = applicationTitle_.empty() ? nullptr : applicationTitle_.c_str();
  return win::MessageBoxA(promptOwner_, kStylePrompt, title, kStylePromptFlags) == win::IDYES;
}

// Each assignment that changes a control fires its own handler, which marks the page changed.
void GeneralPage::ApplyStyleDefaults(const StyleDefaults& defaults) {
  const auto check = [](bool on) { return on ? CheckBox::kChecked : CheckBox::kUnchecked; };
  cboBorderStyle.SetListIndex(defaults.borderStyle);
  chkShowDefault.SetValue(check(defaults.showDefault));
  if (defaults.showFocus) chkShowFocus.SetValue(check(*defaults.showFocus));
}

void GeneralPage::ApplyEnabling(std::int32_t style, EnablingPath path) {
  const std::optional<StyleEnabling> enabling = EnablingForStyle(style, path);
  if (!enabling) return;
  Enable(chkShowDefault, enabling->showDefault);
  Enable(chkShowFocus, enabling->showFocus);
  Enable(cboBorderStyle, enabling->borderStyle);
  Enable(lblBorderStyle, enabling->borderStyle);
}

}  // namespace glyphon
