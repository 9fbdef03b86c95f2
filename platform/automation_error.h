// The one error type reported to clients: an automation error with a number, the name of the
// property or operation that failed, and a fixed English description. Only property setters and
// the drawing surfaces' documented checks throw it; painting and input never do.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace glyphon {

// The object-error base of automation errors, and the number every client-visible error uses.
inline constexpr std::int32_t kObjectErrorBase = static_cast<std::int32_t>(0x80040000u);
inline constexpr std::int32_t kControlErrorNumber = kObjectErrorBase + 1000;  // 0x800403E8

class AutomationError : public std::exception {
 public:
  AutomationError(std::int32_t number, std::string source, std::string description)
      : number_(number), source_(std::move(source)), description_(std::move(description)) {}

  std::int32_t Number() const noexcept { return number_; }
  const std::string& Source() const noexcept { return source_; }
  const std::string& Description() const noexcept { return description_; }

  const char* what() const noexcept override { return description_.c_str(); }

 private:
  std::int32_t number_;
  std::string source_;
  std::string description_;
};

}  // namespace glyphon
