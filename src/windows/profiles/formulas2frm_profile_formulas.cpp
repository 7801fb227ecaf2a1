// " Profile  Formulas".
#include "windows/profiles/formulas2frm_profile_formulas.h"

#include <utility>

#include "profiles/simple_waves.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/view/form51_view_options.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

constexpr std::string_view kGlobalFrame = "Global Settings";
constexpr std::string_view kCircleFrame = "Circle";
constexpr std::string_view kSineFrame = "Sine";
constexpr std::string_view kParabulaFrame = "Parabula";
constexpr std::string_view kWaveFrame = "Simple waves";

using S = FormulaSettings;

struct Parameter {
  BarSpec spec;
  std::string_view frame;
  double S::*text;             // what the box is read into; null for none
  double S::*whole = nullptr;  // what the bar's own value is read into
};

const Parameter kParameters[] = {
    {{"HScroll23",
      "Text28",
      {0, kMaxLayer, 0, 1, 5},
      "Pts Range start",
      "layers range (start) in profile for formulas effects"},
     kGlobalFrame,
     &S::firstPoint},
    {{"HScroll24",
      "Text29",
      {0, kMaxLayer, 36, 1, 5},
      "Pts Range end",
      "layers range (end) in profile for formulas effects"},
     kGlobalFrame,
     &S::lastPoint},
    {{"HScroll27",
      "Text32",
      {0, kMaxLayer, 36, 1, 5},
      "Layers (max pts#)",
      "draw location of the current profile: the points it has"},
     kGlobalFrame,
     &S::maxPoints},
    {{"HScroll28", "Text33", {-1500, 1500, 300}, "Elev (Y)", "Set initial Y dir location"},
     kGlobalFrame,
     &S::elevation,
     &S::barElevation},
    {{"HScroll31", "Text10", {-100, 100, 0}, "X-- Start Position", "General X dir location for profile"},
     kGlobalFrame,
     &S::xStart},
    {{"HScroll33", "Text19", {-100, 100, 0}, "Z-Start Pos", "Start pos in Z dir for profile"},
     kGlobalFrame,
     &S::zStart},
    {{"HScroll32", "Text18", {-20, 20, 2, 1, 5}, "X Interval", "X dir interval additive"},
     kGlobalFrame,
     &S::xInterval},
    {{"HScroll34", "Text23", {-20, 20, 2, 1, 5}, "Z-Interval", "Z dir interval additive"},
     kGlobalFrame,
     &S::zInterval},
    {{"HScroll17", "Text20", {-50, 50, 10}, "X spacing", "X dir spacing between points"},
     kGlobalFrame,
     &S::xSpacing,
     &S::barSpacing},
    {{"HScroll16", "Text17", {-50, 50, 0}, "Z spacing", "Z dir spacing between points"},
     kGlobalFrame,
     &S::zSpacing},
    {{"HScroll5",
      "Text11",
      {-3600, 3600, 1000, 1, 100},
      "Deg",
      "how many degrees there are between ea point in cirlce shaped profile",
      kHundredths,
      "10.2857142857143"},
     kGlobalFrame,
     &S::degrees},
    {{"HScroll22",
      "Text21",
      {-1000, 1000, 0},
      "Angle Decay",
      "amount of decrese of angle between points",
      kHundredths},
     kGlobalFrame,
     &S::degreesDecay},
    {{"HScroll4", "Text27", {-1000, 1000, 0}, "X decay", "amount of decrese of X dir incr between points"},
     kGlobalFrame,
     &S::xDecay},
    {{"HScroll14", "Text16", {-1000, 1000, 0}, "Y decay", "amount of decrese of Y dir incr between points"},
     kGlobalFrame,
     &S::yDecay},
    {{"HScroll18", "Text34", {-1000, 1000, 0}, "Z decay", "amount of decrese of z dir incr between points"},
     kGlobalFrame,
     &S::zDecay,
     &S::barZDecay},
    {{"HScroll21",
      "Text14",
      {0, 200, 0},
      "Rnd Amnt X",
      "amount of randomness (noise) to add in x dir of profile"},
     kGlobalFrame,
     &S::xNoise},
    {{"HScroll20",
      "Text24",
      {0, 200, 0},
      "Rnd Amnt y",
      "amount of randomness (noise) to add in y dir of profile"},
     kGlobalFrame,
     &S::zNoise},

    {{"HScroll2", "Text8", {0, 400, 100}, "Radius X", "radius--dist from center in x dir for circles"},
     kCircleFrame,
     &S::xRadius},
    {{"HScroll3", "Text9", {0, 400, 100}, "Radius Z", "radius--dist from center iny dir for circles"},
     kCircleFrame,
     &S::zRadius},

    {{"HScroll15",
      "Text22",
      {0, 4000, 500, 1, 100},
      "Ampl",
      "affects hieght of profile sine wave shape",
      kTenths},
     kSineFrame,
     &S::amplitude},

    {{"HScroll30", "Text25", {0, 300, 200}, "Pwr", "sets exponent value for parabula creation", kHundredths},
     kParabulaFrame,
     &S::power},
    {{"HScroll29",
      "Text15",
      {-500, 500, 0},
      "Pwr Decay",
      "amount of power decay (ea layer has less off than last) --affects parabul",
      kHundredths},
     kParabulaFrame,
     &S::powerDecay},
    {{"HScroll19",
      "Text26",
      {-600, 600, 36},
      "Parabula Ampl",
      "Parabula Ampltude amount",
      kHundredths,
      ".36"},
     kParabulaFrame,
     &S::parabulaAmplitude,
     &S::barParabulaAmplitude},

    {{"HScroll7", "Text2", {0, 20, 1, 1, 5}, "amplitute", "height of the waves, steepness of sin wave 3"},
     kWaveFrame,
     &S::waveAmplitude},
    {{"HScroll8", "Text1", {0, 200, 20}, "freq", "radians from point to point", kThousandths, ".02"},
     kWaveFrame,
     &S::waveFrequency},
    {{"HScroll10", "Text7", {0, 600, 20}, "level", "where the waves begin"}, kWaveFrame, &S::waveLevel},
    {{"HScroll12", "Text5", {0, 50, 2, 1, 5}, "spacing", "units from point to point"},
     kWaveFrame,
     &S::waveSpacing},
    {{"HScroll9", "Text3", {0, 600, 10}, "offset", "where the spacing begins"}, kWaveFrame, &S::waveOffset},
    {{"HScroll11", "Text12", {0, 10, 1, 1, 2}, "wave 3 factor", "multiplies the frequency of sin wave 3"},
     kWaveFrame,
     &S::wave3Factor},
    {{"HScroll13", "Text6", {0, 10, 0, 1, 2}, "wave 3 offset", "moves sin wave 3 along z"},
     kWaveFrame,
     &S::wave3Offset},
    {{"HScroll6",
      "Text4",
      {1, 4, 2, 1, 1},
      "power",
      "kept for waves that take a power; those here take none"},
     kWaveFrame,
     nullptr},
};

}  // namespace

Formulas2Frm::Formulas2Frm(App& app)
    : ToolWindow(app, "Formulas2frm", " Profile  Formulas"),
      view(*this, app),
      parameters_(MakeBars(*this, kParameters, Typing::IsTheValue)) {
  // Runs no formula: browsing would write over one profile after the other.
  HScroll25.onChange = [this] { app_.view->form51.HScroll3.SetValue(HScroll25.value()); };
  for (const auto& parameter : parameters_) parameter->onChange = [this] { AutoFormula(); };
  BindFormulas();
  Command9.onClick = [this](const Click&) { ResetFrame(kCircleFrame); };
  Command11.onClick = [this](const Click&) { ResetFrame(kSineFrame); };
  Command12.onClick = [this](const Click&) { ResetFrame(kParabulaFrame); };
  SetLayout(DeclareLayout());
}

void Formulas2Frm::BindFormulas() {
  for (auto [button, lay] : {std::pair{&Command6, &LayCircle},
                             {&Command7, &LaySine},
                             {&Command10, &LaySineX},
                             {&Command4, &LayParabula}}) {
    BindFormula(*button, [this, lay](const FormulaSettings& s) { lay(app_.model, s, SeededRandom()); });
  }
  for (auto [button, lay] : {std::pair{&Command5, &LayParabula2},
                             {&Command3, &LayFunnel},
                             {&Command2, &LaySinWave},
                             {&Command1, &LaySinWave2},
                             {&Command8, &LaySinWave3},
                             {&Command15, &LayRegularX}}) {
    BindFormula(*button, [this, lay](const FormulaSettings& s) { lay(app_.model, s); });
  }
}

void Formulas2Frm::BindFormula(PushButton& button, std::function<void(const FormulaSettings&)> formula) {
  button.onClick = [this, &button, formula = std::move(formula)](const Click&) {
    const HoldAutomaticActions hold(app_);
    Edit(
        button, [&] { formula(ReadSettings()); }, kChangeOnly);
    app_.view->form51.ShowProfileCount();
    RefreshViews(app_);
  };
}

FormulaSettings Formulas2Frm::ReadSettings() const {
  FormulaSettings settings;
  settings.profile = HScroll25.value();
  settings.additive = Check2.value();
  settings.origin = Origin(app_);
  settings.funnelFactor = Text13.Number();
  for (std::size_t row = 0; row < parameters_.size(); ++row) {
    const auto& [spec, frame, text, whole] = kParameters[row];
    if (text != nullptr) settings.*text = parameters_[row]->Number();
    if (whole != nullptr) settings.*whole = parameters_[row]->value();
  }
  return settings;
}

// The noise differs from run to run.
RandomSeries& Formulas2Frm::SeededRandom() {
  app_.random.SeedFromClock(app_.platform.ClockReading());
  return app_.random;
}

void Formulas2Frm::AutoFormula() {
  if (app_.automaticActionsHeld > 0) return;
  for (auto [option, button] :
       {std::pair{&Option1, &Command7}, {&Option2, &Command4}, {&Option3, &Command6}}) {
    if (option->value()) button->Press();
  }
}

// All bars first, then one run of the chosen formula.
void Formulas2Frm::ResetFrame(std::string_view frame) {
  {
    const HoldAutomaticActions hold(app_);
    for (std::size_t row = 0; row < parameters_.size(); ++row) {
      if (kParameters[row].frame == frame) parameters_[row]->Reset();
    }
  }
  AutoFormula();
}

void Formulas2Frm::ProfileChosen() { HScroll25.SetValue(CurrentProfile(app_)); }

std::vector<LayoutItem> Formulas2Frm::FrameRows(std::string_view frame) {
  std::vector<LayoutItem> rows;
  for (std::size_t row = 0; row < parameters_.size(); ++row) {
    if (kParameters[row].frame == frame) rows.push_back(BarRow(*parameters_[row]));
  }
  return rows;
}

// One narrow column: the picture stays in sight while the bars are moved.
LayoutItem Formulas2Frm::DeclareLayout() {
  const auto frame = [this](std::string_view title, LayoutItem last) {
    std::vector<LayoutItem> rows = FrameRows(title);
    rows.push_back(std::move(last));
    return Frame(std::string(title), std::move(rows));
  };
  LayoutItem global = frame(kGlobalFrame, Flow({&Check2, &Command15}));
  global.items.insert(global.items.begin(), BarRow(HScroll25));
  return Column({
      Frame("View", {Flow(view.All())}),
      Flow({&Option9, &Option3, &Option1, &Option2}),
      frame(kCircleFrame, Flow({&Command6, &Command9})),
      frame(kSineFrame, Flow({&Command7, &Command10, &Command11})),
      frame(kParabulaFrame, Flow({&Command4, &Command5, &Command12})),
      std::move(global),
      frame(kWaveFrame, Column({Flow({&Command2, &Command1, &Command8}),
                                Row({Single(Command3), Labelled("by", Text13)})})),
  });
}

}  // namespace pelorium
