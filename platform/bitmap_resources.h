#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/bitmap_spec.h"

namespace nerida {

// A small picture: rows from top to bottom, 0xAARRGGBB, colours multiplied by alpha.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
};

// The bitmaps of a compiled resource file, read as data: nothing in the file is trusted, and whatever of it does not
// hold together is as if it were not there.
//
// A bitmap may have larger variants for finer screens, named "NAME@150" and "NAME@200", with all positions scaled.
// Bitmaps of 32 bits a pixel carry alpha; in the others magenta is transparent.
class BitmapResources {
 public:
  explicit BitmapResources(std::vector<std::uint8_t> content);

  bool isEmpty() const { return bitmaps.empty(); }

  // The picture that a spec names, at a scale in percent. Nothing when there is no such bitmap or the rectangle lies
  // outside of it; what only reaches over the edge is transparent there.
  std::optional<Picture> picture(const BitmapSpec& spec, int percent) const;

 private:
  struct Extent {
    std::size_t offset;
    std::size_t size;
  };

  std::vector<std::uint8_t> content;
  std::map<std::string, Extent> bitmaps;
};

}  // namespace nerida
