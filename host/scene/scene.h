#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "host/render/renderer.h"
#include "host/scene/model.h"
#include "host/scene/orientation.h"
#include "host/scene/playback.h"

namespace nerida {

struct LightDirection {
  int x = 0, y = 0, z = 0;  ///< -100 to 100: to the right, downwards, towards the viewer
  friend bool operator==(const LightDirection&, const LightDirection&) = default;
};

/// One colour of the picture: the style's own, or one that the user chose.
class ColorChoice {
 public:
  [[nodiscard]] bool isDefault() const { return !chosen; }
  void set(PackedRgb color) { chosen = color & 0xFFFFFFU; }
  void restoreDefault() { chosen.reset(); }
  [[nodiscard]] PackedRgb value(PackedRgb styleColor) const { return chosen.value_or(styleColor); }
  [[nodiscard]] const std::optional<PackedRgb>& explicitColor() const { return chosen; }

 private:
  std::optional<PackedRgb> chosen;
};

/// Everything that an embedded 3D object knows: its model, how the model stands, and how it is drawn.
/// Nothing here repaints by itself: after a change call render().
class Scene {
 public:
  Scene();

  // The model. Loading brings it home and stops the animation; style, colours and light stay.
  /// Throws ModelError and keeps the old model. The name stays; when it is empty it becomes the file's.
  void load(const std::filesystem::path& file);
  void unload();  ///< the name stays
  [[nodiscard]] bool hasModel() const { return model.has_value(); }
  [[nodiscard]] const std::filesystem::path& modelFile() const { return file; }
  [[nodiscard]] const std::string& modelName() const { return name; }  ///< UTF-8
  void setModelName(std::string newName) { name = std::move(newName); }

  // Size and place. Step counts may be any number; the result stays within sensible limits.
  [[nodiscard]] int modelScale() const;  ///< per cent of the home size
  void setModelScale(int percent);
  void scaleModel(int steps);  ///< +1 = one tenth larger
  void moveX(int steps);       ///< +1 = to the left
  void moveY(int steps);       ///< +1 = upwards
  void resetHome();

  // Orientation. Steps turn the model as the viewer sees it.
  void rotateX(int steps);                   ///< positive = tilt up
  void rotateY(int steps);                   ///< positive = tilt left
  void rotateZ(int steps);                   ///< positive = clockwise
  void turnBy(int up, int left);             ///< hundredths of a degree
  void setOrientation(int x, int y, int z);  ///< hundredths of a degree, any number of turns
  [[nodiscard]] Orientation orientation() const;

  // Style. The empty name selects the custom style: it looks like the last named one.
  [[nodiscard]] static std::vector<std::string> lookStyleNames();  ///< without "Basic Draw"
  [[nodiscard]] std::string lookStyleName() const;                 ///< "none" = custom style
  bool setLookStyle(const std::string& styleName);                 ///< false and no change: no such style

  [[nodiscard]] PackedRgb surfaceColor() const { return surface.value(style->surface); }
  [[nodiscard]] PackedRgb lineColor() const { return line.value(style->line); }
  [[nodiscard]] PackedRgb backgroundColor() const { return background.value(style->background); }
  /// A colour that the user chose outlives a change of style, until restoreDefault().
  ColorChoice surface, line, background;

  [[nodiscard]] int lineThicknessScale() const { return lineThickness; }  ///< per cent
  void setLineThicknessScale(int percent);                                ///< clamped to 50..300

  // Light.
  bool lightIsOn = true;
  [[nodiscard]] LightDirection lightDirection() const { return light; }
  void setLightDirection(LightDirection direction);  ///< clamped

  /// Frames, playing, loop, timer; reset by load().
  Playback animation;

  void render(Picture& target);

 private:
  void turn(const Mat3& step);

  std::filesystem::path file;
  std::string name;
  std::optional<Model> model;
  float scale = 1;
  float offsetX = 0, offsetY = 0;
  Mat3 rotation;
  const LookStyle* style;
  bool customStyle = false;
  int lineThickness = 100;
  LightDirection light{-100, -100, 50};
  Renderer renderer;
};

}  // namespace nerida
