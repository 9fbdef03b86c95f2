// The controls of a property page as data a view binds to: a label, a text box, a drop-down list
// and a check box, each with its name, caption, access key, place on the page and enabled state.
//
// Assignments behave as the controls of a form do: changing a box's text fires its Change
// handler, changing a list's index or a check box's value fires its Click handler; assigning the
// value a control already has fires nothing. Every change of state is reported to the page's
// ControlObserver, so a view repaints or updates just that control.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win32.h"

namespace glyphon {

enum class PageControlKind : std::uint8_t { Label, TextBox, DropDownList, CheckBox };

class PageControl;

class ControlObserver {
 public:
  virtual void ControlChanged(const PageControl& control) = 0;

 protected:
  ~ControlObserver() = default;
};

// Name, kind, caption and place of one control; its access key comes from the caption.
struct PageControlInfo {
  std::string_view name;
  PageControlKind kind;
  std::string_view caption;  // empty for boxes and lists
  win::RECT bounds;          // in pixels on the page
};

class PageControl {
 public:
  PageControl(const PageControlInfo& info, ControlObserver& observer);
  virtual ~PageControl() = default;
  PageControl(const PageControl&) = delete;
  PageControl& operator=(const PageControl&) = delete;

  std::string_view Name() const { return info_.name; }
  PageControlKind Kind() const { return info_.kind; }
  // As written, with the "&" before the access key (what a Win32 static or button shows).
  std::string_view Caption() const { return info_.caption; }
  // Without the "&", for views that underline the key themselves.
  const std::string& DisplayCaption() const { return displayCaption_; }
  // The character after the "&"; 0 when the caption has none.
  char AccessKey() const { return accessKey_; }
  const win::RECT& Bounds() const { return info_.bounds; }

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);

 protected:
  void NotifyChanged() const { observer_.ControlChanged(*this); }

 private:
  PageControlInfo info_;
  ControlObserver& observer_;
  std::string displayCaption_;
  char accessKey_ = 0;
  bool enabled_ = true;
};

class Label final : public PageControl {
 public:
  // target: the control the label's access key moves the focus to; null for a group title.
  Label(const PageControlInfo& info, ControlObserver& observer, const PageControl* target)
      : PageControl(info, observer), target_(target) {}

  const PageControl* Target() const { return target_; }

 private:
  const PageControl* target_;
};

class TextBox final : public PageControl {
 public:
  using PageControl::PageControl;

  const std::string& Text() const { return text_; }
  // Also what a view calls after the user edited the text.
  void SetText(std::string_view text);

  int SelStart() const { return selStart_; }
  int SelLength() const { return selLength_; }
  // Clamped to the text, as an edit control clamps its selection.
  void SetSelection(int start, int length);
  void SelectAllText() { SetSelection(0, static_cast<int>(text_.size())); }

  // A typed character before it reaches the text: the handler may replace keyAscii with 0, and a
  // view inserts the character only when it is still non-zero.
  void KeyPress(std::int16_t& keyAscii) const;
  void LostFocus() const;

  std::function<void()> onChange;
  std::function<void(std::int16_t& keyAscii)> onKeyPress;
  std::function<void()> onLostFocus;

 private:
  std::string text_;
  int selStart_ = 0;
  int selLength_ = 0;
};

class DropDownList final : public PageControl {
 public:
  static constexpr int kNoSelection = -1;

  using PageControl::PageControl;

  const std::vector<std::string>& Items() const { return items_; }
  void Clear();
  void AddItem(std::string item);

  int ListIndex() const { return listIndex_; }
  // An index with no item selects nothing (kNoSelection). Also what a view calls when the user
  // picks an item.
  void SetListIndex(int index);

  std::function<void()> onClick;

 private:
  std::vector<std::string> items_;
  int listIndex_ = kNoSelection;
};

class CheckBox final : public PageControl {
 public:
  static constexpr std::int16_t kUnchecked = 0;
  static constexpr std::int16_t kChecked = 1;

  using PageControl::PageControl;

  std::int16_t Value() const { return value_; }
  void SetValue(std::int16_t value);
  // What a click of the user does.
  void Toggle() { SetValue(value_ == kUnchecked ? kChecked : kUnchecked); }

  std::function<void()> onClick;

 private:
  std::int16_t value_ = kUnchecked;
};

}  // namespace glyphon
