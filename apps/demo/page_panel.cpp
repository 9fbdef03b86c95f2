#include "apps/demo/page_panel.h"

#include <imgui.h>

#include <array>
#include <cstring>

#include "platform/automation_error.h"

namespace glyphon::apps {

namespace {

constexpr float kApplyHeight = 32;

std::string Id(const PageControl& control) { return "##" + std::string(control.Name()); }

// Typed characters go through the box's key filter, which may refuse them.
int FilterCharacter(ImGuiInputTextCallbackData* data) {
  auto& box = *static_cast<TextBox*>(data->UserData);
  if (data->EventChar >= 0x80) return 1;
  auto keyAscii = static_cast<std::int16_t>(data->EventChar);
  box.KeyPress(keyAscii);
  if (keyAscii == 0) return 1;
  data->EventChar = static_cast<ImWchar>(keyAscii);
  return 0;
}

}  // namespace

void PagePanel::FollowSelection() {
  DemoButton* selected = session_.Selected();
  const Glyphon* button = selected != nullptr ? selected->button.get() : nullptr;
  if (button == selectedButton_) return;
  selectedButton_ = button;
  selected_ = button != nullptr ? std::make_unique<GlyphonObject>(*selected->button) : nullptr;
  LateBoundObject* const selection[] = {selected_.get()};
  page_.SelectionChanged(std::span<LateBoundObject* const>(selection, selected_ ? 1 : 0));
  error_.clear();
}

void PagePanel::Draw(float left, float top) {
  FollowSelection();
  ImGui::SetNextWindowPos(ImVec2(left, top));
  ImGui::SetNextWindowSize(
      ImVec2(GeneralPage::kWidth + 16, GeneralPage::kHeight + kApplyHeight + 64));
  const DemoButton* selected = session_.Selected();
  const std::string title =
      "General: " + (selected != nullptr ? selected->site->Name() : std::string("no button"));
  ImGui::Begin((title + "###General").c_str(), nullptr,
               ImGuiWindowFlags_NoMove | ImGuiWindowFlags_NoResize | ImGuiWindowFlags_NoCollapse);
  const ImVec2 origin = ImGui::GetCursorPos();
  for (PageControl* control : page_.Controls()) {
    const win::RECT& bounds = control->Bounds();
    ImGui::SetCursorPos(ImVec2(origin.x + static_cast<float>(bounds.left),
                               origin.y + static_cast<float>(bounds.top)));
    ImGui::PushItemWidth(static_cast<float>(bounds.right - bounds.left));
    ImGui::BeginDisabled(!control->Enabled() || selected_ == nullptr);
    DrawControl(*control);
    ImGui::EndDisabled();
    ImGui::PopItemWidth();
  }
  ImGui::SetCursorPos(ImVec2(origin.x, origin.y + GeneralPage::kHeight + 8));
  ImGui::BeginDisabled(!page_.Changed());
  if (ImGui::Button("Apply")) {
    try {
      page_.ApplyChanges();
      error_.clear();
    } catch (const AutomationError& error) {
      error_ = error.Source() + ": " + error.Description();
    }
  }
  ImGui::EndDisabled();
  if (!error_.empty()) {
    ImGui::SameLine();
    ImGui::TextColored(ImVec4(0.7f, 0, 0, 1), "%s", error_.c_str());
  }
  ImGui::End();
}

void PagePanel::DrawControl(PageControl& control) {
  switch (control.Kind()) {
    case PageControlKind::Label:
      ImGui::TextUnformatted(control.DisplayCaption().c_str());
      return;
    case PageControlKind::TextBox:
      DrawTextBox(static_cast<TextBox&>(control));
      return;
    case PageControlKind::DropDownList: {
      auto& list = static_cast<DropDownList&>(control);
      const int index = list.ListIndex();
      const char* shown = index >= 0 ? list.Items()[static_cast<std::size_t>(index)].c_str() : "";
      if (ImGui::BeginCombo(Id(list).c_str(), shown)) {
        for (std::size_t i = 0; i < list.Items().size(); ++i) {
          if (ImGui::Selectable(list.Items()[i].c_str(), static_cast<int>(i) == index)) {
            list.SetListIndex(static_cast<int>(i));
          }
        }
        ImGui::EndCombo();
      }
      return;
    }
    case PageControlKind::CheckBox: {
      auto& box = static_cast<CheckBox&>(control);
      bool checked = box.Value() != CheckBox::kUnchecked;
      if (ImGui::Checkbox((control.DisplayCaption() + Id(control)).c_str(), &checked)) {
        box.Toggle();
      }
      return;
    }
  }
}

void PagePanel::DrawTextBox(TextBox& box) {
  std::array<char, 1024> buffer{};
  std::strncpy(buffer.data(), box.Text().c_str(), buffer.size() - 1);
  if (ImGui::InputText(Id(box).c_str(), buffer.data(), buffer.size(),
                       ImGuiInputTextFlags_CallbackCharFilter, &FilterCharacter, &box)) {
    box.SetText(buffer.data());
  }
  if (ImGui::IsItemDeactivated()) box.LostFocus();
}

}  // namespace glyphon::apps
