// The file: "[section]" lines, and lines name=type:value below them. Of a name or a text the characters that
// would end it are written as %XX.
#include "imaging/registry.h"

#include <charconv>
#include <optional>

#include "base/files.h"
#include "imaging/numbered_fault.h"

namespace pelorium {

namespace {

constexpr char kDigits[] = "0123456789abcdef";

std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 32 || c == '%' || c == '=' || c == ']') {
      escaped += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
    } else {
      escaped += c;
    }
  }
  return escaped;
}

std::optional<std::uint8_t> HexByte(std::string_view text) {
  std::uint8_t byte = 0;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + std::min<std::size_t>(text.size(), 2), byte, 16);
  if (error != std::errc() || end != text.data() + 2) return std::nullopt;
  return byte;
}

std::string Unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = text[i] == '%' ? HexByte(text.substr(i + 1)) : std::nullopt;
    plain += byte ? static_cast<char>(*byte) : text[i];
    if (byte) i += 2;
  }
  return plain;
}

std::string TextOf(const RegistryValue& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return "sz:" + Escaped(*text);
  if (const auto* number = std::get_if<std::int32_t>(&value)) return "dword:" + std::to_string(*number);
  std::string hex = "hex:";
  if (const auto* bytes = std::get_if<RegistryBytes>(&value)) {
    for (const std::uint8_t byte : *bytes) hex += {kDigits[byte >> 4], kDigits[byte & 15]};
  }
  return hex;
}

RegistryValue BytesFrom(std::string_view hex) {
  RegistryBytes bytes;
  for (; !hex.empty(); hex.remove_prefix(2)) {
    const auto byte = HexByte(hex);
    if (!byte) return {};
    bytes.push_back(*byte);
  }
  return bytes;
}

RegistryValue NumberFrom(std::string_view text) {
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return {};
  return number;
}

// Nothing for a line that is broken.
RegistryValue ValueFrom(std::string_view text) {
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos) return {};
  const std::string_view type = text.substr(0, colon), rest = text.substr(colon + 1);
  if (type == "sz") return Unescaped(rest);
  if (type == "hex") return BytesFrom(rest);
  return type == "dword" ? NumberFrom(rest) : RegistryValue();
}

RegistryType TypeOf(const RegistryValue& value) {
  constexpr RegistryType kTypes[] = {RegistryType::None, RegistryType::Text, RegistryType::Binary,
                                     RegistryType::Number};
  return kTypes[value.index()];
}

// The words of a value in a message.
std::string Told(const RegistryValue& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  if (const auto* number = std::get_if<std::int32_t>(&value)) return std::to_string(*number);
  return {};
}

}  // namespace

cRegistry::Sections cRegistry::Read() const {
  Sections sections;
  std::string text;
  try {
    text = ReadFile(file_);
  } catch (const Fault&) {
    return sections;
  }
  Section* section = nullptr;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find_first_of("\r\n", at), text.size());
    const std::string_view line = std::string_view(text).substr(at, end - at);
    at = end + 1;
    if (line.starts_with('[') && line.ends_with(']')) {
      section = &sections[Unescaped(line.substr(1, line.size() - 2))];
    }
    const std::size_t equals = line.find('=');
    if (section == nullptr || equals == std::string_view::npos) continue;
    const RegistryValue value = ValueFrom(line.substr(equals + 1));
    if (value.index() != 0) (*section)[Unescaped(line.substr(0, equals))] = value;
  }
  return sections;
}

void cRegistry::Write(const Sections& sections, const std::string& failure) const {
  try {
    std::error_code ignored;  // what is in the way shows when the file is written
    if (file_.has_parent_path()) std::filesystem::create_directories(file_.parent_path(), ignored);
    ReplaceFile(file_, [&](TextWriter& out) {
      for (const auto& [name, values] : sections) {
        out.Line("[" + Escaped(name) + "]");
        for (const auto& [key, value] : values) out.Line(Escaped(key) + "=" + TextOf(value));
      }
    });
  } catch (const Fault&) {
    throw NumberedFault(FaultKind::FileError, kFailed, ".cRegistry",
                        failure + std::to_string(ClassKey) + "',Section: '" + SectionKey);
  }
}

RegistryValue cRegistry::Value() {
  const Sections sections = Read();
  const auto section = sections.find(SectionKey);
  if (section == sections.end()) return Default;
  const auto value = section->second.find(ValueKey);
  if (value == section->second.end()) return Default;
  ValueType = TypeOf(value->second);
  return value->second;
}

void cRegistry::Value(const RegistryValue& value) {
  if (ValueType == RegistryType::None || TypeOf(value) != ValueType) {
    throw NumberedFault(FaultKind::InvalidValue, kMismatch, ".cRegistry", "Type mismatch");
  }
  Sections sections = Read();
  sections[SectionKey][ValueKey] = value;
  try {
    Write(sections, "Failed to set registry value Key: '");
  } catch (const NumberedFault& fault) {
    throw NumberedFault(fault.kind(), kFailed, ".cRegistry",
                        fault.text() + "',Key: '" + ValueKey + "' to value: '" + Told(value) + "'");
  }
}

bool cRegistry::KeyExists() const { return Read().count(SectionKey) != 0; }

void cRegistry::CreateKey() {
  Sections sections = Read();
  if (sections.try_emplace(SectionKey).second) Write(sections, "Failed to create registry Key: '");
}

void cRegistry::DeleteKey() {
  Sections sections = Read();
  const std::size_t erased = std::erase_if(sections, [this](const auto& section) {
    return section.first == SectionKey || section.first.starts_with(SectionKey + "\\");
  });
  if (erased != 0) Write(sections, "Failed to delete registry Key: '");
}

void cRegistry::DeleteValue() {
  Sections sections = Read();
  const auto section = sections.find(SectionKey);
  if (section == sections.end() || section->second.erase(ValueKey) == 0) return;
  try {
    Write(sections, "Failed to open key '");
  } catch (const NumberedFault& fault) {
    throw NumberedFault(fault.kind(), kFailed, ".cRegistry", fault.text() + "' for delete access");
  }
}

std::vector<std::string> cRegistry::EnumerateValues() const {
  std::vector<std::string> names;
  const Sections sections = Read();
  const auto section = sections.find(SectionKey);
  if (section == sections.end()) return names;
  for (const auto& [name, value] : section->second) names.push_back(name);
  return names;
}

std::vector<std::string> cRegistry::EnumerateSections() const {
  std::vector<std::string> names;
  const std::string start = SectionKey + "\\";
  for (const auto& [name, values] : Read()) {
    if (!name.starts_with(start)) continue;
    const std::string below = name.substr(start.size(), name.find('\\', start.size()) - start.size());
    if (names.empty() || names.back() != below) names.push_back(below);
  }
  return names;
}

}  // namespace pelorium
