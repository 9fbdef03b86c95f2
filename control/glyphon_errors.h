// The errors the button reports to its clients. The control's own errors share one number
// (kControlErrorNumber); the late-bound access uses the host's usual ones.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/automation_error.h"

namespace glyphon {

inline constexpr std::int32_t kTypeMismatchNumber = static_cast<std::int32_t>(0x800A000D);
inline constexpr std::int32_t kOverflowNumber = static_cast<std::int32_t>(0x800A0006);
inline constexpr std::int32_t kNoSuchMemberNumber = static_cast<std::int32_t>(0x800A01B6);

inline constexpr std::string_view kBorderStyleMessage =
    "BorderStyle can only be set for the Win3x style.";
inline constexpr std::string_view kPictureTypeMessage =
    "Picture, PictureOver, PictureDown, and PictureDisabled Properties must be Bitmap or Icon.";
inline constexpr std::string_view kTypeMismatchMessage = "Type mismatch";
inline constexpr std::string_view kOverflowMessage = "Overflow";
inline constexpr std::string_view kNoSuchMemberMessage =
    "Object doesn't support this property or method";

// Throws AutomationError.
[[noreturn]] void RaiseError(std::int32_t number, std::string_view source,
                             std::string_view description);

}  // namespace glyphon
