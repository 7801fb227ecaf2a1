// What happens to all windows at once. Each window overrides the hooks that concern it (tool_window.h); a
// table in the source says which windows come first, the rest follow in the program's order.
#pragma once

#include "windows/shell/tool_window.h"

namespace pelorium {

class App;

// The limits of the start.
void LoadWindows(App& app);

// The current Part or profile is another one.
void TellPartChosen(App& app);
void TellProfileChosen(App& app);

// After a load, an import or a change of Part: the face and point ranges open to the current Part's counts,
// from the first on, choices that lie outside go back to the first, and the counts show. Automatic actions
// are held back meanwhile: they would overwrite what was just read.
void FollowCounts(App& app);
// The face half of it: the choices of faces end at the last one, their start stays.
void FollowFaces(App& app);
// The point half: the chosen points end at the last one, a start that lies outside goes back to the first.
void FollowPoints(App& app);

// A step of undo or redo: limits from the counts, then all that shows records.
void TellCountsRestored(App& app);
void TellRecordsRestored(App& app);

// "Faces Start" or "Faces End" of the View Options moved.
void TellFaceRangeChosen(App& app);
// A view was chosen, or what the views show.
void TellViewOptionChosen(App& app);
// A layer of the current profile shows as the chosen one; chosen by the mouse, its elevation is taken too.
void TellLayerShown(App& app, int layer);
void TellLayerChosen(App& app, int layer);

// The two calls that end every operation. Redraws the picture of the model from the tables and the controls:
// what is seen at once, the pixels when the event ends or when someone looks. May be called at any time.
void RefreshViews(App& app);
// The pixels now, from what the tables and controls hold: for a handler that changes, after its last
// RefreshViews, what the picture is to show as it was.
void DrawNow(App& app);
// Copies the points' positions into the faces of the current Part, unless Check6 of the View Options holds
// them back, and shows the counts. Points moved without this leave the wire as it was.
void SyncFaceCorners(App& app);

}  // namespace pelorium
