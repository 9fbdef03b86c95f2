// A button view with plain fields, for painting content without a control, and a sheet that
// lays rendered buttons out in a grid for one golden image.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "content/button_view.h"
#include "control/glyphon_constants.h"
#include "surface/canvas.h"

namespace glyphon::testing {

// The control's defaults, with explicit colours.
struct TestButton final : ButtonView {
  std::int32_t style = zonStyleWin9x;
  std::int32_t borderStyle = 0;
  std::int32_t alignment = zonAlignCenter;
  std::int32_t pictureAlignment = zonPicAlignLeft;
  std::int32_t pictureSpacing = 5;
  std::int32_t pictureStyle = zonPicStyleNormal;
  win::OLE_COLOR backColor = win::RGB(212, 208, 200);
  win::OLE_COLOR foreColor = win::RGB(0, 0, 0);
  win::OLE_COLOR highlightColor = win::RGB(255, 255, 255);
  win::OLE_COLOR shadowColor = win::RGB(128, 128, 128);
  win::OLE_COLOR borderColor = win::RGB(0, 0, 0);
  win::OLE_COLOR disabledColor = win::RGB(128, 128, 128);
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
  std::int32_t pushLook = 1;
  bool userMode = true;

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
  bool SuppressRedraw() const override { return false; }
  std::int32_t PushLook() const override { return pushLook; }
  bool UserMode() const override { return userMode; }
  win::OLE_COLOR ContainerBackColor() const override { return backColor; }
};

// A canvas of the button's size cleared to its BackColor, as the face before the content.
std::unique_ptr<Canvas> FaceCanvas(const TestButton& button, int width, int height);

// PaintContent on a fresh face canvas.
std::unique_ptr<Canvas> RenderContent(const TestButton& button, int width, int height,
                                      std::int32_t drawState);

// Cells of one size in a grid, one pixel of dark grey between them.
class ButtonSheet {
 public:
  ButtonSheet(int columns, int rows, int cellWidth, int cellHeight);
  void Put(int column, int row, const Canvas& cell);
  ::testing::AssertionResult Matches(const std::string& goldenName) const;
  win::HDC Dc() const { return canvas_->hdc(); }

 private:
  int cellWidth_;
  int cellHeight_;
  std::unique_ptr<Canvas> canvas_;
};

}  // namespace glyphon::testing
