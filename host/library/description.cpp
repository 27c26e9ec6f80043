#include "host/library/description.h"

#include <algorithm>
#include <cmath>

#include "host/library/described_shapes.h"
#include "host/library/files.h"
#include "host/library/motion.h"
#include "host/library/placement.h"

namespace nerida::library {
namespace {

using nlohmann::json;

constexpr double defaultCrease = 40;
constexpr int deepestNesting = 32;

double linearOfByte(int value) {
  const double v = value / 255.0;
  return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

Paint paintOf(const std::string& name, const json& value, const std::string& where) {
  Paint paint;
  paint.name = name;
  std::string color;
  if (value.is_string()) {
    color = value.get<std::string>();
  } else {
    Fields fields(value, where + ", material " + name);
    color = fields.text("color");
    paint.doubleSided = fields.flag("doubleSided", false);
    fields.close();
  }
  const bool fits =
      color.size() == 7 && color[0] == '#' && color.find_first_not_of("0123456789abcdefABCDEF", 1) == std::string::npos;
  if (!fits) throw LibraryError(where + ": the colour of " + name + " must look like #3366cc");
  const auto channel = [&](std::size_t at) { return linearOfByte(std::stoi(color.substr(at, 2), nullptr, 16)); };
  paint.red = channel(1);
  paint.green = channel(3);
  paint.blue = channel(5);
  return paint;
}

class Builder {
 public:
  Builder(BuiltModel& target, const json& definitions, std::string where)
      : model(target), shapes(definitions), place(std::move(where)) {}

  void addParts(const json& parts, const Transform& placement, std::size_t paint, Node& into) {
    if (!parts.is_array()) throw LibraryError(place + ": \"parts\" must be a list");
    if (++depth > deepestNesting) throw LibraryError(place + ": parts are nested too deeply");
    for (const json& part : parts) addPart(part, placement, paint, into);
    --depth;
  }

 private:
  struct Part {
    std::string name, place;
    std::size_t paint = 0;
    Vec at, size;
    Quaternion turn;
    std::vector<Transform> copies;
    std::optional<Mesh> shape;
    double crease = defaultCrease;
    const json* animate = nullptr;
    const json* parts = nullptr;
    const json* used = nullptr;
  };

  void addPart(const json& source, const Transform& placement, std::size_t paint, Node& into) {
    const Part part = read(source, paint);
    for (const Transform& copy : part.copies) {
      if (part.animate) {
        addMoving(part, placement * copy, into);
      } else {
        const Transform own = Transform::shift(part.at) * Transform::turn(part.turn) * Transform::scale(part.size);
        fill(part, placement * copy * own, into);
      }
    }
  }

  void addMoving(const Part& part, const Transform& placement, Node& into) {
    Node node;
    node.name = part.name;
    node.placement = placement;
    node.motion = describedMotion(*part.animate, part.place, model.frames, part.at, part.turn);
    fill(part, Transform::scale(part.size), node);
    into.children.push_back(std::move(node));
  }

  void fill(const Part& part, const Transform& placement, Node& into) {
    if (part.shape) {
      Mesh mesh = *part.shape;
      mesh.map(placement);
      into.surfaces[part.paint].append(withNormals(mesh, part.crease));
    }
    if (part.parts) addParts(*part.parts, placement, part.paint, into);
    if (part.used) addParts(*part.used, placement, part.paint, into);
  }

  /// A part out of a recipe knows its line, others have at best a name.
  [[nodiscard]] std::string placeOf(const json& source) const {
    if (!source.is_object()) return place + ", a part";
    if (source.contains("line")) return place + ":" + source["line"].dump();
    return place + ", part " + source.value("name", std::string("without a name"));
  }

  Part read(const json& source, std::size_t inheritedPaint) {
    Fields fields(source, placeOf(source));
    Part part;
    part.place = placeOf(source);
    fields.integer("line", 0);
    part.name = fields.text("name", "part");
    part.paint = fields.has("material") ? paintNamed(fields) : inheritedPaint;
    part.at = fields.vec("at", {});
    part.turn = quaternionOfTurn(fields.vec("turn", {}));
    part.size = sizeOf(fields);
    part.copies = copiesOf(fields);
    part.crease = fields.number("crease", defaultCrease);
    part.shape = describedShape(fields);
    if (fields.has("animate")) part.animate = &fields.raw("animate");
    if (fields.has("parts")) part.parts = &fields.raw("parts");
    if (fields.has("use")) part.used = &definition(fields);
    fields.close();
    if (!part.shape && !part.parts && !part.used) fields.fail("it has neither a shape nor parts");
    return part;
  }

  std::size_t paintNamed(Fields& fields) const {
    const std::string name = fields.text("material");
    const auto found = std::ranges::find(model.paints, name, &Paint::name);
    if (found == model.paints.end()) fields.fail("there is no material " + name);
    return static_cast<std::size_t>(found - model.paints.begin());
  }

  const json& definition(Fields& fields) const {
    const std::string name = fields.text("use");
    if (!shapes.contains(name)) fields.fail("there is no definition " + name);
    return shapes[name];
  }

  BuiltModel& model;
  const json& shapes;
  std::string place;
  int depth = 0;
};

ModelCard cardOf(Fields& fields) {
  ModelCard card;
  card.number = fields.integer("number", -1);
  if (card.number < 0) fields.fail("\"number\" must be 0 or more");
  card.name = fields.text("name");
  card.category = fields.text("category");
  card.subcategory = fields.text("subcategory");
  for (const json& word : fields.raw("keywords")) {
    if (!word.is_string()) fields.fail("\"keywords\" must be a list of words");
    card.keywords.push_back(word.get<std::string>());
  }
  return card;
}

}  // namespace

BuiltModel buildModel(const json& description, const std::string& where) {
  Fields fields(description, where);
  BuiltModel model;
  model.card = cardOf(fields);
  model.frames = fields.integer("frames", 0);
  if (model.frames < 0 || model.frames > 10000) fields.fail("\"frames\" must be 0 to 10000");
  model.framesPerSecond = fields.number("framesPerSecond", 24);
  model.card.animated = model.frames > 0;
  for (const auto& [name, value] : fields.raw("materials").items()) model.paints.push_back(paintOf(name, value, where));
  if (model.paints.empty()) fields.fail("there are no materials");
  const json none = json::object();
  const json& shapes = fields.has("shapes") ? fields.raw("shapes") : none;
  model.root.name = model.card.name;
  Builder(model, shapes, where).addParts(fields.raw("parts"), {}, 0, model.root);
  fields.close();
  if (triangleCount(model.root) == 0) fields.fail("the model is empty");
  fitIntoUnitSphere(model);
  return model;
}

BuiltModel buildModelFile(const std::filesystem::path& file, const Shared& shared) {
  const std::string where = file.filename().string();
  const std::optional<std::string> text = readWhole(file);
  if (!text) throw LibraryError(where + ": cannot be read");
  return buildModel(readRecipe(*text, where, shared), where);
}

Shared readSharedFile(const std::filesystem::path& folder) {
  const std::optional<std::string> text = readWhole(folder / "shared.recipe");
  return text ? readShared(*text, "shared.recipe") : Shared{};
}

}  // namespace nerida::library
