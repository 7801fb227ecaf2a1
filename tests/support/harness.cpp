// The shared parts of the tests.
#include "support/harness.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

namespace pelorium {

namespace {

bool RewritesGolden() {
  const char* value = std::getenv("PELORIUM_REWRITE_GOLDEN");
  return value != nullptr && std::string_view(value) == "1";
}

std::string_view LineAt(std::string_view text, std::size_t at) {
  if (at >= text.size()) return "(end of text)";
  const std::size_t before = at == 0 ? std::string_view::npos : text.rfind('\n', at - 1);
  const std::size_t start = before == std::string_view::npos ? 0 : before + 1;
  return text.substr(start, text.find_first_of("\r\n", start) - start);
}

}  // namespace

TemporaryFolder::TemporaryFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "pelorium tëst XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw Fault(FaultKind::FileError, name);
  outer_ = name;
  path_ = outer_ / "größe";
  std::filesystem::create_directory(path_);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(outer_, ignored);
}

void FailingSink::Write(std::string_view bytes) {
  const std::size_t taken = std::min(bytes.size(), room_ - text_.size());
  text_ += bytes.substr(0, taken);
  if (taken < bytes.size()) throw Fault(FaultKind::FileError, "the sink is full");
}

std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path << " cannot be read";
  return {std::istreambuf_iterator<char>(file), {}};
}

void WriteBytes(const std::filesystem::path& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  EXPECT_TRUE(file.flush()) << path << " cannot be written";
}

::testing::AssertionResult MatchesGolden(std::string_view actual, const std::string& name) {
  const std::filesystem::path golden = std::filesystem::path(PELORIUM_TESTS_DIR) / name;
  if (RewritesGolden()) {
    std::filesystem::create_directories(golden.parent_path());
    WriteBytes(golden, actual);
    return ::testing::AssertionSuccess();
  }
  const std::string expected = std::filesystem::exists(golden) ? BytesOf(golden) : "";
  if (actual == expected) return ::testing::AssertionSuccess();
  const std::filesystem::path out = golden.string() + ".out";
  if (std::filesystem::exists(golden.parent_path())) WriteBytes(out, actual);
  const auto differs = std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end());
  const auto at = static_cast<std::size_t>(differs.first - actual.begin());
  return ::testing::AssertionFailure()
         << name << " differs at byte " << at << ", line "
         << 1 + std::count(actual.begin(), differs.first, '\n') << "\n  expected: " << LineAt(expected, at)
         << "\n  actual:   " << LineAt(actual, at) << "\n  all of it in " << out;
}

std::string Digest(const std::string& text, const std::vector<std::pair<int, int>>& shown) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  const int count = static_cast<int>(lines.size());
  const auto held = [count](int number) { return number < 0 ? count + 1 + number : number; };
  std::ostringstream digest;
  for (const auto& [first, last] : shown) {
    for (int i = held(first); i <= held(last); ++i)
      digest << lines.at(static_cast<std::size_t>(i - 1)) << '\n';
    digest << "...\n";
  }
  std::uint64_t hash = 14695981039346656037U;  // FNV-1a
  for (const char byte : text) hash = (hash ^ static_cast<unsigned char>(byte)) * 1099511628211U;
  digest << count << " lines, " << text.size() << " bytes, " << std::hex << hash << "\n";
  return digest.str();
}

}  // namespace pelorium
