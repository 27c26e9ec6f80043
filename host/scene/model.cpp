#include "host/scene/model.h"

#include <algorithm>
#include <fstream>
#include <limits>

#include "host/scene/glb_check.h"
#include "host/scene/gltf.h"
#include "host/scene/gltf_reader.h"
#include "host/scene/model_content.h"

namespace nerida {
namespace {

constexpr std::uintmax_t largestFile = 256U * 1024U * 1024U;

std::vector<std::uint8_t> readFile(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) throw ModelError("The model file cannot be found.");
  const auto size = std::filesystem::file_size(file, error);
  if (error) throw ModelError("The model file cannot be read.");
  if (size > largestFile) throw ModelError("The model file is too large.");
  std::ifstream in(file, std::ios::binary);
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
  in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  if (!in && size > 0) throw ModelError("The model file cannot be read.");
  return bytes;
}

/// Images are kept as they are in the file, and decoded only when a material uses them.
bool keepEncoded(tinygltf::Image* image, const int, std::string*, std::string*, int, int, const unsigned char* bytes,
                 int size, void*) {
  image->image.assign(bytes, bytes + std::max(0, size));
  image->as_is = true;
  return true;
}

tinygltf::Model parseGltf(std::span<const std::uint8_t> bytes) {
  tinygltf::TinyGLTF reader;
  reader.SetImageLoader(keepEncoded, nullptr);
  tinygltf::Model model;
  std::string error, warning;
  bool done = false;
  try {
    done = reader.LoadBinaryFromMemory(&model, &error, &warning, bytes.data(), static_cast<unsigned>(bytes.size()));
  } catch (const std::exception&) {
    done = false;
  }
  if (!done) throw ModelError("The model file is damaged.");
  return model;
}

struct Bounds {
  Vec3 low{std::numeric_limits<float>::max(), std::numeric_limits<float>::max(), std::numeric_limits<float>::max()};
  Vec3 high{-low.x, -low.y, -low.z};

  void add(Vec3 p) {
    low = {std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z)};
    high = {std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z)};
  }
};

/// Some files hide a part by shrinking it to nothing, far away from all that is seen.
bool isCollapsed(const Mesh& mesh, const Triangle& triangle) {
  const auto [a, b, c] = triangle.corners;
  const auto coincide = [&](std::uint32_t one, std::uint32_t other) {
    const Vec3 gap = mesh.positions[one] - mesh.positions[other];
    return dot(gap, gap) <= 0;
  };
  return coincide(a, b) && coincide(a, c);
}

/// The poses that stand for the whole animation when the model is fitted into its sphere.
template <class Action>
void forSamplePoses(ModelContent& content, const Affine& root, Action action) {
  constexpr int mostPoses = 48;
  const int frames = std::max(1, content.frameCount), poses = std::min(frames, mostPoses);
  for (int i = 0; i < poses; ++i) {
    const int frame = poses > 1 ? static_cast<int>(static_cast<std::int64_t>(i) * (frames - 1) / (poses - 1)) : 0;
    pose(content, frame / content.frameRate, root);
    for (const Triangle& triangle : content.mesh.triangles) {
      if (isCollapsed(content.mesh, triangle)) continue;
      for (const std::uint32_t corner : triangle.corners) action(content.mesh.positions[corner]);
    }
  }
}

/// Brings the model, in all its poses, into the unit sphere.
Affine fitToSphere(ModelContent& content) {
  Bounds bounds;
  forSamplePoses(content, {}, [&](Vec3 p) { bounds.add(p); });
  const Vec3 center = (bounds.low + bounds.high) * 0.5F;
  float square = 0;
  forSamplePoses(content, {{}, -center}, [&](Vec3 p) { square = std::max(square, dot(p, p)); });
  const float radius = std::sqrt(square);
  const bool usable = std::isfinite(radius) && isFinite(center) && radius > 1e-12F && std::isfinite(1 / radius);
  if (!usable) throw ModelError("The model has a size that cannot be drawn.");
  const float scale = 1 / radius;
  return {{{scale, 0, 0}, {0, scale, 0}, {0, 0, scale}}, -center * scale};
}

/// A mirrored part would show its inner side.
void turnMirroredFaces(ModelContent& content) {
  for (const Part& part : content.parts) {
    if (!part.mirrored) continue;
    for (std::size_t i = part.firstTriangle; i < part.firstTriangle + part.triangleCount; ++i) {
      std::swap(content.mesh.triangles[i].corners[1], content.mesh.triangles[i].corners[2]);
    }
  }
}

}  // namespace

struct Model::Content : ModelContent {
  Affine root;
  int posedFrame = -1;
};

Model::Model(std::unique_ptr<Content> loaded) : content(std::move(loaded)) {}
Model::Model(Model&&) noexcept = default;
Model& Model::operator=(Model&&) noexcept = default;
Model::~Model() = default;

Model Model::load(const std::filesystem::path& file) { return parse(readFile(file)); }

Model Model::parse(std::span<const std::uint8_t> bytes) {
  checkGlb(bytes);
  auto loaded = std::make_unique<Content>();
  try {
    static_cast<ModelContent&>(*loaded) = readContent(parseGltf(bytes));
  } catch (const std::bad_alloc&) {
    throw ModelError("There is not enough memory for the model.");
  }
  loaded->mesh.positions.resize(loaded->positions.size());
  loaded->mesh.normals.resize(loaded->normals.size());
  loaded->root = fitToSphere(*loaded);
  Model model(std::move(loaded));
  model.meshAt(0);
  turnMirroredFaces(*model.content);
  findEdges(model.content->mesh);
  return model;
}

Model::Extent Model::extent() const {
  const float radius = 1 / content->root.linear.rowX.x;
  return {-content->root.offset * radius, radius};
}

int Model::frameCount() const { return content->frameCount; }
double Model::frameRate() const { return content->frameRate; }

const Mesh& Model::meshAt(int frame) {
  if (frame != content->posedFrame) {
    pose(*content, frame / content->frameRate, content->root);
    content->posedFrame = frame;
  }
  return content->mesh;
}

}  // namespace nerida
