// The items of a list that edits an enumerated property: each constant's value in decimal, then
// " - " and its name ("2 - zonStyleWinXPBlue"), in value order, so the list index is the value.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace glyphon {

// The constants of the button's enumeration, up to and including lastConstant when one is given.
std::vector<std::string> EnumerationItems(std::string_view enumeration,
                                          std::string_view lastConstant = {});

}  // namespace glyphon
