// What a form that lies on a picture needs: a size in pixels, pictures in their own size, one in another, and a timer.
#include "platform/files.h"
#include "tests/contract/form_fixture.h"

namespace nerida {
namespace {

constexpr std::array pictureControls{
    ControlLayout{"note", 0, ControlKind::label, {{150}, {150}, {1500}, {300}}, "Note"},
    ControlLayout{"strip", 0, ControlKind::pictureBox, {{0}, {600}, {3000}, {450}}, "", "Strip"},
    ControlLayout{"inside", 0, ControlKind::image, {{30}, {0}, {0}, {0}}, "Inside", "", {}, "strip"},
};

constexpr FormLayout pictureLayout{"picture", "Picture", FormFrame::borderless, {3000}, {1500}, pictureControls,
                                   {},        true};

class PictureFormContract : public testing::Test {
 protected:
  std::unique_ptr<Subject> subject = makeSubject();
  std::shared_ptr<Window> form = subject->services().windows.create(pictureLayout);
  int ticks = 0;
};

TEST_F(PictureFormContract, HasItsSizeInPixels) {
  EXPECT_EQ(form->sizeInPixels(), (Size{200, 100}));
  form->showTopmostAt({300, 200});
  EXPECT_EQ(form->sizeInPixels(), (Size{200, 100}));
}

TEST_F(PictureFormContract, APictureHasASize) {
  EXPECT_EQ(subject->services().files.loadPicture(subject->folder() + "picture.bmp")->size(), (Size{1, 1}));
}

TEST_F(PictureFormContract, AnImageTakesItsPicturesSizeAndMoves) {
  Image& inside = form->image("inside");
  inside.takePicture(subject->services().files.loadPicture(subject->folder() + "picture.bmp"));
  EXPECT_EQ(inside.bounds(), (Bounds{{30}, {0}, {15}, {15}}));
  inside.setTop({-45});
  EXPECT_EQ(inside.bounds(), (Bounds{{30}, {-45}, {15}, {15}}));
  inside.takePicture(nullptr);
  EXPECT_EQ(inside.bounds(), (Bounds{{30}, {-45}, {0}, {0}}));
}

TEST_F(PictureFormContract, TheTimerRunsWhileItIsOn) {
  Timer& timer = form->timer();
  timer.elapsed = [this] { ++ticks; };
  timer.setInterval(50);
  EXPECT_FALSE(timer.isEnabled());
  subject->pass(*form, 120);
  EXPECT_EQ(ticks, 0);
  timer.setEnabled(true);
  timer.setEnabled(true);
  EXPECT_TRUE(timer.isEnabled());
  subject->pass(*form, 170);
  EXPECT_GE(ticks, 2);
  EXPECT_LE(ticks, 3);
  timer.setEnabled(false);
  const int before = ticks;
  subject->pass(*form, 120);
  EXPECT_EQ(ticks, before);
}

TEST_F(PictureFormContract, TheTimerMayTurnItselfOff) {
  form->timer().elapsed = [this] {
    ++ticks;
    form->timer().setEnabled(false);
  };
  form->timer().setInterval(20);
  form->timer().setEnabled(true);
  subject->pass(*form, 150);
  EXPECT_EQ(ticks, 1);
}

TEST_F(PictureFormContract, TheFormMayBeDestroyedByItsTimer) {
  const WindowHandle handle = form->handle();
  Window& window = *form;
  form->timer().elapsed = [this] {
    ++ticks;
    form.reset();
  };
  form->timer().setInterval(20);
  form->timer().setEnabled(true);
  subject->pass(window, 150);
  EXPECT_EQ(ticks, 1);
  EXPECT_FALSE(subject->exists(handle));
}

}  // namespace
}  // namespace nerida
