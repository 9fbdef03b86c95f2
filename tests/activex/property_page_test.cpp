// The General property page as a property frame uses it: the control names the page, the page is
// created by that class identifier, given a site and the control, and activated in the frame's
// window; the tests then drive its system controls as a user does.
#include <gtest/gtest.h>

// The page's model (for its controls' bounds) before windows.h, whose macros it must not meet.
#include "propertypage/general_page.h"
#include "tests/activex/page_frame.h"
#include "tests/activex/test_container.h"

namespace glyphon::activex::testing {
namespace {

using Strings = std::vector<std::string>;

constexpr RECT kPagePosition{0, 0, GeneralPage::kWidth, GeneralPage::kHeight};

class PropertyPageTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ComPtr<ISpecifyPropertyPages> specify;
    ASSERT_HRESULT_SUCCEEDED(button_.Object()->QueryInterface(IID_PPV_ARGS(&specify)));
    CAUUID pages{};
    ASSERT_HRESULT_SUCCEEDED(specify->GetPages(&pages));
    ASSERT_EQ(pages.cElems, 1u);
    const CLSID pageId = pages.pElems[0];
    CoTaskMemFree(pages.pElems);
    ASSERT_HRESULT_SUCCEEDED(
        CoCreateInstance(pageId, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&page_)));
    ASSERT_HRESULT_SUCCEEDED(page_->SetPageSite(&site_));
  }

  void TearDown() override {
    if (!page_) return;
    page_->Deactivate();
    page_->SetObjects(0, nullptr);
    page_->SetPageSite(nullptr);
  }

  void Open(IUnknown* selected) {
    ASSERT_HRESULT_SUCCEEDED(page_->SetObjects(1, &selected));
    Activate();
  }

  void Activate() {
    ASSERT_HRESULT_SUCCEEDED(page_->Activate(frame_.Window(), &kPagePosition, FALSE));
    ASSERT_HRESULT_SUCCEEDED(page_->Show(SW_SHOW));
    pageWindow_ = GetWindow(frame_.Window(), GW_CHILD);
    ASSERT_NE(pageWindow_, nullptr);
  }

  // The control a label's access key leads to: the next one in tab order.
  HWND ControlAfter(const wchar_t* label) const {
    return GetWindow(FindWindowExW(pageWindow_, nullptr, L"Static", label), GW_HWNDNEXT);
  }

  // What the user's choice of an item tells the page.
  void Pick(const wchar_t* label, int item) const {
    HWND list = ControlAfter(label);
    SendMessageW(list, CB_SETCURSEL, item, 0);
    SendMessageW(pageWindow_, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
  }

  Form form_;
  HostedGlyphon button_{form_.Window()};
  Form frame_;
  PageSite site_;
  ComPtr<IPropertyPage> page_;
  HWND pageWindow_ = nullptr;
};

TEST_F(PropertyPageTest, PageInfoIsTheGeneralPageAndItsSize) {
  PROPPAGEINFO info{};
  ASSERT_HRESULT_SUCCEEDED(page_->GetPageInfo(&info));
  EXPECT_STREQ(info.pszTitle, L"General");
  EXPECT_EQ(info.size.cx, 464);
  EXPECT_EQ(info.size.cy, 226);
  EXPECT_EQ(info.pszHelpFile, nullptr);
  CoTaskMemFree(info.pszTitle);
}

TEST_F(PropertyPageTest, SystemControlsInTabOrderShowTheControlsValues) {
  button_.PutText(L"Caption", L"&Save");
  button_.PutLong(L"Style", 1);  // Win3x sets a single border, which the XP style keeps
  button_.PutLong(L"Style", 2);
  button_.PutLong(L"PictureSpacing", 7);
  button_.PutText(L"Tag", L"t");
  button_.PutBool(L"DropShadow", true);
  button_.PutBool(L"UseMaskColor", false);
  button_.PutLong(L"PictureStyle", 2);
  button_.PutLong(L"PictureAlignment", 3);
  button_.PutLong(L"Alignment", 0);
  Open(button_.Dispatch());

  Strings shown;
  for (HWND child : Children(pageWindow_)) shown.push_back(Describe(child));
  // XP styles have no border style and show no default ring.
  EXPECT_EQ(shown, (Strings{"Static &Caption:",
                            "Edit &Save",
                            "Static &Style:",
                            "ComboBox 2 - zonStyleWinXPBlue",
                            "Static &Border Style disabled",
                            "ComboBox 1 - zonBorderSingle disabled",
                            "Static A&lignment:",
                            "ComboBox 0 - zonAlignLeft",
                            "Static Pictu&re Style:",
                            "ComboBox 2 - zonPicStylePopup",
                            "Static &Picture Alignment:",
                            "ComboBox 3 - zonPicAlignTop",
                            "Static P&icture Spacing:",
                            "Edit 7",
                            "Static &Tag:",
                            "Edit t",
                            "Static Display Options:",
                            "Button &Enabled checked",
                            "Button Show&Default checked disabled",
                            "Button Show&Focus checked",
                            "Button Dr&opShadow checked",
                            "Button &UseMaskColor unchecked"}));

  HWND styles = ControlAfter(L"&Style:");
  ASSERT_EQ(SendMessageW(styles, CB_GETCOUNT, 0, 0), 6);
  wchar_t item[64] = {};
  SendMessageW(styles, CB_GETLBTEXT, 5, reinterpret_cast<LPARAM>(item));
  EXPECT_STREQ(item, L"5 - zonStyleMac8x");
  EXPECT_EQ(SendMessageW(ControlAfter(L"Pictu&re Style:"), CB_GETCOUNT, 0, 0), 4)
      << "the active picture style is not offered";

  // Each system control sits at its model control's bounds (a list's field at the top of its
  // window, which also holds the drop-down part).
  const GeneralPage model;
  const std::vector<HWND> children = Children(pageWindow_);
  ASSERT_EQ(children.size(), model.Controls().size());
  for (std::size_t i = 0; i < children.size(); ++i) {
    RECT place{};
    GetWindowRect(children[i], &place);
    MapWindowPoints(nullptr, pageWindow_, reinterpret_cast<POINT*>(&place), 2);
    const win::RECT& bounds = model.Controls()[i]->Bounds();
    EXPECT_EQ((std::vector<long>{place.left, place.top, place.right, place.bottom}),
              (std::vector<long>{bounds.left, bounds.top, bounds.right, bounds.bottom}))
        << model.Controls()[i]->Name();
  }
}

TEST_F(PropertyPageTest, EditsMarkThePageDirtyAndApplyWritesThem) {
  Open(button_.Dispatch());
  EXPECT_EQ(page_->IsPageDirty(), S_FALSE);
  EXPECT_EQ(page_->Apply(), S_OK);
  EXPECT_TRUE(button_.TakeLog().empty()) << "an unchanged page writes nothing";

  SetWindowTextW(ControlAfter(L"&Caption:"), L"&Go");
  EXPECT_EQ(page_->IsPageDirty(), S_OK);
  EXPECT_EQ(site_.statusChanges, std::vector<DWORD>{PROPPAGESTATUS_DIRTY});
  EXPECT_EQ(button_.GetText(L"Caption"), L"Command1") << "nothing is written before Apply";

  {
    PromptAnswer yes(IDYES);
    Pick(L"&Style:", 1);
    EXPECT_EQ(yes.text, L"Set all default properties for this style?");
    EXPECT_EQ(yes.title, L"zonGlyphon");
    EXPECT_EQ(yes.owner, GetAncestor(pageWindow_, GA_ROOT));
  }
  // The Win3x defaults reached the system controls.
  EXPECT_EQ(Describe(ControlAfter(L"&Border Style")), "ComboBox 1 - zonBorderSingle");
  HWND dropShadow = FindWindowExW(pageWindow_, nullptr, L"Button", L"Dr&opShadow");
  SendMessageW(dropShadow, BM_CLICK, 0, 0);
  EXPECT_EQ(SendMessageW(dropShadow, BM_GETCHECK, 0, 0), BST_CHECKED);
  EXPECT_EQ(site_.statusChanges.size(), 1u) << "told once, when the page became dirty";

  ASSERT_EQ(page_->Apply(), S_OK);
  EXPECT_EQ(page_->IsPageDirty(), S_FALSE);
  EXPECT_EQ(button_.GetText(L"Caption"), L"&Go");
  EXPECT_EQ(button_.GetLong(L"Style"), 1);
  EXPECT_EQ(button_.GetLong(L"BorderStyle"), 1);
  EXPECT_TRUE(button_.GetBool(L"DropShadow"));
}

TEST_F(PropertyPageTest, RefusedKeysNeverReachThePictureSpacingBox) {
  Open(button_.Dispatch());
  HWND spacing = ControlAfter(L"P&icture Spacing:");
  SendMessageW(spacing, WM_CHAR, 'x', 0);
  EXPECT_EQ(TextOf(spacing), L"5");
  EXPECT_EQ(page_->IsPageDirty(), S_FALSE);
  // The page selected the whole text, so a digit replaces it.
  SendMessageW(spacing, WM_CHAR, '8', 0);
  SendMessageW(spacing, WM_CHAR, '-', 0);
  EXPECT_EQ(TextOf(spacing), L"8");
  ASSERT_EQ(page_->Apply(), S_OK);
  EXPECT_EQ(button_.GetLong(L"PictureSpacing"), 8);

  // Other boxes take any key, and the caret stays where typing left it.
  HWND tag = ControlAfter(L"&Tag:");
  for (const char key : {'x', '-', 'y'}) SendMessageW(tag, WM_CHAR, key, 0);
  EXPECT_EQ(TextOf(tag), L"x-y");
}

TEST_F(PropertyPageTest, AnErrorRaisedDuringApplyReachesTheFrame) {
  constexpr HRESULT kReadOnly = static_cast<HRESULT>(0x800A017F);
  EXCEPINFO refusal{};
  refusal.scode = kReadOnly;
  refusal.bstrSource = SysAllocString(L"Command1");
  refusal.bstrDescription = SysAllocString(L"Property is read-only");
  VetoingObject extended(*button_.Dispatch(), L"Style", refusal);
  Open(&extended);

  SetWindowTextW(ControlAfter(L"&Caption:"), L"Stop");
  EXPECT_EQ(page_->Apply(), kReadOnly);
  ComPtr<IErrorInfo> info;
  ASSERT_EQ(GetErrorInfo(0, &info), S_OK);
  BSTR source = nullptr;
  BSTR description = nullptr;
  info->GetSource(&source);
  info->GetDescription(&description);
  EXPECT_STREQ(source, L"Command1");
  EXPECT_STREQ(description, L"Property is read-only");
  SysFreeString(source);
  SysFreeString(description);
  // Written up to the refused property, and still to be applied.
  EXPECT_EQ(button_.GetText(L"Caption"), L"Stop");
  EXPECT_EQ(page_->IsPageDirty(), S_OK);

  SysFreeString(refusal.bstrSource);
  SysFreeString(refusal.bstrDescription);
}

TEST_F(PropertyPageTest, DeactivatingDestroysTheControlsAndTheEditsOutliveThem) {
  Open(button_.Dispatch());
  SetWindowTextW(ControlAfter(L"&Tag:"), L"kept");
  ASSERT_HRESULT_SUCCEEDED(page_->Deactivate());
  EXPECT_FALSE(IsWindow(pageWindow_));
  EXPECT_EQ(GetWindow(frame_.Window(), GW_CHILD), nullptr);

  Activate();
  EXPECT_EQ(TextOf(ControlAfter(L"&Tag:")), L"kept");
  EXPECT_EQ(page_->IsPageDirty(), S_OK);
}

TEST_F(PropertyPageTest, TabAndAccessKeysMoveBetweenThePagesControlsAndLeaveBoxesSelected) {
  Open(button_.Dispatch());
  HWND caption = ControlAfter(L"&Caption:");
  SetFocus(caption);
  SendMessageW(caption, EM_SETSEL, 2, 2);
  MSG tab{caption, WM_KEYDOWN, VK_TAB, 0, 0, {}};
  EXPECT_EQ(page_->TranslateAccelerator(&tab), S_OK);
  EXPECT_EQ(GetFocus(), ControlAfter(L"&Style:"));
  DWORD start = 1;
  DWORD end = 0;
  SendMessageW(caption, EM_GETSEL, reinterpret_cast<WPARAM>(&start),
               reinterpret_cast<LPARAM>(&end));
  EXPECT_EQ(start, 0u);
  EXPECT_EQ(end, 8u) << "a box that is left has its whole text selected";

  MSG altT{GetFocus(), WM_SYSCHAR, 't', 1 << 29, 0, {}};
  EXPECT_EQ(page_->TranslateAccelerator(&altT), S_OK);
  EXPECT_EQ(GetFocus(), ControlAfter(L"&Tag:"));

  // Enter is the frame's (its OK button), as are keys for other windows.
  MSG enter{GetFocus(), WM_KEYDOWN, VK_RETURN, 0, 0, {}};
  EXPECT_EQ(page_->TranslateAccelerator(&enter), S_FALSE);
  MSG elsewhere{form_.Window(), WM_KEYDOWN, VK_TAB, 0, 0, {}};
  EXPECT_EQ(page_->TranslateAccelerator(&elsewhere), S_FALSE);
}

}  // namespace
}  // namespace glyphon::activex::testing
