// The General page bound to a real button on the in-memory host, with the soft engine's message
// box and beep hooks recording what the page asks and sounds.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "propertypage/general_page.h"
#include "propertypage/glyphon_object.h"
#include "tests/control/hosted_button.h"
#include "tests/support/leak_check.h"

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
  void Select(GlyphonObject& selected) { Select(std::vector<LateBoundObject*>{&selected}); }

  // First, so that it checks what is left once the rest is gone.
  LeakCheck leaks;
  // A button on the in-memory host, and the object the page sees for it.
  HostedButton hosted;
  GlyphonObject object{hosted.button};
  // The answer the next prompts get.
  int answer = win::IDNO;
  std::vector<Prompt> prompts;
  std::vector<win::UINT> beeps;
  GeneralPage page;
};

}  // namespace glyphon::testing
