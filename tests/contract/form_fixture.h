#pragma once

#include <gtest/gtest.h>

#include <array>
#include <optional>

#include "platform/error.h"
#include "tests/contract/subject.h"

namespace nerida {

template <class Action>
std::optional<std::int32_t> errorOf(Action action) {
  try {
    action();
  } catch (const Error& failure) {
    return failure.number;
  }
  return std::nullopt;
}

inline constexpr std::array formControls{
    ControlLayout{"bar", 0, ControlKind::buttonBar, {{0}, {0}, {1500}, {375}}},
    ControlLayout{"list", 0, ControlKind::comboBox, {{1500}, {0}, {1500}, {330}}},
    ControlLayout{"field", 0, ControlKind::textBox, {{3000}, {0}, {600}, {315}}, "100"},
    ControlLayout{"picture", 0, ControlKind::pictureBox, {{3600}, {0}, {375}, {375}}},
    ControlLayout{"picture", 1, ControlKind::pictureBox, {{3975}, {0}, {375}, {375}}},
    ControlLayout{"title", 0, ControlKind::label, {{4350}, {0}, {600}, {300}}, "Title"},
};

inline constexpr FormLayout formLayout{"contract", "Contract", FormFrame::toolWindow, {6000}, {1200}, formControls};
inline constexpr FormLayout emptyLayout{"other", "Other", FormFrame::toolWindow, {3000}, {900}, {}};

// A form with one control of each kind and three buttons, hidden. What it raises is written down in order.
class ContractTest : public testing::Test {
 protected:
  ContractTest() {
    form = subject->services().windows.create(formLayout);
    form->activated = [this] { events.push_back("activated"); };
    form->deactivated = [this] { events.push_back("deactivated"); };
    form->clicked = [this] { events.push_back("clicked"); };
    form->closeRequested = [this] { events.push_back("close requested"); };
    bar().buttonPress = [this](const std::string& key) { events.push_back("press " + key); };
    list().click = [this] { events.push_back("click " + std::to_string(list().selected())); };
    bar().setEnabled(true);
    bar().openLayout("Default");
    for (const char* key : {"One", "Two"}) bar().addButton(key, "5, Missing.bmp, 0, 0");
    bar().addButton("Latch", "6,Missing.bmp,0,0,23,22");
    bar().recomputeLayout();
    bar().showLayout("Default");
    for (const char* entry : {"Alpha", "Beta", "Gamma"}) list().addItem(entry);
  }

  using Events = std::vector<std::string>;
  Events take() { return std::exchange(events, {}); }
  ButtonBar& bar() { return form->buttonBar("bar"); }
  ComboBox& list() { return form->comboBox("list"); }
  void show() {
    form->showTopmostAt({200, 150});
    take();
  }

  std::unique_ptr<Subject> subject = makeSubject();
  std::shared_ptr<Window> form;
  Events events;
};

}  // namespace nerida
