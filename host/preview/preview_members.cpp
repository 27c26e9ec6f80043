#include "host/preview/preview_members.h"

namespace nerida::host {
namespace {

void getFile(const Preview& preview, VARIANT* result) { answer(result, utf8(preview.modelFile)); }
void letFile(Preview& preview, const Arguments& arguments) { preview.modelFile = arguments.text(0); }

void getName(const Preview& preview, VARIANT* result) { answer(result, utf8(preview.modelName)); }
void letName(Preview& preview, const Arguments& arguments) {
  preview.modelName = arguments.text(0);
  preview.changed();
}

void getStyle(const Preview& preview, VARIANT* result) { answer(result, preview.scene.lookStyleName()); }
void getScale(const Preview& preview, VARIANT* result) { answer(result, preview.scene.modelScale()); }

void getOrientation(Preview& preview, const Arguments& arguments, VARIANT*) {
  const Orientation now = preview.scene.orientation();
  arguments.store(0, now.x);
  arguments.store(1, now.y);
  arguments.store(2, now.z);
}

void load(Preview& preview, const Arguments&, VARIANT*) {
  try {
    preview.load();
  } catch (const ModelError& error) {
    throw unusableFile(preview.modelFile, error.what());
  }
}

constexpr Member<Preview> memberTable[] = {
    {.name = L"ModelFile", .get = getFile, .let = letFile},
    {.name = L"ModelName", .get = getName, .let = letName},
    {.name = L"StyleName", .get = getStyle},
    {.name = L"ModelScale", .get = getScale},
    {.name = L"GetOrientation", .call = getOrientation, .argumentCount = 3},
    {.name = L"Load", .call = load},
};

}  // namespace

std::span<const Member<Preview>> previewMembers() { return memberTable; }

}  // namespace nerida::host
