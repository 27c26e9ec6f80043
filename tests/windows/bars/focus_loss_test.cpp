// When a form is told that the application has lost the focus: not for the moment in which a popup goes.
#include "tests/windows/bars/fixture.h"

namespace nerida {
namespace {

constexpr FormLayout popupLayout{"popup", "", FormFrame::popup, {1500}, {1500}, {}};

class FocusLoss : public ToolbarOnScreen {
 protected:
  void SetUp() override {
    ToolbarOnScreen::SetUp();
    popup = factory.create(popupLayout);
    form->hook([this](const Message& message) -> std::intptr_t {
      if (message.number != messageActivateApplication) return form->callPrevious(message);
      told.push_back(message.wParam != 0);
      return 0;
    });
  }
  void TearDown() override { form->unhook(); }

  void showAndHidePopup() {
    popup->showTopmostAt({300, 300});
    pumpFor(50);
    ASSERT_EQ(reinterpret_cast<HWND>(popup->handle()), GetActiveWindow());
    popup->hide();
  }
  static void pumpFor(DWORD milliseconds) {
    for (const DWORD start = GetTickCount(); GetTickCount() - start < milliseconds; Sleep(5)) pump();
  }
  // As a window manager does that takes the focus from everybody.
  static void nobodyHasTheFocus() { SetForegroundWindow(GetDesktopWindow()); }

  std::shared_ptr<Window> popup;
  std::vector<bool> told;
};

TEST_F(FocusLoss, IsNotToldWhenItLastsAMomentOnlyAndAPopupHasJustGone) {
  showAndHidePopup();
  nobodyHasTheFocus();
  SetForegroundWindow(window());
  pumpFor(400);
  EXPECT_TRUE(told.empty());
}

TEST_F(FocusLoss, IsToldLaterWhenItLasts) {
  showAndHidePopup();
  nobodyHasTheFocus();
  EXPECT_TRUE(told.empty());
  pumpFor(400);
  EXPECT_EQ(told, (std::vector<bool>{false}));
  SetForegroundWindow(window());
  pumpFor(50);
  EXPECT_EQ(told, (std::vector<bool>{false, true}));
}

TEST_F(FocusLoss, IsToldAtOnceOtherwise) {
  pumpFor(600);  // the popup of another test may have gone only now
  nobodyHasTheFocus();
  EXPECT_EQ(told, (std::vector<bool>{false}));
}

}  // namespace
}  // namespace nerida
