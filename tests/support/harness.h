// What tests share: a folder of their own, a sink that fails, and the comparison with a file of expected
// text.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/fault.h"
#include "base/text_writer.h"

namespace pelorium {

// A folder that is removed with all it holds, and with what was written right beside it. Its name has blanks
// and letters beyond ASCII, as folders of real people have.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path outer_, path_;
};

class FolderTest : public ::testing::Test {
 protected:
  const std::filesystem::path& folder() const { return folder_.path(); }

 private:
  TemporaryFolder folder_;
};

// Takes `room` bytes, then raises FileError.
class FailingSink : public ByteSink {
 public:
  explicit FailingSink(std::size_t room) : room_(room) {}
  void Write(std::string_view bytes) override;
  const std::string& text() const { return text_; }

 private:
  std::size_t room_;
  std::string text_;
};

// All bytes of a file, straight from the disk; a file that is not there fails the test.
std::string BytesOf(const std::filesystem::path& path);
void WriteBytes(const std::filesystem::path& path, std::string_view bytes);

// Compares with the file `name` under tests/, as "interchange/golden/cube.obj". A miss names the first line
// that differs and leaves the actual text beside the file as <name>.out. With PELORIUM_REWRITE_GOLDEN=1 in
// the environment the file is rewritten instead: look at the difference before you keep it.
::testing::AssertionResult MatchesGolden(std::string_view actual, const std::string& name);

// Of a text too long for a golden: the lines first..last that are asked for, counted from 1 or from -1 at the
// end, and a number that any change of the text changes.
std::string Digest(const std::string& text, const std::vector<std::pair<int, int>>& shown = {});

// Passes when `body` raises a Fault of that kind.
template <typename Body>
::testing::AssertionResult Raises(FaultKind kind, Body&& body) {
  try {
    body();
  } catch (const Fault& fault) {
    if (fault.kind() == kind) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "raised another fault: " << fault.what();
  }
  return ::testing::AssertionFailure() << "no fault where " << FaultKindName(kind) << " was expected";
}

}  // namespace pelorium
