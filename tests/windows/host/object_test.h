#pragma once

#include <gtest/gtest.h>

#include "host/app/model_dispatch.h"
#include "tests/windows/host/caller.h"

namespace nerida::host {

/// A document's place for an object: counts what it is told.
struct RecordingSite : ModelSite {
  int displays = 0, animations = 0, models = 0, catalogs = 0;
  void displayChanged() override { ++displays; }
  void animationChanged() override { ++animations; }
  void modelLoaded() override { ++models; }
  void catalogDone() override { ++catalogs; }
};

struct RecordingListener : CallListener {
  std::vector<std::string> lines;
  void called(const CallRecord& record) override { lines.push_back(lineOf(record)); }
};

struct RecordedObject {
  RecordingSite site;
  RecordingListener listener;
  ModelObject object{site};
  ModelDispatch* dispatch = new ModelDispatch(object, listener);
};

/// An object with nothing in it, used the way the toolbar uses it: by name, late-bound.
class ObjectTest : public testing::Test, protected RecordedObject, protected Caller {
 protected:
  ObjectTest();
  ~ObjectTest() override;

  Answer load(const std::filesystem::path& file);
};

}  // namespace nerida::host
