#include "tests/propertypage/page_fixture.h"

namespace glyphon::testing {

PageTest::PageTest() {
  win::soft::UserHooks& hooks = HostedButton::User().Hooks();
  hooks.messageBox = [this](win::HWND owner, win::LPCSTR text, win::LPCSTR caption,
                            win::UINT type) {
    prompts.push_back(Prompt{owner, text, caption != nullptr ? caption : "<none>", type});
    return answer;
  };
  hooks.messageBeep = [this](win::UINT type) { beeps.push_back(type); };
}

PageTest::~PageTest() { HostedButton::User().Hooks() = win::soft::UserHooks{}; }

void PageTest::Select(std::vector<LateBoundObject*> objects) { page.SelectionChanged(objects); }

}  // namespace glyphon::testing
