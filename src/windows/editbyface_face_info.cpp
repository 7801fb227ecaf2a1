// "Face Info/Edit".
#include "windows/editbyface_face_info.h"

#include <algorithm>
#include <string>

#include "windows/app.h"
#include "windows/refresh_views.h"

namespace pelorium {

EditByFace::EditByFace(App& app) : Window(app.host, "editbyface", "Face Info/Edit"), app_(app) {
  VScroll1.onChange = [this] { VScroll1_Change(); };
  VScroll2.onChange = [this] { VScroll2_Change(); };
  SetLayout(Column({
      Frame("Vertex info", {BarRow(VScroll1, {&Label4})}),
      Frame("Face Info", {BarRow(VScroll2, {&Label3})}),
      Row({Labelled("Max pts", Text9), Labelled("Max Faces", Text10)}),
  }));
}

void EditByFace::FollowCounts(int points, int faces) {
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
