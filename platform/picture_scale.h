#pragma once

#include "platform/bitmap_resources.h"

namespace nerida {

// The picture in another size. Each pixel is the average of the area that it stands for, so that what is made smaller
// keeps its fine lines. A picture without pixels stays one.
Picture scaled(const Picture& picture, int width, int height);

}  // namespace nerida
