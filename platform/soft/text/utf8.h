// Strings handed to the "A" text functions are UTF-8 on the soft engine. Bytes that do not form
// UTF-8 are read as Windows-1252, so that legacy ANSI strings still draw as the host meant them.
#pragma once

#include <cstddef>

namespace glyphon::win::soft {

// Decodes the character starting at text[pos] (pos < size) and moves pos past it.
char32_t DecodeNext(const char* text, std::size_t size, std::size_t& pos);

}  // namespace glyphon::win::soft
