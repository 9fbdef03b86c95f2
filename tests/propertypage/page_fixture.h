// The General page bound to real buttons on the in-memory host, with the soft engine's message
// box and beep hooks recording what the page asks and sounds.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "propertypage/general_page.h"
#include "propertypage/glyphon_object.h"
#include "tests/control/hosted_button.h"

namespace glyphon::testing {

struct Prompt {
  win::HWND owner;
  std::string text;
  std::string caption;  // "<none>" when the page passed no title
  win::UINT type;
};

class PageTest : public ::testing::Test {
 protected:
  PageTest();
  ~PageTest() override;

  // Shows the buttons on the page, first one first.
  void Select(std::vector<LateBoundObject*> objects);
  void Select(GlyphonObject& object) { Select(std::vector<LateBoundObject*>{&object}); }

  // The answer the next prompts get.
  int answer = win::IDNO;
  std::vector<Prompt> prompts;
  std::vector<win::UINT> beeps;
  GeneralPage page;
};

}  // namespace glyphon::testing
