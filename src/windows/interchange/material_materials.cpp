// "Materials". Colours of a group are stored as 256ths, amounts as hundredths.
#include "windows/interchange/material_materials.h"

#include <array>
#include <string_view>
#include <variant>

#include "base/numbers.h"
#include "interchange/material_settings.h"
#include "platform/picture_files.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/shell/hooks.h"

namespace pelorium {

namespace {

using M = MaterialRec;

constexpr const char* kAmbient = "Ambiant Color RGB";
constexpr const char* kDiffuse = "Diffuse Color RGB";
constexpr const char* kSpecular = "Specular Color RGB";
constexpr const char* kFilter = "Transmissive Filtering RGB";
constexpr const char* kSurface = "Surface";
constexpr const char* kChannels = "Amount of effect for Channels";
constexpr const char* kMaps = "Use Bitmaps in material 0=no 1=yes";

constexpr BarRange kColourRange{0, 255, 0}, kAmountRange{0, 100, 0}, kSwitchRange{0, 1, 0};
constexpr double kColourUnits = 256, kAmountUnits = 100;

struct Field {
  BarSpec spec;
  std::variant<double M::*, std::int16_t M::*> member;
  double units;  // the bar's value / units is what the group holds
  std::string_view frame;
};

// clang-format off
const std::array<Field, 24> kFields = {{
    {{"HScroll2", "Text9", kColourRange, "R", "red of the ambient colour"}, &M::KaR, kColourUnits, kAmbient},
    {{"HScroll3", "Text10", kColourRange, "G", "green of the ambient colour"}, &M::KaG, kColourUnits, kAmbient},
    {{"HScroll4", "Text11", kColourRange, "B", "blue of the ambient colour"}, &M::KaB, kColourUnits, kAmbient},
    {{"HScroll5", "Text12", kColourRange, "R", "Color of object"}, &M::KdR, kColourUnits, kDiffuse},
    {{"HScroll6", "Text13", kColourRange, "G", "Color of object"}, &M::KdG, kColourUnits, kDiffuse},
    {{"HScroll7", "Text14", kColourRange, "B", "Color of object"}, &M::KdB, kColourUnits, kDiffuse},
    {{"HScroll8", "Text15", kColourRange, "R", "red of the specular colour"}, &M::KsR, kColourUnits, kSpecular},
    {{"HScroll9", "Text16", kColourRange, "G", "green of the specular colour"}, &M::KsG, kColourUnits, kSpecular},
    {{"HScroll10", "Text17", kColourRange, "B", "blue of the specular colour"}, &M::KsB, kColourUnits, kSpecular},
    {{"HScroll11", "Text18", kColourRange, "R", "red of the filter"}, &M::TfR, kColourUnits, kFilter},
    {{"HScroll12", "Text19", kColourRange, "G", "green of the filter, which no file but .mtl keeps"}, &M::TfG,
     kColourUnits, kFilter},
    {{"HScroll13", "Text20", kColourRange, "B", "blue of the filter, which no file but .mtl keeps"}, &M::TfB,
     kColourUnits, kFilter},
    {{"HScroll14", "Text1", kAmountRange, "Shinyness", "hundredths"}, &M::Ns, kAmountUnits, kSurface},
    {{"HScroll15", "Text2", kAmountRange, "General Amount of effect", "transparency, hundredths"}, &M::d,
     kAmountUnits, kSurface},
    {{"HScroll16", "Text3", {1, 10, 2}, "ILLumination", "Illumination type-defualt =2"}, &M::illum, 1, kSurface},
    {{"HScroll17", "Text4", kAmountRange, "Bump", "hundredths"}, &M::bump_amt, kAmountUnits, kChannels},
    {{"HScroll18", "Text5", kAmountRange, "Reflection", "hundredths"}, &M::refl_amt, kAmountUnits, kChannels},
    {{"HScroll19", "Text6", kAmountRange, "Ambiant", "hundredths"}, &M::amb_amt, kAmountUnits, kChannels},
    {{"HScroll20", "Text7", kAmountRange, "Diffuse", "hundredths"}, &M::dif_amt, kAmountUnits, kChannels},
    {{"HScroll21", "Text8", kAmountRange, "Specular", "amount of specular color shown"}, &M::spec_amt,
     kAmountUnits, kChannels},
    {{"HScroll22", "Text22", kSwitchRange, "Use Bump map", "1 names the map in the material file"}, &M::usebump, 1,
     kMaps},
    {{"HScroll23", "Text23", kSwitchRange, "Use Diffuse map", "1 names the map in the material file"}, &M::usedif,
     1, kMaps},
    {{"HScroll24", "Text24", kSwitchRange, "Use Ambiant map", "1 names the map in the material file"}, &M::useamb,
     1, kMaps},
    {{"HScroll25", "Text25", kSwitchRange, "Use Specular map", "1 names the map in the material file"},
     &M::usespec, 1, kMaps},
}};
// clang-format on

constexpr std::size_t kLastField = kFields.size() - 1;  // "Use Specular map"

double ValueOf(const M& material, const Field& field) {
  if (const auto* number = std::get_if<double M::*>(&field.member)) return material.**number;
  return material.*std::get<std::int16_t M::*>(field.member);
}

void ShowColour(PictureBox& box, double red, double green, double blue) {
  box.Fill(Rgb(ScreenChannel(red), ScreenChannel(green), ScreenChannel(blue)));
}

}  // namespace

Material::Material(App& app) : ToolWindow(app, "material", "Materials") {
  fields_ = MakeBars(*this, kFields, Typing::MovesBar);
  HScroll1.onChange = [this] { ShowGroup(); };
  Text26.onKeyUp = [this] { Chosen().GroupName = Text26.text(); };
  for (std::size_t row = 0; row < fields_.size(); ++row) {
    OnEdit(
        *fields_[row], [this, row] { StoreField(row); },
        kFields[row].frame == kDiffuse ? kRefreshOnly : kChangeOnly);
  }
  Command1.onClick = [this](const Click&) { Command1_Click(); };
  OnFile(Command2, [this] { Command2_Click(); });
  OnEdit(
      Command3, [this] { StoreField(kLastField); }, kChangeOnly);
  OnFile(Command4, [this] { Command4_Click(); });
  OnFile(Command5, [this] { Command5_Click(); });
  SetLayout(DeclareLayout());
}

LayoutItem Material::FieldFrame(const char* title, PictureBox* swatch) const {
  std::vector<LayoutItem> bars;
  for (std::size_t row = 0; row < fields_.size(); ++row) {
    if (kFields[row].frame == title) bars.push_back(BarRow(*fields_[row]));
  }
  if (swatch == nullptr) return Frame(title, bars);
  return Frame(title, {Row({Single(*swatch), Stretching(Column(bars))})});
}

LayoutItem Material::DeclareLayout() {
  return Column({
      Frame("Material Group#   Group Name", {BarRow(HScroll1), Single(Text26)}),
      FieldFrame(kDiffuse, &Picture2),
      FieldFrame(kAmbient, &Picture1),
      FieldFrame(kSpecular, &Picture3),
      FieldFrame(kFilter, &Picture4),
      FieldFrame(kSurface),
      FieldFrame(kChannels),
      Single(note),
      FieldFrame(kMaps),
      Flow({&Command3}),
      Frame("All materials", {Flow({&Command1, &Command2})}),
      Frame("Save foreground Image from Imagemaker as map",
            {Flow({&Option1, &Option2, &Option3, &Option4}), Flow({&Command4, &Command5})}),
  });
}

const MaterialRec& Material::Shown() const { return ReadModel(app_).MaterialGroups(HScroll1.value()); }
MaterialRec& Material::Chosen() { return app_.model.MaterialGroups(HScroll1.value()); }

// Nothing is written: a value that its bar cannot show, such as a filter of 1, stays what it is.
void Material::ShowGroup() {
  const M& m = Shown();
  Text26.SetText(m.GroupName);
  for (std::size_t row = 0; row < fields_.size(); ++row) {
    BoxedBar& bar = *fields_[row];
    bar.Show(bar.Clamped(ValueOf(m, kFields[row]) * kFields[row].units));
  }
  ShowColours();
}

void Material::ShowColours() {
  const M& m = Shown();
  ShowColour(Picture1, m.KaR, m.KaG, m.KaB);
  ShowColour(Picture2, m.KdR, m.KdG, m.KdB);
  ShowColour(Picture3, m.KsR, m.KsG, m.KsB);
  ShowColour(Picture4, m.TfR, m.TfG, m.TfB);
}

void Material::StoreField(std::size_t row) {
  const Field& field = kFields[row];
  if (const auto* number = std::get_if<double M::*>(&field.member)) {
    Chosen().** number = fields_[row]->Shown() / field.units;
  } else {
    Chosen().*std::get<std::int16_t M::*>(field.member) = Narrow<std::int16_t>(fields_[row]->value());
  }
  ShowColours();
}

void Material::Command1_Click() {
  Edit(
      Command1,
      [this] {
        OpenFile(app_, BesideWorkingFolder(app_, "materialsettings.txt"), [this](std::string_view text) {
          ReadMaterialSettings(app_.model, text);
          return std::string("the materials");
        });
      },
      kRefreshOnly);
  ShowGroup();  // of what came before a fault, too
}

void Material::Command2_Click() {
  SaveFile(app_, BesideWorkingFolder(app_, "materialsettings.txt"),
           [this](TextWriter& out) { WriteMaterialSettings(app_.model, out); });
}

// The name that the material file of an export gives to the map.
std::string Material::MapName() const {
  const char* kind = Option1.value()   ? "_diffuse.bmp"
                     : Option2.value() ? "_ambiant.bmp"
                     : Option3.value() ? "_specular.bmp"
                                       : "_bumpmap.bmp";
  return "mtl" + std::to_string(HScroll1.value()) + kind;
}

void Material::Command4_Click() {
  const auto name =
      AskFileName(app_, {true, "Save", "images", "All Files (*.bmp)|*.bmp", "*.bmp", MapName()});
  if (name.empty()) return;
  SavePicture(app_.links.foreground().picture(), FileNamed(app_, name));
  TellWritten(app_, FileNamed(app_, name), "saved");
}

// A file that cannot be read changes neither picture.
void Material::Command5_Click() {
  const auto name = AskFileName(app_, {false, "Open", "images", "All Files (*.bmp;*.png)|*.bmp;*.png", ""});
  if (name.empty()) return;
  Picture opened(1, 1);
  opened.backColour = app_.links.foreground().measures().backColour;  // under what is transparent
  LoadPicture(opened, FileNamed(app_, name));
  app_.links.takeImages(opened);
  app_.notices.Give("opened " + name.filename().string(), NoticeKind::Result);
}

}  // namespace pelorium
