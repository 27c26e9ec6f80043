// What OBJ files of different programs look like.
#include <gtest/gtest.h>

#include <cmath>

#include "host/library/fields.h"
#include "host/library/model_import.h"
#include "host/library/obj_file.h"
#include "host/library/polygon.h"
#include "host/scene/model.h"
#include "tests/library/folder.h"

namespace nerida::library {
namespace {

double areaOf(const std::vector<Vec>& outline, const std::vector<std::array<std::uint32_t, 3>>& triangles) {
  double area = 0;
  for (const auto& [a, b, c] : triangles) {
    area += cross(outline[b] - outline[a], outline[c] - outline[a]).z / 2;  // negative for what lies outside
  }
  return area;
}

TEST(Polygon, DentsStayDents) {
  const std::vector<Vec> letterE{{0, 0}, {3, 0}, {3, 1}, {1, 1}, {1, 2}, {2, 2},
                                 {2, 3}, {1, 3}, {1, 4}, {3, 4}, {3, 5}, {0, 5}};
  const auto triangles = trianglesOfPolygon(letterE);
  EXPECT_EQ(triangles.size(), 10U);
  EXPECT_NEAR(areaOf(letterE, triangles), 10, 1e-9);
  for (const auto& triangle : triangles) EXPECT_GE(areaOf(letterE, {triangle}), 0);
}

TEST(Polygon, FourCornersMayHaveADent) {
  const std::vector<Vec> arrow{{0, 0}, {2, -1}, {0.5, 0}, {2, 1}};
  for (std::size_t first = 0; first < 4; ++first) {
    std::vector<Vec> outline = arrow;
    std::rotate(outline.begin(), outline.begin() + static_cast<std::ptrdiff_t>(first), outline.end());
    for (const auto& triangle : trianglesOfPolygon(outline)) EXPECT_GT(areaOf(outline, {triangle}), 0) << first;
  }
}

TEST(Polygon, LiesAnywhereInSpaceAndRunsEitherWay) {
  for (const Vec& tilt : {Vec{1, 0, 0}, Vec{0, 1, 0}, Vec{0.3, -0.4, 0.5}}) {
    std::vector<Vec> outline;
    const Vec across = normalized(cross(tilt, {0.1, 0.2, 0.9})), up = cross(normalized(tilt), across);
    for (const Vec& p : {Vec{0, 0}, Vec{4, 0}, Vec{4, 1}, Vec{1, 1}, Vec{1, 4}, Vec{0, 4}}) {
      outline.push_back(across * p.x + up * p.y);
    }
    double area = 0;
    for (const auto& [a, b, c] : trianglesOfPolygon(outline)) {
      area += dot(cross(outline[b] - outline[a], outline[c] - outline[a]), normalized(tilt)) / 2;
    }
    EXPECT_NEAR(area, 7, 1e-9);
  }
}

TEST(Polygon, WhatCrossesItselfOrHasNoAreaComesToAnEnd) {
  EXPECT_EQ(trianglesOfPolygon({{0, 0}, {1, 1}, {1, 0}, {0, 1}}).size(), 2U);
  EXPECT_EQ(trianglesOfPolygon({{0, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0}}).size(), 3U);
  EXPECT_EQ(trianglesOfPolygon(std::vector<Vec>(100)).size(), 98U);
  EXPECT_TRUE(trianglesOfPolygon({{0, 0}, {1, 0}}).empty());
}

std::string objRefusal(const std::string& text) {
  try {
    readObj(text);
  } catch (const LibraryError& error) {
    return error.what();
  }
  return "accepted";
}

constexpr const char* square = "v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\n";

TEST(ObjFile, LinesEndAsOnAnySystem) {
  for (const std::string end : {"\n", "\r\n", "\r", " \t\n"}) {
    std::string text;
    for (const char c : std::string("\xEF\xBB\xBF#x\nusemtl my paint # not the name\n") + square + "f 1 2 3 4") {
      c == '\n' ? text += end : text += c;
    }
    const ObjFile file = readObj(text);
    EXPECT_EQ(file.points.size(), 4U);
    ASSERT_EQ(file.faces.size(), 1U);
    EXPECT_EQ(file.faces[0].cornerCount, 4U);
    EXPECT_EQ(file.materialNames, std::vector<std::string>{"my paint"});
  }
}

TEST(ObjFile, ALineGoesOnAfterABackslash) {
  const ObjFile file = readObj(square + std::string("f 1 2 \\\n 3 4\n"));
  ASSERT_EQ(file.faces.size(), 1U);
  EXPECT_EQ(file.faces[0].cornerCount, 4U);
  EXPECT_EQ(objRefusal(square + std::string("f 1 2 \\\n 3 4\nf 1 9 2\n")),
            "line 7: a face names a point that is not there");
}

TEST(ObjFile, FacesCountFromEitherEnd) {
  const ObjFile file = readObj(square + std::string("vn 0 0 1\nvt 0 0.25\nf -4/-1/-1 2//1 +3/1 -1/7/9\n"));
  ASSERT_EQ(file.corners.size(), 4U);
  EXPECT_EQ(file.corners[0].point, 0);
  EXPECT_EQ(file.corners[0].image, 0);
  EXPECT_EQ(file.corners[0].normal, 0);
  EXPECT_EQ(file.corners[1].image, -1);
  EXPECT_EQ(file.corners[2].point, 2);
  EXPECT_EQ(file.corners[3].point, 3);
  EXPECT_EQ(file.corners[3].image, -1);  // not there: the face is drawn without
  EXPECT_EQ(file.corners[3].normal, -1);
  EXPECT_FLOAT_EQ(file.imagePlaces[0][1], 0.75F);
}

TEST(ObjFile, LinesPointsAndCurvesAreLeftOut) {
  EXPECT_TRUE(readObj(square + std::string("l 1 2 3\np 1\nf 1 2\ncurv 0 1 1 2\nvp 1 2\n")).faces.empty());
}

TEST(ObjFile, RefusalsNameTheLine) {
  EXPECT_EQ(objRefusal("v 1 2 3\nv 1 nan 3\n"), "line 2: a point is infinitely far away");
  EXPECT_EQ(objRefusal("v 1 -inf 3\n"), "line 1: a point is infinitely far away");
  EXPECT_EQ(objRefusal("v 1,5 2,5 3,5\n"), "line 1: \"1,5\" is no number");
  EXPECT_EQ(objRefusal("\n\nv 1 2\n"), "line 3: a point has less than three numbers");
  EXPECT_EQ(objRefusal("v 0 0 0\nf 0 1 1\n"), "line 2: a face names a point that is not there");
  EXPECT_EQ(objRefusal("v 0 0 0\nf 1 1 -2\n"), "line 2: a face names a point that is not there");
  EXPECT_EQ(objRefusal("v 0 0 0\nf 1 1 99999999999999999999\n"), "line 2: a face names a point that is not there");
  EXPECT_EQ(objRefusal("\xFF\xFEv"), "is written in UTF-16; save it as UTF-8 or plain text");
}

class ObjImport : public testing::Test {
 protected:
  [[nodiscard]] ImportedModel import(const std::string& text) const {
    return importModel(folder.write("model.obj", text));
  }
  [[nodiscard]] static Model modelOf(const ImportedModel& imported) {
    return Model::parse({reinterpret_cast<const std::uint8_t*>(imported.bytes.data()), imported.bytes.size()});
  }
  [[nodiscard]] nerida::Vec3 colourOf(const ImportedModel& imported) const {
    Model model = modelOf(imported);
    const nerida::Mesh& mesh = model.meshAt(0);
    return mesh.materials[mesh.triangles.at(0).material].color;
  }
  [[nodiscard]] nerida::Vec3 colourWith(const std::string& head) const {
    return colourOf(import(head + square + "f 1 2 3 4\n"));
  }

  TemporaryFolder folder;
};

TEST_F(ObjImport, FindsMaterialsUnderNamesFromElsewhere) {
  folder.write("My paints.mtl", "\xEF\xBB\xBFnewmtl deep red  \r\nKd 1 0 0\r\n");
  for (const char* name : {"My paints.mtl", "\"My paints.mtl\"", "MY PAINTS.MTL", "./My paints.mtl",
                           "C:\\Users\\me\\my paints.mtl", "/home/me/My paints.mtl"}) {
    EXPECT_FLOAT_EQ(colourWith("mtllib " + std::string(name) + "\nusemtl deep red\n").x, 1) << name;
    EXPECT_FLOAT_EQ(colourWith("mtllib " + std::string(name) + "\nusemtl deep red\n").y, 0) << name;
  }
}

TEST_F(ObjImport, SeveralMaterialFilesMayStandInALine) {
  folder.write("one.mtl", "newmtl one\nKd 1 0 0\n");
  folder.write("two.mtl", "newmtl two\nKd 0 1 0\n");
  EXPECT_FLOAT_EQ(colourWith("mtllib one.mtl two.mtl\nusemtl one\n").x, 1);
  EXPECT_FLOAT_EQ(colourWith("mtllib one.mtl two.mtl\nusemtl two\n").y, 1);
  const ImportedModel half = import(std::string("mtllib none.mtl two.mtl\nusemtl two\n") + square + "f 1 2 3\n");
  EXPECT_EQ(half.remarks,
            std::vector<std::string>{"the materials none.mtl cannot be found; what they describe gets a plain colour"});
}

TEST_F(ObjImport, MaterialWithoutAColourIsGreyAndABlackOneBlack) {
  folder.write("m.mtl", "newmtl none\nNs 10\nnewmtl black\nKd 0 0 0\n");
  EXPECT_FLOAT_EQ(colourWith("mtllib m.mtl\nusemtl none\n").x, 0.6F);
  EXPECT_FLOAT_EQ(colourWith("mtllib m.mtl\nusemtl black\n").x, 0);
}

TEST_F(ObjImport, PicturesAreFoundUnderOldPathsAndNotPaintedBlack) {
  folder.write("Wood.png", "\x89PNG and what follows");
  folder.write("m.mtl", "newmtl wood\nKd 0 0 0\nmap_Kd D:\\maps\\wood.PNG\n");
  const ImportedModel imported =
      import(std::string("mtllib m.mtl\nusemtl wood\n") + square + "vt 0 0\nf 1/1 2/1 3/1\n");
  EXPECT_TRUE(imported.remarks.empty());
  EXPECT_NE(imported.bytes.find("PNG and what follows"), std::string::npos);
  EXPECT_FLOAT_EQ(colourOf(imported).x, 1);
}

TEST_F(ObjImport, AMissingPictureIsSaidOnce) {
  folder.write("m.mtl", "newmtl a\nmap_Kd gone.png\nnewmtl b\nmap_Kd gone.png\n");
  EXPECT_EQ(import(std::string("mtllib m.mtl\n") + square + "f 1 2 3\n").remarks.size(), 1U);
}

TEST_F(ObjImport, PointsMayHaveColours) {
  Model model = modelOf(import("v 0 0 0 1 0 0\nv 1 0 0 0 1 0\nv 0 1 0 0.5 0.5 0.5\nf 1 2 3\n"));
  const nerida::Mesh& mesh = model.meshAt(0);
  ASSERT_EQ(mesh.colors.size(), 3U);
  EXPECT_FLOAT_EQ(mesh.colors[0].x, 1);
  EXPECT_FLOAT_EQ(mesh.colors[1].x, 0);
  EXPECT_NEAR(mesh.colors[2].z, 0.214, 1e-3);
}

TEST_F(ObjImport, DetailSurvivesFarFromTheOriginAndAtAnySize) {
  for (const auto& [offset, size] : {std::pair{5432100.0, 1.0}, {0.0, 1e-9}, {0.0, 1e300}}) {
    std::string text;
    for (const auto& [x, y] : {std::pair{0.0, 0.0}, {1.0, 0.0}, {1.0, 0.01}, {0.0, 1.0}}) {
      text += "v " + std::to_string(offset + x) + " " + std::to_string(offset + y) + " 0\n";
    }
    if (size != 1) {
      const std::string unit = size > 1 ? "e300" : "e-9";
      text = "v 0 0 0\nv 1";
      text.append(unit).append(" 0 0\nv 1").append(unit).append(" 0.01").append(unit).append(" 0\nv 0 1");
      text.append(unit).append(" 0\n");
    }
    Model model = modelOf(import(text + "f 1 2 3 4\n"));
    const nerida::Mesh& mesh = model.meshAt(0);
    ASSERT_EQ(mesh.triangles.size(), 2U) << offset << " " << size;
    float shortest = 9;
    for (const nerida::Triangle& t : mesh.triangles) {
      for (std::size_t i = 0; i < 3; ++i) {
        shortest = std::min(shortest, length(mesh.positions[t.corners[i]] - mesh.positions[t.corners[(i + 1) % 3]]));
      }
    }
    EXPECT_NEAR(shortest, 0.01 / std::sqrt(0.5), 1e-3) << offset << " " << size;
  }
}

TEST_F(ObjImport, StrayPointsDoNotMakeItSmall) {
  Model model = modelOf(import("v 900 900 900\nv 0 0 0\nv 1 0 0\nv 0 1 0\nf 2 3 4\n"));
  EXPECT_EQ(model.meshAt(0).triangles.size(), 1U);
  EXPECT_NEAR(length(model.meshAt(0).positions[0] - model.meshAt(0).positions[1]), std::sqrt(2.0), 1e-3);
}

TEST_F(ObjImport, FacesWithoutAreaAreNoModel) {
  EXPECT_THROW(import("v 0 0 0\nv 1 0 0\nv 2 0 0\nf 1 2 3\n"), LibraryError);
  EXPECT_THROW(import("v 1 1 1\nv 1 1 1\nv 1 1 1\nf 1 2 3\n"), LibraryError);
}

}  // namespace
}  // namespace nerida::library
