// The General page for the selected button, drawn with Dear ImGui: each control of the page model
// at its place, the user's edits handed to the model, and an Apply button while the page has
// changes. The style prompt comes up as a real message box of the window.
#pragma once

#include <memory>
#include <string>

#include "apps/demo/demo_session.h"
#include "propertypage/general_page.h"
#include "propertypage/glyphon_object.h"

namespace glyphon::apps {

class PagePanel {
 public:
  explicit PagePanel(DemoSession& session) : session_(session) {}

  // Draws the panel at (left, top) of the window.
  void Draw(float left, float top);

 private:
  void FollowSelection();
  void DrawControl(PageControl& control);
  void DrawTextBox(TextBox& box);

  DemoSession& session_;
  GeneralPage page_;
  std::unique_ptr<GlyphonObject> selected_;
  const Glyphon* selectedButton_ = nullptr;
  std::string error_;
};

}  // namespace glyphon::apps
