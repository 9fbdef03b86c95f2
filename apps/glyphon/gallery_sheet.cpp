#include "apps/glyphon/gallery_sheet.h"

#include <algorithm>

#include "control/glyphon_metadata.h"
#include "surface/canvas.h"

namespace glyphon::apps {

namespace {

constexpr int kMargin = 12;
constexpr int kLabelWidth = 170;
constexpr int kTitleHeight = 24;
constexpr int kHeaderHeight = 18;
constexpr int kGapX = 14;
constexpr int kGapY = 10;
constexpr win::OLE_COLOR kFormColor = 0x8000000F;
constexpr win::COLORREF kLabelColor = win::RGB(0, 0, 0);

int CellWidth(const GallerySection& section) {
  return std::max(section.buttonWidth, 64) + kGapX;
}
int CellHeight(const GallerySection& section) { return section.buttonHeight + kGapY; }

int SectionWidth(const GallerySection& section) {
  return kLabelWidth + static_cast<int>(section.columns.size()) * CellWidth(section);
}
int SectionHeight(const GallerySection& section) {
  return kTitleHeight + kHeaderHeight + static_cast<int>(section.rows.size()) * CellHeight(section);
}

// Labels in the classic dialog font, drawn straight onto the sheet's context.
class LabelPen {
 public:
  explicit LabelPen(win::HDC hdc, bool bold) : hdc_(hdc) {
    font_ = win::CreateFontA(-11, 0, 0, 0, bold ? 700 : 400, 0, 0, 0, 0, 0, 0, 0, 0,
                             "MS Sans Serif");
    old_ = win::SelectObject(hdc_, font_);
    win::SetBkMode(hdc_, win::TRANSPARENT);
    win::SetTextColor(hdc_, kLabelColor);
  }
  ~LabelPen() {
    win::SelectObject(hdc_, old_);
    win::DeleteObject(font_);
  }
  LabelPen(const LabelPen&) = delete;
  LabelPen& operator=(const LabelPen&) = delete;

  void Write(const std::string& text, int left, int top, int width, int height,
             win::UINT align) const {
    win::RECT area{left, top, left + width, top + height};
    win::DrawTextA(hdc_, text.c_str(), static_cast<int>(text.size()), &area,
                   align | win::DT_VCENTER | win::DT_SINGLELINE | win::DT_NOPREFIX);
  }

 private:
  win::HDC hdc_;
  win::HFONT font_;
  win::HGDIOBJ old_;
};

void PaintCell(Canvas& sheet, const GallerySection& section, const GalleryRow& row,
               const GalleryColumn& column, int left, int top) {
  SceneOptions options;
  options.width = section.buttonWidth;
  options.height = section.buttonHeight;
  ButtonScene scene(options);
  if (row.setUp) row.setUp(scene.Button());
  if (column.setUp) column.setUp(scene);
  win::BitBlt(sheet.hdc(), left, top, section.buttonWidth, section.buttonHeight,
              scene.Site().hDC(), 0, 0, win::SRCCOPY);
}

int PaintSection(Canvas& sheet, const GallerySection& section, int top) {
  {
    const LabelPen title(sheet.hdc(), true);
    title.Write(section.title, kMargin, top, SectionWidth(section), kTitleHeight, win::DT_LEFT);
  }
  const LabelPen pen(sheet.hdc(), false);
  top += kTitleHeight;
  const int cellWidth = CellWidth(section);
  for (std::size_t c = 0; c < section.columns.size(); ++c) {
    pen.Write(section.columns[c].label, kMargin + kLabelWidth + static_cast<int>(c) * cellWidth,
              top, section.buttonWidth, kHeaderHeight, win::DT_CENTER);
  }
  top += kHeaderHeight;
  for (const GalleryRow& row : section.rows) {
    pen.Write(row.label, kMargin, top, kLabelWidth, section.buttonHeight, win::DT_LEFT);
    for (std::size_t c = 0; c < section.columns.size(); ++c) {
      PaintCell(sheet, section, row, section.columns[c],
                kMargin + kLabelWidth + static_cast<int>(c) * cellWidth, top);
    }
    top += CellHeight(section);
  }
  return top;
}

}  // namespace

win::SIZE GallerySheetSize(const std::vector<GallerySection>& sections) {
  win::SIZE size{0, kMargin};
  for (const GallerySection& section : sections) {
    size.cx = std::max<int>(size.cx, SectionWidth(section));
    size.cy += SectionHeight(section);
  }
  size.cx += 2 * kMargin;
  size.cy += kMargin;
  return size;
}

void PaintGallerySheet(Canvas& sheet, const std::vector<GallerySection>& sections) {
  sheet.BackColor(kFormColor);
  sheet.Cls();
  int top = kMargin;
  for (const GallerySection& section : sections) top = PaintSection(sheet, section, top);
}

GallerySection StyleSection() {
  GallerySection section;
  section.title = "Styles";
  for (const EnumMemberInfo& style : FindEnumeration("zonButtonStyleConstants")->members) {
    section.rows.push_back({std::string(style.name), [value = style.value](Glyphon& button) {
                              button.SetStyle(value);
                              button.SetCaption("&Glyphon");
                            }});
  }
  section.columns = StateColumns();
  section.columns.insert(section.columns.begin() + 3,
                         {{"default", [](ButtonScene& scene) { scene.MakeDefault(); }},
                          {"focused", [](ButtonScene& scene) { scene.Focus(); }}});
  return section;
}

std::vector<GalleryColumn> StateColumns() {
  return {
      {"normal", nullptr},
      {"hot", [](ButtonScene& scene) { scene.Reach(SceneState::Hot); }},
      {"pressed", [](ButtonScene& scene) { scene.Reach(SceneState::Pressed); }},
      {"disabled", [](ButtonScene& scene) { scene.Button().SetEnabled(false); }},
  };
}

}  // namespace glyphon::apps
