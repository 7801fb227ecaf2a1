// A refresh of the views with full tables, and the same lines and dots through a well-known painter.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include "full_model.h"
#include "program.h"
#include "views/draw_views.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/shell/hooks.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/view_windows.h"

namespace pelorium {
namespace {

void ShowAll(App& app) {
  FillModel(app.model);
  app.view->form51.Option4.SetValue(true);
  app.view->form51.Check7.SetValue(true);
  app.view->form51.Check9.SetValue(true);
  app.view->form51.Check10.SetValue(true);
  app.view->form5.HScroll25.SetValueWidening(kMaxPoints);
}

// Controls to pixels.
void RefreshFullTables(benchmark::State& state) {
  Program program;
  ShowAll(program.app);
  for (auto _ : state) {
    RefreshViews(program.app);
    benchmark::DoNotOptimize(program.app.view->form36.Picture1.picture().Pixels().data());
  }
}
BENCHMARK(RefreshFullTables)->Unit(benchmark::kMillisecond);

QPointF OnScreen(double x, double y, double z) {
  const ScreenPoint p = Project(Projection::Oblique, x, y, z);
  return {p.x + 318, 318 - p.y};
}

QColor ColourOf(Colour colour) { return {Red(colour), Green(colour), Blue(colour)}; }

void PaintFaces(QPainter& painter, const ModelStore& model) {
  for (int part = 0; part < kUserParts; ++part) {
    for (const FaceRec& f : FaceRange(model, part, 1, kMaxFaces)) {
      const MaterialRec& m = model.MaterialGroups(f.group);
      painter.setPen(QPen(QColor(ScreenChannel(m.KdR), ScreenChannel(m.KdG), ScreenChannel(m.KdB)), 1));
      const QPointF a = OnScreen(f.c1X, f.c1Y, f.c1Z), b = OnScreen(f.c2X, f.c2Y, f.c2Z);
      const QPointF c = OnScreen(f.c3X, f.c3Y, f.c3Z);
      painter.drawLine(a, b);
      painter.drawLine(b, c);
      painter.drawLine(c, a);
    }
  }
}

void PaintPoints(QPainter& painter, const ModelStore& model) {
  painter.setPen(QPen(QColor(100, 100, 200), 6, Qt::SolidLine, Qt::RoundCap));
  for (int part = 0; part < kUserParts; ++part) {
    for (const PointRec& p : PointRange(model, part, 1, kMaxPoints))
      painter.drawPoint(OnScreen(p.X, p.Y, p.Z));
  }
  Colour number = 1;
  for (const PointRec& p : PointRange(model, 0, 1, kMaxPoints)) {
    painter.setPen(QPen(ColourOf(number++), 6, Qt::SolidLine, Qt::RoundCap));
    painter.drawPoint(OnScreen(p.X, p.Y, p.Z));
  }
}

void SameThroughQPainter(benchmark::State& state) {
  ModelStore model;
  FillModel(model);
  QImage image(kViewWidth, kViewHeight, QImage::Format_RGB32);
  for (auto _ : state) {
    image.fill(QColor(64, 64, 64));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, false);
    PaintFaces(painter, model);
    PaintPoints(painter, model);
    painter.end();
    benchmark::DoNotOptimize(image.bits());
  }
}
BENCHMARK(SameThroughQPainter)->Unit(benchmark::kMillisecond);

// A bar of the revolve window moved with "Auto Revolve" on: 36 layers by 36 sections, from the event to
// pixels.
void AutoRevolveEvent(benchmark::State& state) {
  Program program;
  App& app = program.app;
  app.model.Profile(0).count = kMaxLayer;
  for (int layer = 0; layer <= kMaxLayer; ++layer) {
    ProfilePointRec& point = app.model.ProfilePts(layer, 0);
    point.X = 100 + 3.5 * (layer % 7);
    point.Z = 8 * layer - 150;
  }
  app.view->form51.Option4.SetValue(true);
  app.geometry->revolveprof.Option2.SetValue(true);
  MeasureDrags(state, app, "revolveprof", "HScroll8", 5, 6);
}
BENCHMARK(AutoRevolveEvent)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pelorium
