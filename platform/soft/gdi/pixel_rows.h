// Raw pixel values of pixmap rows, read and written a run at a time. Unlike Pixmap::GetPixel,
// 32-bit values keep their top (alpha) byte, because raster operations and copies carry it as GDI
// does.
#pragma once

#include "platform/soft/pixmap.h"

namespace glyphon::win::soft {

// Every bit a raw value can have at this depth (all 32 at 32 bits per pixel).
PixelValue RawPixelMask(int bitsPerPixel);

// Reads count values of row y from x on; the run must lie inside the pixmap.
void ReadPixels(const Pixmap& pixmap, int x, int y, int count, PixelValue* out);

// Writes count values to row y from x on, each cut to the pixmap's depth.
void WritePixels(Pixmap& pixmap, int x, int y, int count, const PixelValue* in);

}  // namespace glyphon::win::soft
