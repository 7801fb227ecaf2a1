// What kind of file it is, told by its ending and, where that is not enough, by what it holds.
#pragma once

#include <filesystem>

#include "base/line_reader.h"

namespace pelorium {

enum class FileKind {
  Unknown,
  Project,
  PlainObj,      // corners are bare numbers
  SlashObj,      // corners carry numbers of texture coordinates or normals
  DxfTriangles,  // every face has its third corner twice
  DxfQuads,
  DxfMesh,
  Uvs,
  TextureFile,
  Tuv,
  TextPart,
  Profiles,
  Picture,
};

// A file that cannot be read raises FileError; one that is no file of ours is Unknown.
FileKind KindOfFile(const std::filesystem::path& path);

// By what they hold. An OBJ without faces is plain, a DXF without faces has triangles.
FileKind KindOfObj(ByteSource& file);
FileKind KindOfDxf(ByteSource& file);
FileKind KindOfText(ByteSource& file);

}  // namespace pelorium
