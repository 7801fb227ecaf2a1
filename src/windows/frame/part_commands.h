// What the menu's commands do to whole Parts: copying, erasing, combining, switching on and off, rebuilding.
// All work on the current Part and ask nothing. Whoever runs them holds the trap and draws the views
// (command_table.h).
#pragma once

namespace pelorium {

class App;

void CopyToBuffer(App& app);
void PasteBuffer(App& app);
void PasteBufferInto(App& app);

void CombineAll(App& app);
void CombineAllAndErase(App& app);

void EraseAll(App& app);
void EraseCurrentPart(App& app);
// The temporary points and the copy buffer are among the others.
void EraseOtherParts(App& app);
void EraseAllFaces(App& app);
void DeleteTurnedOff(App& app);

void SwitchAllPointsOn(App& app);
void SwitchAllPointsOff(App& app);
void InvertChosenPoints(App& app);
void SwitchAllFacesOn(App& app);
void SwitchAllFacesOff(App& app);
void InvertFaceRange(App& app);
void SwitchFaceRangeOn(App& app);
void SwitchFaceRangeOff(App& app);

void CenterPart(App& app);
void Subdivide(App& app);
void Disjoin(App& app);

}  // namespace pelorium
