// "Materials": the colours, amounts and image maps of one material group at a time.
#pragma once

#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/picture_box.h"
#include "controls/text_box.h"
#include "core/model_store.h"
#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

class Material : public ToolWindow {
 public:
  explicit Material(App& app);

  // The bars show what the chosen group holds.
  void Load() override { ShowGroup(); }
  void CountsFollowed() override { ShowGroup(); }
  void RecordsRestored() override { ShowGroup(); }

  BoxedBar HScroll1{
      *this, {"HScroll1", "Text21", {0, kMaxGroup - 1, 0}, "Material Group#", "the group that is edited"}};
  TextBox Text26{*this, "Text26", "", "name of the group"};

  PictureBox Picture1{*this, "Picture1", kSwatchWidth, kSwatchHeight, "the ambient colour"};
  PictureBox Picture2{*this, "Picture2", kSwatchWidth, kSwatchHeight, "the diffuse colour, that of the wire"};
  PictureBox Picture3{*this, "Picture3", kSwatchWidth, kSwatchHeight, "the specular colour"};
  PictureBox Picture4{*this, "Picture4", kSwatchWidth, kSwatchHeight, "the transmissive filter"};

  Label note{*this, "note", "values avail for editing material when model is exported as a .obj file"};

  PushButton Command1{*this, "Command1", "Open", "Open material file for use"};
  PushButton Command2{*this, "Command2", "Save", "saves all materials, for Open"};
  PushButton Command3{*this, "Command3", "Set ", "stores Use Specular map in the group"};

  OptionButton Option1{*this, "Option1", "Diffuse", "map", true, "the map that Save names"};
  OptionButton Option2{*this, "Option2", "Ambiant", "map", false, "the map that Save names"};
  OptionButton Option3{*this, "Option3", "Specular", "map", false, "the map that Save names"};
  OptionButton Option4{*this, "Option4", "Bump", "map", false, "the map that Save names"};
  PushButton Command4{*this, "Command4", "Save",
                      "saves the foreground of the Image maker as a map of the group"};
  PushButton Command5{*this, "Command5", "Open", "opens a picture into the Image maker"};

 private:
  static constexpr int kSwatchWidth = 48, kSwatchHeight = 72;  // pixels

  const MaterialRec& Shown() const;
  MaterialRec& Chosen();
  void ShowGroup();
  void ShowColours();
  void StoreField(std::size_t row);
  LayoutItem FieldFrame(const char* title, PictureBox* swatch = nullptr) const;
  LayoutItem DeclareLayout();
  std::string MapName() const;
  void Command1_Click();
  void Command2_Click();
  void Command4_Click();
  void Command5_Click();

  BoxedBars fields_;  // one for each row of the table in the source
};

}  // namespace pelorium
