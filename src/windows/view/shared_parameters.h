// The parameters that all windows share, read where they are kept: in controls of the view, of the View
// Options and of Precise Edit. No other place spells those controls to mean them. Those of other rooms stand
// in shell/readers.h.
#pragma once

#include "core/axes.h"
#include "core/chosen_points.h"
#include "core/model_store.h"
#include "profiles/draw_point.h"
#include "views/view_settings.h"

namespace pelorium {

class App;

int CurrentPart(const App& app);
int CurrentProfile(const App& app);
int PointRangeStart(const App& app);
int PointRangeEnd(const App& app);
int FaceRangeStart(const App& app);
int FaceRangeEnd(const App& app);
// The pivot of all turns and scales. A text that is no number counts as 0.
Vec3 Origin(const App& app);
void SetOrigin(App& app, const Vec3& origin);
// The marked points of the point range of the current Part.
ChosenPoints Chosen(const App& app);
// Points of one ring of the Part ("Pts/ layer"), and the layers of Precise Edit.
int PointsPerLayer(const App& app);
// Units of a step ("Move amnt").
double MoveAmount(const App& app);
// A single point that is moved takes its mirror image along, mirrored along the axis.
bool MirrorsMoves(const App& app);
Axis FlipAxis(const App& app);

// The wire view that is chosen; None while the shaded one is.
ViewMode ChosenView(const App& app);
bool IsShadedChosen(const App& app);
bool IsProfileViewChosen(const App& app);
// From the profile view to the view of the Parts, which a generator's result shows in.
void LeaveProfileView(App& app);

// Units added to every position in the view.
struct ViewPans {
  double x = 0, y = 0;
};
ViewPans ViewPan(const App& app);
// Units from the first to the second and third picture of the tri view.
double TriSeparation(const App& app);
// Model units a pixel of the view.
double UnitsPerPixel(const App& app);

// What a drag in the view does.
enum class Tool { None, Move, Rotate, Scale, PickPoints, MoveOrigin, MovePoint };
Tool ArmedTool(const App& app);

// The directions that drags may move in.
MovedAxes EnabledMoves(const App& app);
// The plane that profile points are drawn in; the view that leans draws in that of the front.
ProfilePlane PlaneOf(Projection projection);
// Positions in faces follow their points ("Check6" off).
bool CornersFollow(const App& app);

}  // namespace pelorium
