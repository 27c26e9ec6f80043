#include "platform/bitmap_spec.h"

#include <gtest/gtest.h>

#include "platform/error.h"

namespace nerida {
namespace {

struct Row {
  const char* text;
  BitmapSpec spec;
};

TEST(BitmapSpec, ReadsItsFieldsWithAndWithoutBlanks) {
  const Row rows[] = {
      {"6,LineThickness.bmp,0,0,23,22", {6, "LineThickness.bmp", 0, 0, 23, 22}},
      {"5, moveleft.bmp, 46, 0", {5, "moveleft.bmp", 46, 0, 23, 22}},
      {"5, moveright.bmp, 69,0", {5, "moveright.bmp", 69, 0, 23, 22}},
      {"  5 ,\tModel.bmp ,0 , 0 ", {5, "Model.bmp", 0, 0, 23, 22}},
      {"3,Lines.bmp,0,14,118,14", {3, "Lines.bmp", 0, 14, 118, 14}},
      {"5,a name.bmp,-4,7", {5, "a name.bmp", -4, 7, 23, 22}},
  };
  for (const Row& row : rows) EXPECT_EQ(parseBitmapSpec(row.text), row.spec) << row.text;
}

TEST(BitmapSpec, UsesTheStandardWhereAFieldIsMissingOrImpossible) {
  const Row rows[] = {
      {"5", {5, "", 0, 0, 23, 22}},
      {"5,x.bmp", {5, "x.bmp", 0, 0, 23, 22}},
      {"5,x.bmp,3,4,,", {5, "x.bmp", 3, 4, 23, 22}},
      {"5,x.bmp,3,4,0,-9", {5, "x.bmp", 3, 4, 23, 22}},
      {"5,x.bmp,three,4,10", {5, "x.bmp", 0, 4, 10, 22}},
      {"5,x.bmp,99999999999,4,2000000000,5", {5, "x.bmp", 0, 4, 23, 5}},
      {"5,x.bmp,1,2,3,4,5,6", {5, "x.bmp", 1, 2, 3, 4}},
  };
  for (const Row& row : rows) EXPECT_EQ(parseBitmapSpec(row.text), row.spec) << row.text;
}

TEST(BitmapSpec, NeedsANumericKind) {
  for (const char* text : {"", " ", ",x.bmp,0,0", "push,x.bmp,0,0", "5x,x.bmp,0,0"}) {
    try {
      parseBitmapSpec(text);
      FAIL() << "accepted: " << text;
    } catch (const Error& failure) {
      EXPECT_EQ(failure.number, error::invalidCall) << text;
    }
  }
}

}  // namespace
}  // namespace nerida
