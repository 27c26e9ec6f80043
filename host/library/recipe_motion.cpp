#include "host/library/recipe_motion.h"

#include <array>
#include <cmath>

namespace nerida::library {
namespace {

using nlohmann::json;

// Times of a movement that fills the whole animation are shares of it, 0 to 1.

int axisOf(RecipeLine& line) {
  const std::string axis = line.word();
  if (axis != "x" && axis != "y" && axis != "z") line.fail("x, y or z is expected instead of " + axis);
  return axis[0] - 'x';
}

int timesOf(RecipeLine& line) {
  if (!line.numberFollows()) return 1;
  const int times = line.whole("how many times");
  if (times < 1 || times > 100) line.fail("1 to 100 times are expected");
  return times;
}

std::array<double, 3> along(int axis, double value) {
  std::array<double, 3> result{};
  result[static_cast<std::size_t>(axis)] = value;
  return result;
}

/// All the way round, once or several times; -1 = once backwards.
void spin(RecipeLine& line, json& animate) {
  const int axis = axisOf(line);
  const int turns = line.numberFollows() ? line.whole("number of turns") : 1;
  animate["turnShares"] = json::array({{0, along(axis, 0)}, {1, along(axis, 360.0 * turns)}});
}

/// To one side, to the other, and back.
void swing(RecipeLine& line, json& animate) {
  const int axis = axisOf(line);
  const double angle = line.number("degrees to each side");
  const int times = timesOf(line);
  json keys = json::array();
  for (int i = 0; i <= 2 * times; ++i) {
    keys.push_back({static_cast<double>(i) / (2 * times), along(axis, i % 2 == 0 ? angle : -angle)});
  }
  animate["turnShares"] = std::move(keys);
  animate["ease"] = "soft";
}

/// There and back.
void bob(RecipeLine& line, json& animate) {
  const std::vector<double> way = line.numbers("the way: x, y, z");
  if (way.size() != 3) line.fail("the way has three coordinates");
  const int times = timesOf(line);
  json keys = json::array();
  for (int i = 0; i <= 2 * times; ++i) {
    const double share = i % 2;
    keys.push_back({static_cast<double>(i) / (2 * times), {way[0] * share, way[1] * share, way[2] * share}});
  }
  animate["moveShares"] = std::move(keys);
  animate["ease"] = "soft";
}

/// "0 0,0,0 12 0,30,0": frames with the turn or place that they have.
void keyFrames(RecipeLine& line, json& animate, const char* what) {
  json keys = json::array();
  while (line.numberFollows()) {
    const double frame = line.number("a frame");
    const std::vector<double> value = line.numbers("x, y, z");
    if (value.size() != 3) line.fail("three numbers are expected behind a frame");
    keys.push_back({frame, value});
  }
  if (keys.empty()) line.fail("frames and their values are expected");
  animate[what] = std::move(keys);
}

}  // namespace

bool readMotion(const std::string& word, RecipeLine& line, json& part) {
  if (word != "spin" && word != "swing" && word != "bob" && word != "turns" && word != "moves" && word != "soft") {
    return false;
  }
  json& animate = part["animate"];
  if (word == "spin") spin(line, animate);
  if (word == "swing") swing(line, animate);
  if (word == "bob") bob(line, animate);
  if (word == "turns") keyFrames(line, animate, "turn");
  if (word == "moves") keyFrames(line, animate, "move");
  if (word == "soft") animate["ease"] = "soft";
  return true;
}

}  // namespace nerida::library
