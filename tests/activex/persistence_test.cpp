// Saving to the container's property bag (and to a stream) and loading into a new instance.
#include <gtest/gtest.h>

#include "tests/activex/test_container.h"

namespace glyphon::activex::testing {
namespace {

void Customise(HostedGlyphon& button) {
  button.PutText(L"Caption", L"&Save");
  button.PutLong(L"Style", 1);
  button.PutLong(L"BorderStyle", 1);
  button.PutLong(L"BackColor", 0x00336699);
  button.PutLong(L"ShadowColor", 0x00112233);
  button.PutText(L"ToolTipText", L"Saves the file");
  button.PutLong(L"PictureSpacing", 7);
  button.PutLong(L"MousePointer", 0);
  button.PutBool(L"DropShadow", true);
}

void ExpectCustomised(HostedGlyphon& button) {
  EXPECT_EQ(button.GetText(L"Caption"), L"&Save");
  EXPECT_EQ(button.GetLong(L"Style"), 1);
  EXPECT_EQ(button.GetLong(L"BorderStyle"), 1);
  EXPECT_EQ(button.GetLong(L"BackColor"), 0x00336699);
  // An explicit back colour keeps the stored shadow colour.
  EXPECT_EQ(button.GetLong(L"ShadowColor"), 0x00112233);
  EXPECT_EQ(button.GetText(L"ToolTipText"), L"Saves the file");
  EXPECT_EQ(button.GetLong(L"PictureSpacing"), 7);
  EXPECT_EQ(button.GetLong(L"MousePointer"), 0);
  EXPECT_TRUE(button.GetBool(L"DropShadow"));
}

TEST(Persistence, PropertyBagRoundTripKeepsOnlyValuesThatDifferFromTheirDefaults) {
  Form form;
  MemoryBag bag;
  {
    HostedGlyphon button(form.Window());
    Customise(button);
    ComPtr<IPersistPropertyBag> persist;
    ASSERT_HRESULT_SUCCEEDED(button.Object()->QueryInterface(IID_PPV_ARGS(&persist)));
    ComPtr<IPersistStreamInit> dirty;
    button.Object()->QueryInterface(IID_PPV_ARGS(&dirty));
    EXPECT_EQ(dirty->IsDirty(), S_OK);
    ASSERT_HRESULT_SUCCEEDED(persist->Save(&bag, TRUE, FALSE));
    EXPECT_EQ(dirty->IsDirty(), S_FALSE);
  }
  ASSERT_NE(bag.Find(L"Caption"), nullptr);
  EXPECT_EQ(bag.Find(L"Caption")->vt, VT_BSTR);
  EXPECT_EQ(bag.Find(L"Alignment"), nullptr) << "defaults are not stored";
  // The bag's MousePointer default is 1, so a 0 is stored.
  ASSERT_NE(bag.Find(L"MousePointer"), nullptr);

  HostedGlyphon loaded(form.Window(), {}, &bag);
  ExpectCustomised(loaded);
  // Loading is not a change.
  ComPtr<IPersistStreamInit> stream;
  loaded.Object()->QueryInterface(IID_PPV_ARGS(&stream));
  EXPECT_EQ(stream->IsDirty(), S_FALSE);
}

TEST(Persistence, AStoredCaptionEqualToTheNameIsNotStoredAndARenamedInstanceLoadsItsName) {
  Form form;
  MemoryBag bag;
  {
    HostedGlyphon button(form.Window());
    ComPtr<IPersistPropertyBag> persist;
    button.Object()->QueryInterface(IID_PPV_ARGS(&persist));
    ASSERT_HRESULT_SUCCEEDED(persist->Save(&bag, TRUE, FALSE));
  }
  EXPECT_EQ(bag.Find(L"Caption"), nullptr);
  ContainerState renamed;
  renamed.extenderName = L"cmdOK";
  HostedGlyphon loaded(form.Window(), renamed, &bag);
  EXPECT_EQ(loaded.GetText(L"Caption"), L"cmdOK");
}

TEST(Persistence, StreamRoundTripHoldsTheSameKeys) {
  Form form;
  ComPtr<IStream> stream;
  ASSERT_HRESULT_SUCCEEDED(CreateStreamOnHGlobal(nullptr, TRUE, &stream));
  {
    HostedGlyphon button(form.Window());
    Customise(button);
    ComPtr<IPersistStreamInit> persist;
    ASSERT_HRESULT_SUCCEEDED(button.Object()->QueryInterface(IID_PPV_ARGS(&persist)));
    ULARGE_INTEGER size{};
    ASSERT_HRESULT_SUCCEEDED(persist->GetSizeMax(&size));
    ASSERT_HRESULT_SUCCEEDED(persist->Save(stream.Get(), TRUE));
    STATSTG stat{};
    stream->Stat(&stat, STATFLAG_NONAME);
    EXPECT_EQ(stat.cbSize.QuadPart, size.QuadPart);
  }
  LARGE_INTEGER start{};
  stream->Seek(start, STREAM_SEEK_SET, nullptr);

  // A new instance loads from the stream instead of a bag.
  const ComPtr<IOleObject> object = NewGlyphon();
  ComPtr<IPersistStreamInit> persist;
  ASSERT_HRESULT_SUCCEEDED(object.As(&persist));
  ASSERT_HRESULT_SUCCEEDED(persist->Load(stream.Get()));
  EXPECT_EQ(persist->InitNew(), E_UNEXPECTED) << "an instance loads once";
  ComPtr<IDispatch> dispatch;
  object.As(&dispatch);
  EXPECT_EQ(GetByName(dispatch.Get(), L"ShadowColor").lVal, 0x00112233);
}

TEST(Persistence, ADamagedStreamLoadsDefaults) {
  Form form;
  ComPtr<IStream> stream;
  ASSERT_HRESULT_SUCCEEDED(CreateStreamOnHGlobal(nullptr, TRUE, &stream));
  const unsigned char damaged[] = {0xFF, 0xFF, 0xFF, 0x7F, '{', '"'};
  stream->Write(damaged, sizeof damaged, nullptr);
  LARGE_INTEGER start{};
  stream->Seek(start, STREAM_SEEK_SET, nullptr);
  ComPtr<IPersistStreamInit> persist;
  ASSERT_HRESULT_SUCCEEDED(NewGlyphon().As(&persist));
  EXPECT_HRESULT_SUCCEEDED(persist->Load(stream.Get()));
}

}  // namespace
}  // namespace glyphon::activex::testing
