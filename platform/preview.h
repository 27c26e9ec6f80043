#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/control.h"

namespace nerida {

// The control that shows a model before it is inserted. It is a component of its own, and may fail in any member with
// any error; where it is not installed, every member fails with error 429.
class Preview : public Control {
 public:
  virtual std::string modelFile() = 0;  // full path; empty when nothing is loaded
  virtual void setModelFile(const std::string& path) = 0;
  virtual std::string modelName() = 0;
  virtual void setModelName(const std::string& name) = 0;
  virtual std::string styleName() = 0;  // of the style that the model is shown in
  virtual std::int32_t modelScale() = 0;
  virtual std::array<std::int32_t, 3> orientation() = 0;
  // Loads and draws the model of the model file.
  virtual void load() = 0;
};

}  // namespace nerida
