#pragma once

// The one way to the glTF library: the same switches in every file that sees it.

#define TINYGLTF_NO_FS  // a model is one file; nothing in it may name another one
#define TINYGLTF_NO_STB_IMAGE
#define TINYGLTF_NO_STB_IMAGE_WRITE
#define TINYGLTF_NO_EXTERNAL_IMAGE
#include <tiny_gltf.h>
