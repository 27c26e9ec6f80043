#include "host/app/options.h"

#include <gtest/gtest.h>

#include <fstream>
#include <vector>

#include "host/app/model_title.h"
#include "tests/host/glb.h"

namespace nerida::host {
namespace {

Options read(const std::vector<const wchar_t*>& words) {
  std::vector<wchar_t*> plain;
  plain.reserve(words.size());
  for (const wchar_t* word : words) plain.push_back(const_cast<wchar_t*>(word));
  return readOptions(plain);
}

TEST(Options, areAllOptional) {
  const Options options = read({});
  EXPECT_FALSE(options.model || options.log || options.place || options.activate);
}

TEST(Options, areRead) {
  const Options options = read({L"--place", L"10,20,640,480", L"--model", L"a b.twe", L"--activate", L"--log", L"x"});
  EXPECT_EQ(options.model, L"a b.twe");
  EXPECT_EQ(options.log, L"x");
  EXPECT_TRUE(options.activate);
  ASSERT_TRUE(options.place);
  EXPECT_EQ(options.place->x, 10);
  EXPECT_EQ(options.place->height, 480);
}

TEST(Options, thatMakeNoSenseAreRefused) {
  EXPECT_THROW(read({L"--modle", L"x"}), OptionError);
  EXPECT_THROW(read({L"--model"}), OptionError);
  EXPECT_THROW(read({L"--place", L"10,20"}), OptionError);
  EXPECT_THROW(read({L"--place", L"1,1,0,5"}), OptionError);
}

TEST(Options, defaultModelIsTheFirstOfTheLibrary) {
  const auto library = saved({}, "other.txt").parent_path();
  EXPECT_FALSE(findDefaultModel(library / "nowhere"));
  const auto deep = library / "models" / "dv1000";
  std::filesystem::create_directories(deep);
  std::ofstream(deep / "dv1002.twe").put('x');
  std::ofstream(deep / "dv1001.twe").put('x');
  std::ofstream(deep / "a.txt").put('x');
  EXPECT_EQ(findDefaultModel(library), deep / "dv1001.twe");
}

TEST(Options, titlesComeFromTheLibrarysIndex) {
  const auto library = saved({}, "other.txt").parent_path();
  const auto deep = library / "dv1000" / "dv1000" / "dv1040";
  std::filesystem::create_directories(deep);
  std::ofstream(library / "index.txt") << "104\tSpoon\tKitchen\n1042\tTeapot\tHousehold\tKitchen\n1043\tCup";
  EXPECT_EQ(findModelTitle(deep / "dv1042.twe"), "Teapot");
  EXPECT_EQ(findModelTitle(deep / "dv1043.twe"), "Cup");
  EXPECT_EQ(findModelTitle(deep / "dv1044.twe"), "");
  EXPECT_EQ(findModelTitle(deep / "teapot.twe"), "");
  EXPECT_EQ(findModelTitle(deep / "lower" / "dv1042.twe"), "");
}

}  // namespace
}  // namespace nerida::host
