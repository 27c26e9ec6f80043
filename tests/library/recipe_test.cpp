#include "host/library/recipe.h"

#include <gtest/gtest.h>

#include <cctype>
#include <ostream>

#include "host/library/description.h"
#include "host/library/fields.h"

namespace nerida::library {
namespace {

using nlohmann::json;

constexpr const char* card = "model 7 \"A thing\"\nin Things, Odd\nwords a, two words\n";

json recipe(const std::string& parts, const Shared& shared = {}) {
  return readRecipe(card + parts, "thing.model", shared);
}

json firstPart(const std::string& line) { return recipe("colours red #ff0000\n" + line)["parts"][0]; }

std::string refusal(const std::string& parts) {
  try {
    buildModel(recipe(parts), "thing.model");
  } catch (const LibraryError& error) {
    return error.what();
  }
  return "accepted";
}

TEST(Recipe, GivesTheCard) {
  const json read = readRecipe(std::string("frames 24 12\n") + card + "ball 1 #112233\n", "x", {});
  EXPECT_EQ(read["number"], 7);
  EXPECT_EQ(read["name"], "A thing");
  EXPECT_EQ(read["category"], "Things");
  EXPECT_EQ(read["subcategory"], "Odd");
  EXPECT_EQ(read["keywords"], (json{"a", "two words"}));
  EXPECT_EQ(read["frames"], 24);
  EXPECT_EQ(read["framesPerSecond"], 12);
}

struct Translated {
  const char* line;
  const char* part;
};

void PrintTo(const Translated& item, std::ostream* out) { *out << item.line; }

class RecipeLineOf : public testing::TestWithParam<Translated> {};

TEST_P(RecipeLineOf, SaysWhatThePartIs) {
  json part = firstPart(std::string(GetParam().line) + " red");
  part.erase("line");
  part.erase("material");
  EXPECT_EQ(part, json::parse(GetParam().part));
}

INSTANTIATE_TEST_SUITE_P(
    Words, RecipeLineOf,
    testing::Values(
        Translated{"box 1,2,3 round 0.1", R"({"box": [1.0, 2.0, 3.0], "round": 0.1})"},
        Translated{"ball 1 at 0,1,2", R"({"sphere": 1.0, "at": [0.0, 1.0, 2.0]})"},
        Translated{"ball 1,2,0.5 turn 90,0,0", R"({"sphere": [1.0, 2.0, 0.5], "turn": [90.0, 0.0, 0.0]})"},
        Translated{"ball 0.04", R"({"sphere": 0.04, "segments": 10})"},
        Translated{"cylinder 1,2,0.5", R"({"cylinder": 1.0, "height": 2.0, "top": 0.5})"},
        Translated{"cone 1,2", R"({"cone": 1.0, "height": 2.0})"},
        Translated{"prism 6 1,2", R"({"cylinder": 1.0, "height": 2.0, "segments": 6, "crease": 10})"},
        Translated{"ring 1,0.5", R"({"torus": 1.0, "tube": 0.5})"},
        Translated{"lathe 0,0 1,2 sharp", R"({"lathe": [[0.0, 0.0], [1.0, 2.0]], "smooth": false})"},
        Translated{"plate 0.5 0,0 1,0 0,1 bevel 0.1 smooth",
                   R"({"extrude": [[0.0, 0.0], [1.0, 0.0], [0.0, 1.0]], "depth": 0.5, "bevel": 0.1, "smooth": true})"},
        Translated{"tube 0.2,0.1 0,0,0 1,0,0 closed",
                   R"({"tube": [[0.0, 0.0, 0.0], [1.0, 0.0, 0.0]], "radii": [0.2, 0.1], "closed": true})"},
        Translated{"group size 2 mirror x", R"({"size": 2.0, "mirror": "x"})"},
        Translated{"group size 1,2,3 taper 1,1,0.5", R"({"size": [1.0, 2.0, 3.0], "taper": [1.0, 1.0, 0.5]})"},
        Translated{"group repeat 3 by 1,0,0 turning 0,9,0",
                   R"({"repeat": {"count": 3, "move": [1.0, 0.0, 0.0], "turn": [0.0, 9.0, 0.0]}})"},
        Translated{"group around 4", R"({"repeat": {"count": 4, "turn": [0.0, 90.0, 0.0]}})"},
        Translated{"group around 8 z", R"({"repeat": {"count": 8, "turn": [0.0, 0.0, 45.0]}})"},
        Translated{"group called \"left leg\"", R"({"name": "left leg"})"},
        Translated{"group spin y", R"({"animate": {"turnShares": [[0, [0.0, 0.0, 0.0]], [1, [0.0, 360.0, 0.0]]]}})"},
        Translated{"group spin z -2",
                   R"({"animate": {"turnShares": [[0, [0.0, 0.0, 0.0]], [1, [0.0, 0.0, -720.0]]]}})"},
        Translated{"group swing x 20", R"({"animate": {"ease": "soft", "turnShares":
                   [[0.0, [20.0, 0.0, 0.0]], [0.5, [-20.0, 0.0, 0.0]], [1.0, [20.0, 0.0, 0.0]]]}})"},
        Translated{"group bob 0,1,0", R"({"animate": {"ease": "soft", "moveShares":
                   [[0.0, [0.0, 0.0, 0.0]], [0.5, [0.0, 1.0, 0.0]], [1.0, [0.0, 0.0, 0.0]]]}})"},
        Translated{"group turns 0 0,0,0 12 0,90,0 soft", R"({"animate": {"ease": "soft", "turn":
                   [[0.0, [0.0, 0.0, 0.0]], [12.0, [0.0, 90.0, 0.0]]]}})"}));

TEST(Recipe, PartsThatAreSetInBelongToThePartAbove) {
  const json read = recipe("group #112233\n  ball 1\n  group\n    box 1,1,1\nball 2 #445566\n");
  ASSERT_EQ(read["parts"].size(), 2U);
  EXPECT_EQ(read["parts"][0]["parts"].size(), 2U);
  EXPECT_EQ(read["parts"][0]["parts"][1]["parts"].size(), 1U);
}

TEST(Recipe, BlankLinesAndRemarksSayNothing) {
  EXPECT_EQ(recipe("\n# a remark\nball 1 #112233 # another\n\n")["parts"].size(), 1U);
}

TEST(Recipe, ColoursThatAreNotUsedStayOut) {
  Shared shared;
  shared.colors = {{"red", "#ff0000"}, {"blue", "#0000ff"}, {"green", "#00ff00"}};
  const json read = recipe("define pair\n  ball 1 green\nball 1 red\nuse pair\n", shared);
  EXPECT_EQ(read["materials"], (json{{"red", "#ff0000"}, {"green", "#00ff00"}}));
}

TEST(Recipe, AModelsOwnDefinitionComesBeforeASharedOne) {
  const Shared shared = readShared("colours red #ff0000\ndefine wheel\n  ball 1 red\n", "shared");
  EXPECT_EQ(recipe("use wheel\n", shared)["shapes"]["wheel"][0]["sphere"], 1);
  EXPECT_EQ(recipe("define wheel\n  ball 2 red\nuse wheel\n", shared)["shapes"]["wheel"][0]["sphere"], 2);
}

TEST(Recipe, BlobIsOneClosedSkin) {
  const BuiltModel apart = buildModel(recipe("ball 1 #112233\nball 1 at 1,0,0\n"), "x");
  const BuiltModel model = buildModel(recipe("blob 0.2 #112233\n  ball 1\n  ball 1 at 1,0,0\n"), "x");
  EXPECT_EQ(apart.root.surfaces.size(), 1U);
  std::size_t inner = 0;
  for (const Vec& point : model.root.surfaces.begin()->second.points) {
    if (length(point) < 0.5) ++inner;
  }
  EXPECT_EQ(inner, 0U) << "nothing of the balls is left inside";
}

TEST(Recipe, SpinGoesOnceThroughAllFrames) {
  const BuiltModel model = buildModel(recipe("frames 8\nball 1 #112233\nbox 1,1,1 at 2,0,0 spin z\n"), "x");
  ASSERT_EQ(model.root.children.size(), 1U);
  const Motion& motion = model.root.children[0].motion;
  EXPECT_NEAR(std::abs(motion.turns[4].z), 1, 1e-9) << "half a turn after half of the frames";
  EXPECT_NEAR(std::abs(motion.turns[7].w), std::abs(motion.turns[1].w), 1e-9) << "the last leads to the first";
}

struct Wrong {
  const char* text;
  const char* reason;
};

void PrintTo(const Wrong& item, std::ostream* out) { *out << item.reason; }

class BadRecipe : public testing::TestWithParam<Wrong> {};

TEST_P(BadRecipe, IsRefusedWithItsLine) { EXPECT_EQ(refusal(GetParam().text), GetParam().reason); }

INSTANTIATE_TEST_SUITE_P(
    Kinds, BadRecipe,
    testing::Values(
        Wrong{"bal 1", "thing.model:4: this is not a shape: bal"},
        Wrong{"ball", "thing.model:4: numbers are expected: a radius, or three"},
        Wrong{"ball big", "thing.model:4: numbers are expected: a radius, or three"},
        Wrong{"ball 1e999", "thing.model:4: numbers are expected: a radius, or three"},
        Wrong{"ball nan", "thing.model:4: numbers are expected: a radius, or three"},
        Wrong{"ball 1,2", "thing.model:4: a ball has one radius or three"},
        Wrong{"box 1,2", "thing.model:4: expected: width, height, depth"},
        Wrong{"ball 1 pink", "thing.model:4: this is neither a colour nor anything else that is known here: pink"},
        Wrong{"ball 1", "thing.model: no part has a colour"}, Wrong{"", "thing.model: no part has a colour"},
        Wrong{"\nball 1 #12345x", "thing.model: the colour of #12345x must look like #3366cc"},
        Wrong{"colours red ff0000", "thing.model:4: the colour of red must look like #3366cc"},
        Wrong{"ball -1 #112233", "thing.model:4: \"sphere\" must be greater than 0"},
        Wrong{"group #112233\n   ball 1", "thing.model:5: each level is set in by two blanks"},
        Wrong{"  ball 1 #112233", "thing.model:4: this line is set in, but belongs to nothing"},
        Wrong{"use wheel #112233", "thing.model:4: there is no definition above of that name: wheel"},
        Wrong{"define a\n  use a #112233\nuse a", "thing.model:5: there is no definition above of that name: a"},
        Wrong{"define a\n  ball 1\ndefine a\n  ball 1", "thing.model:6: there is a definition of that name already: a"},
        Wrong{"ball 1 #112233 called \"x", "thing.model:4: a quotation mark is not closed"},
        Wrong{"ball 1 #112233 repeat 3", "thing.model:4: \"repeat\" needs \"by\" or \"turning\""},
        Wrong{"ball 1 #112233 spin w", "thing.model:4: x, y or z is expected instead of w"},
        Wrong{"ball 1 #112233 spin y", "thing.model:4, animate: the model has no \"frames\""},
        Wrong{"plate 1 0,0 1,0 #112233", "thing.model:4: more points are expected"},
        Wrong{"plate 1 0,0 1,1 1,0 0,1 #112233", "thing.model:4: the outline crosses itself"},
        Wrong{"blob 0.1 #112233", "thing.model:4: \"of\" is missing"},
        Wrong{"blob 0.1 #112233\n  box 1,1,1", "thing.model:4: \"sphere\" is missing"},
        Wrong{"star 1 1,2,3 #112233", "thing.model:4: a star has 2 to 100 points"},
        Wrong{"model 1.5 x", "thing.model:4: a whole number is expected: the model's number"},
        Wrong{"in Things", "thing.model:4: a category and a sub-category are expected"},
        Wrong{"words a,,b", "thing.model:4: a comma has nothing before or behind it"}));

}  // namespace
}  // namespace nerida::library
