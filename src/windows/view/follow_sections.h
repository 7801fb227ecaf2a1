// "Pts/ layer" follows the Part's rings.
#pragma once

namespace pelorium {

class App;

// "Pts/ layer" follows the Part's Sections + 1.
void FollowSections(App& app);
// The same, and the bar opens to the widest ring first.
void FollowSectionsWidely(App& app);

// After a generator: the counts and the sections.
void FollowGenerated(App& app);

}  // namespace pelorium
