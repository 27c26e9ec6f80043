#include "host/library/glb_check.h"

#include "host/scene/model.h"

namespace nerida::library {

// What the demo host can show is right.
std::string whatIsWrongWith(const std::filesystem::path& file) {
  try {
    nerida::Model::load(file);
    return {};
  } catch (const ModelError& failure) {
    return failure.what();
  }
}

}  // namespace nerida::library
