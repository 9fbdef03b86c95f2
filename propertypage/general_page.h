// The design-time page "General" of the button as a model: its controls with their state, the
// property-page contract (SelectionChanged, ApplyChanges, Changed) and every handler of the page.
// Views own no logic: they draw Controls() by kind, forward the user's edits to the controls
// (SetText, KeyPress, LostFocus, SetListIndex, Toggle) and refresh a control when the listener
// hears that it changed.
//
// The page reads and writes the first selected control only, by property name. Errors of the
// control (AutomationError) propagate to the caller unchanged; the page is left consistent.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win32.h"
#include "propertypage/late_bound_object.h"
#include "propertypage/page_controls.h"
#include "propertypage/style_rules.h"

namespace glyphon {

class GeneralPageListener {
 public:
  // A control's enabled state, text, selection, items, index or value changed.
  virtual void ControlChanged(const PageControl& /*control*/) {}
  // The page's Changed flag changed; a host enables its Apply button while it is true.
  virtual void PageChanged(bool /*changed*/) {}

 protected:
  ~GeneralPageListener() = default;
};

// The question asked when the user picks a style: Yes/No with a Help button. Help goes to the
// owner window as WM_HELP; the host opens the component's help file at the context below.
inline constexpr char kStylePrompt[] = "Set all default properties for this style?";
inline constexpr win::UINT kStylePromptFlags = 0x4034;
inline constexpr win::DWORD kStylePromptHelpContext = 2150;

class GeneralPage final : private ControlObserver {
 public:
  static constexpr std::string_view kCaption = "General";
  // The page's client size in pixels; every control's Bounds lie inside it.
  static constexpr int kWidth = 464;
  static constexpr int kHeight = 226;

  GeneralPage();
  GeneralPage(const GeneralPage&) = delete;
  GeneralPage& operator=(const GeneralPage&) = delete;

  // The style prompt's owner window, and the title it shows (the host application's; none gives
  // the system's default title).
  void SetPromptOwner(win::HWND owner, std::string applicationTitle);
  void SetListener(GeneralPageListener* listener) { listener_ = listener; }

  // ---- The property-page contract ----

  // The host's selection, first control first; the page keeps the pointers for ApplyChanges
  // (they must stay valid until the next selection) and fills itself from the first control.
  void SelectionChanged(std::span<LateBoundObject* const> selectedControls);
  // Writes the page to the first selected control and, when every write succeeded, clears
  // Changed.
  void ApplyChanges();
  bool Changed() const { return changed_; }
  void SetChanged(bool changed);
  // True while SelectionChanged fills the controls: their handlers then mark nothing and ask
  // nothing.
  bool Loading() const { return loading_; }

  // Every control, in tab order; a label comes just before the control its access key focuses.
  std::span<PageControl* const> Controls() const { return tabOrder_; }

  TextBox txtCaption;
  Label lblCaption;
  DropDownList cboStyle;
  Label lblStyle;
  DropDownList cboBorderStyle;
  Label lblBorderStyle;
  DropDownList cboAlignment;
  Label lblAlignment;
  DropDownList cboPictureStyle;
  Label lblPictureStyle;
  DropDownList cboPictureAlignment;
  Label lblPictureAlignment;
  TextBox txtPictureSpacing;
  Label lblPictureSpacing;
  TextBox txtTag;
  Label lblTag;
  Label Label1;
  CheckBox chkEnabled;
  CheckBox chkShowDefault;
  CheckBox chkShowFocus;
  CheckBox chkDropShadow;
  CheckBox chkUseMaskColor;

 private:
  void ControlChanged(const PageControl& control) override;
  void ConnectHandlers();
  void FillLists();
  void ShowProperties(const LateBoundObject& source);
  void WriteProperty(LateBoundObject& target, std::string_view name, const PropertyValue& value);
  void WriteListIndex(LateBoundObject& target, std::string_view name, const DropDownList& list);

  void cboStyle_Click();
  void MarkChanged();
  void txtPictureSpacing_KeyPress(std::int16_t& keyAscii) const;
  bool AskForStyleDefaults() const;
  void ApplyStyleDefaults(const StyleDefaults& defaults);
  void ApplyEnabling(std::int32_t style, EnablingPath path);

  std::vector<PageControl*> tabOrder_;
  std::vector<LateBoundObject*> selection_;
  GeneralPageListener* listener_ = nullptr;
  win::HWND promptOwner_ = nullptr;
  std::string applicationTitle_;
  bool loading_ = false;
  bool changed_ = false;
};

}  // namespace glyphon
