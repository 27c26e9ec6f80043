// Pictures, labels and what is drawn: the mouse, the keyboard, the focus and the parts of a control.
#include <algorithm>

#include "platform/desktop.h"
#include "tests/contract/form_fixture.h"

namespace nerida {
namespace {

class PictureContract : public ContractTest {
 protected:
  PictureContract() {
    for (const int index : {0, 1}) {
      const std::string name = "picture " + std::to_string(index);
      picture(index).gotFocus = [this, name] { events.push_back(name + " got it"); };
      picture(index).lostFocus = [this, name] { events.push_back(name + " lost it"); };
    }
    picture().keyDown = [this](Key key) {
      events.push_back("key " + std::to_string(static_cast<int>(key)));
      return true;
    };
  }
  PictureBox& picture(int index = 0) { return form->pictureBox("picture", index); }
  void mouse(Mouse what, std::int32_t x = 30, std::int32_t y = 60) { subject->mouse(*form, "picture", what, {x}, {y}); }
  void key(Key key) { subject->key(*form, "picture", key); }
  void hearMouse() {
    const auto hear = [this](const char* what) {
      return [this, what](Twips x, Twips y) {
        events.push_back(std::string(what) + " " + std::to_string(x.value) + ", " + std::to_string(y.value));
      };
    };
    picture().mouseMove = hear("move");
    picture().mouseDown = hear("down");
    picture().mouseUp = hear("up");
  }
  WindowHandle activeWindow() { return subject->services().desktop.activeWindow(); }
};

TEST_F(PictureContract, TheMouseComesWithItsPlace) {
  show();
  hearMouse();
  mouse(Mouse::move);
  mouse(Mouse::down);
  mouse(Mouse::up, 300, 150);
  EXPECT_EQ(take(), (Events{"move 30, 60", "down 30, 60", "up 300, 150"}));
}

TEST_F(PictureContract, AnyButtonPressesAndTheReleaseComesFromAnywhere) {
  show();
  hearMouse();
  mouse(Mouse::rightDown);
  mouse(Mouse::rightUp, -150, 4500);
  EXPECT_EQ(take(), (Events{"down 30, 60", "up -150, 4500"}));
}

TEST_F(PictureContract, TheFocusGoesBeforeItComes) {
  show();
  picture(0).setFocus();
  picture(0).setFocus();
  picture(1).setFocus();
  EXPECT_EQ(take(), (Events{"picture 0 got it", "picture 0 lost it", "picture 1 got it"}));
}

TEST_F(PictureContract, TheFocusIsLostInsideHiding) {
  show();
  picture().setFocus();
  take();
  form->hide();
  EXPECT_EQ(take(), (Events{"deactivated", "picture 0 lost it"}));
}

TEST_F(PictureContract, WhoLosesTheFocusSeesTheWindowThatHasTheActivation) {
  show();
  picture().setFocus();
  EXPECT_EQ(activeWindow(), form->handle());
  WindowHandle active = -1;
  picture().lostFocus = [&] { active = activeWindow(); };
  const auto other = subject->services().windows.create(emptyLayout);
  other->showTopmostAt({400, 400});
  EXPECT_EQ(active, other->handle());
}

TEST_F(PictureContract, HearsItsKeys) {
  show();
  picture().setFocus();
  take();
  for (const Key pressed : {Key::left, Key::right, Key::up, Key::down, Key::choose}) key(pressed);
  EXPECT_EQ(take(), (Events{"key 0", "key 1", "key 2", "key 3", "key 4"}));
}

TEST_F(PictureContract, KeysShowTheFocusAndAPressHidesIt) {
  show();
  EXPECT_FALSE(form->showsFocus());
  picture().setFocus();
  EXPECT_FALSE(form->showsFocus());
  key(Key::down);
  EXPECT_TRUE(form->showsFocus());
  mouse(Mouse::move);
  EXPECT_TRUE(form->showsFocus());
  mouse(Mouse::down);
  EXPECT_FALSE(form->showsFocus());
}

TEST_F(PictureContract, TheNextWindowGoesOnShowingTheFocus) {
  show();
  picture().setFocus();
  key(Key::down);
  const auto other = subject->services().windows.create(emptyLayout);
  other->showTopmostAt({400, 400});
  EXPECT_TRUE(other->showsFocus());
  form->showTopmost();
  mouse(Mouse::down);
  other->showTopmost();
  EXPECT_FALSE(other->showsFocus());
}

TEST_F(PictureContract, PartsArePressedByTools) {
  std::vector<DrawnPart> cells{{.name = "Red", .place = {{0}, {0}, {150}, {150}}},
                               {.name = "Blue", .place = {{150}, {0}, {150}, {150}}}};
  picture().parts = [&] { return cells; };
  picture().pressPart = [this](std::size_t part) { events.push_back("part " + std::to_string(part)); };
  EXPECT_FALSE(subject->pressPart(*form, "picture", 1)) << "out of sight";
  show();
  EXPECT_TRUE(subject->pressPart(*form, "picture", 1));
  cells.push_back({.name = "Green", .place = {}});
  EXPECT_TRUE(subject->pressPart(*form, "picture", 2));
  cells.resize(1);
  EXPECT_TRUE(subject->pressPart(*form, "picture", 0)) << "the control itself is the button now";
  cells.clear();
  EXPECT_FALSE(subject->pressPart(*form, "picture", 0));
  EXPECT_EQ(take(), (Events{"part 1", "part 2", "part 0"}));
}

TEST_F(PictureContract, NoPartIsPressedWhileAModalWindowWaits) {
  picture().parts = [] { return std::vector<DrawnPart>{{.name = "Red", .place = {{0}, {0}, {150}, {150}}}}; };
  picture().pressPart = [this](std::size_t) { events.push_back("part"); };
  show();
  const auto other = subject->services().windows.create(emptyLayout);
  bool pressed = true;
  subject->duringModal([&] {
    pressed = subject->pressPart(*form, "picture", 0);
    other->hide();
  });
  other->showModal();
  EXPECT_FALSE(pressed);
  EXPECT_TRUE(subject->pressPart(*form, "picture", 0));
  EXPECT_EQ(std::ranges::count(take(), "part"), 1);
}

TEST_F(PictureContract, DrawsInColoursOfItsOwn) {
  picture().paint = [](Canvas& canvas) {
    canvas.filledBox({0}, {0}, {375}, {375}, Rgb{0x010203});
    canvas.line({0}, {300}, {300}, {300}, Rgb{0x00FF80});
  };
  show();
  picture().repaint();
  EXPECT_EQ(subject->colorAt(*form, "picture", {150}, {150}), 0x010203);
  EXPECT_EQ(subject->colorAt(*form, "picture", {150}, {300}), 0x00FF80);
  EXPECT_EQ(subject->colorAt(*form, "picture", {300}, {300}), 0x00FF80) << "the end point is drawn too";
}

TEST_F(PictureContract, DrawsTheFocusOnlyWhileItShows) {
  picture().paint = [](Canvas& canvas) {
    canvas.filledBox({0}, {0}, {375}, {375}, Rgb{0x0000FF});
    canvas.focusBox({30}, {30}, {300}, {300});
  };
  show();
  const auto isDotted = [this] {
    picture().repaint();
    int others = 0;
    for (std::int32_t x = 45; x < 300; x += 15) {
      others += subject->colorAt(*form, "picture", {x}, {30}) != 0x0000FF ? 1 : 0;
    }
    return others > 4;
  };
  picture().setFocus();
  EXPECT_FALSE(isDotted());
  key(Key::down);
  EXPECT_TRUE(isDotted());
  mouse(Mouse::down);
  EXPECT_FALSE(isDotted());
}

class LabelContract : public ContractTest {
 protected:
  LabelContract() {
    Label& title = form->label("title");
    title.mouseMove = [this] { events.push_back("move"); };
    title.mouseDown = [this] { events.push_back("down"); };
    title.mouseUp = [this] { events.push_back("up"); };
    title.click = [this] { events.push_back("click"); };
    show();
  }
  void mouse(Mouse what, bool inside = true) { subject->mouseOnLabel(*form, "title", what, inside); }
};

TEST_F(LabelContract, AClickIsAPressAndAReleaseOnIt) {
  for (const Mouse what : {Mouse::move, Mouse::down, Mouse::up}) mouse(what);
  EXPECT_EQ(take(), (Events{"move", "down", "up", "click"}));
}

TEST_F(LabelContract, AReleaseElsewhereIsNoClick) {
  mouse(Mouse::down);
  mouse(Mouse::up, false);
  EXPECT_EQ(take(), (Events{"down", "up"}));
}

}  // namespace
}  // namespace nerida
