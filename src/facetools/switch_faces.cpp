// Switching faces on and off.
#include "facetools/switch_faces.h"

namespace pelorium {

void SwitchFaces(ModelStore& model, int part, int first, int last, bool on) {
  for (FaceRec& face : FaceRange(model, part, first, last)) face.onoff = on ? 1 : 0;
}

void InvertFaces(ModelStore& model, int part, int first, int last) {
  for (FaceRec& face : FaceRange(model, part, first, last)) {
    if (face.onoff == 0) {
      face.onoff = 1;
    } else if (face.onoff == 1) {
      face.onoff = 0;
    }
  }
}

}  // namespace pelorium
