#include <gtest/gtest.h>

#include "host/scene/orientation.h"

namespace nerida {
namespace {

constexpr Vec3 front{0, 0, 1}, right{1, 0, 0}, top{0, 1, 0};

void expectNear(Vec3 actual, Vec3 expected) {
  EXPECT_NEAR(actual.x, expected.x, 1e-5);
  EXPECT_NEAR(actual.y, expected.y, 1e-5);
  EXPECT_NEAR(actual.z, expected.z, 1e-5);
}

TEST(Orientation, presetsShowTheSideTheyName) {
  expectNear(rotationOf({0, 0, 0}) * front, front);
  expectNear(rotationOf({0, 18'000, 0}) * -front, front);
  expectNear(rotationOf({0, 9'000, 0}) * right, front);
  expectNear(rotationOf({0, 27'000, 0}) * -right, front);
  expectNear(rotationOf({27'000, 0, 0}) * top, front);
  expectNear(rotationOf({9'000, 0, 0}) * -top, front);
}

TEST(Orientation, positiveAnglesTiltUpTurnLeftAndClockwise) {
  expectNear(tiltUp(9'000) * front, top);
  expectNear(turnLeft(9'000) * front, -right);
  expectNear(turnClockwise(9'000) * top, right);
}

TEST(Orientation, isReadBackAsItWasSet) {
  for (const Orientation set : {Orientation{0, 0, 0},
                                {4'500, 12'300, 35'000},
                                {35'999, 1, 20'000},
                                {27'100, 0, 0},
                                {8'900, 35'000, 100},
                                {27'000, 0, 0},
                                {9'000, 4'000, 0}}) {
    const Orientation read = orientationOf(rotationOf(set));
    EXPECT_NEAR(read.x, set.x, 2);
    EXPECT_NEAR(read.y, set.y, 2);
    EXPECT_NEAR(read.z, set.z, 2);
  }
}

TEST(Orientation, anyNumberOfTurnsIsTheSame) {
  for (const int turns : {-2, -1, 1, 59'000}) {
    expectNear(rotationOf({100, 200 + turns * 36'000, 300}) * front, rotationOf({100, 200, 300}) * front);
  }
}

TEST(Orientation, manyTurnsDoNotBendTheModel) {
  Mat3 rotation;
  for (int i = 0; i < 100'000; ++i) rotation = straightened(tiltUp(375) * (turnLeft(375) * rotation));
  EXPECT_NEAR(length(rotation * front), 1, 1e-4);
  EXPECT_NEAR(dot(rotation * front, rotation * right), 0, 1e-4);
  EXPECT_NEAR(dot(cross(rotation * right, rotation * top), rotation * front), 1, 1e-4);
}

}  // namespace
}  // namespace nerida
