// An engine serves the platform functions for one thread. The soft engine is the default; the
// native engine (Windows builds) forwards to the real API. Tests may switch engines per thread to
// paint the same thing through both.
#pragma once

#include "platform/win32.h"

namespace glyphon::win {

class Engine {
 public:
  virtual ~Engine() = default;

#define GLYPHON_DECLARE_MEMBER(ret, name, params, args) virtual ret name params = 0;
  GLYPHON_WIN32_FUNCTIONS(GLYPHON_DECLARE_MEMBER)
#undef GLYPHON_DECLARE_MEMBER
};

// The engine serving the calling thread: the one installed by EngineScope, else the thread's own
// soft engine.
Engine& CurrentEngine();

// Makes engine serve every thread that has no EngineScope, in place of the thread's own soft
// engine. Call it before the first platform call: a thread keeps the engine it first resolved.
// The ActiveX DLL serves its host's threads through the native engine this way.
void SetDefaultEngine(Engine& engine);

// Installs an engine for the calling thread for the scope's lifetime.
class EngineScope {
 public:
  explicit EngineScope(Engine& engine);
  ~EngineScope();
  EngineScope(const EngineScope&) = delete;
  EngineScope& operator=(const EngineScope&) = delete;

 private:
  Engine* previous_;
};

}  // namespace glyphon::win
