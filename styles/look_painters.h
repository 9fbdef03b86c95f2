// The painters behind the two style passes: one background and one frame per look. Each reads
// the canvas size once and keeps nothing between calls. A failing container lookup ends the
// painter with its AutomationError; the repaint guards each pass.
#pragma once

#include <cstdint>

#include "content/button_view.h"

namespace glyphon {

class Canvas;

// The three schemes of the XP look. Blue and Silver frames share one colour set.
enum class XPScheme { Blue, OliveGreen, Silver };

// Blue and Olive Green faces; Silver has a face of its own.
void PaintXPBackground(Canvas& canvas, const ButtonView& button, std::int32_t drawState,
                       XPScheme scheme);
void PaintXPSilverBackground(Canvas& canvas, const ButtonView& button, std::int32_t drawState);
void PaintMacBackground(Canvas& canvas, const ButtonView& button, std::int32_t drawState);

void PaintWin9xFrame(Canvas& canvas, const ButtonView& button, std::int32_t drawState);
void PaintWin3xFrame(Canvas& canvas, const ButtonView& button, std::int32_t drawState);
void PaintXPFrame(Canvas& canvas, const ButtonView& button, std::int32_t drawState,
                  XPScheme scheme);
void PaintMacFrame(Canvas& canvas, const ButtonView& button, std::int32_t drawState);

}  // namespace glyphon
