// Saved forms: every value type back exactly, and damaged or hostile files loading what they can
// with a note for the rest.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <limits>
#include <string>

#include "control/host/base64.h"
#include "control/host/property_bag_file.h"
#include "control/host/property_value_json.h"
#include "platform/codec/picture_file.h"
#include "platform/codec/picture_objects.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {
namespace {

using ::testing::HasSubstr;

Image Checker(int width, int height) {
  Image image = Image::Blank(width, height);
  for (std::size_t i = 0; i < image.bgra.size(); i += 4) {
    const std::size_t pixel = i / 4;
    image.bgra[i] = static_cast<std::uint8_t>(pixel * 37);
    image.bgra[i + 1] = static_cast<std::uint8_t>(pixel * 11);
    image.bgra[i + 2] = static_cast<std::uint8_t>(255 - pixel);
    image.bgra[i + 3] = 0;
  }
  return image;
}

StdPicture IconPicture() {
  IconImage icon;
  icon.color = Checker(4, 4);
  icon.mask = {1, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 1};
  return MakeIconPicture(icon);
}

StdFont OddFont() {
  StdFont font;
  font.Name("Caf\xC3\xA9 Sans");
  font.Size(8.2501);
  font.Weight(650);
  font.Italic(true);
  font.Strikethrough(true);
  font.Charset(238);
  return font;
}

// Pictures come back as new objects: same type, size and pixels.
void ExpectSameValue(const PropertyValue& actual, const PropertyValue& expected,
                     const std::string& key) {
  SCOPED_TRACE(key);
  ASSERT_EQ(actual.index(), expected.index());
  const auto* picture = std::get_if<StdPicture>(&expected);
  if (picture == nullptr) {
    EXPECT_TRUE(actual == expected);
    return;
  }
  const auto& back = std::get<StdPicture>(actual);
  EXPECT_EQ(back.IsNothing(), picture->IsNothing());
  EXPECT_EQ(back.Type(), picture->Type());
  EXPECT_EQ(back.Width(), picture->Width());
  EXPECT_EQ(back.Height(), picture->Height());
  if (picture->Type() == win::PICTYPE_BITMAP) {
    EXPECT_EQ(ReadBitmapPixels(back.Bitmap()), ReadBitmapPixels(picture->Bitmap()));
  } else if (picture->Type() == win::PICTYPE_ICON) {
    EXPECT_EQ(ReadIconPixels(back.Icon()), ReadIconPixels(picture->Icon()));
  }
}

void ExpectSameEntries(const SavedEntries& actual, const SavedEntries& expected) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < actual.size(); ++i) {
    EXPECT_EQ(actual[i].key, expected[i].key);
    ExpectSameValue(actual[i].value, expected[i].value, expected[i].key);
  }
}

TEST(PropertyBagFile, EveryValueTypeComesBackExactlyInOrder) {
  LeakCheck leaks;
  SavedForm form;
  form.form = {{"BackColor", std::int32_t{-2147483633}}, {"Font", OddFont()}};
  SavedControl first{"Command1", {{"Left", std::int32_t{8}}, {"Default", true}}, {}};
  first.properties = {
      {"Zeta", std::string("first key written")},
      {"Caption", std::string("&OK \xE2\x9C\x93")},
      {"Latin1", std::string("caf\xE9\0x", 6)},  // not UTF-8, with a NUL inside
      {"Empty", std::string()},
      {"False", false},
      {"Short", std::int16_t{-32768}},
      {"ShortMax", std::int16_t{32767}},
      {"Min", std::numeric_limits<std::int32_t>::min()},
      {"Max", std::numeric_limits<std::int32_t>::max()},
      {"Nothing", std::monostate{}},
      {"NoPicture", StdPicture{}},
      {"EmptyPicture", StdPicture::Empty()},
      {"Picture", MakeBitmapPicture(Checker(5, 3))},
      {"Icon", IconPicture()},
  };
  form.controls = {first, SavedControl{"Command2", {}, {{"Caption", std::string("Cancel")}}}};

  std::vector<std::string> writeNotes;
  const std::string text = WriteSavedForm(form, &writeNotes);
  EXPECT_TRUE(writeNotes.empty());
  const SavedFormRead read = ReadSavedForm(text);
  EXPECT_TRUE(read.skipped.empty()) << read.skipped.front();
  ExpectSameEntries(read.form.form, form.form);
  ASSERT_EQ(read.form.controls.size(), 2u);
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_EQ(read.form.controls[i].name, form.controls[i].name);
    ExpectSameEntries(read.form.controls[i].extender, form.controls[i].extender);
    ExpectSameEntries(read.form.controls[i].properties, form.controls[i].properties);
  }
  // Written again, the text is the same: nothing drifts through a save and load.
  EXPECT_EQ(WriteSavedForm(read.form), text);
}

TEST(PropertyBagFile, ValuesThatCannotBeWrittenAreLeftOutWithANote) {
  StdFont huge;
  huge.Size(2e9);
  SavedForm form;
  form.controls = {SavedControl{"A", {}, {{"Meta", StdPicture::Metafile(win::PICTYPE_METAFILE, 10, 10)},
                                          {"Font", huge},
                                          {"Kept", true}}},
                   SavedControl{"bad\xFF", {}, {}}};
  std::vector<std::string> notes;
  const SavedFormRead read = ReadSavedForm(WriteSavedForm(form, &notes));
  ASSERT_EQ(notes.size(), 3u);
  EXPECT_THAT(notes[0], HasSubstr("A: Meta"));
  EXPECT_THAT(notes[1], HasSubstr("A: Font"));
  EXPECT_THAT(notes[2], HasSubstr("not UTF-8"));
  ASSERT_EQ(read.form.controls.size(), 1u);
  ASSERT_EQ(read.form.controls[0].properties.size(), 1u);
  EXPECT_EQ(read.form.controls[0].properties[0].key, "Kept");
}

std::string Form(const std::string& properties) {
  return R"({"format": "glyphon-form", "version": 1, "controls": [{"name": "B", "properties": )" +
         properties + "}]}";
}

struct Damage {
  const char* name;
  std::string text;
  const char* note;      // part of the one expected note
  std::size_t kept;      // entries of B that still load
};

std::string Nested(int depth) { return std::string(depth, '[') + std::string(depth, ']'); }

std::string Png1x1() {
  const std::vector<std::uint8_t> bmp = SavePictureData(MakeBitmapPicture(Checker(1, 1)));
  return EncodeBase64(bmp);
}

TEST(PropertyBagFile, DamagedValuesAreSkippedAndTheRestLoads) {
  LeakCheck leaks;
  const std::string good = R"("Good": 1)";
  const std::string iconData = EncodeBase64(SavePictureData(IconPicture()));
  const Damage cases[] = {
      {"list value", "[1]", "a list", 0},
      {"int16 too big", R"({"int16": 70000})", "16-bit", 0},
      {"int16 as text", R"({"int16": "5"})", "16-bit", 0},
      {"int32 too big", "1099511627776", "32-bit", 0},
      {"fraction", "3.5", "32-bit", 0},
      {"unknown kind", R"({"colour": 5})", "none of", 0},
      {"two kinds", R"({"int16": 1, "font": {}})", "none of", 0},
      {"font not object", R"({"font": 5})", "font", 0},
      {"font member of wrong type", R"({"font": {"name": "Arial", "italic": "yes"}})", "italic", 1},
      {"font size out of range", R"({"font": {"size": 1e300}})", "size", 1},
      {"huge text", "\"" + std::string(kMaxTextBytes + 1, 'x') + "\"", "longer than", 0},
      {"bytes not base64", R"({"bytes": "@@@@"})", "base64", 0},
      {"picture of unknown type", R"({"picture": {"type": "metafile", "data": ""}})", "unknown type",
       0},
      {"picture without data", R"({"picture": {"type": "bitmap"}})", "without data", 0},
      {"picture data not base64", R"({"picture": {"type": "bitmap", "data": "Qk0"}})", "base64",
       0},
      {"picture data damaged", R"({"picture": {"type": "bitmap", "data": "Qk0AAAAA"}})", "skipped",
       0},
      {"icon data called a bitmap", R"({"picture": {"type": "bitmap", "data": ")" + iconData +
                                        "\"}}",
       "not a bitmap", 0},
  };
  for (const Damage& damage : cases) {
    SCOPED_TRACE(damage.name);
    const SavedFormRead read = ReadSavedForm(Form("{" + good + R"(, "Bad": )" + damage.text + "}"));
    ASSERT_EQ(read.skipped.size(), 1u);
    EXPECT_THAT(read.skipped[0], HasSubstr("B: Bad"));
    EXPECT_THAT(read.skipped[0], HasSubstr(damage.note));
    ASSERT_EQ(read.form.controls.size(), 1u);
    EXPECT_EQ(read.form.controls[0].properties.size(), 1 + damage.kept);
  }
  // A good picture in the same shape loads, so the cases above fail for their own reason.
  const SavedFormRead picture = ReadSavedForm(
      Form(R"({"P": {"picture": {"type": "bitmap", "data": ")" + Png1x1() + "\"}}}"));
  EXPECT_TRUE(picture.skipped.empty());
}

TEST(PropertyBagFile, BrokenFilesGiveWhatCameBeforeTheDamage) {
  const std::string whole = WriteSavedForm(SavedForm{
      {},
      {SavedControl{"A", {}, {{"Caption", std::string("one")}, {"Style", std::int32_t{2}}}},
       SavedControl{"B", {}, {{"Caption", std::string("two")}}}}});
  const auto cut = whole.find("\"B\"");
  ASSERT_NE(cut, std::string::npos);

  const SavedFormRead truncated = ReadSavedForm(whole.substr(0, cut + 2));
  ASSERT_EQ(truncated.form.controls.size(), 1u);
  EXPECT_EQ(truncated.form.controls[0].properties.size(), 2u);
  // The cut-off second control has no name yet, so it is skipped as well.
  ASSERT_EQ(truncated.skipped.size(), 2u);
  EXPECT_THAT(truncated.skipped[0], HasSubstr("not valid JSON"));
  EXPECT_THAT(truncated.skipped[1], HasSubstr("controls[1]"));

  const std::string other[] = {
      "",
      "not json at all",
      "[1, 2, 3]",
      R"({"format": "something else", "controls": []})",
      std::string("\xFF\xFE{", 3),
  };
  for (const std::string& text : other) {
    const SavedFormRead read = ReadSavedForm(text);
    EXPECT_TRUE(read.form.controls.empty()) << text;
    EXPECT_FALSE(read.skipped.empty()) << text;
  }
}

TEST(PropertyBagFile, HostileShapesAreBounded) {
  // Deep nesting stops the reader without using the stack for it.
  const SavedFormRead deep = ReadSavedForm(Form("{\"A\": 1, \"Deep\": " + Nested(100000) + "}"));
  ASSERT_EQ(deep.form.controls.size(), 1u);
  EXPECT_EQ(deep.form.controls[0].properties.size(), 1u);
  EXPECT_THAT(deep.skipped.front(), HasSubstr("nested deeper"));

  // Many members: the bag keeps its limit, the parser its own.
  std::string many = "{";
  for (int i = 0; i < 300; ++i) many += (i ? ",\"K" : "\"K") + std::to_string(i) + "\": 1";
  const SavedFormRead wide = ReadSavedForm(Form(many + "}"));
  ASSERT_EQ(wide.form.controls.size(), 1u);
  EXPECT_EQ(wide.form.controls[0].properties.size(), kMaxBagEntries);
  EXPECT_THAT(wide.skipped.back(), HasSubstr("the rest skipped"));

  std::string flood = "[";
  for (int i = 0; i < 5000; ++i) flood += i ? ",0" : "0";
  const SavedFormRead flooded = ReadSavedForm(Form("{\"A\": " + flood + "]}"));
  EXPECT_THAT(flooded.skipped.front(), HasSubstr("members"));

  EXPECT_FALSE(ReadSavedForm(std::string(kMaxFormFileBytes + 1, ' ')).skipped.empty());
}

TEST(PropertyBagFile, FormStructureFaultsSkipOnlyTheirPart) {
  const SavedFormRead read = ReadSavedForm(R"({
    "format": "glyphon-form", "version": 7, "extra": 1,
    "form": [],
    "controls": [
      5,
      {"properties": {}},
      {"name": "A", "properties": {"X": 1, "X": 2, "": 3}, "extender": "no", "other": 0},
      {"name": "A", "properties": {"Y": 1}}
    ]})");
  ASSERT_EQ(read.form.controls.size(), 1u);
  const SavedControl& a = read.form.controls[0];
  ASSERT_EQ(a.properties.size(), 1u);
  EXPECT_TRUE(a.properties[0].value == PropertyValue(std::int32_t{1}));  // the first X
  const std::vector<std::string> expected = {
      "repeated", "newer version", "unknown member \"extra\"", "form: not an object",
      "controls[0]", "controls[1]", "empty", "A (extender): not an object",
      "unknown member \"other\"", "second control"};
  ASSERT_EQ(read.skipped.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_THAT(read.skipped[i], HasSubstr(expected[i]));
  }
}

TEST(PropertyBagFile, FilesOnDisk) {
  const auto path = std::filesystem::temp_directory_path() / "glyphon_bag_file_test.json";
  WriteSavedFormFile(SavedForm{{{"BackColor", std::int32_t{255}}}, {}}, path);
  const SavedFormRead read = ReadSavedFormFile(path);
  EXPECT_TRUE(read.skipped.empty());
  ASSERT_NE(FindSavedEntry(read.form.form, "BackColor"), nullptr);
  std::filesystem::remove(path);

  const SavedFormRead missing = ReadSavedFormFile(path);
  ASSERT_EQ(missing.skipped.size(), 1u);
  EXPECT_THAT(missing.skipped[0], HasSubstr("cannot be read"));
  EXPECT_THROW(WriteSavedFormFile(SavedForm{}, path / "no" / "such" / "dir"), FormFileError);
}

TEST(Base64, RoundTripsAndRefusesNonCanonicalText) {
  for (std::size_t size = 0; size < 7; ++size) {
    std::vector<std::uint8_t> bytes;
    for (std::size_t i = 0; i < size; ++i) bytes.push_back(static_cast<std::uint8_t>(250 + i));
    const auto back = DecodeBase64(EncodeBase64(bytes));
    ASSERT_TRUE(back);
    EXPECT_EQ(*back, bytes);
  }
  EXPECT_EQ(EncodeBase64(std::vector<std::uint8_t>{'M', 'a'}), "TWE=");
  for (const char* bad : {"TWE", "TW=E", "TWF=", "TQ==TQ==", "TW\nE=", "T===", "===="}) {
    EXPECT_FALSE(DecodeBase64(bad)) << bad;
  }
}

}  // namespace
}  // namespace glyphon::testing
