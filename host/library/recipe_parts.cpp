#include "host/library/recipe_parts.h"

#include <algorithm>

#include "host/library/outlines.h"
#include "host/library/recipe_motion.h"

namespace nerida::library {
namespace {

using nlohmann::json;

/// Small round things need fewer faces. Sizes are those of a model that is two or three units large, as most are.
void coarsen(json& part, double radius) {
  if (radius <= 0.3) part["segments"] = radius <= 0.05 ? 10 : radius <= 0.12 ? 12 : 16;
}

json pointsToTheEnd(RecipeLine& line, std::size_t least) {
  json points = json::array();
  while (line.numberFollows()) {
    const std::vector<double> point = line.numbers("a point");
    if (point.size() != 2 && point.size() != 3) line.fail("a point has two or three coordinates");
    points.push_back(point);
  }
  if (points.size() < least) line.fail("more points are expected");
  return points;
}

std::vector<double> exactly(RecipeLine& line, std::size_t least, std::size_t most, const char* what) {
  std::vector<double> values = line.numbers(what);
  if (values.size() < least || values.size() > most) line.fail(std::string("expected: ") + what);
  return values;
}

void box(RecipeLine& line, json& part) { part["box"] = exactly(line, 3, 3, "width, height, depth"); }

void ball(RecipeLine& line, json& part) {
  const std::vector<double> radii = line.numbers("a radius, or three");
  if (radii.size() == 1) {
    part["sphere"] = radii[0];
  } else if (radii.size() == 3) {
    part["sphere"] = radii;
  } else {
    line.fail("a ball has one radius or three");
  }
  coarsen(part, *std::ranges::max_element(radii));
}

void cylinder(RecipeLine& line, json& part) {
  const std::vector<double> values = exactly(line, 2, 3, "radius, height, radius at the top");
  part["cylinder"] = values[0];
  part["height"] = values[1];
  if (values.size() == 3) part["top"] = values[2];
  coarsen(part, values[0]);
}

void cone(RecipeLine& line, json& part) {
  const std::vector<double> values = exactly(line, 2, 2, "radius, height");
  part["cone"] = values[0];
  part["height"] = values[1];
  coarsen(part, values[0]);
}

void prism(RecipeLine& line, json& part) {
  part["segments"] = line.whole("number of sides");
  const std::vector<double> values = exactly(line, 2, 3, "radius, height, radius at the top");
  part["cylinder"] = values[0];
  part["height"] = values[1];
  if (values.size() == 3) part["top"] = values[2];
  part["crease"] = 10;
}

void ring(RecipeLine& line, json& part) {
  const std::vector<double> values = exactly(line, 2, 2, "radius of the ring, of its tube");
  part["torus"] = values[0];
  part["tube"] = values[1];
  if (values[1] <= 0.06) part["sides"] = 6;
  coarsen(part, values[0]);
}

void lathe(RecipeLine& line, json& part) { part["lathe"] = pointsToTheEnd(line, 2); }

void plate(RecipeLine& line, json& part) {
  part["depth"] = line.number("thickness");
  part["extrude"] = pointsToTheEnd(line, 3);
}

void tube(RecipeLine& line, json& part) {
  const std::vector<double> radii = line.numbers("radius, or radii along the tube");
  part["radii"] = radii;
  if (*std::ranges::max_element(radii) <= 0.06) part["sides"] = 6;
  part["tube"] = pointsToTheEnd(line, 2);
}

json flat(const std::vector<Vec>& outline) {
  json points = json::array();
  for (const Vec& point : outline) points.push_back({point.x, point.y});
  return points;
}

void star(RecipeLine& line, json& part) {
  const int points = line.whole("number of points");
  if (points < 2 || points > 100) line.fail("a star has 2 to 100 points");
  const std::vector<double> values = exactly(line, 3, 3, "outer radius, inner radius, thickness");
  part["extrude"] = flat(starOutline(points, values[0], values[1]));
  part["depth"] = values[2];
}

void gear(RecipeLine& line, json& part) {
  const int teeth = line.whole("number of teeth");
  if (teeth < 3 || teeth > 100) line.fail("a gear has 3 to 100 teeth");
  const std::vector<double> values = exactly(line, 3, 3, "outer radius, inner radius, thickness");
  part["extrude"] = flat(gearOutline(teeth, values[0], values[1]));
  part["depth"] = values[2];
}

void heart(RecipeLine& line, json& part) {
  const std::vector<double> values = exactly(line, 2, 2, "size, thickness");
  part["extrude"] = flat(heartOutline(values[0]));
  part["depth"] = values[1];
}

void slice(RecipeLine& line, json& part) {
  const std::vector<double> values = exactly(line, 4, 4, "radius, thickness, first angle, last angle");
  part["extrude"] = flat(sliceOutline(values[0], values[2], values[3]));
  part["depth"] = values[1];
  part["crease"] = 30;
}

void blob(RecipeLine& line, json& part) { part["blob"] = line.number("softness of the seams"); }
void group(RecipeLine&, json&) {}
void use(RecipeLine& line, json& part) { part["use"] = line.word(); }

void vectorOption(RecipeLine& line, json& part, const std::string& option) {
  part[option] = exactly(line, 3, 3, "three numbers");
}

void size(RecipeLine& line, json& part) {
  const std::vector<double> values = line.numbers("a factor, or three");
  if (values.size() != 1 && values.size() != 3) line.fail("a size is one factor or three");
  if (values.size() == 1) {
    part["size"] = values[0];
  } else {
    part["size"] = values;
  }
}

void numberOption(RecipeLine& line, json& part, const std::string& option) {
  part[option] = line.number(option.c_str());
}

void countOption(RecipeLine& line, json& part, const std::string& key) { part[key] = line.whole(key.c_str()); }

void repeat(RecipeLine& line, json& part) {
  json& copies = part["repeat"];
  copies["count"] = line.whole("number of copies");
  while (line.peek() == "by" || line.peek() == "turning") {
    const std::string step = line.word() == "by" ? "move" : "turn";
    vectorOption(line, copies, step);
  }
  if (copies.size() == 1) line.fail("\"repeat\" needs \"by\" or \"turning\"");
}

/// Copies in a full circle.
void around(RecipeLine& line, json& part) {
  const int count = line.whole("number of copies");
  if (count < 1) line.fail("at least one copy is expected");
  const std::string axis = line.peek() == "x" || line.peek() == "z" ? line.word() : "y";
  const double step = 360.0 / count;
  part["repeat"] = {
      {"count", count},
      {"turn", {axis == "x" ? step : 0.0, axis == "y" ? step : 0.0, axis == "z" ? step : 0.0}},
  };
}

struct Word {
  const char* word;
  void (*read)(RecipeLine&, json&);
};

constexpr Word shapeWords[] = {
    {"box", box},     {"ball", ball},   {"cylinder", cylinder}, {"cone", cone}, {"prism", prism}, {"ring", ring},
    {"lathe", lathe}, {"plate", plate}, {"tube", tube},         {"star", star}, {"gear", gear},   {"heart", heart},
    {"slice", slice}, {"blob", blob},   {"group", group},       {"use", use},
};

constexpr Word optionWords[] = {
    {"at", [](RecipeLine& line, json& part) { vectorOption(line, part, "at"); }},
    {"turn", [](RecipeLine& line, json& part) { vectorOption(line, part, "turn"); }},
    {"taper", [](RecipeLine& line, json& part) { vectorOption(line, part, "taper"); }},
    {"size", size},
    {"round", [](RecipeLine& line, json& part) { numberOption(line, part, "round"); }},
    {"bevel", [](RecipeLine& line, json& part) { numberOption(line, part, "bevel"); }},
    {"crease", [](RecipeLine& line, json& part) { numberOption(line, part, "crease"); }},
    {"segments", [](RecipeLine& line, json& part) { countOption(line, part, "segments"); }},
    {"sides", [](RecipeLine& line, json& part) { countOption(line, part, "sides"); }},
    {"steps", [](RecipeLine& line, json& part) { countOption(line, part, "steps"); }},
    {"smooth", [](RecipeLine&, json& part) { part["smooth"] = true; }},
    {"sharp", [](RecipeLine&, json& part) { part["smooth"] = false; }},
    {"closed", [](RecipeLine&, json& part) { part["closed"] = true; }},
    {"mirror", [](RecipeLine& line, json& part) { part["mirror"] = line.word(); }},
    {"repeat", repeat},
    {"around", around},
    {"called", [](RecipeLine& line, json& part) { part["name"] = line.word(); }},
};

const Word* find(std::span<const Word> words, const std::string& word) {
  const auto found = std::ranges::find_if(words, [&](const Word& w) { return word == w.word; });
  return found == words.end() ? nullptr : &*found;
}

void readOption(RecipeLine& line, json& part, json& colors) {
  const std::string word = line.word();
  if (const Word* option = find(optionWords, word)) {
    option->read(line, part);
  } else if (readMotion(word, line, part)) {
    return;
  } else if (colors.contains(word)) {
    part["material"] = word;
  } else if (word.size() == 7 && word[0] == '#') {
    colors[word] = word;
    part["material"] = word;
  } else {
    line.fail("this is neither a colour nor anything else that is known here: " + word);
  }
}

}  // namespace

json partOfLine(RecipeLine& line, json& colors) {
  const std::string word = line.word();
  const Word* shape = find(shapeWords, word);
  if (!shape) line.fail("this is not a shape: " + word);
  json part = json::object();
  part["line"] = line.number();
  shape->read(line, part);
  while (!line.done()) readOption(line, part, colors);
  return part;
}

}  // namespace nerida::library
