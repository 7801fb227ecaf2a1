// The keys and the two bytes of each cell: its sign and its magnitude.
#include "imaging/stored_filters.h"

#include <algorithm>
#include <cstdlib>

namespace pelorium {

namespace {

constexpr const char* kSection = "Software\\Quillbyte\\Quillfilter";
constexpr std::int32_t kMostFilters = 10000;  // a broken count must not make a list without end

void Choose(cRegistry& registry, const std::string& section, const std::string& key, RegistryType type) {
  registry.SectionKey = section;
  registry.ValueKey = key;
  registry.ValueType = type;
  registry.Default = {};
}

std::string NumberedKey(int number) { return "Filter" + std::to_string(number); }
std::string NumberedSection(int number) { return std::string(kSection) + "\\" + NumberedKey(number); }

// What is stored, if it is of the type asked for, else the type's own empty value.
template <typename Stored>
Stored ReadAs(cRegistry& registry, const std::string& section, const std::string& key, RegistryType type) {
  Choose(registry, section, key, type);
  const RegistryValue value = registry.Value();
  const auto* stored = std::get_if<Stored>(&value);
  return stored != nullptr ? *stored : Stored();
}

std::int32_t CountOf(cRegistry& registry) {
  const auto count = ReadAs<std::int32_t>(registry, kSection, "CustomFilters", RegistryType::Number);
  return std::clamp(count, 0, kMostFilters);
}

void Store(cRegistry& registry, const std::string& section, const std::string& key, RegistryType type,
           const RegistryValue& value) {
  Choose(registry, section, key, type);
  registry.Value(value);
}

}  // namespace

std::vector<StoredFilter> ReadStoredFilters(cRegistry& registry) {
  std::vector<StoredFilter> filters;
  const std::int32_t count = CountOf(registry);
  for (int number = 1; number <= count; ++number) {
    StoredFilter filter;
    filter.name = ReadAs<std::string>(registry, kSection, NumberedKey(number), RegistryType::Text);
    filter.weight = ReadAs<std::int32_t>(registry, NumberedSection(number), "Weight", RegistryType::Number);
    const auto bytes =
        ReadAs<RegistryBytes>(registry, NumberedSection(number), "Values", RegistryType::Binary);
    for (std::size_t cell = 0; cell < filter.values.size() && 2 * cell + 1 < bytes.size(); ++cell) {
      filter.values[cell] = bytes[2 * cell] != 0 ? -bytes[2 * cell + 1] : bytes[2 * cell + 1];
    }
    filters.push_back(filter);
  }
  return filters;
}

void SaveStoredFilter(cRegistry& registry, int number, const StoredFilter& filter) {
  RegistryBytes bytes;
  for (const int value : filter.values) {
    bytes.push_back(value < 0 ? 1 : 0);
    bytes.push_back(static_cast<std::uint8_t>(std::abs(value)));
  }
  if (number > CountOf(registry)) Store(registry, kSection, "CustomFilters", RegistryType::Number, number);
  Store(registry, kSection, NumberedKey(number), RegistryType::Text, filter.name);
  Store(registry, NumberedSection(number), "Weight", RegistryType::Number, filter.weight);
  Store(registry, NumberedSection(number), "Values", RegistryType::Binary, bytes);
}

}  // namespace pelorium
