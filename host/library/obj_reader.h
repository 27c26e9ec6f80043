#pragma once

// The one way to the OBJ library: the same switches in every file that sees it.

#include <tiny_obj_loader.h>
