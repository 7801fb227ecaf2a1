// "Import/Export  Dxf  (.dxf)".
#pragma once

#include "base/files.h"
#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/text_box.h"
#include "core/model_store.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class Form12 : public ToolWindow {
 public:
  explicit Form12(App& app);

  // The lists show the folder of the DXF files.
  void Load() override;
  // "Part#" shows the current Part.
  void PartChosen() override;

  TextBox Text6{*this, "Text6", "", "file name and location"};
  DirList Dir1{*this, "Dir1"};
  FileList File1{*this, "File1", "*.dxf"};

  Label exportsCurrentPart{*this, "exportsCurrentPart", "Export Currently Selected Part# "};
  PushButton Command32{*this, "Command32", "Export Tri", "a 3DFACE for every face that is on"};
  PushButton Command1{*this, "Command1", "Export By Selected Group",
                      "a 3DFACE for every face that is on and of the group below"};
  PushButton Command4{*this, "Command4", " Export Subdivided",
                      "three 3DFACE around the middle of every face that is on; they look the other way"};
  PushButton Command21{*this, "Command21", "Export dxf mesh", "one polyface mesh of all points and faces"};
  PushButton Command5{*this, "Command5", "Save dxfpoints", "a POINT for every point"};
  PushButton Command7{*this, "Command7", "Export as DXF Solid (Planar object)",
                      "a SOLID for every face that is on, with the thickness below"};
  PushButton Command6{*this, "Command6", "Export Profiles as Wireframe DXF",
                      "a LINE for every segment of the drawn profiles"};
  PushButton Command9{*this, "Command9", "Save dxf wireframe",
                      "3DFACE between neighbouring profiles, in the layer and point ranges of Precise Edit"};

  BoxedBar HScroll2{*this,
                    {"HScroll2", "Text2", {1, 59, 1}, "Acad Layer Number", "acad (dxf) layer setting"}};
  BoxedBar HScroll1{*this, {"HScroll1", "Text1", {1, 255, 1}, "DXF Color", "Color of obj (color number)"}};
  BoxedBar HScroll3{*this, {"HScroll3", "Text3", {0, 100, 0}, "Thickness>>>", "height of the solids"}};
  BoxedBar HScroll4{
      *this, {"HScroll4", "Text5", {0, 40, 0, 1, 5}, "Group#", "the material group that is exported alone"}};
  BoxedBar HScroll6{*this,
                    {"HScroll6", "Text7", {0, kUserParts - 1, 0, 1, 1}, "Part#", "shows the current Part"}};

  BoxedBar HScroll5{*this,
                    {"HScroll5",
                     "Text4",
                     {-2000, 2000, 10},
                     "Import Scale",
                     "factor of all coordinates that are imported; below 0 they are mirrored through 0, 0, 0",
                     kTenths}};
  PushButton Command12{*this, "Command12", "Import (tri)",
                       "each 3DFACE becomes a face with points of its own"};
  PushButton Command13{*this, "Command13", "Import (quad)", "each 3DFACE becomes two faces"};
  PushButton Command2{*this, "Command2", "Import DXF mesh", "a polyface mesh, as the export writes it"};
  PushButton Command3{*this, "Command3", "Import Mesh", "the polyface mesh of the file that is named above"};

 private:
  static constexpr const char* kFilter = "All Files (*.dxf*)|*.dxf*";
  using Reader = void (*)(ModelStore&, int part, ByteSource&, double factor);

  void OnExport(PushButton& button, const char* folder, const char* title, const FileWriter& write,
                const char* filter = kFilter);
  void BindExports();
  void BindImports();
  void AskAndImport(const char* folder, Reader read);
  void Import(Reader read);
  int Colour() const { return HScroll1.value(); }
  LayoutItem DeclareLayout();
};

}  // namespace pelorium
