#include "platform/engine.h"

#include "platform/soft/soft_engine.h"

namespace glyphon::win {

namespace {
thread_local Engine* installedEngine = nullptr;
}  // namespace

Engine& CurrentEngine() {
  if (installedEngine != nullptr) return *installedEngine;
  return soft::ThreadSoftEngine();
}

EngineScope::EngineScope(Engine& engine) : previous_(installedEngine) { installedEngine = &engine; }

EngineScope::~EngineScope() { installedEngine = previous_; }

#define GLYPHON_FORWARD(ret, name, params, args) \
  ret name params { return CurrentEngine().name args; }
GLYPHON_WIN32_FUNCTIONS(GLYPHON_FORWARD)
#undef GLYPHON_FORWARD

}  // namespace glyphon::win
