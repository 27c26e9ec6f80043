#include "tests/contract/form_fixture.h"

namespace nerida {
namespace {

constexpr std::uint32_t someMessage = 0x8001;

using WindowContract = ContractTest;

TEST_F(WindowContract, StartsHiddenWithAHandle) {
  EXPECT_NE(form->handle(), 0);
  EXPECT_TRUE(subject->exists(form->handle()));
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(take(), Events{});
}

TEST_F(WindowContract, IsGoneWithItsLastReference) {
  const WindowHandle handle = form->handle();
  form.reset();
  EXPECT_FALSE(subject->exists(handle));
}

TEST_F(WindowContract, ShowingActivatesIt) {
  form->showTopmostAt({200, 150});
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(form->position(), (Point{200, 150}));
  EXPECT_EQ(take(), Events{"activated"});
}

TEST_F(WindowContract, ShowingAnActiveWindowAgainRaisesNothing) {
  show();
  form->showTopmost();
  EXPECT_EQ(form->position(), (Point{200, 150}));
  EXPECT_EQ(take(), Events{});
}

TEST_F(WindowContract, HidingDeactivatesItBeforeTheCallReturns) {
  show();
  form->hide();
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(take(), Events{"deactivated"});
}

TEST_F(WindowContract, HidingAHiddenWindowRaisesNothing) {
  form->hide();
  EXPECT_EQ(take(), Events{});
}

TEST_F(WindowContract, TheActivationGoesToTheWindowThatIsShownLast) {
  show();
  const auto other = subject->services().windows.create(emptyLayout);
  other->activated = [this] { events.push_back("other activated"); };
  other->showTopmostAt({300, 300});
  EXPECT_EQ(take(), (Events{"deactivated", "other activated"}));
  form->showTopmost();
  EXPECT_EQ(take(), Events{"activated"});
}

TEST_F(WindowContract, HeightChangesBelowTheTopEdge) {
  show();
  const Size before = form->sizeInPixels();
  form->setHeight({1800});
  EXPECT_EQ(form->position(), (Point{200, 150}));
  EXPECT_EQ(form->sizeInPixels().width, before.width);
  EXPECT_EQ(form->sizeInPixels().height, before.height + 40);
}

TEST_F(WindowContract, MovingKeepsTheSize) {
  const Size before = form->sizeInPixels();
  form->showTopmostAt({50, 60});
  EXPECT_EQ(form->sizeInPixels(), before);
  EXPECT_EQ(form->position(), (Point{50, 60}));
}

TEST_F(WindowContract, TheClientAreaLiesInsideTheWindow) {
  show();
  EXPECT_GT(form->clientOrigin().x, 200);
  EXPECT_GT(form->clientOrigin().y, 150);
}

TEST_F(WindowContract, CaptionsAreAnyText) {
  EXPECT_EQ(subject->captionOf(*form), "Contract");
  form->setCaption("Zephra: M\xC3\xBChle");
  EXPECT_EQ(subject->captionOf(*form), "Zephra: M\xC3\xBChle");
  form->setCaption("");
  EXPECT_EQ(subject->captionOf(*form), "");
}

TEST_F(WindowContract, ClosingIsOnlyAsked) {
  show();
  subject->close(*form);
  EXPECT_EQ(take(), Events{"close requested"});
  EXPECT_TRUE(form->isVisible());
}

TEST_F(WindowContract, ClicksOnTheFormAreRaised) {
  show();
  subject->click(*form);
  EXPECT_EQ(take(), Events{"clicked"});
}

TEST_F(WindowContract, MayBeDestroyedInsideItsOwnEvent) {
  show();
  const WindowHandle handle = form->handle();
  form->closeRequested = [this] {
    form.reset();
    events.push_back("destroyed");
  };
  Window& window = *form;
  subject->close(window);
  EXPECT_EQ(take(), Events{"destroyed"});
  EXPECT_FALSE(subject->exists(handle));
}

TEST_F(WindowContract, MayBeDestroyedByOneOfItsButtons) {
  show();
  const WindowHandle handle = form->handle();
  bar().buttonPress = [this](const std::string&) {
    form.reset();
    events.push_back("destroyed");
  };
  subject->press(*form, "bar", "One");
  EXPECT_EQ(take(), Events{"destroyed"});
  EXPECT_FALSE(subject->exists(handle));
}

TEST_F(WindowContract, ModalEndsWhenItIsHidden) {
  subject->duringModal([this] {
    events.push_back(form->isVisible() ? "shown" : "hidden");
    form->hide();
  });
  form->showModal();
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(take(), (Events{"activated", "shown", "deactivated"}));
}

TEST_F(WindowContract, ModalEndsWhenItIsDestroyed) {
  const WindowHandle handle = form->handle();
  Window& window = *form;
  subject->duringModal([this] { form.reset(); });
  window.showModal();
  EXPECT_FALSE(subject->exists(handle));
}

TEST_F(WindowContract, UnknownControlsAreProgrammingErrors) {
  EXPECT_THROW(form->buttonBar("nobody"), std::logic_error);
  EXPECT_THROW(form->buttonBar("bar", 1), std::logic_error);
  EXPECT_THROW(form->comboBox("bar"), std::logic_error);
  EXPECT_THROW(form->pictureBox("picture", 2), std::logic_error);
}

class HookContract : public ContractTest {
 protected:
  WindowProcedure answering(std::intptr_t answer) {
    return [this, answer](const Message& message) {
      if (message.number == someMessage) {
        received.push_back(message);
        return answer;
      }
      return form->callPrevious(message);
    };
  }
  std::intptr_t sendSome() { return subject->send(*form, someMessage, 7, 8); }

  std::vector<Message> received;
};

TEST_F(HookContract, GetsMessagesAsTheyAreAndGivesTheAnswer) {
  EXPECT_FALSE(form->isHooked());
  form->hook(answering(42));
  EXPECT_TRUE(form->isHooked());
  EXPECT_EQ(sendSome(), 42);
  EXPECT_EQ(received, (std::vector<Message>{{form->handle(), someMessage, 7, 8}}));
}

TEST_F(HookContract, ASecondHookChangesNothing) {
  form->hook(answering(42));
  form->hook(answering(43));
  EXPECT_EQ(sendSome(), 42);
  form->unhook();
  EXPECT_FALSE(form->isHooked());
  EXPECT_EQ(sendSome(), 0);
}

TEST_F(HookContract, TakingOffWhatIsNotOnChangesNothing) {
  form->unhook();
  EXPECT_FALSE(form->isHooked());
  EXPECT_EQ(sendSome(), 0);
}

TEST_F(HookContract, CanBePutOnAgain) {
  form->hook(answering(42));
  form->unhook();
  form->hook(answering(43));
  EXPECT_EQ(sendSome(), 43);
}

TEST_F(HookContract, MayBeTakenOffInsideItself) {
  int runs = 0;
  form->hook([&](const Message& message) {
    if (message.number != someMessage) return form->callPrevious(message);
    ++runs;
    form->unhook();
    return form->callPrevious(message);
  });
  EXPECT_EQ(sendSome(), 0);
  EXPECT_EQ(sendSome(), 0);
  EXPECT_EQ(runs, 1);
}

TEST_F(HookContract, ThePreviousProcedureWorksWithoutAHook) {
  EXPECT_EQ(form->callPrevious({form->handle(), someMessage, 0, 0}), 0);
}

TEST_F(HookContract, TheWindowGoesOnWorkingBehindIt) {
  form->hook(answering(42));
  form->showTopmostAt({200, 150});
  EXPECT_EQ(take(), Events{"activated"});
  subject->close(*form);
  EXPECT_EQ(take(), Events{"close requested"});
}

TEST_F(HookContract, IsToldOfTheApplicationsActivation) {
  std::vector<std::uintptr_t> told;
  form->hook([&](const Message& message) {
    if (message.number == messageActivateApplication) told.push_back(message.wParam);
    return form->callPrevious(message);
  });
  subject->send(*form, messageActivateApplication, 0, 0);
  EXPECT_EQ(told, std::vector<std::uintptr_t>{0});
}

}  // namespace
}  // namespace nerida
