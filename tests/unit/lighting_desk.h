#pragma once

#include <string>

#include "tests/unit/desk.h"

namespace nerida {

// The picker of the light on a model whose light is on and comes from the front.
class LightingTest : public DeskTest {
 protected:
  void SetUp() override {
    model->values["LightIsOn"] = true;
    model->functions["SetLightDirection"] = nullptr;
    setDirection(0, 0, 100);
    createInitAndShow();
  }

  void setDirection(const Value& x, const Value& y, const Value& z, const Value& status = std::int32_t{0}) {
    model->functions["GetLightDirection"] = [=](std::span<Argument> arguments) {
      *arguments[0].variable = x;
      *arguments[1].variable = y;
      *arguments[2].variable = z;
      return status;
    };
  }
  void setDirection(int x, int y, int z) {
    setDirection(Value(std::int32_t{x}), Value(std::int32_t{y}), Value(std::int32_t{z}));
  }

  frmLighting& popup() { return library.lighting; }
  headless::FormWindow& window() const { return form("frmLighting"); }
  headless::Bar& barLamp(int index) const { return window().bar("barLamp", index); }
  headless::Bar& centre() const { return barLamp(4); }
  headless::Bar& barSwitch() const { return window().bar("barSwitch"); }
  headless::Picture& panel() const { return window().picture("pnlLight"); }

  void open() {
    popup().ShowSelf(1, 1);
    take();
  }
  void openUnlit() {
    model->values["LightIsOn"] = false;
    open();
  }

  std::string pressedKeys() const {
    std::string keys;
    for (const Lamp& lamp : lamps) {
      if (barLamp(lamp.bar).button(lamp.key).state == buttonDown) keys += std::string(lamp.key) + ";";
    }
    return keys;
  }

  Lines closing() const { return {"frmLighting: hide", foregroundLine(), "barWorld(0): Lighting state 0"}; }
};

}  // namespace nerida
