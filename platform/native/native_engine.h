// The engine of the Windows build that forwards every platform function to the real Windows API.
// Handles and records pass through unchanged: ours have the Win32 layout (checked at compile time
// in the engine's source, the one file that sees windows.h). It keeps no state, so one instance
// serves every thread that installs it.
#pragma once

#include "platform/engine.h"

namespace glyphon::win::native {

class NativeEngine final : public Engine {
 public:
#define GLYPHON_DECLARE_OVERRIDE(ret, name, params, args) ret name params override;
  GLYPHON_WIN32_FUNCTIONS(GLYPHON_DECLARE_OVERRIDE)
#undef GLYPHON_DECLARE_OVERRIDE
};

// The process's native engine.
NativeEngine& TheNativeEngine();

}  // namespace glyphon::win::native
