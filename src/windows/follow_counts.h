// Makes the range controls of all windows agree with a Part's counts.
#pragma once

namespace pelorium {

class App;

// After a load or a change of Part: the face and point ranges open to the current Part's counts, from the
// first on, choices that lie outside go back to the first. Automatic actions are held back meanwhile: they
// would overwrite what was just read.
void FollowCounts(App& app);

// The face half of it: the choices of faces end at the last one, their start stays.
void FollowFaces(App& app);

// The point half: the chosen points end at the last one, a start that lies outside goes back to the first.
void FollowPoints(App& app);

// "Pts/ layer" follows the Part's Sections + 1.
void FollowSections(App& app);
// The same, and the bar opens to the widest ring first.
void FollowSectionsWidely(App& app);

// After a generator: the counts and the sections.
void FollowGenerated(App& app);

}  // namespace pelorium
