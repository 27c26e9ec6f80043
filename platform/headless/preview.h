#pragma once

#include <functional>
#include <map>
#include <string>

#include "platform/error.h"
#include "platform/headless/controls.h"
#include "platform/preview.h"

namespace nerida::headless {

// A preview of values. Reading is not written down; all members may be made to fail, or to do anything, by name.
class PreviewControl : public Basic<Preview> {
 public:
  using Basic::Basic;

  std::string modelFile() override {
    enter("ModelFile");
    return file;
  }
  void setModelFile(const std::string& path) override {
    note("ModelFile = " + path);
    enter("ModelFile =");
    file = path;
  }
  std::string modelName() override {
    enter("ModelName");
    return model;
  }
  void setModelName(const std::string& value) override {
    note("ModelName = " + value);
    enter("ModelName =");
    model = value;
  }
  std::string styleName() override {
    enter("StyleName");
    return style;
  }
  std::int32_t modelScale() override {
    enter("ModelScale");
    return scale;
  }
  std::array<std::int32_t, 3> orientation() override {
    enter("GetOrientation");
    return angles;
  }
  void load() override {
    note("Load");
    enter("Load");
  }

  std::string file;
  std::string model;
  std::string style = "Ink Outline";
  std::int32_t scale = 100;
  std::array<std::int32_t, 3> angles{};
  bool installed = true;
  std::map<std::string, Error> failures;  // by member; "ModelFile =" is the writing of it
  // Run once before a member does its work, as a component may do anything inside a call.
  std::map<std::string, std::function<void()>> hooks;

 private:
  void enter(const std::string& member) {
    if (!installed) throw Error(error::cannotCreateObject);
    if (const auto hook = hooks.extract(member)) hook.mapped()();
    const auto failure = failures.find(member);
    if (failure != failures.end()) throw failure->second;
  }
};

}  // namespace nerida::headless
