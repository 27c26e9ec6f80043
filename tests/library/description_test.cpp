#include "host/library/description.h"

#include <gtest/gtest.h>

#include <cctype>
#include <ostream>

#include "host/library/fields.h"

namespace nerida::library {
namespace {

using nlohmann::json;

json described(const std::string& parts, const std::string& more = "") {
  return json::parse(R"({"number": 7, "name": "Thing", "category": "Things", "subcategory": "Odd", "keywords": ["a"],
    "materials": {"red": "#ff0000", "blue": {"color": "#0000FF", "doubleSided": true}})" +
                     more + R"(, "parts": )" + parts + "}");
}

std::string refusal(const json& description) {
  try {
    buildModel(description, "thing.json");
  } catch (const LibraryError& error) {
    return error.what();
  }
  return "accepted";
}

TEST(Description, GivesTheCard) {
  const BuiltModel model = buildModel(described(R"([{"box": [1, 1, 1]}])"), "thing.json");
  EXPECT_EQ(model.card.number, 7);
  EXPECT_EQ(model.card.name, "Thing");
  EXPECT_EQ(model.card.category, "Things");
  EXPECT_EQ(model.card.subcategory, "Odd");
  EXPECT_EQ(model.card.keywords, std::vector<std::string>{"a"});
  EXPECT_FALSE(model.card.animated);
}

TEST(Description, ColorsAreLinear) {
  const BuiltModel model = buildModel(described(R"([{"box": [1, 1, 1]}])", R"(, "shapes": {})"), "thing.json");
  const auto& blue = model.paints[0];
  EXPECT_EQ(blue.name, "blue");
  EXPECT_DOUBLE_EQ(blue.blue, 1);
  EXPECT_DOUBLE_EQ(blue.red, 0);
  EXPECT_TRUE(blue.doubleSided);
}

TEST(Description, ModelFillsTheUnitSphere) {
  const BuiltModel model = buildModel(described(R"([{"box": [6, 2, 4], "at": [10, 5, 0]}])"), "thing.json");
  std::vector<Vec> points;
  collectPoints(model.root, {}, 0, points);
  for (const Vec& point : points) EXPECT_NEAR(length(point), 1, 1e-9);
}

TEST(Description, RepeatAndMirrorMultiply) {
  const BuiltModel model = buildModel(
      described(R"([{"box": [1, 1, 1], "at": [3, 0, 0], "mirror": "x", "repeat": {"count": 3, "move": [2, 0, 0]}}])"),
      "thing.json");
  EXPECT_EQ(triangleCount(model.root), 6U * 12U);
}

TEST(Description, PartsInheritTheMaterialAndUseDefinitions) {
  const BuiltModel model = buildModel(
      described(
          R"([{"material": "red", "parts": [{"use": "pair"}]}])",
          R"(, "shapes": {"pair": [{"box": [1, 1, 1]}, {"material": "blue", "box": [1, 2, 1], "at": [2, 0, 0]}]})"),
      "thing.json");
  EXPECT_EQ(model.root.surfaces.size(), 2U);
}

TEST(Description, MovingPartGoesThroughItsFrames) {
  const BuiltModel model =
      buildModel(described(R"([{"box": [1, 1, 1]}, {"name": "wheel", "box": [1, 1, 1], "at": [3, 0, 0],
                     "animate": {"turn": [[0, [0, 0, 0]], [8, [0, 0, 360]]], "move": [[0, [0, 0, 0]], [8, [0, 8, 0]]]}}])",
                           R"(, "frames": 8, "framesPerSecond": 12)"),
                 "thing.json");
  ASSERT_EQ(model.root.children.size(), 1U);
  const Motion& motion = model.root.children[0].motion;
  ASSERT_EQ(motion.places.size(), 8U);
  EXPECT_TRUE(model.card.animated);
  EXPECT_NEAR(motion.places[4].y, 4, 1e-9);
  EXPECT_NEAR(motion.places[4].x, 3, 1e-9);
  EXPECT_NEAR(std::abs(motion.turns[4].z), 1, 1e-9);
  for (std::size_t i = 1; i < 8; ++i) {
    const Quaternion &a = motion.turns[i - 1], &b = motion.turns[i];
    EXPECT_GT(a.x * b.x + a.y * b.y + a.z * b.z + a.w * b.w, 0) << "the nearer of both quaternions";
  }
}

struct Refused {
  const char* parts;
  const char* more;
  const char* reason;
};

/// Test names may not hold quotes and brackets.
void PrintTo(const Refused& item, std::ostream* out) {
  for (const char* c = item.reason; *c != 0; ++c) *out << (std::isalnum(static_cast<unsigned char>(*c)) ? *c : '_');
}

class BadDescription : public testing::TestWithParam<Refused> {};

TEST_P(BadDescription, IsRefusedWithItsReason) {
  EXPECT_EQ(refusal(described(GetParam().parts, GetParam().more)), GetParam().reason);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, BadDescription,
    testing::Values(
        Refused{"[]", "", "thing.json: the model is empty"}, Refused{"{}", "", "thing.json: \"parts\" must be a list"},
        Refused{R"([{"name": "x"}])", "", "thing.json, part x: it has neither a shape nor parts"},
        Refused{R"([{"box": [1, 1, 1], "colour": "red"}])", "",
                "thing.json, part without a name: \"colour\" is not known here"},
        Refused{R"([{"box": [1, 1]}])", "", "thing.json, part without a name: a box needs three sides greater than 0"},
        Refused{R"([{"box": "big"}])", "", "thing.json, part without a name: \"box\" needs two or three coordinates"},
        Refused{R"([{"cylinder": 1}])", "", "thing.json, part without a name: \"height\" is missing"},
        Refused{R"([{"sphere": -1}])", "", "thing.json, part without a name: \"sphere\" must be greater than 0"},
        Refused{R"([{"sphere": 1, "segments": 2}])", "",
                "thing.json, part without a name: \"segments\" must be 3 to 256"},
        Refused{R"([{"sphere": 1, "material": "tin"}])", "",
                "thing.json, part without a name: there is no material tin"},
        Refused{R"([{"use": "leg"}])", "", "thing.json, part without a name: there is no definition leg"},
        Refused{R"([{"use": "a"}])", R"(, "shapes": {"a": [{"use": "a"}]})", "thing.json: parts are nested too deeply"},
        Refused{R"([{"sphere": 1, "mirror": "w"}])", "",
                "thing.json, part without a name: \"mirror\" must be x, y or z"},
        Refused{R"([{"sphere": 1, "repeat": {"count": 100000}}])", "", "repeat: \"count\" must be 1 to 1000"},
        Refused{R"([{"sphere": 1, "animate": {"turn": [[0, [0, 0, 0]]]}}])", "",
                "thing.json, part without a name, animate: the model has no \"frames\""},
        Refused{
            R"([{"sphere": 1, "animate": {"turn": [[4, [0, 0, 0]], [4, [0, 0, 0]]]}}])", R"(, "frames": 8)",
            "thing.json, part without a name, animate: \"turn\" needs [frame, [x, y, z]] in rising order of frames"},
        Refused{"[]", R"(, "frames": 2.5)", "thing.json: \"frames\" must be a whole number of 32 bits"},
        Refused{"[]", R"(, "frames": -1)", "thing.json: \"frames\" must be 0 to 10000"}));

TEST(Description, BadColorIsRefused) {
  json description = described(R"([{"sphere": 1}])");
  description["materials"]["red"] = "#12345";
  EXPECT_EQ(refusal(description), "thing.json: the colour of red must look like #3366cc");
}

TEST(Description, MissingFileAndForeignFileAreRefused) {
  EXPECT_THROW(buildModelFile("no such file.model", {}), LibraryError);
  EXPECT_THROW(buildModelFile(LIBRARY_TOOL, {}), LibraryError);
}

}  // namespace
}  // namespace nerida::library
