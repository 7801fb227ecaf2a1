// The controls of the image maker as tables, the settings that they stand for, and where they stand.
#include <algorithm>
#include <iterator>

#include "base/fault.h"
#include "windows/imaging/texture_image_maker.h"

namespace pelorium {

// A bar of a panel; panel 0 shows always.
struct Texture::BarEntry {
  std::size_t panel;
  BarSpec spec;
  void (*take)(MakerSettings& settings, const BoxedBar& bar) = nullptr;
  Typing typing = Typing::MovesBar;
};

struct Texture::OptionEntry {
  const char *group, *name, *caption;
  double number;  // what it stands for
  const char* toolTip;
  bool isOn = false;
};

struct Texture::CheckEntry {
  const char *name, *caption;
  bool BrushSettings::*field;  // null: it does nothing
  const char* toolTip;
};

struct Texture::ButtonEntry {
  const char *name, *caption;
  void (Texture::*run)();  // null: it does nothing
  const char* toolTip;
};

namespace {

constexpr std::size_t kAlways = 0, kValues = 1, kNoise = 2, kSteps = 3, kScale = 4, kLevels = 5, kSize = 6,
                      kRandom = 7, kDiffuse = 8, kPlasma = 9, kSquares = 10, kPerlin = 11, kCanyon = 12;

// In the order in which the selector leafs through them.
constexpr struct {
  const char *name, *caption, *toolTip;
} kPanels[] = {
    {"Frame9", "Value Range for Effects", "which gray levels are stamped, and what is added to them"},
    {"Frame19", "Noise Effects", "random amounts that transfers add"},
    {"Frame6", "Steps for Effects ", "where effects look, and what they stamp"},
    {"Frame12", "scale factor ", "of the Background against the Foreground"},
    {"Frame18", "Coloration Levels", "levels of a channel that the color reducer leaves"},
    {"Frame10", "Image Size", "a change clears both pictures"},
    {"Frame11", "Random ", "for the random buttons"},
    {"Frame17", "Error Diffuse Threshold", "for errordiffuse"},
    {"Frame15", "Plasma Intensity", "for plasma"},
    {"Frame8", "Blur/Scrape  Settings", "of the brushes that work on a square"},
    {"Frame21", "Perlin Noise Maker", "fills the Foreground with noise"},
    {"Frame20", "Profile Canyon Effects", "draws the current profile in wide bands"},
};

constexpr BarRange kChange = {-255, 255, 0}, kStep = {1, 30, 2, 1, 5}, kFactor = {1, 200, 100};
constexpr const char *kMoves = "factor on the places of the gray transfer",
                     *kAdds = "added to the channel in transfers",
                     *kNoiseTip = "random amount up to this, added to the channel in transfers";
constexpr std::pair<int, int> kImageSizes[] = {{512, 512}, {1024, 1024}, {2048, 2048}, {970, 670}};
constexpr double kBlurUnit = 1440;    // of the bar, a factor of 1
constexpr double kMostMarks = 32767;  // whatever a program writes into the box

constexpr const char* kNoAction = "has no action";

constexpr const char* kBrush = "brush";
constexpr const char* kStamp = "stamp";
constexpr const char* kScales = "scale";
constexpr const char* kReducer = "levels";
constexpr const char* kSizes = "size";

}  // namespace

std::span<const Texture::BarEntry> Texture::BarEntries() {
  using S = MakerSettings;
  using B = const BoxedBar&;
  static const BarEntry kEntries[] = {
      {kAlways,
       {"HScroll23", "Text3", {4, 800, 40}, "Patch Size", "side of the square that a patch fills"},
       [](S& s, B b) { s.brush.patchSize = b.Number(); }},
      {kAlways,
       {"HScroll24", "Text1", {2, 400, 100}, "Amnt", "marks of a patch"},
       [](S& s, B b) { s.brush.patchAmount = std::min(b.Number(), kMostMarks); }},

      {kValues,
       {"HScroll13", "Text19", {0, 255, 0}, "Val Range", "lowest gray level that is stamped"},
       [](S& s, B b) { s.effect.range.low = b.value(); }},
      {kValues,
       {"HScroll14", "Text20", {0, 256, 256}, "Val Range", "highest gray level that is stamped"},
       [](S& s, B b) { s.effect.range.high = b.value(); }},
      {kValues,
       {"HScroll26", "Text15", kChange, "Val +/-", "added to values in transfers"},
       [](S& s, B b) { s.effect.range.offset = b.value(); }},
      {kValues,
       {"HScroll10", "Text4", kChange, "Additive range  rgb", kAdds},
       [](S& s, B b) { s.effect.addRed = b.value(); }},
      {kValues, {"HScroll11", "Text5", kChange, "", kAdds}, [](S& s, B b) { s.effect.addGreen = b.value(); }},
      {kValues, {"HScroll12", "Text6", kChange, "", kAdds}, [](S& s, B b) { s.effect.addBlue = b.value(); }},

      {kNoise,
       {"HScroll29", "Text21", kChange, "Noise Lev", "random gray up to this, added in transfers"},
       [](S& s, B b) { s.effect.grayNoise = b.value(); }},
      {kNoise,
       {"HScroll28", "Text16", kChange, "Red", kNoiseTip},
       [](S& s, B b) { s.effect.redNoise = b.value(); }},
      {kNoise,
       {"HScroll21", "Text17", kChange, "Green", kNoiseTip},
       [](S& s, B b) { s.effect.greenNoise = b.value(); }},
      {kNoise,
       {"HScroll27", "Text18", kChange, "Blue", kNoiseTip},
       [](S& s, B b) { s.effect.blueNoise = b.value(); }},

      {kSteps,
       {"HScroll7", "Text9", kStep, " X", "pixels from sample to sample, and between grid lines"},
       [](S& s, B b) { s.effect.stepX = b.value(); }},
      {kSteps,
       {"HScroll8", "Text2", kStep, " Y", "pixels from sample to sample, and between grid lines"},
       [](S& s, B b) { s.effect.stepY = b.value(); }},
      {kSteps,
       {"HScroll19", "Text12", kFactor, "", kMoves, kHundredths},
       [](S& s, B b) { s.effect.positionX = b.Number(); },
       Typing::IsTheValue},
      {kSteps,
       {"HScroll20", "Text14", kFactor, "", kMoves, kHundredths},
       [](S& s, B b) { s.effect.positionY = b.Number(); },
       Typing::IsTheValue},

      {kSize,
       {"HScroll33", "Text25", {128, 2050, 970}, "width", "width of both pictures in pixels; clears them"}},
      {kSize,
       {"HScroll30", "Text22", {48, 2050, 670}, "height", "height of both pictures in pixels; clears them"}},

      {kRandom,
       {"HScroll16", "Text13", {0, 1000, 100}, "Amount", "marks of a click on the random buttons, less 1"},
       [](S& s, B b) { s.amount = b.value(); }},
      {kDiffuse,
       {"HScroll31", "Text23", {0, 255, 128}, "", "gray level whose distance is passed on"},
       [](S& s, B b) { s.effect.diffuseThreshold = b.value(); }},
      {kPlasma,
       {"HScroll9", "Text8", {5, 400, 200}, "Plasma LVL", "how far plasma strays"},
       nullptr,
       Typing::IsTheValue},

      {kSquares,
       {"HScroll17", "Text10", {1, 30, 5}, "Size", "side of the blur, scrape and box squares, less 1"},
       [](S& s, B b) { s.brush.square = b.value(); }},
      {kSquares,
       {"HScroll15",
        "Text11",
        {1, 2000, 1000, 1, 50},
        "Value",
        "less creates darker more creates lighter",
        kBlurUnit,
        "1"},
       [](S& s, B b) { s.brush.blurFactor = b.Number(); },
       Typing::IsTheValue},

      {kPerlin, {"HScroll32", "Text24", {10, 250, 128}, "Level", "overall gray level of noise (brightness)"}},
  };
  return kEntries;
}

std::span<const Texture::OptionEntry> Texture::OptionEntries() {
  static constexpr OptionEntry kOptions[] = {
      {kBrush, "Option1", "Point", 0, "brush and transfers set points", true},
      {kBrush, "Option2", "Circle", 1, "brush and transfers draw circles"},
      {kStamp, "Option7", "point", 0, "effects stamp points", true},
      {kStamp, "Option8", "circle", 1, "effects stamp circles"},
      {kStamp, "Option32", "box", 2, "poster, threshold, gray 10 levels and solid stamp boxes"},
      {kScales, "Option19", "1", 1, "the Background gets the Foreground's size", true},
      {kScales, "Option20", "2", 2, "the Background gets twice the Foreground's size"},
      {kScales, "Option21", "4", 4, "the Background gets four times the Foreground's size"},
      {kScales, "Option22", ".5", .5, "the Background gets half the Foreground's size"},
      {kScales, "Option23", ".25", .25, "the Background gets a quarter of the Foreground's size"},
      {kReducer, "Option11", "256", 1, "the color reducer leaves 256 levels", true},
      {kReducer, "Option12", "128", 2, "the color reducer leaves 128 levels"},
      {kReducer, "Option13", "64", 4, "the color reducer leaves 64 levels"},
      {kReducer, "Option14", "32", 8, "the color reducer leaves 32 levels"},
      {kReducer, "Option15", "16", 16, "the color reducer leaves 16 levels"},
      {kReducer, "Option16", "8", 32, "the color reducer leaves 8 levels"},
      {kReducer, "Option17", "4", 64, "the color reducer leaves 4 levels"},
      {kReducer, "Option18", "2", 128, "the color reducer leaves 2 levels"},
      {kSizes, "Option3", "512 x 512", 0, "sets the size of both pictures and clears them"},
      {kSizes, "Option4", "1024 X 1024", 1, "sets the size of both pictures and clears them"},
      {kSizes, "Option5", "2048 X 2048", 2, "sets the size of both pictures and clears them"},
      {kSizes, "Option6", "970 X 670", 3, "sets the size of both pictures and clears them", true},
  };
  return kOptions;
}

std::span<const Texture::CheckEntry> Texture::CheckEntries() {
  static constexpr CheckEntry kChecks[] = {
      {"Check8", "Box", &BrushSettings::fillsBox, "fills a square below and right of the pointer"},
      {"Check12", "Patch", &BrushSettings::patch, "spreads marks over a square about the pointer"},
      {"Check7", "Profile draw", &BrushSettings::drawsProfile, "draws the current profile about the pointer"},
      {"Check10", "enable color reducer", &BrushSettings::randomPen,
       "transfers leave the levels that are chosen; the brush takes random colors"},
      {"Check6", "Rand pt size", &BrushSettings::randomWidth, "random draw widths up to the point size"},
      {"Check5", "Rand Greys", &BrushSettings::randomGray, "the brush takes random grays"},
      {"Check4", "Rnd Circ size", &BrushSettings::randomRadius, "random radii below that of the circle"},
      {"Check3", "Rnd Colors", &BrushSettings::randomColour, "the brush takes random colors"},
      {"Check11", "Scrape", &BrushSettings::scrapes, "the other picture shows where the pointer went"},
      {"Check2", "Enable Blur Brush", &BrushSettings::blurs, "the brush blurs a square about the pointer"},
      {"Check1", "clone star", nullptr, kNoAction},
  };
  return kChecks;
}

std::span<const Texture::ButtonEntry> Texture::ButtonEntries() {
  static constexpr ButtonEntry kButtons[] = {
      {"Command4", "fix image", &Texture::LoadSource, "filters work on the Foreground as it is now"},
      {"Command49", "Grid", &Texture::GridImage, "lines across the Foreground at every step"},
      {"Command50", "Frame", &Texture::FrameImage, "lines along the edges of the Foreground"},
      {"Command3", "Random Scrape", &Texture::ScrapeAtRandom, "pixels of the Foreground onto the Background"},
      {"Command14", "Random Point", &Texture::PointsAtRandom, "points at random places of the Foreground"},
      {"Command5", "Random Circle", &Texture::CirclesAtRandom, "circles at random places of the Foreground"},
      {"Command18", "Command18", &Texture::ShadesAtRandom,
       "random shades of the chosen color on the Foreground"},
      {"Command17", "Blur filter", &Texture::BlurForeground, "blurs the whole Foreground"},
      {"Command1", "send to clipboard", nullptr, kNoAction},
  };
  return kButtons;
}

void Texture::MakeControls() {
  for (const auto& panel : kPanels) {
    panels_.push_back(std::make_unique<FrameBox>(*this, panel.name, panel.caption, panel.toolTip));
  }
  for (const BarEntry& b : BarEntries()) bars_.push_back(std::make_unique<BoxedBar>(*this, b.spec, b.typing));
  for (const OptionEntry& o : OptionEntries()) {
    options_.push_back(std::make_unique<OptionButton>(*this, o.name, o.caption, o.group, o.isOn, o.toolTip));
    if (o.group == std::string_view(kSizes)) {
      options_.back()->onClick = [this, size = o.number](const Click&) {
        const auto [width, height] = kImageSizes[static_cast<std::size_t>(size)];
        SetImageSize(width, height);
      };
    }
  }
  for (const CheckEntry& c : CheckEntries()) {
    checks_.push_back(std::make_unique<CheckBox>(*this, c.name, c.caption, false, c.toolTip));
  }
  for (const ButtonEntry& b : ButtonEntries()) {
    buttons_.push_back(std::make_unique<PushButton>(*this, b.name, b.caption, b.toolTip));
    if (b.run != nullptr) buttons_.back()->onClick = [this, run = b.run](const Click&) { (this->*run)(); };
  }
  Command2.onClick = [this](const Click&) { FillWithNoise(false); };
  cmdAnimate.onClick = [this](const Click&) { FillWithNoise(true); };
}

BoxedBar& Texture::Bar(std::string_view name) const {
  const auto found =
      std::find_if(bars_.begin(), bars_.end(), [&](const auto& b) { return b->name() == name; });
  if (found == bars_.end()) throw Fault(FaultKind::InvalidValue, "no bar " + std::string(name));
  return **found;
}

// The number of the option that is on.
double Texture::ChosenOf(std::string_view group) const {
  double chosen = 0;
  for (std::size_t i = 0; i < options_.size(); ++i) {
    if (options_[i]->group() == group && options_[i]->value()) chosen = OptionEntries()[i].number;
  }
  return chosen;
}

MakerSettings Texture::Settings() const {
  MakerSettings settings;
  EffectSettings& effect = settings.effect;
  BrushSettings& brush = settings.brush;
  for (std::size_t i = 0; i < bars_.size(); ++i) {
    if (BarEntries()[i].take != nullptr) BarEntries()[i].take(settings, *bars_[i]);
  }
  for (std::size_t i = 0; i < checks_.size(); ++i) {
    if (CheckEntries()[i].field != nullptr) brush.*CheckEntries()[i].field = checks_[i]->value();
  }
  effect.shape = static_cast<StampShape>(static_cast<int>(ChosenOf(kStamp)));
  effect.scale = ChosenOf(kScales);
  effect.reducerDivisor = static_cast<int>(ChosenOf(kReducer));
  effect.reducesColours = brush.randomPen;
  effect.blackToWhite = HScroll25.value();
  effect.chosen = ChosenColour();
  effect.circleBrush = brush.circle = ChosenOf(kBrush) != 0;
  effect.pointSize = brush.pointSize = HScroll5.value();
  effect.circleRadius = brush.radius = HScroll1.value();
  return settings;
}

std::vector<Control*> Texture::ChoicesOf(std::string_view group) const {
  std::vector<Control*> choices;
  for (const auto& option : options_) {
    if (option->group() == group) choices.push_back(option.get());
  }
  return choices;
}

std::vector<LayoutItem> Texture::BarsOf(std::size_t panel) {
  std::vector<LayoutItem> rows;
  for (std::size_t i = 0; i < bars_.size(); ++i) {
    if (BarEntries()[i].panel == panel) rows.push_back(BarRow(*bars_[i]));
  }
  return rows;
}

LayoutItem Texture::PanelOf(std::size_t number) {
  std::vector<LayoutItem> items = BarsOf(number);
  if (number == kSteps) items.push_back(Flow(ChoicesOf(kStamp)));
  if (number == kScale) items.push_back(Flow(ChoicesOf(kScales)));
  if (number == kLevels) items.push_back(Flow(ChoicesOf(kReducer)));
  if (number == kSize) items.push_back(Flow(ChoicesOf(kSizes)));
  if (number == kPerlin) {
    for (ScrollBar* bar : {&hscScale, &hscOctaves}) items.push_back(BarRow(*bar));
    items.push_back(Flow({&chkAbsolute, &Command2, &cmdAnimate}));
  }
  if (number == kCanyon) {
    for (ScrollBar* bar : {&HScroll18, &HScroll25}) items.push_back(BarRow(*bar));
  }
  return Frame(*panels_[number - 1], std::move(items));
}

// What is set, beside the pictures.
LayoutItem Texture::SettingsColumn() {
  std::vector<LayoutItem> widths = {BarRow(HScroll5, {&Label11}), BarRow(HScroll1, {&Label10})};
  for (LayoutItem& row : BarsOf(kAlways)) widths.push_back(std::move(row));
  std::vector<LayoutItem> items = {
      Single(Picture11),
      Row({Single(Picture2), Single(Picture4), Single(Picture3), Labelled("x", Label2),
           Labelled("y", Label5)}),
      Row({Labelled("color", Label12), Labelled("b", Label13), Labelled("g", Label14), Labelled("r", Label15),
           Labelled("gray", Label16)}),
      Frame("Gray/Color Level  Settings",
            {BarRow(HScroll2), BarRow(HScroll3), BarRow(HScroll4), BarRow(HScroll6)}),
      Frame("Patch/Line/Circle Width", std::move(widths)),
      BarRow(HScroll34),
  };
  for (std::size_t number = kValues; number <= kCanyon; ++number) items.push_back(PanelOf(number));
  return Scrolling(Column(std::move(items)));
}

void Texture::MakeLayout() {
  std::vector<Control*> brushes = ChoicesOf(kBrush), presses;
  for (const auto& check : checks_) brushes.push_back(check.get());
  for (const auto& button : buttons_) presses.push_back(button.get());
  LayoutItem images = Column({Pane({&Picture1, &Picture5}), BarRow(HScroll22), BarRow(HScroll35, {&Label32}),
                              BarRow(VScroll2), Single(ProgressBar1)});
  SetLayout(Column({Flow(std::move(brushes)), Compact(Flow(std::move(presses))),
                    Stretching(Row({SettingsColumn(), Stretching(std::move(images)), Upright(VScroll1)}))}));
}

}  // namespace pelorium
