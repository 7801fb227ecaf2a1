// Text out, whole files, and what a failed save leaves.
#include "base/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>

#include "support/harness.h"

namespace pelorium {
namespace {

using FilesTest = FolderTest;

void WriteSample(TextWriter& writer) {
  writer.Text("v ").Rounded(2.675, 2).Text(" ").General(-0.5).EndLine();
  writer.Print(1).Integer(-7).EndLine();
}
constexpr std::string_view kSample = "v 2.68 -0.5\r\n 1 -7\r\n";

std::vector<std::string> NamesIn(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.push_back(entry.path().filename().string());
  }
  return names;
}

TEST(TextWriter, FailsAtEachByteThatTheSinkDoesNotTake) {
  for (std::size_t room = 0; room < kSample.size(); ++room) {
    FailingSink sink(room);
    EXPECT_TRUE(Raises(FaultKind::FileError, [&] {
      TextWriter writer(sink);
      WriteSample(writer);
      writer.Flush();
    })) << room;
    EXPECT_EQ(sink.text(), kSample.substr(0, room));
  }
  FailingSink justEnough(kSample.size());
  TextWriter writer(justEnough);
  WriteSample(writer);
  EXPECT_EQ(justEnough.text(), "");
  writer.Flush();
  EXPECT_EQ(justEnough.text(), kSample);
}

TEST(TextWriter, LongTextsArriveWhole) {
  StringSink sink;
  {
    TextWriter writer(sink);
    for (int i = 0; i < 100000; ++i) writer.Line("0123456789");
    writer.Text("unfinished");  // never flushed
  }
  EXPECT_EQ(sink.text().size() % 12, 0U);
  EXPECT_GT(sink.text().size(), 1100000U);
}

TEST_F(FilesTest, WriteReplaceAndRead) {
  const auto path = folder() / "a b\xFF.txt";  // any bytes, not only UTF-8
  WriteFile(path, WriteSample);
  EXPECT_EQ(ReadFile(path), kSample);
  ReplaceFile(path, [](TextWriter& writer) { writer.Line("new"); });
  EXPECT_EQ(BytesOf(path), "new\r\n");
  WriteBytes(path, std::string(1 << 16, 'x'));  // a multiple of the read buffer
  EXPECT_EQ(ReadFile(path).size(), std::size_t{1} << 16);
  WriteBytes(path, std::string(200000, 'x'));
  EXPECT_EQ(ReadFile(path, 70000).size(), 70000U);  // in the second piece
  EXPECT_EQ(NamesIn(folder()), std::vector<std::string>{"a b\xFF.txt"});
}

TEST_F(FilesTest, FaultsOfTheFileSystem) {
  EXPECT_TRUE(Raises(FaultKind::FileError, [&] { ReadFile(folder() / "missing"); }));
  EXPECT_TRUE(Raises(FaultKind::FileError, [&] { ReadFile(folder()); }));
  EXPECT_TRUE(Raises(FaultKind::FileError, [] { WriteFile("/dev/full", WriteSample); }));
  EXPECT_TRUE(Raises(FaultKind::FileError, [&] { WriteFile(folder() / "no" / "folder", WriteSample); }));
}

TEST_F(FilesTest, WhatWasWrittenInPlaceBeforeAFaultStays) {
  const auto path = folder() / "half.dxf";
  EXPECT_TRUE(Raises(FaultKind::BadNumber, [&] {
    WriteFile(path, [](TextWriter& writer) { writer.Text("so far").General(0.0 / 0.0); });
  }));
  EXPECT_EQ(BytesOf(path), "so far");
}

TEST_F(FilesTest, AFailedReplaceKeepsTheOldFileAndLeavesNothingBeside) {
  const auto path = folder() / "model.prj";
  WriteBytes(path, "old");
  EXPECT_TRUE(Raises(FaultKind::BadNumber, [&] {
    ReplaceFile(path, [](TextWriter& writer) {
      for (int i = 0; i < 100000; ++i) writer.Line("half of the file is out already");
      writer.General(0.0 / 0.0);
    });
  }));
  EXPECT_EQ(BytesOf(path), "old");
  // A folder that is a file takes no new file, whoever asks; a folder is no file to replace.
  EXPECT_TRUE(Raises(FaultKind::FileError, [&] { ReplaceFile(path / "inside.prj", WriteSample); }));
  const auto inner = folder() / "inner";
  std::filesystem::create_directory(inner);
  EXPECT_TRUE(Raises(FaultKind::FileError, [&] { ReplaceFile(inner, WriteSample); }));
  EXPECT_EQ(NamesIn(folder()).size(), 2U);
  EXPECT_TRUE(NamesIn(inner).empty());
}

TEST_F(FilesTest, ReplaceKeepsLinksModesAndSpecialFiles) {
  const auto path = folder() / "model.prj", link = folder() / "link.prj", pipe = folder() / "pipe";
  WriteBytes(path, "old");
  std::filesystem::permissions(path,
                               std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  std::filesystem::create_symlink(path, link);
  ReplaceFile(link, WriteSample);
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(BytesOf(path), kSample);
  EXPECT_EQ(std::filesystem::status(path).permissions(),
            std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);

  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const int reader = open(pipe.c_str(), O_RDWR | O_NONBLOCK);
  ReplaceFile(pipe, WriteSample);
  EXPECT_TRUE(std::filesystem::is_fifo(pipe));
  std::array<char, 64> bytes;
  const auto got = read(reader, bytes.data(), bytes.size());
  close(reader);
  ASSERT_EQ(got, static_cast<ssize_t>(kSample.size()));
  EXPECT_EQ(std::string_view(bytes.data(), kSample.size()), kSample);
}

TEST(Files, Under) {
  EXPECT_EQ(Under("/home", "\\parts1\\temp.obj"), "/home/parts1/temp.obj");
  EXPECT_EQ(Under("/home", "/faces.txt"), "/home/faces.txt");
  EXPECT_EQ(Under("/home/", "objs"), "/home/objs");
  EXPECT_EQ(Under("rel", "\\/x y"), "rel/x y");
}

}  // namespace
}  // namespace pelorium
