#pragma once

#include <vector>

#include "host/scene/gltf.h"
#include "host/scene/model_content.h"

namespace nerida {

/// Takes over what is drawn: the nodes of the scene, their surfaces, materials, skins and the first animation that
/// moves them. Throws ModelError.
ModelContent readContent(const tinygltf::Model& source);

// The steps of it, each filling its part of the content.

/// Gives, for each node of the file, its number in content.nodes; -1 = not in the scene.
std::vector<int> readNodes(const tinygltf::Model& source, ModelContent& content);
void readMaterials(const tinygltf::Model& source, ModelContent& content);
void readParts(const tinygltf::Model& source, const std::vector<int>& nodeNumbers, ModelContent& content);
void readAnimation(const tinygltf::Model& source, const std::vector<int>& nodeNumbers, ModelContent& content);

}  // namespace nerida
