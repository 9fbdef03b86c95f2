#include "platform/engine.h"

#include <atomic>

#include "platform/soft/soft_engine.h"

namespace glyphon::win {

namespace {
// The engine serving this thread, resolved once: every platform call reads it.
thread_local Engine* currentEngine = nullptr;
std::atomic<Engine*> defaultEngine = nullptr;
}  // namespace

Engine& CurrentEngine() {
  if (currentEngine == nullptr) {
    Engine* engine = defaultEngine.load();
    currentEngine = engine != nullptr ? engine : &soft::ThreadSoftEngine();
  }
  return *currentEngine;
}

void SetDefaultEngine(Engine& engine) { defaultEngine.store(&engine); }

EngineScope::EngineScope(Engine& engine) : previous_(&CurrentEngine()) { currentEngine = &engine; }

EngineScope::~EngineScope() { currentEngine = previous_; }

#define GLYPHON_FORWARD(ret, name, params, args) \
  ret name params { return CurrentEngine().name args; }
GLYPHON_WIN32_FUNCTIONS(GLYPHON_FORWARD)
#undef GLYPHON_FORWARD

}  // namespace glyphon::win
