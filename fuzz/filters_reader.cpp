// Fuzz target of the keyed text file with the stored filters. Any bytes read as some filters; what was read
// comes back when it is saved.
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "imaging/stored_filters.h"
#include "round_trip.h"

using namespace pelorium;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::filesystem::path file =
      std::filesystem::temp_directory_path() / ("pelorium_filters" + std::to_string(getpid()) + ".txt");
  std::ofstream(file, std::ios::binary) << AsText(data, size);
  cRegistry registry(file);
  const std::vector<StoredFilter> filters = ReadStoredFilters(registry);
  if (filters.empty() || filters.size() > 8) return 0;  // a save for each, which writes the whole file
  for (std::size_t i = 0; i < filters.size(); ++i) {
    SaveStoredFilter(registry, static_cast<int>(i) + 1, filters[i]);
  }
  const std::vector<StoredFilter> again = ReadStoredFilters(registry);
  if (again.size() != filters.size()) std::abort();
  for (std::size_t i = 0; i < filters.size(); ++i) {
    if (again[i].name != filters[i].name || again[i].values != filters[i].values) std::abort();
  }
  return 0;
}
