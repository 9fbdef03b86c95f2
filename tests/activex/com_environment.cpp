// Every test runs in a single-threaded apartment with OLE initialised, as a form's thread does.
#include <gtest/gtest.h>
#include <ole2.h>

namespace {

class OleEnvironment final : public ::testing::Environment {
 public:
  void SetUp() override { ASSERT_HRESULT_SUCCEEDED(OleInitialize(nullptr)); }
  void TearDown() override { OleUninitialize(); }
};

[[maybe_unused]] auto* const environment =
    ::testing::AddGlobalTestEnvironment(new OleEnvironment);

}  // namespace
