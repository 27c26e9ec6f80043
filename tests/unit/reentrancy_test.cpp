// A model or a host that acts from inside: in every member of the model and in every message box, every way of taking
// the library down, under everything that a user or a host can start.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

struct Action {
  const char* name;
  void (*run)(Desk&);
};

void PrintTo(const Action& action, std::ostream* out) { *out << action.name; }

const char* const members[] = {"ModelName",           "InterfaceFlags",          "IsToolbarShowing",
                               "IsCatalogShowing",    "DoneShowingModelCatalog", "LookStyleName",
                               "LookStyle",           "TarnwellXFile",           "ModelScale",
                               "AnimationFrameCount", "AnimationCurrentFrame",   "AnimationState",
                               "GetLookStyleList",    "RefreshDisplay",          "MoveX",
                               "ResetHome",           "SetOrientation",          "StopTimer",
                               "StartTimer"};

void pressIfThere(Desk& desk, const char* bar, int index, const char* key) {
  if (desk.platform.windows.find("frmToolbar")) desk.bar(bar, index).press(key);
}

// Does something in the catalog's window, if it is there.
template <class Action>
void inCatalog(Desk& desk, Action action) {
  if (headless::FormWindow* catalog = desk.platform.windows.find("frmBrowser")) action(*catalog);
}

void activate(Desk& desk, bool active) {
  if (headless::FormWindow* toolbar = desk.platform.windows.find("frmToolbar")) {
    toolbar->send(messageActivateApplication, active ? 1 : 0);
  }
}

// What the host calls. The host holds the control during a call, so that it can be disposed of but not destroyed.
const Action methods[] = {
    {"ToolbarInit", [](Desk& d) { d.control->ToolbarInit(d.model, 7); }},
    {"ToolbarShow", [](Desk& d) { d.show(); }},
    {"ShowCatalog", [](Desk& d) { d.control->ShowCatalog(); }},
    {"ToolbarHide", [](Desk& d) { d.control->ToolbarHide(); }},
    {"ToolbarDispose", [](Desk& d) { d.control->ToolbarDispose(); }},
    {"ShowHelp", [](Desk& d) { d.control->ShowHelp(); }},
};

// What the user and the system do.
const Action events[] = {
    {"NudgeLeft", [](Desk& d) { pressIfThere(d, "barMove", 1, "NudgeLeft"); }},
    {"ResetModel", [](Desk& d) { pressIfThere(d, "barMove", 0, "ResetModel"); }},
    {"Preset",
     [](Desk& d) {
       d.platform.windows.menuChoices = {3};
       pressIfThere(d, "barMove", 0, "PresetDropdown");
     }},
    {"Move", [](Desk& d) { pressIfThere(d, "barWorld", 0, "Move"); }},
    {"Model", [](Desk& d) { pressIfThere(d, "barMB", 0, "Model"); }},
    {"Style",
     [](Desk& d) {
       if (d.platform.windows.find("frmToolbar") && d.styles().count() > 1) d.styles().choose(d.styles().item(0));
     }},
    {"FocusLost", [](Desk& d) { activate(d, false); }},
    {"FocusGained", [](Desk& d) { activate(d, true); }},
    {"CloseToolbar",
     [](Desk& d) {
       if (auto* w = d.platform.windows.find("frmToolbar")) w->userCloses();
     }},
    {"CloseCatalog",
     [](Desk& d) {
       if (auto* w = d.platform.windows.find("frmBrowser")) w->userCloses();
     }},
};

const Action catalogEvents[] = {
    {"Search", [](Desk& d) { inCatalog(d, [](auto& catalog) { catalog.text("txtSearch").enter("mill"); }); }},
    {"Insert",
     [](Desk& d) {
       inCatalog(d, [](auto& catalog) {
         catalog.previewControl("zephBrowser").file = catalog.previewControl("zephBrowser").model = "Ship";
         catalog.pushButton("cmdInsert", 2).press();
       });
     }},
    {"InsertByMenu",
     [](Desk& d) {
       inCatalog(d, [](auto& catalog) {
         catalog.previewControl("zephBrowser").file = catalog.previewControl("zephBrowser").model = "Ship";
         catalog.menuBar.choose("mnuInsert");
       });
     }},
    {"CatalogStyle",
     [](Desk& d) {
       inCatalog(d, [](auto& catalog) {
         headless::Combo& styles = catalog.combo("cmbStyles");
         if (styles.count() > 0) styles.choose(styles.item(0));
       });
     }},
    {"Exit", [](Desk& d) { inCatalog(d, [](auto& catalog) { catalog.menuBar.choose("mnuExit"); }); }},
};

const Action gentle[] = {
    {"hide", [](Desk& d) { d.control->ToolbarHide(); }},
    {"dispose", [](Desk& d) { d.control->ToolbarDispose(); }},
    {"hide and dispose",
     [](Desk& d) {
       d.control->ToolbarHide();
       d.control->ToolbarDispose();
     }},
    {"dispose and init",
     [](Desk& d) {
       d.control->ToolbarDispose();
       d.control->ToolbarInit(d.model, 7);
     }},
};
const Action release = {"release", [](Desk& d) { d.control.reset(); }};

// A control at work on an animated, playing model, its toolbar and one popup up, with answers for any box.
void prepare(Desk& desk) {
  desk.model->values["AnimationFrameCount"] = std::int32_t{3};
  desk.model->values["AnimationState"] = true;
  desk.createInitAndShow();
  desk.library.lighting.ShowSelf(1, 1);
  desk.control->ShowCatalog();
  desk.show();
  desk.answerBoxes(100);
}

// Afterwards the library must be as good as new: nothing left behind by the end, and a new control works.
void expectSound(Desk& desk) {
  desk.model->hooks.clear();
  desk.model->failures.clear();
  desk.platform.boxes.duringBox = nullptr;
  desk.control.reset();
  EXPECT_TRUE(desk.platform.windows.living.empty());
  EXPECT_EQ(desk.library.state.gModelObject, nullptr);
  EXPECT_EQ(desk.library.state.controls, 0);
  EXPECT_EQ(desk.library.state.unloading, 0);
  EXPECT_EQ(desk.model.use_count(), 1);
  desk.take();
  desk.create();
  EXPECT_EQ(desk.init(), 0);
  EXPECT_NE(desk.show(), -1);
  EXPECT_TRUE(desk.takeBoxes().empty());
  desk.control.reset();
}

void actFromInsideAMember(const Action& outer, const char* member, const Action& inner) {
  SCOPED_TRACE(std::string(outer.name) + ", inside " + member + ": " + inner.name);
  Desk desk;
  prepare(desk);
  desk.model->hooks[member] = [&] {
    desk.model->hooks.clear();
    inner.run(desk);
  };
  outer.run(desk);
  expectSound(desk);
}

void actFromInsideABox(const Action& outer, const char* member, const Action& inner) {
  SCOPED_TRACE(std::string(outer.name) + ", in the box about " + member + ": " + inner.name);
  Desk desk;
  prepare(desk);
  desk.model->failures.emplace(member, Error(5));
  desk.platform.boxes.duringBox = [&] {
    desk.platform.boxes.duringBox = nullptr;
    desk.model->failures.clear();
    inner.run(desk);
  };
  outer.run(desk);
  expectSound(desk);
}

class HostCalls : public testing::TestWithParam<Action> {};

TEST_P(HostCalls, SurviveBeingUndoneFromInsideAnyMemberAndAnyBox) {
  for (const char* member : members) {
    for (const Action& inner : gentle) {
      actFromInsideAMember(GetParam(), member, inner);
      actFromInsideABox(GetParam(), member, inner);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Methods, HostCalls, testing::ValuesIn(methods));

class UserEvents : public testing::TestWithParam<Action> {};

TEST_P(UserEvents, SurviveBeingUndoneFromInsideAnyMemberAndAnyBox) {
  for (const char* member : members) {
    for (const Action& inner : gentle) {
      actFromInsideAMember(GetParam(), member, inner);
      actFromInsideABox(GetParam(), member, inner);
    }
    actFromInsideAMember(GetParam(), member, release);
    actFromInsideABox(GetParam(), member, release);
  }
}

INSTANTIATE_TEST_SUITE_P(Events, UserEvents, testing::ValuesIn(events));
INSTANTIATE_TEST_SUITE_P(CatalogEvents, UserEvents, testing::ValuesIn(catalogEvents));

class RaisingMember : public testing::TestWithParam<const char*> {};

// Each member raises for a while under everything; the boxes are bounded, and the library works afterwards.
TEST_P(RaisingMember, LeavesTheLibrarySoundUnderEverything) {
  for (const auto& actions :
       {std::span<const Action>(methods), std::span<const Action>(events), std::span<const Action>(catalogEvents)}) {
    for (const Action& outer : actions) {
      for (const std::int32_t number : {5, 7, 438}) {
        SCOPED_TRACE(outer.name);
        Desk desk;
        prepare(desk);
        desk.model->failures.emplace(GetParam(), Error(number));
        int boxes = 0;
        desk.platform.boxes.duringBox = [&] {
          if (++boxes == 4) desk.model->failures.clear();
        };
        outer.run(desk);
        EXPECT_LE(boxes, 5);
        expectSound(desk);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Members, RaisingMember, testing::ValuesIn(members));

}  // namespace
}  // namespace nerida
