// Failures inside the COM layer travel as ComFailure and become an HRESULT again at the interface
// boundary, so the code in between reads straight through.
#pragma once

#include "activex/windows_api.h"

#include <exception>

namespace glyphon::activex {

class ComFailure : public std::exception {
 public:
  explicit ComFailure(HRESULT result) : result_(result) {}
  HRESULT Result() const noexcept { return result_; }
  const char* what() const noexcept override { return "COM call failed"; }

 private:
  HRESULT result_;
};

inline void ThrowIfFailed(HRESULT result) {
  if (FAILED(result)) throw ComFailure(result);
}

// Runs body at an interface boundary: ComFailure gives its HRESULT, anything else E_FAIL (or
// E_OUTOFMEMORY), nothing escapes.
template <class Body>
HRESULT Guarded(Body&& body) noexcept {
  try {
    return body();
  } catch (const ComFailure& failure) {
    return failure.Result();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_FAIL;
  }
}

}  // namespace glyphon::activex
