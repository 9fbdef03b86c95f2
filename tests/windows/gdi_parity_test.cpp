// GDI drawing through the native and the soft engine, pixel for pixel.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "tests/windows/engine_parity.h"
#include "tests/windows/gdi_scenarios.h"

namespace glyphon::testing {
namespace {

using namespace win;

constexpr int kSize = 48;

ParityCase Case(std::string name, std::function<void(HDC)> paint,
                Target target = Target::kScreenBitmap, int width = kSize, int height = kSize) {
  return {std::move(name), [=] { return RenderOnTarget(target, width, height, paint); }};
}

// Lines from the centre to points all round the border: every octant, shallow and steep slopes,
// and a polyline whose pattern must run on across its corners.
void LineFan(HDC dc, int size) {
  const int c = size / 2;
  for (int t = 0; t < size; t += 7) {
    for (const POINT end :
         {POINT{t, 0}, POINT{size - 1, t}, POINT{size - 1 - t, size - 1}, POINT{0, size - 1 - t}}) {
      MoveToEx(dc, c, c, nullptr);
      LineTo(dc, end.x, end.y);
    }
  }
  MoveToEx(dc, 2, 2, nullptr);
  for (const POINT p : {POINT{20, 3}, POINT{21, 15}, POINT{5, 16}, POINT{6, 6}})
    LineTo(dc, p.x, p.y);
}

struct Named {
  const char* name;
  int value;
};

constexpr Named kPenStyles[] = {{"Solid", PS_SOLID},
                                {"Dash", PS_DASH},
                                {"Dot", PS_DOT},
                                {"DashDot", PS_DASHDOT},
                                {"DashDotDot", PS_DASHDOTDOT},
                                {"Null", PS_NULL},
                                {"InsideFrame", PS_INSIDEFRAME}};

// Every binary mix, in the order of their codes from R2_BLACK to R2_WHITE.
constexpr const char* kRop2Names[] = {"Black",      "NotMergePen", "MaskNotPen", "NotCopyPen",
                                      "MaskPenNot", "Not",         "XorPen",     "NotMaskPen",
                                      "MaskPen",    "NotXorPen",   "Nop",        "MergeNotPen",
                                      "CopyPen",    "MergePenNot", "MergePen",   "White"};

constexpr Named kHatches[] = {{"Horizontal", HS_HORIZONTAL}, {"Vertical", HS_VERTICAL},
                              {"FDiagonal", HS_FDIAGONAL},   {"BDiagonal", HS_BDIAGONAL},
                              {"Cross", HS_CROSS},           {"DiagCross", HS_DIAGCROSS}};

std::vector<ParityCase> LineCases() {
  std::vector<ParityCase> cases;
  for (const Named style : kPenStyles) {
    // Opaque gaps take the background colour, transparent ones keep what was there.
    for (const int mode : {OPAQUE, TRANSPARENT}) {
      cases.push_back(Case(std::string("Pen") + style.name + (mode == OPAQUE ? "Opaque" : "Clear"),
                           [style, mode](HDC dc) {
                             PaintBands(dc, kSize, kSize);
                             SetBkMode(dc, mode);
                             SetBkColor(dc, RGB(0, 200, 0));
                             Selected pen(dc, CreatePen(style.value, 1, RGB(0, 0, 160)));
                             LineFan(dc, kSize);
                           }));
    }
  }
  cases.push_back(Case("PenWide", [](HDC dc) {
    for (int width = 2; width <= 5; ++width) {
      Selected pen(dc, CreatePen(PS_SOLID, width, RGB(200, 0, 0)));
      const int at = (width - 2) * 11 + 4;
      MoveToEx(dc, at, 2, nullptr);
      LineTo(dc, at, 20);
      MoveToEx(dc, 2, at + 22, nullptr);
      LineTo(dc, 40, at + 22);
      MoveToEx(dc, at, 24, nullptr);
      LineTo(dc, at + 9, 45);
    }
  }));
  for (int rop = R2_BLACK; rop <= R2_WHITE; ++rop) {
    cases.push_back(Case(std::string("Rop2") + kRop2Names[rop - R2_BLACK], [rop](HDC dc) {
      PaintBands(dc, kSize, kSize);
      SetROP2(dc, rop);
      Selected pen(dc, CreatePen(PS_SOLID, 1, RGB(0, 160, 255)));
      Selected brush(dc, CreateSolidBrush(RGB(255, 100, 0)));
      LineFan(dc, kSize);
      Rectangle(dc, 8, 26, 40, 44);
      SetPixel(dc, 1, 46, RGB(10, 20, 30));
    }));
  }
  return cases;
}

std::vector<ParityCase> ShapeCases() {
  std::vector<ParityCase> cases;
  cases.push_back(Case("Rectangles", [](HDC dc) {
    Selected brush(dc, CreateSolidBrush(RGB(255, 200, 0)));
    {
      Selected pen(dc, CreatePen(PS_SOLID, 1, RGB(0, 0, 200)));
      Rectangle(dc, 2, 2, 12, 9);
      Rectangle(dc, 20, 12, 14, 2);  // corners given the wrong way round
      Rectangle(dc, 24, 2, 25, 9);   // one pixel wide: nothing inside the frame
      Rectangle(dc, 28, 2, 28, 9);   // empty
      Rectangle(dc, 30, 2, 32, 4);
    }
    {
      Selected pen(dc, CreatePen(PS_SOLID, 3, RGB(0, 150, 0)));
      Rectangle(dc, 3, 14, 20, 26);
    }
    {
      Selected pen(dc, CreatePen(PS_INSIDEFRAME, 3, RGB(150, 0, 150)));
      Rectangle(dc, 24, 14, 44, 26);
    }
    {
      Selected pen(dc, GetStockObject(NULL_PEN));
      Rectangle(dc, 3, 30, 20, 40);
    }
    Selected hollow(dc, GetStockObject(NULL_BRUSH));
    Selected pen(dc, CreatePen(PS_DOT, 1, RGB(0, 0, 0)));
    Rectangle(dc, 24, 30, 45, 46);
  }));
  cases.push_back(Case("RoundRects", [](HDC dc) {
    Selected pen(dc, CreatePen(PS_SOLID, 1, RGB(0, 0, 200)));
    Selected brush(dc, CreateSolidBrush(RGB(255, 220, 0)));
    RoundRect(dc, 1, 1, 15, 12, 3, 3);
    RoundRect(dc, 17, 1, 31, 12, 4, 6);
    RoundRect(dc, 33, 1, 47, 12, 30, 30);  // corners larger than the shape
    RoundRect(dc, 1, 14, 15, 28, 0, 0);
    RoundRect(dc, 17, 14, 32, 29, 7, 5);
    RoundRect(dc, 34, 14, 37, 17, 2, 2);
    RoundRect(dc, 1, 31, 24, 47, 9, 9);
    Selected wide(dc, CreatePen(PS_SOLID, 3, RGB(0, 120, 0)));
    RoundRect(dc, 27, 31, 46, 46, 8, 8);
  }));
  cases.push_back(Case("Ellipses", [](HDC dc) {
    Selected pen(dc, CreatePen(PS_SOLID, 1, RGB(200, 0, 0)));
    Selected brush(dc, CreateSolidBrush(RGB(0, 200, 255)));
    for (int size = 1, x = 1; size <= 9; x += size + 2, ++size)
      Ellipse(dc, x, 1, x + size, 1 + size);
    Ellipse(dc, 1, 12, 20, 25);
    Ellipse(dc, 22, 12, 46, 24);
    Ellipse(dc, 30, 26, 24, 46);  // corners given the wrong way round
    Selected wide(dc, CreatePen(PS_SOLID, 4, RGB(0, 0, 0)));
    Ellipse(dc, 2, 28, 21, 46);
  }));
  for (const Named hatch : kHatches) {
    for (const int mode : {OPAQUE, TRANSPARENT}) {
      cases.push_back(
          Case(std::string("Hatch") + hatch.name + (mode == OPAQUE ? "Opaque" : "Clear"),
               [hatch, mode](HDC dc) {
                 PaintBands(dc, kSize, kSize);
                 SetBkMode(dc, mode);
                 SetBkColor(dc, RGB(250, 250, 200));
                 HBRUSH brush = CreateHatchBrush(hatch.value, RGB(0, 0, 120));
                 const RECT first{3, 5, 29, 21};  // the pattern is tied to the DC
                 const RECT second{20, 24, 46, 45};
                 FillRect(dc, &first, brush);
                 FillRect(dc, &second, brush);
                 Selected selected(dc, brush);
                 Rectangle(dc, 31, 2, 46, 20);
               }));
    }
  }
  cases.push_back(Case("FloodFills", [](HDC dc) {
    {
      Selected pen(dc, CreatePen(PS_SOLID, 1, RGB(0, 0, 0)));
      Selected hollow(dc, GetStockObject(NULL_BRUSH));
      Ellipse(dc, 2, 2, 30, 26);
      MoveToEx(dc, 2, 14, nullptr);
      LineTo(dc, 30, 14);
      Rectangle(dc, 26, 20, 46, 46);
      FillSolid(dc, 33, 27, 40, 40, RGB(0, 0, 255));
    }
    Selected brush(dc, CreateHatchBrush(HS_DIAGCROSS, RGB(200, 0, 0)));
    ExtFloodFill(dc, 16, 8, RGB(0, 0, 0), FLOODFILLBORDER);
    FloodFill(dc, 28, 22, RGB(0, 0, 0));
    Selected solid(dc, CreateSolidBrush(RGB(0, 180, 0)));
    ExtFloodFill(dc, 35, 30, RGB(0, 0, 255), FLOODFILLSURFACE);
    ExtFloodFill(dc, 5, 40, RGB(255, 255, 255), FLOODFILLSURFACE);
  }));
  cases.push_back(Case("FocusRects", [](HDC dc) {
    PaintBands(dc, kSize, kSize);
    int x = 1;
    for (const SIZE size : {SIZE{1, 1}, SIZE{2, 2}, SIZE{3, 3}, SIZE{4, 7}, SIZE{7, 4}}) {
      const RECT rect{x, 1, x + size.cx, 1 + size.cy};
      DrawFocusRect(dc, &rect);
      x += size.cx + 2;
    }
    for (const RECT rect : {RECT{1, 10, 20, 25}, RECT{2, 27, 22, 46}, RECT{24, 11, 46, 30}}) {
      DrawFocusRect(dc, &rect);
    }
    const RECT twice{26, 32, 45, 46};  // drawn twice: gone again
    DrawFocusRect(dc, &twice);
    DrawFocusRect(dc, &twice);
    const RECT overlap{30, 28, 40, 38};
    DrawFocusRect(dc, &overlap);
  }));
  cases.push_back(Case("PixelsAndFills", [](HDC dc) {
    for (int i = 0; i < kSize; ++i) SetPixel(dc, i, i, RGB(i * 5, 255 - i * 5, 128));
    SetPixelV(dc, 47, 0, RGB(1, 2, 3));
    const RECT face{4, 20, 24, 30};
    FillRect(dc, &face, GetSysColorBrush(COLOR_BTNFACE));
    HBRUSH frame = CreateSolidBrush(RGB(0, 0, 0));
    const RECT framed{26, 20, 46, 40};
    FrameRect(dc, &framed, frame);
    DeleteObject(frame);
    Selected brush(dc, CreateHatchBrush(HS_CROSS, RGB(0, 0, 255)));
    PatBlt(dc, 2, 32, 20, 14, PATINVERT);
    PatBlt(dc, 30, 2, 16, 10, PATCOPY);
    PatBlt(dc, 35, 5, 8, 30, DSTINVERT);
  }));
  return cases;
}

std::vector<ParityCase> BlitCases() {
  std::vector<ParityCase> cases;
  // Every ternary code on one sheet: a cell per code over the same source, pattern and
  // destination. The brush is solid: Wine misplaces hatch patterns in block transfers that also
  // read a source (Windows keeps them on the brush origin, as the soft engine does).
  cases.push_back(Case(
      "Rop3EveryCode",
      [](HDC dc) {
        PaintBands(dc, 96, 96);
        SourceDc source(6, 6);
        PaintChecks(source.dc(), 6, 6);
        Selected brush(dc, CreateSolidBrush(RGB(0, 255, 128)));
        for (DWORD code = 0; code < 256; ++code) {
          const int x = static_cast<int>(code % 16) * 6;
          const int y = static_cast<int>(code / 16) * 6;
          BitBlt(dc, x, y, 6, 6, source.dc(), 0, 0, code << 16);
        }
      },
      Target::kScreenBitmap, 96, 96));
  cases.push_back(Case("MonochromeToColor", [](HDC dc) {
    PaintBands(dc, kSize, kSize);
    SourceDc mask(12, 12, true);
    PatBlt(mask.dc(), 0, 0, 12, 12, BLACKNESS);
    PatBlt(mask.dc(), 3, 3, 6, 6, WHITENESS);
    SetPixel(mask.dc(), 0, 0, RGB(255, 255, 255));
    SetTextColor(dc, RGB(255, 0, 128));  // takes the 0 bits
    SetBkColor(dc, RGB(0, 64, 255));     // takes the 1 bits
    int x = 0;
    for (const DWORD rop : {SRCCOPY, SRCAND, SRCPAINT, SRCINVERT, NOTSRCCOPY, SRCERASE, NOTSRCERASE,
                            MERGEPAINT, DWORD{0x00220326}, DWORD{0x00B8074A}}) {
      BitBlt(dc, x % 48, (x / 48) * 14, 12, 12, mask.dc(), 0, 0, rop);
      x += 12;
    }
  }));
  cases.push_back(Case(
      "ColorToMonochrome",
      [](HDC dc) {
        SourceDc source(kSize, kSize);
        PaintBands(source.dc(), kSize, kSize);
        FillSolid(source.dc(), 10, 10, 20, 30, RGB(0, 128, 255));
        SetBkColor(source.dc(), RGB(0, 128, 255));  // pixels of this colour become 1 (white)
        BitBlt(dc, 0, 0, kSize, 24, source.dc(), 0, 0, SRCCOPY);
        SetBkColor(source.dc(), RGB(40, 40, 40));
        BitBlt(dc, 0, 24, kSize, 24, source.dc(), 0, 10, SRCINVERT);
      },
      Target::kMono));
  // The mask-colour technique of transparent pictures: colour to mask, then three mixes.
  cases.push_back(Case("TransparentThroughMask", [](HDC dc) {
    PaintBands(dc, kSize, kSize);
    SourceDc picture(20, 20);
    PaintChecks(picture.dc(), 20, 20);
    FillSolid(picture.dc(), 0, 0, 20, 5, RGB(0, 255, 255));
    FillSolid(picture.dc(), 8, 8, 13, 20, RGB(0, 255, 255));
    SourceDc mask(20, 20, true);
    SetBkColor(picture.dc(), RGB(0, 255, 255));
    BitBlt(mask.dc(), 0, 0, 20, 20, picture.dc(), 0, 0, SRCCOPY);
    SetTextColor(dc, RGB(0, 0, 0));
    SetBkColor(dc, RGB(255, 255, 255));
    BitBlt(dc, 5, 5, 20, 20, picture.dc(), 0, 0, SRCINVERT);
    BitBlt(dc, 5, 5, 20, 20, mask.dc(), 0, 0, SRCAND);
    BitBlt(dc, 5, 5, 20, 20, picture.dc(), 0, 0, SRCINVERT);
    // The same with a mask-selecting ternary code in one step over a pattern.
    Selected brush(dc, CreateSolidBrush(RGB(255, 0, 0)));
    BitBlt(dc, 26, 26, 20, 20, mask.dc(), 0, 0, 0x00B8074A);
  }));
  for (const Named mode : {Named{"ColorOnColor", COLORONCOLOR}, Named{"BlackOnWhite", BLACKONWHITE},
                           Named{"WhiteOnBlack", WHITEONBLACK}}) {
    cases.push_back(Case(std::string("Stretch") + mode.name, [mode](HDC dc) {
      SourceDc source(9, 7);
      PaintChecks(source.dc(), 9, 7);
      FillSolid(source.dc(), 2, 2, 4, 5, RGB(0, 0, 0));
      SetStretchBltMode(dc, mode.value);
      StretchBlt(dc, 0, 0, 30, 20, source.dc(), 0, 0, 9, 7, SRCCOPY);     // grow
      StretchBlt(dc, 32, 0, 5, 4, source.dc(), 0, 0, 9, 7, SRCCOPY);      // shrink
      StretchBlt(dc, 40, 8, -7, 9, source.dc(), 0, 0, 9, 7, SRCCOPY);     // mirror across
      StretchBlt(dc, 0, 22, 17, 13, source.dc(), 8, 6, -9, -7, SRCCOPY);  // mirror both ways
      StretchBlt(dc, 20, 22, 27, 25, source.dc(), 1, 1, 7, 5, SRCINVERT);
    }));
  }
  cases.push_back(Case("StretchMonochromeSource", [](HDC dc) {
    SourceDc mask(5, 5, true);
    PatBlt(mask.dc(), 0, 0, 5, 5, BLACKNESS);
    PatBlt(mask.dc(), 1, 1, 2, 3, WHITENESS);
    SetTextColor(dc, RGB(200, 0, 0));
    SetBkColor(dc, RGB(0, 0, 200));
    StretchBlt(dc, 0, 0, 23, 17, mask.dc(), 0, 0, 5, 5, SRCCOPY);
    StretchBlt(dc, 24, 20, 20, 25, mask.dc(), 0, 0, 5, 5, SRCAND);
  }));
  return cases;
}

HBITMAP MakeDib(HDC dc, int width, int height, WORD bits, std::initializer_list<RGBQUAD> colors,
                void** pixels) {
  struct {
    BITMAPINFOHEADER header;
    RGBQUAD colors[256];
  } info{};
  info.header.biSize = sizeof(BITMAPINFOHEADER);
  info.header.biWidth = width;
  info.header.biHeight = height;
  info.header.biPlanes = 1;
  info.header.biBitCount = bits;
  info.header.biClrUsed = static_cast<DWORD>(colors.size());
  int i = 0;
  for (const RGBQUAD color : colors) info.colors[i++] = color;
  return CreateDIBSection(dc, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS, pixels, nullptr,
                          0);
}

std::vector<ParityCase> DibAndIconCases() {
  std::vector<ParityCase> cases;
  cases.push_back(Case(
      "Dib24Target",
      [](HDC dc) {
        PaintBands(dc, kSize, kSize);
        Selected pen(dc, CreatePen(PS_DOT, 1, RGB(0, 0, 0)));
        Selected brush(dc, CreateHatchBrush(HS_BDIAGONAL, RGB(255, 255, 255)));
        Ellipse(dc, 3, 3, 40, 30);
        RoundRect(dc, 10, 20, 45, 45, 6, 6);
        const RECT focus{5, 32, 25, 46};
        DrawFocusRect(dc, &focus);
      },
      Target::kDib24));
  cases.push_back(Case("DibSectionsAsSources", [](HDC dc) {
    HDC source = CreateCompatibleDC(dc);
    void* bits = nullptr;
    // One bit per pixel with a colour table of its own, drawn on through its DC.
    HBITMAP mono = MakeDib(dc, 16, 16, 1, {{0, 0, 255, 0}, {0, 255, 255, 0}}, &bits);
    HGDIOBJ original = SelectObject(source, mono);
    PatBlt(source, 0, 0, 16, 16, BLACKNESS);
    {
      Selected pen(source, CreatePen(PS_SOLID, 1, RGB(255, 255, 255)));
      Selected brush(source, CreateHatchBrush(HS_CROSS, RGB(255, 255, 0)));
      Ellipse(source, 1, 1, 15, 15);
    }
    SetTextColor(dc, RGB(0, 255, 0));
    SetBkColor(dc, RGB(255, 0, 255));
    BitBlt(dc, 0, 0, 16, 16, source, 0, 0, SRCCOPY);
    StretchBlt(dc, 17, 0, 31, 20, source, 0, 0, 16, 16, SRCCOPY);
    // Eight bits per pixel with a palette of four, and 24-bit bottom-up.
    HBITMAP indexed = MakeDib(
        dc, 12, 12, 8, {{0, 0, 0, 0}, {255, 0, 0, 0}, {0, 160, 0, 0}, {90, 90, 200, 0}}, &bits);
    SelectObject(source, indexed);
    PaintChecks(source, 12, 12);
    BitBlt(dc, 0, 22, 12, 12, source, 0, 0, SRCCOPY);
    HBITMAP deep = MakeDib(dc, 12, 12, 24, {}, &bits);
    SelectObject(source, deep);
    PaintChecks(source, 12, 12);
    BitBlt(dc, 14, 22, 12, 12, source, 0, 0, SRCCOPY);
    BitBlt(dc, 28, 22, 12, 12, source, 2, 3, SRCPAINT);
    SelectObject(source, original);
    DeleteObject(mono);
    DeleteObject(indexed);
    DeleteObject(deep);
    DeleteDC(source);
  }));
  cases.push_back(Case("Icons", [](HDC dc) {
    PaintBands(dc, kSize, kSize);
    SourceDc color(8, 8);
    PaintChecks(color.dc(), 8, 8);
    FillSolid(color.dc(), 0, 0, 4, 4, RGB(255, 255, 255));
    SourceDc mask(8, 8, true);
    PatBlt(mask.dc(), 0, 0, 8, 8, BLACKNESS);
    PatBlt(mask.dc(), 0, 0, 4, 8, WHITENESS);  // left half transparent, top-left inverting
    ICONINFO info{TRUE, 0, 0, mask.bitmap(), color.bitmap()};
    SelectObject(color.dc(), GetStockObject(BLACK_BRUSH));  // bitmaps must not be selected
    HGDIOBJ colorBitmap = SelectObject(color.dc(), CreateCompatibleBitmap(dc, 1, 1));
    HGDIOBJ maskBitmap = SelectObject(mask.dc(), CreateBitmap(1, 1, 1, 1, nullptr));
    HICON icon = CreateIconIndirect(&info);
    DeleteObject(SelectObject(color.dc(), colorBitmap));
    DeleteObject(SelectObject(mask.dc(), maskBitmap));
    DrawIconEx(dc, 1, 1, icon, 0, 0, 0, nullptr, DI_NORMAL);
    DrawIconEx(dc, 12, 1, icon, 0, 0, 0, nullptr, DI_MASK);
    DrawIconEx(dc, 23, 1, icon, 0, 0, 0, nullptr, DI_IMAGE);
    DrawIconEx(dc, 1, 12, icon, 20, 14, 0, nullptr, DI_NORMAL);
    DrawIcon(dc, 30, 30, icon);
    DestroyIcon(icon);
  }));
  return cases;
}

INSTANTIATE_TEST_SUITE_P(Lines, EngineParity, ::testing::ValuesIn(LineCases()), ParityCaseName);
INSTANTIATE_TEST_SUITE_P(Shapes, EngineParity, ::testing::ValuesIn(ShapeCases()), ParityCaseName);
INSTANTIATE_TEST_SUITE_P(Blits, EngineParity, ::testing::ValuesIn(BlitCases()), ParityCaseName);
INSTANTIATE_TEST_SUITE_P(DibsAndIcons, EngineParity, ::testing::ValuesIn(DibAndIconCases()),
                         ParityCaseName);

}  // namespace
}  // namespace glyphon::testing
