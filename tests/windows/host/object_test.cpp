#include "tests/windows/host/object_test.h"

namespace nerida::host {

ObjectTest::ObjectTest() : Caller(*dispatch) {}

ObjectTest::~ObjectTest() { EXPECT_EQ(dispatch->Release(), 0U) << "a call kept a reference"; }

Answer ObjectTest::load(const std::filesystem::path& file) {
  return let(L"TarnwellXFile", Value::text(file.wstring().c_str()));
}

}  // namespace nerida::host
