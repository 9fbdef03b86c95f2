// A button for the painters without a control behind it: plain fields with the values a new
// instance gets, and a container whose back colour can change between two reads or be missing.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "content/button_view.h"
#include "content/glyphon_constants.h"
#include "platform/automation_error.h"
#include "surface/canvas.h"

namespace glyphon::testing {

// The container of the golden images: far from every colour the looks paint with.
inline constexpr win::COLORREF kContainerColor = win::RGB(0, 128, 128);

struct TestButton final : ButtonView {
  std::int32_t style = zonStyleWin9x;
  std::int32_t borderStyle = zonBorderNone;
  std::int32_t alignment = zonAlignCenter;
  std::int32_t pictureAlignment = zonPicAlignLeft;
  std::int32_t pictureSpacing = 5;
  std::int32_t pictureStyle = zonPicStyleNormal;
  win::OLE_COLOR backColor = 0x8000000F;
  win::OLE_COLOR foreColor = 0x80000012;
  win::OLE_COLOR highlightColor = 0x80000014;
  win::OLE_COLOR shadowColor = 0x80000010;
  win::OLE_COLOR borderColor = 0x80000015;
  win::OLE_COLOR disabledColor = 0x80000010;
  win::OLE_COLOR maskColor = win::RGB(0, 255, 255);
  bool enabled = true;
  bool isDefault = false;
  bool showDefault = true;
  bool showFocus = true;
  bool useMaskColor = true;
  bool dropShadow = false;
  std::string caption;
  std::string displayCaption;
  StdFont font;
  StdPicture picture;
  StdPicture pictureOver;
  StdPicture pictureDown;
  StdPicture pictureDisabled;
  bool hasFocus = false;
  bool suppressRedraw = false;
  std::int32_t pushLook = 1;
  bool userMode = true;
  // Read in turn, one entry per read, the last one repeating; empty means no container.
  std::vector<win::OLE_COLOR> containerColors{kContainerColor};
  mutable std::size_t containerReads = 0;

  // BackColor with the frame colours a control derives from it.
  void SetBackColor(win::OLE_COLOR color);
  // Sets the caption and its display form, as the control makes it.
  void SetCaption(const std::string& text);

  std::int32_t Style() const override { return style; }
  std::int32_t BorderStyle() const override { return borderStyle; }
  std::int32_t Alignment() const override { return alignment; }
  std::int32_t PictureAlignment() const override { return pictureAlignment; }
  std::int32_t PictureSpacing() const override { return pictureSpacing; }
  std::int32_t PictureStyle() const override { return pictureStyle; }
  win::OLE_COLOR BackColor() const override { return backColor; }
  win::OLE_COLOR ForeColor() const override { return foreColor; }
  win::OLE_COLOR HighlightColor() const override { return highlightColor; }
  win::OLE_COLOR ShadowColor() const override { return shadowColor; }
  win::OLE_COLOR BorderColor() const override { return borderColor; }
  win::OLE_COLOR DisabledColor() const override { return disabledColor; }
  win::OLE_COLOR MaskColor() const override { return maskColor; }
  bool Enabled() const override { return enabled; }
  bool Default() const override { return isDefault; }
  bool ShowDefault() const override { return showDefault; }
  bool ShowFocus() const override { return showFocus; }
  bool UseMaskColor() const override { return useMaskColor; }
  bool DropShadow() const override { return dropShadow; }
  const std::string& Caption() const override { return caption; }
  const std::string& DisplayCaption() const override { return displayCaption; }
  StdFont Font() const override { return font; }
  const StdPicture& Picture() const override { return picture; }
  const StdPicture& PictureOver() const override { return pictureOver; }
  const StdPicture& PictureDown() const override { return pictureDown; }
  const StdPicture& PictureDisabled() const override { return pictureDisabled; }
  bool HasFocus() const override { return hasFocus; }
  bool SuppressRedraw() const override { return suppressRedraw; }
  std::int32_t PushLook() const override { return pushLook; }
  bool UserMode() const override { return userMode; }
  win::OLE_COLOR ContainerBackColor() const override;
};

// A canvas of the given size set up as a repaint sets it up, first filled with fill.
std::unique_ptr<Canvas> MakeFilledCanvas(int width, int height, win::OLE_COLOR fill);

// Background and frame of the button, as a repaint without caption or picture paints them.
std::unique_ptr<Canvas> PaintLook(const ButtonView& button, int width, int height,
                                  std::int32_t drawState);

// Background, content and frame, as a repaint paints them.
std::unique_ptr<Canvas> PaintButton(const ButtonView& button, int width, int height,
                                    std::int32_t drawState);

// The smallest rectangle (right and bottom exclusive) holding every pixel that differs between
// two canvases of one size; empty (all zero) when they are equal.
win::RECT DifferingArea(Canvas& a, Canvas& b);

}  // namespace glyphon::testing
