// What the buttons of texture coordinates do, whichever window they stand in. Faults go on to the caller's
// trap.
#pragma once

#include <filesystem>
#include <functional>

#include "base/line_reader.h"
#include "interchange/uv_lines.h"
#include "windows/shell/file_names.h"

namespace pelorium {

class App;

// A kind of file with UVs: how its lines are picked out, how they fill the mapping of a Part and how they
// become a model, and what the scratch files of its import are called behind "vectors" and "faces".
struct UvFormat {
  UvLines (*split)(ByteSource& file);
  void (*readUvs)(ModelStore& model, int part, const UvLines& lines);
  void (*readModel)(ModelStore& model, int part, const UvLines& lines, double scale);
  const char* scratchEnding;
};
extern const UvFormat kUvsFormat;     // of the UV mapper
extern const UvFormat kObjFormat;     // OBJ with two numbers a "vt" line
extern const UvFormat kObjFormatOf3;  // with three

// The mapping of the current Part from a file.
void ImportUvs(App& app, const std::filesystem::path& name, const UvFormat& format);

// The map becomes the current Part; windows and views follow. Its name stays.
void ImportUvsAsModel(App& app, const std::filesystem::path& name, const UvFormat& format, double scale);

// The mapping of the current Part, and its top view as one, into a file of the UV mapper.
void ExportUvs(App& app, const std::filesystem::path& name, OldFile old);
void ExportTopViewAsUvs(App& app, const std::filesystem::path& name, OldFile old);

}  // namespace pelorium
