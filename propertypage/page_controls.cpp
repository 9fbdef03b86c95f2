#include "propertypage/page_controls.h"

#include <algorithm>
#include <utility>

#include "control/access_key.h"

namespace glyphon {

PageControl::PageControl(const PageControlInfo& info, ControlObserver& observer)
    : info_(info), observer_(observer) {
  AccessKeyParse parsed = ParseAccessKey(info.caption);
  displayCaption_ = std::move(parsed.displayCaption);
  if (parsed.keys && !parsed.keys->empty()) accessKey_ = parsed.keys->front();
}

void PageControl::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  NotifyChanged();
}

void TextBox::SetText(std::string_view text) {
  if (text_ == text) return;
  text_ = std::string(text);
  // An edit control keeps its selection inside the text.
  const int length = static_cast<int>(text_.size());
  selStart_ = std::min(selStart_, length);
  selLength_ = std::min(selLength_, length - selStart_);
  NotifyChanged();
  if (onChange) onChange();
}

void TextBox::SetSelection(int start, int length) {
  const int textLength = static_cast<int>(text_.size());
  start = std::clamp(start, 0, textLength);
  length = std::clamp(length, 0, textLength - start);
  if (start == selStart_ && length == selLength_) return;
  selStart_ = start;
  selLength_ = length;
  NotifyChanged();
}

void TextBox::KeyPress(std::int16_t& keyAscii) const {
  if (onKeyPress) onKeyPress(keyAscii);
}

void TextBox::LostFocus() const {
  if (onLostFocus) onLostFocus();
}

void DropDownList::Clear() {
  if (items_.empty() && listIndex_ == kNoSelection) return;
  items_.clear();
  listIndex_ = kNoSelection;
  NotifyChanged();
}

void DropDownList::AddItem(std::string item) {
  items_.push_back(std::move(item));
  NotifyChanged();
}

void DropDownList::SetListIndex(int index) {
  if (index < 0 || index >= static_cast<int>(items_.size())) index = kNoSelection;
  if (index == listIndex_) return;
  listIndex_ = index;
  NotifyChanged();
  if (onClick) onClick();
}

void CheckBox::SetValue(std::int16_t value) {
  // Only checked and unchecked: the page has no use for the grey third state.
  value = value != kUnchecked ? kChecked : kUnchecked;
  if (value == value_) return;
  value_ = value;
  NotifyChanged();
  if (onClick) onClick();
}

}  // namespace glyphon
