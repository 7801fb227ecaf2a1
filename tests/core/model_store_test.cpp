// The tables' bounds, their defaults, and the corner copies.
#include "core/model_store.h"

#include "base/random_series.h"
#include "core/part_operations.h"
#include "support/harness.h"
#include "support/numbered_model.h"

namespace pelorium {
namespace {

class Model : public ::testing::Test {
 protected:
  Model() { ResetModel(model, random); }

  // Face `face` of Part 0 with the corners at points whose X, Y, Z are 10 n, 10 n + 1, 10 n + 2.
  void AddFace(int face, int a, int b, int c) {
    FaceRec& record = model.Faces(0, face);
    record.corner1pt = a, record.corner2pt = b, record.corner3pt = c;
    for (const int n : {a, b, c}) {
      if (n < 0 || n > kMaxPoints) continue;
      PointRec& point = model.Points(0, n);
      point.X = 10.0 * n, point.Y = 10.0 * n + 1, point.Z = 10.0 * n + 2;
    }
    model.Part(0).maxfaces = static_cast<std::int16_t>(face);
  }

  RandomSeries random;
  ModelStore model;
};

TEST_F(Model, SubscriptsOnBothSidesOfEachLimit) {
  model.Points(3, 23000).X = 1;
  model.PointMark(3, 0) = 1;
  model.Faces(3, 7700).onoff = 1;
  model.FaceMark(0, 7700) = 1;
  model.ProfilePts(36, 36).X = 1;
  model.MaterialGroups(41).d = 1;
  const std::function<void()> outside[] = {
      [&] { model.Points(0, 23001); },
      [&] { model.Points(0, -1); },
      [&] { model.Points(4, 1); },
      [&] { model.Points(-1, 1); },
      [&] { model.PointMark(0, 23001); },
      [&] { model.Faces(0, 7701); },
      [&] { model.FaceMark(0, -1); },
      [&] { model.ProfilePts(37, 0); },
      [&] { model.ProfilePts(0, 37); },
      [&] { model.MaterialGroups(42); },
      [&] { model.Part(4); },
      [&] { model.Profile(-1); },
      [&] { FaceRange(model, 0, 1, 7701); },
      [&] { PointRange(model, 0, -1, 5); },
  };
  for (const auto& access : outside) EXPECT_TRUE(Raises(FaultKind::Subscript, access));
}

TEST_F(Model, Ranges) {
  const auto faces = FaceRange(model, 1, 3, 5);
  EXPECT_EQ(faces.end() - faces.begin(), 3);
  EXPECT_EQ(faces.begin(), &model.Faces(1, 3));
  EXPECT_EQ(FaceRange(model, 0, 1, 0).begin(), FaceRange(model, 0, 1, 0).end());
  const ModelStore& read = model;
  EXPECT_EQ(PointRange(read, 0, 0, kMaxPoints).end() - &read.Points(0, 0), 23001);
  model.Part(0).minfaces = 0;
  EXPECT_EQ(FirstFace(model, 0), 1);
  model.Part(0).minfaces = 7;
  EXPECT_EQ(FirstFace(model, 0), 7);
}

template <typename Rec>
std::string FieldsText(const std::string& name, const Rec& record) {
  std::string text = name + "\n";
  for (const RecordField<Rec>& field : FieldsOf<Rec>()) {
    const FieldValue value = *GetField(record, field.name);
    const double* number = std::get_if<double>(&value);
    text += "  " + std::string(field.name) + " ";
    text += (number != nullptr ? GeneralForm(*number) : std::get<std::string>(value)) + "\n";
  }
  return text;
}

TEST_F(Model, StartsWithTheDefaultsWhateverWasThere) {
  NumberModel(model);
  RandomSeries again;
  ResetModel(model, again);
  std::string text = FieldsText("point", model.Points(1, 2)) + FieldsText("face", model.Faces(1, 2)) +
                     FieldsText("Part", model.Part(1)) + FieldsText("profile", model.Profile(36)) +
                     FieldsText("profile point", model.ProfilePts(36, 36)) +
                     FieldsText("group 0", model.MaterialGroups(0)) +
                     FieldsText("group 41", model.MaterialGroups(41));
  EXPECT_TRUE(MatchesGolden(text, "core/golden/defaults.txt"));
  EXPECT_EQ(model.PointMark(1, 2), 1);
  EXPECT_EQ(model.Points(3, 23000).X, 1);
  EXPECT_EQ(model.Faces(3, 7700).group, 3);
}

TEST_F(Model, GroupsGetTheSeriesInOrder) {
  RandomSeries again;
  for (const int group : {0, 1}) {
    const MaterialRec& m = model.MaterialGroups(group);
    for (const double channel : {m.KaR, m.KaG, m.KaB, m.KsR, m.KsG, m.KsB, m.KdR, m.KdG, m.KdB}) {
      EXPECT_EQ(channel * 256, static_cast<int>(again.Next() * 255));
    }
  }
}

TEST_F(Model, SyncCopiesTheCornersOfTheFacesInUse) {
  AddFace(1, 5, 0, 23000);
  AddFace(2, 2, 3, 4);
  AddFace(3, 7, 8, 9);
  model.Part(0).minfaces = 2, model.Part(0).maxfaces = 2;
  SyncFaceCorners(model, 0);
  EXPECT_EQ(model.Faces(0, 1).c1X, 0);
  EXPECT_EQ(model.Faces(0, 2).c1X, 20);
  EXPECT_EQ(model.Faces(0, 2).c2Y, 31);
  EXPECT_EQ(model.Faces(0, 2).c3Z, 42);
  EXPECT_EQ(model.Faces(0, 3).c1X, 0);
  model.Part(0).minfaces = 0, model.Part(0).maxfaces = 1;
  SyncFaceCorners(model, 0);
  EXPECT_EQ(model.Faces(0, 1).c1X, 50);
  EXPECT_EQ(model.Faces(0, 1).c2Z, 2);
  EXPECT_EQ(model.Faces(0, 1).c3Y, 230001);
  EXPECT_EQ(CountCaption(model, 0), "1faces  points 0");
}

TEST_F(Model, SyncPassesOverCornersOutsideTheTable) {
  AddFace(1, 4, -1, 6);
  AddFace(2, 4, -1, 23001);
  AddFace(3, 4, 5, 6);
  SyncFaceCorners(model, 0);
  EXPECT_EQ(model.Faces(0, 1).c1X, 0);
  EXPECT_EQ(model.Faces(0, 2).c1X, 0);
  EXPECT_EQ(model.Faces(0, 3).c3Z, 62);
  AddFace(4, 7, 8, 23001);
  model.Points(0, 4).X = -4;
  SyncFaceCorners(model, 0);
  EXPECT_EQ(model.Faces(0, 3).c1X, -4);
  EXPECT_EQ(model.Faces(0, 4).c1X, 0);
  model.Part(0).maxfaces = 0;
  SyncFaceCorners(model, 0);
  model.Part(0).maxfaces = 7701;
  EXPECT_TRUE(Raises(FaultKind::Subscript, [&] { SyncFaceCorners(model, 0); }));
}

}  // namespace
}  // namespace pelorium
