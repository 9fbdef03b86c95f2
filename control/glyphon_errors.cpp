#include "control/glyphon_errors.h"

#include <string>

namespace glyphon {

void RaiseError(std::int32_t number, std::string_view source, std::string_view description) {
  throw AutomationError(number, std::string(source), std::string(description));
}

}  // namespace glyphon
