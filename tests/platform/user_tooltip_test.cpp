// The tooltip window: tools, relayed mouse messages, the text request and the tip's lifetime.
#include <cstring>

#include "tests/platform/user_test_support.h"

namespace glyphon::win::testing_user {
namespace {

using soft::MouseButton;

HWND tooltipWindow = nullptr;
const char* answer = "Hello";  // null: answer through szText
std::vector<std::pair<NMHDR, WPARAM>> notes;

// A button as the control builds it: mouse messages relayed, the text given on request.
LRESULT GLYPHON_CALLBACK ButtonProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP: {
      MSG relayed{hwnd, message, wParam, lParam, 0, {}};
      SendMessageA(tooltipWindow, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
      break;
    }
    case WM_NOTIFY: {
      auto* header = reinterpret_cast<NMHDR*>(lParam);
      notes.emplace_back(*header, wParam);
      if (header->code == TTN_NEEDTEXTA) {
        auto* info = reinterpret_cast<NMTTDISPINFOA*>(lParam);
        if (answer != nullptr) {
          info->lpszText = const_cast<char*>(answer);
        } else {
          std::strcpy(info->szText, "From the buffer");
        }
      }
      break;
    }
    default: break;
  }
  return RecordingProc(hwnd, message, wParam, lParam);
}

class TooltipTest : public UserTest {
 protected:
  void SetUp() override {
    UserTest::SetUp();
    notes.clear();
    answer = "Hello";
    InitCommonControls();
    form_ = TopLevel({0, 0, 300, 200});
    button_ = Child(form_, {50, 50, 150, 80});
    SetWindowLongPtrA(button_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ButtonProc));
    tip_ = CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, 0, CW_USEDEFAULT,
                           CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr,
                           GetModuleHandleA(nullptr), nullptr);
    ASSERT_NE(tip_, nullptr);
    tooltipWindow = tip_;
    SendMessageA(tip_, TTM_ACTIVATE, TRUE, 0);
    ASSERT_TRUE(SendMessageA(tip_, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&ButtonTool())));
    User().MouseMove({5, 5});
  }
  void TearDown() override {
    DestroyWindow(tip_);
    DestroyWindow(form_);
    UserTest::TearDown();
  }

  TOOLINFOA& ButtonTool() {
    static TOOLINFOA tool;
    tool = TOOLINFOA{sizeof(TOOLINFOA), TTF_IDISHWND, button_, reinterpret_cast<UINT_PTR>(button_),
                     RECT{}, GetModuleHandleA(nullptr), GLYPHON_LPSTR_TEXTCALLBACKA, 0, nullptr};
    return tool;
  }
  soft::TooltipView Tip() const { return *User().TooltipState(tip_); }
  std::vector<UINT> Codes() const {
    std::vector<UINT> codes;
    for (const auto& note : notes) codes.push_back(note.first.code);
    return codes;
  }
  void HoverUntilShown(POINT point) {
    User().MouseMove(point);
    User().AdvanceClock(soft::Tooltip::kInitialDelay);
  }
  // Off the button (the form relays nothing), long enough for the tip to notice.
  void Leave() {
    User().MouseMove({10, 10});
    User().AdvanceClock(soft::Tooltip::kReshowDelay);
  }

  HWND form_ = nullptr;
  HWND button_ = nullptr;
  HWND tip_ = nullptr;
};

TEST_F(TooltipTest, TheTipAsksForItsTextAfterTheHoverDelayAndShowsBelowTheCursor) {
  EXPECT_FALSE(IsWindowVisible(tip_));
  User().MouseMove({60, 60});
  User().AdvanceClock(499);
  EXPECT_TRUE(notes.empty());
  EXPECT_FALSE(Tip().visible);
  User().AdvanceClock(1);
  ASSERT_EQ(Codes(), (std::vector<UINT>{TTN_NEEDTEXTA, TTN_SHOW}));
  const auto& [request, wParam] = notes[0];
  EXPECT_EQ(request.hwndFrom, tip_);
  EXPECT_EQ(request.idFrom, reinterpret_cast<UINT_PTR>(button_));
  EXPECT_EQ(wParam, reinterpret_cast<WPARAM>(button_));
  const soft::TooltipView view = Tip();
  EXPECT_TRUE(view.visible);
  EXPECT_TRUE(IsWindowVisible(tip_));
  EXPECT_EQ(view.text, "Hello");
  EXPECT_EQ(view.rect.left, 60);
  EXPECT_EQ(view.rect.top, 80);
  EXPECT_GT(view.rect.right, view.rect.left);
  // The tip is not in the way of the pointer.
  EXPECT_EQ(WindowFromPoint({view.rect.left + 1, view.rect.top + 1}), form_);

  // Painted in the tooltip colours inside a one-pixel frame, with the text on top.
  const auto pixels = User().WindowPixels(tip_);
  const auto background = soft::RgbToPixel32(GetSysColor(COLOR_INFOBK));
  EXPECT_EQ(pixels->GetPixel(0, 0), soft::RgbToPixel32(GetSysColor(COLOR_WINDOWFRAME)));
  EXPECT_EQ(pixels->GetPixel(1, 1), background);
#ifndef _WIN32  // the Windows build's soft engine has no glyphs to draw
  bool inked = false;
  for (int y = 3; y < pixels->Height() - 3; ++y) {
    for (int x = 3; x < pixels->Width() - 3; ++x) {
      inked = inked || pixels->GetPixel(x, y) != background;
    }
  }
  EXPECT_TRUE(inked);
#endif
}

TEST_F(TooltipTest, MovingRestartsTheDelayAndTheAnswerMayComeInTheBuffer) {
  answer = nullptr;
  User().MouseMove({60, 60});
  User().AdvanceClock(400);
  User().MouseMove({61, 60});
  User().AdvanceClock(400);
  EXPECT_FALSE(Tip().visible);
  User().AdvanceClock(100);
  EXPECT_EQ(Tip().text, "From the buffer");
}

TEST_F(TooltipTest, AButtonPressHidesTheTipUntilThePointerComesBack) {
  HoverUntilShown({60, 60});
  ASSERT_TRUE(Tip().visible);
  notes.clear();
  User().MouseDown(MouseButton::Left, {60, 60});
  EXPECT_FALSE(Tip().visible);
  EXPECT_FALSE(IsWindowVisible(tip_));
  EXPECT_EQ(Codes(), (std::vector<UINT>{TTN_POP}));
  User().MouseUp(MouseButton::Left, {60, 60});
  HoverUntilShown({70, 65});
  User().AdvanceClock(1000);
  EXPECT_FALSE(Tip().visible);  // still on the same tool

  Leave();
  HoverUntilShown({70, 65});
  EXPECT_TRUE(Tip().visible);
}

TEST_F(TooltipTest, LeavingTheToolOrWaitingHidesTheTip) {
  // A relayed move outside the tool (the button holds the mouse) hides at once.
  HoverUntilShown({60, 60});
  SetCapture(button_);
  User().MouseMove({10, 10});
  EXPECT_FALSE(Tip().visible);
  ReleaseCapture();

  // Without a relayed move the tip notices within the reshow delay.
  HoverUntilShown({60, 60});
  ASSERT_TRUE(Tip().visible);
  User().MouseMove({10, 10});
  EXPECT_TRUE(Tip().visible);
  User().AdvanceClock(soft::Tooltip::kReshowDelay);
  EXPECT_FALSE(Tip().visible);

  // Resting on the tool, the tip goes by itself and does not come back.
  HoverUntilShown({60, 60});
  User().AdvanceClock(soft::Tooltip::kAutoPopDelay - 1);
  EXPECT_TRUE(Tip().visible);
  User().AdvanceClock(1);
  EXPECT_FALSE(Tip().visible);
  User().AdvanceClock(soft::Tooltip::kAutoPopDelay);
  EXPECT_FALSE(Tip().visible);
}

TEST_F(TooltipTest, NoTipWhenInactiveWithoutTextOrAfterTheToolIsDeleted) {
  SendMessageA(tip_, TTM_ACTIVATE, FALSE, 0);
  HoverUntilShown({60, 60});
  EXPECT_TRUE(notes.empty());
  SendMessageA(tip_, TTM_ACTIVATE, TRUE, 0);
  Leave();

  answer = "";
  HoverUntilShown({60, 60});
  EXPECT_EQ(Codes(), (std::vector<UINT>{TTN_NEEDTEXTA}));
  EXPECT_FALSE(Tip().visible);
  Leave();

  answer = "Hello";
  SendMessageA(tip_, TTM_DELTOOLA, 0, reinterpret_cast<LPARAM>(&ButtonTool()));
  notes.clear();
  HoverUntilShown({60, 60});
  EXPECT_TRUE(notes.empty());
}

TEST_F(TooltipTest, RectangleToolsShowTheirOwnText) {
  char text[] = "Fixed";
  TOOLINFOA area{sizeof(TOOLINFOA), 0, form_, 1, RECT{200, 100, 250, 150}, nullptr, text, 0,
                 nullptr};
  ASSERT_TRUE(SendMessageA(tip_, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&area)));
  User().MouseMove({210, 110});
  MSG relayed{form_, WM_MOUSEMOVE, 0, MAKELPARAM(210, 110), 0, {}};
  SendMessageA(tip_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
  User().AdvanceClock(soft::Tooltip::kInitialDelay);
  EXPECT_TRUE(Tip().visible);
  EXPECT_EQ(Tip().text, "Fixed");
  EXPECT_FALSE(User().TooltipState(form_).has_value());
}

}  // namespace
}  // namespace glyphon::win::testing_user
