// Builds the windows of this room.
#include "windows/facetools/facetools_windows.h"

#include "windows/facetools/editbyface_face_info.h"
#include "windows/facetools/freeface_free_faces.h"
#include "windows/facetools/unfold_flat_pattern.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

FacetoolWindows::FacetoolWindows(App& app)
    : editbyface(app.Add<EditByFace>()), freeface(app.Add<FreeFace>()), unfold(app.Add<Unfold>()) {
  app.links.chosenPoint = [this] { return editbyface.VScroll1.value(); };
  app.links.chosenFace = [this] { return editbyface.VScroll2.value(); };
  app.links.chooseFace = [this](int face) {
    editbyface.VScroll2.SetValue(editbyface.VScroll2.Clamped(face));
  };
  app.links.pressCap = [this](Cap cap, const LaidGrid& body) { freeface.PressCap(cap, body); };
  app.links.freeFaceRange = [this](int faces, int points) { freeface.SetRange(faces, points); };
  app.links.endCap = [this](int layer, std::optional<int> start) { freeface.MakeEndCap(layer, start); };
}

}  // namespace pelorium
