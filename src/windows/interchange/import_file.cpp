// Imports into the current Part.
#include "windows/interchange/import_file.h"

#include "base/files.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/shell/hooks.h"
#include "windows/view/shared_parameters.h"

namespace pelorium {

void ImportFile(App& app, const std::filesystem::path& name,
                const std::function<void(ByteSource& file)>& read) {
  app.model.Part(CurrentPart(app)).PartName = name.string();
  FileSource file(FileNamed(app, name));
  try {
    read(file);
  } catch (const Fault& fault) {
    throw fault.kind() == FaultKind::FileError ? fault : fault.At(" in " + name.filename().string());
  }
  FinishImport(app, name);
}

void FinishImport(App& app, const std::filesystem::path& name) {
  FollowCounts(app);
  SyncFaceCorners(app);
  RefreshViews(app);
  const PartHeader& part = ReadModel(app).Part(CurrentPart(app));
  app.notices.Give(std::to_string(part.maxpoints) + " points, " + std::to_string(part.maxfaces) +
                       " faces from " + name.filename().string(),
                   NoticeKind::Result);
}

std::string ImportedCounts(const App& app) {
  const PartHeader& part = ReadModel(app).Part(CurrentPart(app));
  return "faces " + std::to_string(part.maxfaces) + " points " + std::to_string(part.maxpoints);
}

}  // namespace pelorium
