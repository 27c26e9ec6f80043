// zephra-render: draws a model file into a PNG, to look at what the demo host would show.

#include <cstdio>
#include <cstdlib>
#include <map>
#include <stdexcept>
#include <string>

#include "host/scene/scene.h"

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"
#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STB_IMAGE_WRITE_STATIC
#include <stb/stb_image_write.h>
#pragma GCC diagnostic pop

namespace nerida {
namespace {

constexpr const char* usage =
    "zephra-render FILE [--out x.png] [--size 640x480] [--style NAME] [--orientation X,Y,Z] [--scale PERCENT]\n"
    "                   [--frame N] [--surface RRGGBB] [--line RRGGBB] [--background RRGGBB]\n"
    "                   [--thickness PERCENT] [--light X,Y,Z | off]\n"
    "zephra-render --styles\n";

using Options = std::map<std::string, std::string>;

PackedRgb colorOf(const std::string& hex) {
  const auto value = static_cast<unsigned>(std::stoul(hex, nullptr, 16));
  return makeRgb(value >> 16U & 0xFFU, value >> 8U & 0xFFU, value & 0xFFU);
}

LightDirection threeNumbers(const std::string& text) {
  LightDirection three;
  if (std::sscanf(text.c_str(), "%d,%d,%d", &three.x, &three.y, &three.z) != 3) {
    throw std::invalid_argument("three numbers with commas expected: " + text);
  }
  return three;
}

Picture pictureOf(const std::string& size) {
  int width = 0, height = 0;
  constexpr int largest = 8192;
  if (std::sscanf(size.c_str(), "%dx%d", &width, &height) != 2 || width < 1 || height < 1 || width > largest ||
      height > largest) {
    throw std::invalid_argument("a size such as 640x480 expected: " + size);
  }
  return {width, height};
}

void apply(const std::string& option, const std::string& value, Scene& scene) {
  if (option == "--style" && !scene.setLookStyle(value)) throw std::invalid_argument("no such style: " + value);
  if (option == "--surface") scene.surface.set(colorOf(value));
  if (option == "--line") scene.line.set(colorOf(value));
  if (option == "--background") scene.background.set(colorOf(value));
  if (option == "--thickness") scene.setLineThicknessScale(std::stoi(value));
  if (option == "--scale") scene.setModelScale(std::stoi(value));
  if (option == "--frame") scene.animation.setCurrentFrame(std::stoi(value));
  if (option == "--light") {
    scene.lightIsOn = value != "off";
    if (scene.lightIsOn) scene.setLightDirection(threeNumbers(value));
  }
  if (option == "--orientation") {
    const auto [x, y, z] = threeNumbers(value);
    scene.setOrientation(x, y, z);
  }
}

void writePng(const std::string& file, Picture picture) {
  for (std::uint32_t& pixel : picture.pixels) {
    pixel = (pixel & 0xFF00FF00U) | (pixel >> 16U & 0xFFU) | (pixel & 0xFFU) << 16U;
  }
  if (stbi_write_png(file.c_str(), picture.width, picture.height, 4, picture.pixels.data(), picture.width * 4) == 0) {
    throw std::runtime_error("cannot write " + file);
  }
}

Options parse(int count, char** words) {
  Options options{{"--out", "out.png"}, {"--size", "640x480"}};
  for (int i = 2; i < count; i += 2) {
    if (i + 1 == count) throw std::invalid_argument(std::string("a value is missing after ") + words[i]);
    options[words[i]] = words[i + 1];
  }
  return options;
}

void run(int count, char** words) {
  const Options options = parse(count, words);
  Scene scene;
  scene.load(words[1]);
  for (const auto& [option, value] : options) apply(option, value, scene);
  Picture picture = pictureOf(options.at("--size"));
  scene.render(picture);
  writePng(options.at("--out"), picture);
}

}  // namespace
}  // namespace nerida

int main(int count, char** words) {
  using namespace nerida;
  try {
    if (count < 2) {
      std::fputs(usage, stderr);
      return 2;
    }
    if (std::string(words[1]) == "--styles") {
      for (const std::string& name : Scene::lookStyleNames()) std::puts(name.c_str());
      return 0;
    }
    run(count, words);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "zephra-render: %s\n", error.what());
    return 1;
  }
}
