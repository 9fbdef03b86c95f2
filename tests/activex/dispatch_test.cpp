// Every property through IDispatch by name on a control created by its programmatic identifier
// and active in a form: defaults of a new instance, setter rules, and errors as clients see them.
#include <gtest/gtest.h>

#include "tests/activex/test_container.h"

namespace glyphon::activex::testing {
namespace {

constexpr long kErrorNumber = static_cast<long>(0x800403E8);

long Color(unsigned long value) { return static_cast<long>(value); }

class DispatchTest : public ::testing::Test {
 protected:
  Form form_;
  HostedGlyphon button_{form_.Window()};
};

TEST_F(DispatchTest, NewInstanceDefaults) {
  struct Expected {
    const wchar_t* name;
    long value;
  };
  for (const Expected& expected : {Expected{L"Alignment", 2},
                                   {L"BackColor", Color(0x8000000F)},
                                   {L"BorderColor", Color(0x80000015)},
                                   {L"BorderStyle", 0},
                                   {L"DisabledColor", Color(0x80000011)},
                                   {L"ForeColor", Color(0x80000012)},
                                   {L"HighlightColor", Color(0x80000014)},
                                   {L"MaskColor", 0x00FFFF00},
                                   {L"MousePointer", 0},
                                   {L"PictureAlignment", 0},
                                   {L"PictureSpacing", 5},
                                   {L"PictureStyle", 0},
                                   {L"ShadowColor", Color(0x80000010)},
                                   {L"Style", 0}}) {
    EXPECT_EQ(button_.GetLong(expected.name), expected.value) << expected.name;
  }
  for (const auto& [name, value] : {std::pair{L"Default", false},
                                    {L"DropShadow", false},
                                    {L"Enabled", true},
                                    {L"RightToLeft", false},
                                    {L"ShowDefault", true},
                                    {L"ShowFocus", true},
                                    {L"StealFocus", true},
                                    {L"UseMaskColor", true}}) {
    EXPECT_EQ(button_.GetBool(name), value);
  }
  // The caption is the name the container gave the instance; names are case-insensitive.
  EXPECT_EQ(button_.GetText(L"caption"), L"Command1");
  EXPECT_EQ(button_.GetText(L"Tag"), L"");
  EXPECT_EQ(button_.GetText(L"ToolTipText"), L"");
  EXPECT_EQ(button_.GetLong(L"hWnd"),
            static_cast<long>(reinterpret_cast<INT_PTR>(button_.Window())));

  VARIANT picture = button_.Get(L"Picture");
  EXPECT_EQ(picture.vt, VT_DISPATCH);
  EXPECT_EQ(picture.pdispVal, nullptr);
  // The font is the container's ambient font.
  VARIANT font = button_.Get(L"Font");
  ASSERT_EQ(font.vt, VT_DISPATCH);
  ComPtr<IFont> fontObject;
  ASSERT_HRESULT_SUCCEEDED(font.pdispVal->QueryInterface(IID_PPV_ARGS(&fontObject)));
  BSTR name = nullptr;
  fontObject->get_Name(&name);
  EXPECT_STREQ(name, L"Tahoma");
  SysFreeString(name);
  VariantClear(&font);
}

TEST_F(DispatchTest, BackColorDerivesTheOtherColoursAndNotifiesOnlyItself) {
  button_.PutLong(L"BackColor", 0x00336699);
  EXPECT_EQ(button_.GetLong(L"BackColor"), 0x00336699);
  const long shadow = button_.GetLong(L"ShadowColor");
  EXPECT_NE(shadow, Color(0x80000010));
  EXPECT_NE(button_.GetLong(L"HighlightColor"), Color(0x80000014));
  EXPECT_NE(button_.GetLong(L"BorderColor"), Color(0x80000015));
  EXPECT_EQ(button_.GetLong(L"DisabledColor"), shadow);
  EXPECT_EQ(button_.TakeLog(), std::vector<std::string>{"changed BackColor"});
}

TEST_F(DispatchTest, DisablingOrNotStealingFocusClearsDefault) {
  button_.PutBool(L"Default", true);
  button_.PutBool(L"Enabled", false);
  EXPECT_FALSE(button_.GetBool(L"Default"));
  EXPECT_FALSE(IsWindowEnabled(button_.Window()));
  button_.PutBool(L"Enabled", true);
  EXPECT_FALSE(button_.GetBool(L"Default"));

  button_.PutBool(L"Default", true);
  button_.TakeLog();
  button_.PutBool(L"StealFocus", false);
  EXPECT_FALSE(button_.GetBool(L"Default"));
  EXPECT_FALSE(button_.State().extenderTabStop);
  EXPECT_EQ(button_.TakeLog(), (std::vector<std::string>{"changed Default", "changed StealFocus"}));
}

TEST_F(DispatchTest, ReadOnlyAndUnknownMembers) {
  EXPECT_EQ(button_.Put(L"ShowDefault", BoolValue(false)), DISP_E_MEMBERNOTFOUND);
  EXPECT_TRUE(button_.GetBool(L"ShowDefault"));
  DISPID id = 0;
  LPOLESTR name = const_cast<LPOLESTR>(L"NoSuchProperty");
  EXPECT_EQ(button_.Dispatch()->GetIDsOfNames(IID_NULL, &name, 1, 0, &id), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(id, DISPID_UNKNOWN);
  EXPECT_HRESULT_SUCCEEDED(button_.Call(L"Refresh"));
}

TEST_F(DispatchTest, BorderStyleOutsideWin3xRaisesTheControlsError) {
  EXCEPINFO exception{};
  ASSERT_EQ(button_.Put(L"BorderStyle", LongValue(1), &exception), DISP_E_EXCEPTION);
  EXPECT_EQ(exception.scode, kErrorNumber);
  EXPECT_EQ(exception.wCode, 0);
  EXPECT_STREQ(exception.bstrSource, L"BorderStyle");
  EXPECT_STREQ(exception.bstrDescription, L"BorderStyle can only be set for the Win3x style.");
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrDescription);
  EXPECT_EQ(button_.GetLong(L"BorderStyle"), 0);

  // The same error through the thread's error object, which the control supports.
  ComPtr<ISupportErrorInfo> support;
  ASSERT_HRESULT_SUCCEEDED(button_.Dispatch()->QueryInterface(IID_PPV_ARGS(&support)));
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IDispatch), S_OK);
  ComPtr<IErrorInfo> info;
  ASSERT_EQ(GetErrorInfo(0, &info), S_OK);
  BSTR description = nullptr;
  info->GetDescription(&description);
  EXPECT_STREQ(description, L"BorderStyle can only be set for the Win3x style.");
  SysFreeString(description);
}

TEST_F(DispatchTest, PicturesMustBeBitmapsOrIconsAndPictureOverReportsPicture) {
  HDC recorder = CreateMetaFileW(nullptr);
  Rectangle(recorder, 0, 0, 10, 10);
  PICTDESC metafile{};
  metafile.cbSizeofstruct = sizeof metafile;
  metafile.picType = PICTYPE_METAFILE;
  metafile.wmf.hmeta = CloseMetaFile(recorder);
  metafile.wmf.xExt = 100;
  metafile.wmf.yExt = 100;
  ComPtr<IPictureDisp> picture;
  ASSERT_HRESULT_SUCCEEDED(OleCreatePictureIndirect(&metafile, IID_IPictureDisp, TRUE, &picture));

  EXCEPINFO exception{};
  ASSERT_EQ(button_.PutRef(L"PictureOver", picture.Get(), &exception), DISP_E_EXCEPTION);
  EXPECT_EQ(exception.scode, kErrorNumber);
  EXPECT_STREQ(exception.bstrSource, L"Picture");
  EXPECT_STREQ(exception.bstrDescription,
               L"Picture, PictureOver, PictureDown, and PictureDisabled Properties must be "
               L"Bitmap or Icon.");
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrDescription);

  // A bitmap is taken; the client may release its own object afterwards.
  PICTDESC bitmap{};
  bitmap.cbSizeofstruct = sizeof bitmap;
  bitmap.picType = PICTYPE_BITMAP;
  bitmap.bmp.hbitmap = CreateBitmap(16, 16, 1, 32, nullptr);
  ComPtr<IPictureDisp> bitmapPicture;
  ASSERT_HRESULT_SUCCEEDED(
      OleCreatePictureIndirect(&bitmap, IID_IPictureDisp, TRUE, &bitmapPicture));
  ASSERT_HRESULT_SUCCEEDED(button_.PutRef(L"PictureDown", bitmapPicture.Get()));
  bitmapPicture.Reset();
  VARIANT stored = button_.Get(L"PictureDown");
  ASSERT_EQ(stored.vt, VT_DISPATCH);
  ComPtr<IPicture> storedPicture;
  ASSERT_HRESULT_SUCCEEDED(stored.pdispVal->QueryInterface(IID_PPV_ARGS(&storedPicture)));
  SHORT type = 0;
  storedPicture->get_Type(&type);
  EXPECT_EQ(type, PICTYPE_BITMAP);
  VariantClear(&stored);
}

struct FontFacts {
  std::wstring name;
  LONGLONG size;
  BOOL italic;
};

FontFacts FactsOf(IUnknown* font) {
  ComPtr<IFont> object;
  font->QueryInterface(IID_PPV_ARGS(&object));
  FontFacts facts{};
  BSTR name = nullptr;
  object->get_Name(&name);
  facts.name = name != nullptr ? name : L"";
  SysFreeString(name);
  CY size{};
  object->get_Size(&size);
  facts.size = size.int64;
  object->get_Italic(&facts.italic);
  return facts;
}

// The system's font object may report the face and size it realised rather than those asked
// for, so the button is compared with what the caller's object said when it was set.
TEST_F(DispatchTest, FontIsCopiedNotKept) {
  FONTDESC description{sizeof(FONTDESC),
                       const_cast<LPOLESTR>(L"Tahoma"),
                       CY{},
                       FW_BOLD,
                       ANSI_CHARSET,
                       TRUE,
                       FALSE,
                       FALSE};
  description.cySize.int64 = 120000;
  ComPtr<IFontDisp> font;
  ASSERT_HRESULT_SUCCEEDED(OleCreateFontIndirect(&description, IID_IFontDisp, &font));
  const FontFacts given = FactsOf(font.Get());
  ASSERT_HRESULT_SUCCEEDED(button_.PutRef(L"Font", font.Get()));
  ComPtr<IFont> callers;
  font.As(&callers);
  BSTR otherName = SysAllocString(L"Courier New");
  callers->put_Name(otherName);
  SysFreeString(otherName);
  callers->put_Italic(FALSE);

  VARIANT stored = button_.Get(L"Font");
  ASSERT_EQ(stored.vt, VT_DISPATCH);
  const FontFacts kept = FactsOf(stored.pdispVal);
  EXPECT_EQ(kept.name, given.name);
  EXPECT_EQ(kept.size, given.size);
  EXPECT_TRUE(kept.italic);
  VariantClear(&stored);
}

}  // namespace
}  // namespace glyphon::activex::testing
