// A keyed store in a text file: sections, and in each of them named values with a type. What a user keeps
// from one session to the next lies in it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace pelorium {

enum class RegistryType : int { None = 0, Text = 1, Binary = 3, Number = 4 };

using RegistryBytes = std::vector<std::uint8_t>;
using RegistryValue = std::variant<std::monostate, std::string, RegistryBytes, std::int32_t>;

// Set the keys, then read or write: the place is held from one call to the next. The file is read whole at
// each read and written whole at each write, beside itself and then renamed. A missing file, and lines that
// are broken, read as if they were not there.
class cRegistry {
 public:
  static constexpr std::uint32_t kFailed = 26001;  // number of the fault when the file cannot be written
  static constexpr std::uint32_t kMismatch = 13;   // number of the fault of a value that is not of ValueType

  explicit cRegistry(std::filesystem::path file) : file_(std::move(file)) {}

  int ClassKey = 0;        // the root, only told in faults
  std::string SectionKey;  // "Software\...\Name"
  std::string ValueKey;
  RegistryType ValueType = RegistryType::Text;
  RegistryValue Default;

  // The value at the keys, or Default. ValueType becomes the type found, and stays without one.
  RegistryValue Value();
  void Value(const RegistryValue& value);

  bool KeyExists() const;
  void CreateKey();
  void DeleteKey();  // the section and those below it
  void DeleteValue();
  std::vector<std::string> EnumerateValues() const;
  std::vector<std::string> EnumerateSections() const;  // right below the section

 private:
  using Section = std::map<std::string, RegistryValue>;
  using Sections = std::map<std::string, Section>;

  Sections Read() const;
  void Write(const Sections& sections, const std::string& failure) const;

  std::filesystem::path file_;
};

}  // namespace pelorium
