#include "host/library/model_path.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

namespace nerida::library {
namespace {

struct Case {
  std::int32_t number;
  const char* path;
};

void PrintTo(const Case& item, std::ostream* out) { *out << item.number; }

class ModelPath : public testing::TestWithParam<Case> {};

TEST_P(ModelPath, IsFourLevelsDeep) { EXPECT_EQ(modelPath(GetParam().number).generic_string(), GetParam().path); }

INSTANTIATE_TEST_SUITE_P(
    Numbers, ModelPath,
    testing::Values(
        Case{12345, "dv12000/dv12300/dv12345/dv12345.twe"}, Case{12343, "dv12000/dv12300/dv12340/dv12343.twe"},
        Case{42, "dv0000/dv0000/dv0040/dv42.twe"}, Case{0, "dv0000/dv0000/dv0000/dv0.twe"},
        Case{4, "dv0000/dv0000/dv0000/dv4.twe"}, Case{5, "dv0000/dv0000/dv0005/dv5.twe"},
        Case{9, "dv0000/dv0000/dv0005/dv9.twe"}, Case{10, "dv0000/dv0000/dv0010/dv10.twe"},
        Case{999, "dv0000/dv0900/dv0995/dv999.twe"}, Case{1000, "dv1000/dv1000/dv1000/dv1000.twe"},
        Case{9999, "dv9000/dv9900/dv9995/dv9999.twe"}, Case{10000, "dv10000/dv10000/dv10000/dv10000.twe"},
        Case{-42, "dv0000/dv0000/dv-0040/dv-42.twe"}, Case{-1234, "dv-1000/dv-1200/dv-1230/dv-1234.twe"},
        Case{std::numeric_limits<std::int32_t>::max(), "dv2147483000/dv2147483600/dv2147483645/dv2147483647.twe"},
        Case{std::numeric_limits<std::int32_t>::min(), "dv-2147483000/dv-2147483600/dv-2147483640/dv-2147483648.twe"}));

}  // namespace
}  // namespace nerida::library
