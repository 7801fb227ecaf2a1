// The scratch files of text imports: what the first pass picked out of a file stays beside the program for a
// look.
#pragma once

#include <string>
#include <string_view>

namespace pelorium {

class App;

// Writes "vectors.txt" and "faces.txt", `ending` behind both names, into the program's working folder, or
// into the system's temporary folder when that one cannot be written. An import never fails for them.
void WriteScratchFiles(const App& app, std::string_view vectors, std::string_view faces,
                       const std::string& ending = "");

}  // namespace pelorium
