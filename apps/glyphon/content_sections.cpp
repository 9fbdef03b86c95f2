#include "apps/glyphon/content_sections.h"

#include "control/glyphon_metadata.h"
#include "samples/sample_pictures.h"

namespace glyphon::apps {

namespace {

using samples::MakeSamplePicture;
using samples::SamplePicture;

std::span<const EnumMemberInfo> Constants(std::string_view enumeration) {
  return FindEnumeration(enumeration)->members;
}

// Every Alignment (rows) with every PictureAlignment (columns).
GallerySection PlacementSection() {
  GallerySection section;
  section.title = "Alignment and PictureAlignment";
  section.buttonWidth = 110;
  section.buttonHeight = 44;
  for (const EnumMemberInfo& alignment : Constants("zonAlignmentConstants")) {
    section.rows.push_back(
        {std::string(alignment.name), [value = alignment.value](Glyphon& button) {
           button.SetAlignment(value);
           button.SetCaption("&Open");
           button.SetPicture(MakeSamplePicture(SamplePicture::Folder16));
         }});
  }
  for (const EnumMemberInfo& placement : Constants("zonPictureAlignmentConstants")) {
    section.columns.push_back({std::string(placement.name), [value = placement.value](
                                                                ButtonScene& scene) {
                                 scene.Button().SetPictureAlignment(value);
                               }});
  }
  return section;
}

// Every PictureStyle in every state, plain, with a drop shadow, and without the mask colour.
GallerySection PictureStyleSection() {
  GallerySection section;
  section.title = "PictureStyle, DropShadow and UseMaskColor";
  section.buttonHeight = 30;
  struct Variant {
    const char* suffix;
    bool dropShadow;
    bool useMaskColor;
  };
  const Variant variants[] = {{"", false, true},
                              {" + DropShadow", true, true},
                              {" - UseMaskColor", false, false},
                              {" + both", true, false}};
  for (const EnumMemberInfo& style : Constants("zonPictureStyleConstants")) {
    for (const Variant& variant : variants) {
      section.rows.push_back({std::string(style.name) + variant.suffix,
                              [value = style.value, variant](Glyphon& button) {
                                button.SetStyle(zonStyleWinXPBlue);
                                button.SetCaption("Check");
                                button.SetPicture(MakeSamplePicture(SamplePicture::Check16));
                                button.SetPictureStyle(value);
                                button.SetDropShadow(variant.dropShadow);
                                button.SetUseMaskColor(variant.useMaskColor);
                              }});
    }
  }
  section.columns = StateColumns();
  return section;
}

// Disabled pictures of each style: a bitmap, an icon, an alpha icon, and PictureDisabled.
GallerySection DisabledSection() {
  GallerySection section;
  section.title = "Disabled pictures";
  section.buttonHeight = 56;
  for (const EnumMemberInfo& style : Constants("zonButtonStyleConstants")) {
    section.rows.push_back({std::string(style.name), [value = style.value](Glyphon& button) {
                              button.SetStyle(value);
                              button.SetCaption("Off");
                              button.SetPictureAlignment(zonPicAlignTop);
                              button.SetEnabled(false);
                            }});
  }
  const auto picture = [](SamplePicture which) {
    return [which](ButtonScene& scene) { scene.Button().SetPicture(MakeSamplePicture(which)); };
  };
  section.columns = {
      {"bitmap", picture(SamplePicture::Swatches32)},
      {"icon", picture(SamplePicture::Globe32Icon)},
      {"alpha icon", picture(SamplePicture::Gem48AlphaIcon)},
      {"PictureDisabled", [](ButtonScene& scene) {
         scene.Button().SetPicture(MakeSamplePicture(SamplePicture::Swatches32));
         scene.Button().SetPictureDisabled(MakeSamplePicture(SamplePicture::Stop16Icon));
       }},
  };
  return section;
}

// A long caption wrapped into lines, and access keys.
GallerySection CaptionSection() {
  GallerySection section;
  section.title = "Captions";
  section.buttonWidth = 96;
  section.buttonHeight = 44;
  for (const EnumMemberInfo& style : Constants("zonButtonStyleConstants")) {
    section.rows.push_back({std::string(style.name), [value = style.value](Glyphon& button) {
                              button.SetStyle(value);
                            }});
  }
  const auto caption = [](const char* text) {
    return [text](ButtonScene& scene) { scene.Button().SetCaption(text); };
  };
  section.columns = {
      {"wrapped", caption("A long caption wraps onto lines")},
      {"access key", caption("&Save && close")},
      {"overlong word", caption("Incomprehensibilities")},
      {"pressed", [](ButtonScene& scene) {
         scene.Button().SetCaption("&Pressed");
         scene.Reach(SceneState::Pressed);
       }},
  };
  return section;
}

}  // namespace

std::vector<GallerySection> ContentSections() {
  return {PlacementSection(), PictureStyleSection(), DisabledSection(), CaptionSection()};
}

}  // namespace glyphon::apps
