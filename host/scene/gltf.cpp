#include <fstream>  // which the library forgets without its own file access

#define TINYGLTF_IMPLEMENTATION
#include "host/scene/gltf.h"
