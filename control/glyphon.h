// The push button control: its automation interface (properties, methods, events through the
// site's event sink), persistence, the input state machine, the off-screen redraw and the window
// subclassing that feeds it focus and tooltip messages.
//
// Construction subclasses the site's window and suppresses painting until InitProperties or
// ReadProperties has applied the properties. Terminate (or destruction) undoes the subclassing.
// Everything runs on the thread that owns the site's window.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "content/button_view.h"
#include "content/glyphon_constants.h"
#include "control/host/control_site.h"
#include "control/host/hosted_control.h"
#include "platform/win32.h"

namespace glyphon {

class Canvas;

class Glyphon final : public ButtonView, public HostedControl {
 public:
  explicit Glyphon(ControlSite& site);
  ~Glyphon() override;
  Glyphon(const Glyphon&) = delete;
  Glyphon& operator=(const Glyphon&) = delete;

  // ---- Properties. Setters throw AutomationError where the interface documents an error. ----

  std::int32_t Alignment() const override { return alignment_; }
  void SetAlignment(std::int32_t alignment);
  win::OLE_COLOR BackColor() const override { return backColor_; }
  void SetBackColor(win::OLE_COLOR color);
  win::OLE_COLOR BorderColor() const override { return borderColor_; }
  void SetBorderColor(win::OLE_COLOR color);
  std::int32_t BorderStyle() const override { return borderStyle_; }
  void SetBorderStyle(std::int32_t borderStyle);
  const std::string& Caption() const override { return caption_; }
  void SetCaption(std::string_view caption);
  bool Default() const override { return default_; }
  void SetDefault(bool isDefault);
  win::OLE_COLOR DisabledColor() const override { return disabledColor_; }
  void SetDisabledColor(win::OLE_COLOR color);
  bool DropShadow() const override { return dropShadow_; }
  void SetDropShadow(bool dropShadow);
  bool Enabled() const override;
  void SetEnabled(bool enabled);
  StdFont Font() const override;
  void SetFont(const StdFont& font);
  win::OLE_COLOR ForeColor() const override { return foreColor_; }
  void SetForeColor(win::OLE_COLOR color);
  win::OLE_COLOR HighlightColor() const override { return highlightColor_; }
  void SetHighlightColor(win::OLE_COLOR color);
  win::HWND hWnd() const;
  win::OLE_COLOR MaskColor() const override { return maskColor_; }
  void SetMaskColor(win::OLE_COLOR color);
  StdPicture MouseIcon() const;
  void SetMouseIcon(const StdPicture& icon);
  std::int32_t MousePointer() const;
  void SetMousePointer(std::int32_t pointer);
  const StdPicture& Picture() const override { return picture_; }
  void SetPicture(const StdPicture& picture);
  std::int32_t PictureAlignment() const override { return pictureAlignment_; }
  void SetPictureAlignment(std::int32_t alignment);
  const StdPicture& PictureDisabled() const override { return pictureDisabled_; }
  void SetPictureDisabled(const StdPicture& picture);
  const StdPicture& PictureDown() const override { return pictureDown_; }
  void SetPictureDown(const StdPicture& picture);
  const StdPicture& PictureOver() const override { return pictureOver_; }
  void SetPictureOver(const StdPicture& picture);
  std::int32_t PictureSpacing() const override { return pictureSpacing_; }
  void SetPictureSpacing(std::int32_t spacing);
  std::int32_t PictureStyle() const override { return pictureStyle_; }
  void SetPictureStyle(std::int32_t pictureStyle);
  bool RightToLeft() const;
  void SetRightToLeft(bool rightToLeft);
  win::OLE_COLOR ShadowColor() const override { return shadowColor_; }
  void SetShadowColor(win::OLE_COLOR color);
  bool ShowDefault() const override { return showDefault_; }
  bool ShowFocus() const override { return showFocus_; }
  void SetShowFocus(bool showFocus);
  bool StealFocus() const { return stealFocus_; }
  void SetStealFocus(bool stealFocus);
  std::int32_t Style() const override { return style_; }
  void SetStyle(std::int32_t style);
  std::string Tag() const;
  void SetTag(std::string_view tag);
  const std::string& ToolTipText() const { return toolTipText_; }
  void SetToolTipText(std::string_view text);
  bool UseMaskColor() const override { return useMaskColor_; }
  void SetUseMaskColor(bool useMaskColor);

  // ---- Methods ----

  void About();
  // Repaints even while loading.
  void Refresh();

  // ---- What painters and the host may read besides the properties ----

  const std::string& DisplayCaption() const override { return displayCaption_; }
  std::int16_t AccessKeyPosition() const { return accessKeyPosition_; }
  bool HasFocus() const override { return hasFocus_; }
  bool SuppressRedraw() const override { return suppressRedraw_; }
  std::int32_t PushLook() const override { return pushLook_; }
  bool UserMode() const override;
  win::OLE_COLOR ContainerBackColor() const override;
  std::int32_t DrawState() const { return drawState_; }
  // The About box window while it is open, else null.
  win::HWND AboutWindow() const;

  // ---- Host notifications ----

  void InitProperties() override;
  void ReadProperties(PropertyBag& bag) override;
  void WriteProperties(PropertyBag& bag) override;
  void Paint() override;
  void Resize() override;
  void Terminate() override;
  void MouseDown(std::int16_t button, std::int16_t shift, float x, float y) override;
  void MouseMove(std::int16_t button, std::int16_t shift, float x, float y) override;
  void MouseUp(std::int16_t button, std::int16_t shift, float x, float y) override;
  void DblClick() override;
  void KeyDown(std::int16_t keyCode, std::int16_t shift) override;
  void KeyPress(std::int16_t keyAscii) override;
  void KeyUp(std::int16_t keyCode, std::int16_t shift) override;
  void AccessKeyPress(std::int16_t keyAscii) override;
  void AmbientChanged(std::string_view name) override;
  void EnterFocus() override {}
  void ExitFocus() override {}

  // The subclassed window procedure's handler: acts on the messages the host does not turn into
  // notifications, then passes every message to the window's previous procedure.
  win::LRESULT HandleMessage(win::HWND hwnd, win::UINT message, win::WPARAM wParam,
                             win::LPARAM lParam);

  // Replaces the site window's procedure (once; a second call changes nothing) and undoes that.
  // Construction and Terminate call them.
  void StartSubclass();
  void StopSubclass();

 private:
  // Properties.
  void Changed(std::string_view name);
  template <class T>
  void StoreAndRepaint(T& field, T value, std::string_view name);
  void ApplyCaption(std::string_view caption);
  void DeriveColorsFromBackColor();
  void SetPictureField(StdPicture& field, const StdPicture& picture, std::string_view name,
                       std::string_view errorSource);
  std::string InstanceName() const;

  // Persistence.
  void ReadColors(PropertyBag& bag);
  void ReadStyleDependent(PropertyBag& bag);

  // Input.
  bool Inside(float x, float y) const;
  void SetDrawState(std::int32_t state);
  void ChangeDrawState(std::int32_t state);
  void SetPointerCapture(bool capture);
  void RaiseMouseOver();
  void RaiseMouseOut();
  void FireClickAndTrack();
  void RestorePreviousFocus();
  std::int32_t RestingState() const;

  // Window messages.
  void OnSetFocus();
  void OnKillFocus();
  void OnEnable(bool enabled);
  void OnSysColorChange();
  void AnswerTooltipTextRequest(win::LPARAM lParam);
  win::LRESULT PassOn(win::HWND hwnd, win::UINT message, win::WPARAM wParam, win::LPARAM lParam);

  // Redraw and subclassing.
  void Redraw(std::int32_t state);
  void BlitToControl(Canvas& canvas);
  void RegisterTooltip();

  ControlSite& site_;

  std::string caption_;
  StdPicture picture_;
  StdPicture pictureDown_;
  StdPicture pictureOver_;
  StdPicture pictureDisabled_;
  bool stealFocus_ = true;
  std::int32_t alignment_ = zonAlignCenter;
  win::OLE_COLOR backColor_ = 0x8000000F;
  win::OLE_COLOR foreColor_ = 0x80000012;
  std::int32_t pictureStyle_ = zonPicStyleNormal;
  bool dropShadow_ = false;
  std::string toolTipText_;
  bool toolTipChanged_ = false;
  std::int32_t pushLook_ = 0;
  bool showFocus_ = true;
  bool showDefault_ = true;
  std::int32_t borderStyle_ = zonBorderNone;
  std::int32_t style_ = zonStyleWin9x;
  bool default_ = false;
  win::OLE_COLOR highlightColor_ = 0x80000014;
  win::OLE_COLOR shadowColor_ = 0x80000010;
  win::OLE_COLOR borderColor_ = 0x80000015;
  win::OLE_COLOR disabledColor_ = 0x80000011;
  win::OLE_COLOR maskColor_ = 0x00FFFF00;
  bool useMaskColor_ = true;
  std::int32_t pictureAlignment_ = zonPicAlignLeft;
  std::int32_t pictureSpacing_ = 5;
  std::string displayCaption_;
  std::int16_t accessKeyPosition_ = 0;

  // Input state.
  std::int32_t drawState_ = DrawStateUp;
  bool suppressRedraw_ = true;
  bool mouseIsDown_ = false;
  bool spaceIsDown_ = false;
  bool hasFocus_ = false;
  bool pointerInside_ = false;
  std::int16_t lastMouseButton_ = 0;
  win::HWND previousFocusWindow_ = nullptr;
  std::string typedKeys_;

  // Subclassing and tooltip.
  win::WNDPROC previousWindowProc_ = nullptr;
  std::string tooltipTextBuffer_;
  int tooltipRegistrations_ = 0;

  win::HWND aboutWindow_ = nullptr;
  bool terminated_ = false;
};

// The replacement window procedure: finds the control through the window's user data.
win::LRESULT GLYPHON_CALLBACK ButtonWindowProc(win::HWND hwnd, win::UINT message,
                                               win::WPARAM wParam, win::LPARAM lParam);

}  // namespace glyphon
