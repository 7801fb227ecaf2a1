// "Face Info/Edit".
#include "windows/facetools/editbyface_face_info.h"

#include <algorithm>
#include <string>

#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/view/shared_parameters.h"

namespace pelorium {

EditByFace::EditByFace(App& app) : ToolWindow(app, "editbyface", "Face Info/Edit") {
  VScroll1.onChange = [this] { VScroll1_Change(); };
  VScroll2.onChange = [this] { VScroll2_Change(); };
  SetLayout(Column({
      Frame("Vertex info", {BarRow(VScroll1, {&Label4})}),
      Frame("Face Info", {BarRow(VScroll2, {&Label3})}),
      Row({Labelled("Max pts", Text9), Labelled("Max Faces", Text10)}),
  }));
}

void EditByFace::CountsChanged(Counts which) {
  if (which == Counts::Points) return;
  const PartHeader& part = app_.model.Part(CurrentPart(app_));
  const int points = part.maxpoints, faces = std::max<int>(0, part.maxfaces);  // a count may stand at -1
  if (VScroll1.value() > points) VScroll1.SetValue(0);
  VScroll1.SetMax(points);
  Text9.SetText(std::to_string(points));
  if (VScroll2.value() > std::max(1, faces)) VScroll2.SetValue(1);
  VScroll2.SetMax(std::max(1, faces));
  Text10.SetText(std::to_string(faces));
}

void EditByFace::VScroll1_Change() {
  Label4.SetCaption(std::to_string(VScroll1.value()));
  RefreshViews(app_);
}

void EditByFace::VScroll2_Change() {
  Label3.SetCaption(std::to_string(VScroll2.value()));
  RefreshViews(app_);
}

}  // namespace pelorium
