// Scratch files.
#include "interchange/scratch_file.h"

#include <unistd.h>

#include <system_error>

#include "base/fault.h"

namespace pelorium {

namespace {

void PutThrough(const std::filesystem::path& file, const std::string& text) {
  WriteFile(file, [&text](TextWriter& out) { out.Text(text); });
  if (ReadFile(file) != text) throw Fault(FaultKind::FileError, file.string() + ": not as it was written");
}

class RemovedAtTheEnd {
 public:
  explicit RemovedAtTheEnd(const std::filesystem::path& file) : file_(file) {}
  RemovedAtTheEnd(const RemovedAtTheEnd&) = delete;
  RemovedAtTheEnd& operator=(const RemovedAtTheEnd&) = delete;
  ~RemovedAtTheEnd() {
    std::error_code ignored;
    std::filesystem::remove(file_, ignored);
  }

 private:
  const std::filesystem::path& file_;
};

}  // namespace

ScratchPlaces ScratchPlacesFor(const std::filesystem::path& programFolder, std::string_view name) {
  std::error_code ignored;
  const std::filesystem::path temporary = std::filesystem::temp_directory_path(ignored);
  const std::filesystem::path own = Under(programFolder, name);
  if (temporary.empty()) return {own, {}};
  const std::string fileName = "pelorium-" + std::to_string(getpid()) + "-" + own.filename().string();
  return {own, temporary / fileName};
}

std::string ThroughScratchFile(const ScratchPlaces& places, const FileWriter& write) {
  StringSink sink;
  TextWriter writer(sink);
  write(writer);
  writer.Flush();
  try {
    PutThrough(places.own, sink.text());
  } catch (const Fault&) {
    if (places.temporary.empty()) throw;
    const RemovedAtTheEnd removed(places.temporary);
    PutThrough(places.temporary, sink.text());
  }
  return sink.text();
}

}  // namespace pelorium
