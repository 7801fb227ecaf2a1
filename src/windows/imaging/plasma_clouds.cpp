// The two windows of clouds.
#include "windows/imaging/plasma_clouds.h"

#include <cmath>
#include <string>

#include "base/numbers.h"
#include "windows/imaging/view_image.h"
#include "windows/shell/app_shell.h"
#include "windows/view/form36_view.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

struct BarEntry {
  BarSpec spec;
};

constexpr BarRange kCorner = {0, 255, 0}, kLeast = {0, 32767, 0}, kMost = {0, 32767, 255};

// Three to a corner, in the order of CornerPlasma::corners.
const std::vector<BarEntry> kCornerBars = {
    {{"HScroll3", "red1", kCorner, "R", "red of the upper left corner"}},
    {{"HScroll4", "green1", kCorner, "G", "green of the upper left corner"}},
    {{"HScroll5", "blue1", kCorner, "B", "blue of the upper left corner"}},
    {{"HScroll6", "red2", kCorner, "R", "red of the upper right corner"}},
    {{"HScroll7", "green2", kCorner, "G", "green of the upper right corner"}},
    {{"HScroll8", "blue2", kCorner, "B", "blue of the upper right corner"}},
    {{"HScroll10", "red3", kCorner, "R", "red of the lower left corner"}},
    {{"HScroll11", "green3", kCorner, "G", "green of the lower left corner"}},
    {{"HScroll12", "blue3", kCorner, "B", "blue of the lower left corner"}},
    {{"HScroll13", "red4", kCorner, "R", "red of the lower right corner"}},
    {{"HScroll14", "green4", kCorner, "G", "green of the lower right corner"}},
    {{"HScroll15", "blue4", kCorner, "B", "blue of the lower right corner"}},
};

const std::vector<BarEntry> kRangeBars = {
    {{"HScroll17", "redMin", kLeast, "R min", "darker reds become this"}},
    {{"HScroll18", "redMax", kMost, "R max", "lighter reds become this"}},
    {{"HScroll19", "greenMin", kLeast, "G min", "darker greens become this"}},
    {{"HScroll20", "greenMax", kMost, "G max", "lighter greens become this"}},
    {{"HScroll21", "blueMin", kLeast, "B min", "darker blues become this"}},
    {{"HScroll22", "blueMax", kMost, "B max", "lighter blues become this"}},
};

constexpr std::size_t kBarsOfCorner = 3, kBarsOfChannel = 2;
constexpr double kSeeds = 1e8;

struct OptionEntry {
  const char *name, *caption, *toolTip;
};

constexpr OptionEntry kOptions[] = {
    {"Option1", "colour", "each channel moves by itself"},
    {"Option2", "gray", "all channels move alike"},
    {"Option3", "red", "only red moves, whatever is ticked"},
    {"Option4", "green", "only green moves, whatever is ticked"},
    {"Option5", "blue", "only blue moves, whatever is ticked"},
    {"Option6", "blend", "nothing moves: a blend of the corners"},
};

std::vector<LayoutItem> Rows(const BoxedBars& bars, std::size_t first, std::size_t count) {
  std::vector<LayoutItem> rows;
  for (std::size_t i = first; i < first + count; ++i) rows.push_back(BarRow(*bars[i]));
  return rows;
}

int RandomLevel(RandomSeries& random) { return static_cast<int>(std::floor(random.Next() * 256)); }

}  // namespace

PlasmaWindow::PlasmaWindow(App& app, const char* name, const char* caption)
    : ToolWindow(app, name, caption),
      cornerBars(MakeBars(*this, kCornerBars, Typing::MovesBar)),
      rangeBars(MakeBars(*this, kRangeBars, Typing::MovesBar)) {
  cmdSetWallpaper.SetEnabled(false);
  OnEdit(
      cmdCreateTile, [this] { CreatePlasma(); }, kChangeOnly);
  randomizecolors.onClick = [this](const Click&) { RandomiseColours(); };
  Command2.onClick = [this](const Click&) { RandomiseGrays(); };
  Command1.onClick = [this](const Click&) {
    Text5.SetText(GeneralForm(std::floor(app_.random.Next() * kSeeds)));
  };
  cmdSetWallpaper.onClick = [this](const Click&) {
    SetAsWallpaper(app_, cmdSetWallpaper.FullName().c_str(), app_.view->form36.Picture2.picture());
  };
}

LayoutItem PlasmaWindow::Layout(std::vector<LayoutItem> options) {
  constexpr const char* kCorners[] = {"upper left", "upper right", "lower left", "lower right"};
  std::vector<LayoutItem> corners;
  for (std::size_t corner = 0; corner < std::size(kCorners); ++corner) {
    corners.push_back(Frame(kCorners[corner], Rows(cornerBars, corner * kBarsOfCorner, kBarsOfCorner)));
  }
  corners.push_back(Flow({&randomizecolors, &Command2}));
  std::vector<LayoutItem> all = {
      BarRow(HScroll23),
      BarRow(HScroll16),
      BarRow(HScroll1),
      BarRow(HScroll2),
      BarRow(HScroll9),
      Labelled("seed", Text5),
      Flow({&Command1, &cmdCreateTile, &cmdSetWallpaper}),
      Single(lblTime),
  };
  for (LayoutItem& item : options) all.push_back(std::move(item));
  all.push_back(Flow({&Check3, &ave1, &ave2}));
  all.push_back(Frame("Tile", {Flow({&Check9})}));
  all.push_back(Frame("Set Graylevel RGBs", std::move(corners)));
  all.push_back(Frame("Gray Min /  Max", Rows(rangeBars, 0, rangeBars.size())));
  return Column(std::move(all));
}

CornerPlasma PlasmaWindow::Settings() const {
  CornerPlasma plasma;
  plasma.width = HScroll23.value();
  plasma.height = HScroll16.value();
  plasma.size = HScroll1.Number();
  plasma.roughness = HScroll2.Number();
  plasma.scale = HScroll9.Number();
  plasma.tiles = Check9.value();
  for (std::size_t i = 0; i < cornerBars.size(); ++i) {
    plasma.corners[i / kBarsOfCorner][i % kBarsOfCorner] = cornerBars[i]->value();
  }
  const CheckBox* boxes[] = {&Check3, &ave1, &ave2};
  for (std::size_t i = 0; i < plasma.channels.size(); ++i) {
    plasma.channels[i] = {boxes[i]->value(), rangeBars[i * kBarsOfChannel]->value(),
                          rangeBars[i * kBarsOfChannel + 1]->value()};
  }
  return plasma;
}

void PlasmaWindow::CreatePlasma() {
  const double start = app_.platform.ClockReading();
  app_.random.Seed(Text5.Number());
  MakeViewImage(app_, [this](Picture& image) {
    PaintCornerPlasma(image, Settings(), app_.random, [this] { app_.view->form36.Picture2.NotifyChanged(); });
  });
  lblTime.SetCaption("Plasma was created for you in " + RoundedForm(app_.platform.ClockReading() - start, 2) +
                     " seconds.");
  cmdSetWallpaper.SetEnabled(true);
}

void PlasmaWindow::RandomiseColours() {
  for (const auto& bar : cornerBars) bar->SetValue(RandomLevel(app_.random));
}

void PlasmaWindow::RandomiseGrays() {
  for (std::size_t first = 0; first < cornerBars.size(); first += kBarsOfCorner) {
    const int level = RandomLevel(app_.random);
    for (std::size_t i = first; i < first + kBarsOfCorner; ++i) cornerBars[i]->SetValue(level);
  }
}

Plasma::Plasma(App& app) : PlasmaWindow(app, "Plasma", "Graylevel Plasma Creator") { SetLayout(Layout({})); }

PlasmaThree::PlasmaThree(App& app) : PlasmaWindow(app, "Plasmathree", "Plasma Creator") {
  std::vector<Control*> kinds;
  for (const OptionEntry& entry : kOptions) {
    options.push_back(std::make_unique<OptionButton>(*this, entry.name, entry.caption, "kind",
                                                     options.empty(), entry.toolTip));
    kinds.push_back(options.back().get());
  }
  VScroll1.onChange = [this] { app_.view->form36.VScroll2.SetValue(VScroll1.value()); };
  SetLayout(Layout({Frame("Plasma", {Flow(std::move(kinds))}), BarRow(VScroll1)}));
}

void PlasmaThree::Load() {
  const Picture& image = app_.view->form36.Picture2.measures();
  HScroll23.SetMax(image.PixelWidth());
  HScroll23.SetValue(image.PixelWidth());
  HScroll16.SetMax(image.PixelHeight());
  HScroll16.SetValue(image.PixelHeight());
}

CornerPlasma PlasmaThree::Settings() const {
  constexpr std::size_t kGray = 1, kFirstChannel = 2, kBlend = 5;
  CornerPlasma plasma = PlasmaWindow::Settings();
  std::size_t kind = 0;
  while (kind + 1 < options.size() && !options[kind]->value()) ++kind;
  plasma.movesAlike = kind == kGray;
  for (std::size_t i = 0; i < plasma.channels.size() && kind >= kFirstChannel; ++i) {
    plasma.channels[i].isMoved = kind != kBlend && i == kind - kFirstChannel;
  }
  return plasma;
}

}  // namespace pelorium
