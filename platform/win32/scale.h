#pragma once

#include <windows.h>

#include <cmath>

#include "platform/units.h"

namespace nerida {

// The fineness of the screen. Twips become pixels here and nowhere else, lengths rounded half to even.
class Scale {
 public:
  static Scale ofScreen() {
    const HDC screen = GetDC(nullptr);
    const Scale scale(GetDeviceCaps(screen, LOGPIXELSX), GetDeviceCaps(screen, LOGPIXELSY));
    ReleaseDC(nullptr, screen);
    return scale;
  }
  static Scale ofPictures() { return {USER_DEFAULT_SCREEN_DPI, USER_DEFAULT_SCREEN_DPI}; }
  Scale(int x, int y) : dpiX(x), dpiY(y) {}

  int pixelsX(Twips length) const { return pixels(length, dpiX); }
  int pixelsY(Twips length) const { return pixels(length, dpiY); }
  // Edges are converted, not sizes, so that neighbours in twips are neighbours on the screen.
  RECT pixels(const Bounds& bounds) const {
    return {pixelsX(bounds.left), pixelsY(bounds.top), pixelsX(bounds.left + bounds.width),
            pixelsY(bounds.top + bounds.height)};
  }

  // A place in a drawing, rounded half up: what repeats every so many whole pixels does so on the screen, though it
  // begin in the middle of one.
  int drawnX(Twips place) const { return drawn(place, dpiX); }
  int drawnY(Twips place) const { return drawn(place, dpiY); }

  // The place of a pixel, to the nearest twip.
  Twips twipsX(int pixel) const { return twips(pixel, dpiX); }
  Twips twipsY(int pixel) const { return twips(pixel, dpiY); }

  // A length that is given for 96 dots per inch, and the scale in percent.
  int design(int length) const { return MulDiv(length, dpiX, USER_DEFAULT_SCREEN_DPI); }
  int percent() const { return MulDiv(100, dpiX, USER_DEFAULT_SCREEN_DPI); }

 private:
  static int pixels(Twips length, int dpi) { return static_cast<int>(std::nearbyint(length.value * dpi / 1440.0)); }

  static int drawn(Twips place, int dpi) { return static_cast<int>(std::floor(place.value * dpi / 1440.0 + 0.5)); }

  static Twips twips(int pixel, int dpi) { return {static_cast<std::int32_t>(std::nearbyint(pixel * 1440.0 / dpi))}; }

  int dpiX;
  int dpiY;
};

}  // namespace nerida
