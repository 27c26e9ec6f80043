// Third-party code, compiled here and nowhere else.
#define TINYOBJLOADER_IMPLEMENTATION
#include "host/library/obj_reader.h"
