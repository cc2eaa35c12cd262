// Files, directories and streams as only this system has them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdint>
#include <filesystem>
#include <string>

#include "platform/directories.h"
#include "platform/entry_list.h"
#include "platform/file_status.h"
#include "platform/stream_bytes.h"
#include "support/long_tree.h"
#include "support/temp_tree.h"

namespace {

using testing::ElementsAre;

constexpr unsigned kAnyAccess = 0777;

class FilesOnWindows : public testing::Test {
 protected:
  bool HasStatus(const std::string& path) { return KxStat(path.c_str(), &status_) == 0; }

  TempTree tree_;
  KxFileStatus status_;
};

TEST_F(FilesOnWindows, BothSeparatorsAreTaken) {
  tree_.Write("directory/file", "bytes");
  const std::string mixed = tree_.SystemPath("directory") + "/file";
  EXPECT_TRUE(HasStatus(tree_.SystemPath("directory\\file")));
  EXPECT_TRUE(HasStatus(mixed));
  EXPECT_EQ("bytes", ReadThroughStream(mixed));
  EXPECT_TRUE(KxIsDirectory((tree_.SystemPath("directory") + "\\").c_str()));
  EXPECT_EQ(0, KxMakeDir((tree_.SystemPath("directory") + "\\log").c_str(), kAnyAccess));
  EntryList list;
  EXPECT_EQ(0, KxTraverseDirectory((tree_.SystemPath("directory") + "\\").c_str(), &list));
  EXPECT_THAT(list.entries, ElementsAre("file", "log/"));
}

TEST_F(FilesOnWindows, DevicesAreNotRead) {
  for (const char* const device : {"NUL", "nul", "CON", "CONIN$", "AUX", "COM1", "\\\\.\\NUL"}) {
    EXPECT_EQ("(not open)", ReadThroughStream(device)) << device;
    EXPECT_EQ("(not open)", ReadThroughStream(tree_.Path(device))) << device;
    EXPECT_EQ("(not open)", ReadThroughStream(tree_.Path(std::string(device) + ".lang"))) << device;
    EXPECT_FALSE(KxIsDirectory(device)) << device;
  }
}

TEST_F(FilesOnWindows, AFileMayBeRenamedAndRemovedWhileItIsRead) {
  tree_.Write("file", "bytes");
  CKxIfstream stream;
  KxIfstreamOpen(stream, tree_.Path("file").c_str());
  std::error_code error;
  std::filesystem::rename(PathFromUtf8(tree_.Path("file")), PathFromUtf8(tree_.Path("renamed")),
                          error);
  EXPECT_FALSE(error) << error.message();
  EXPECT_TRUE(std::filesystem::remove(PathFromUtf8(tree_.Path("renamed")), error));
  std::string text;
  EXPECT_TRUE(stream >> text);
  EXPECT_EQ("bytes", text);
}

TEST_F(FilesOnWindows, AFileThatAnotherKeepsToItselfIsNotOpened) {
  tree_.Write("file", "old");
  constexpr DWORD kShareNothing = 0;
  const HANDLE kept = ::CreateFileW(PathFromUtf8(tree_.SystemPath("file")).c_str(), GENERIC_READ,
                                    kShareNothing, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(INVALID_HANDLE_VALUE, kept);
  EXPECT_EQ("(not open)", ReadThroughStream(tree_.Path("file")));
  EXPECT_FALSE(Append(tree_.Path("file"), "new"));
  EXPECT_TRUE(HasStatus(tree_.Path("file")));
  ::CloseHandle(kept);
  EXPECT_EQ("old", ReadThroughStream(tree_.Path("file")));
}

/// A pipe that one client may open, by either name that the system has for it.
class OfferedPipe {
 public:
  OfferedPipe()
      : handle_(::CreateNamedPipeA(("\\\\.\\" + name_).c_str(), PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE,
                                   1, kBytes, kBytes, 0, nullptr)) {
    EXPECT_NE(INVALID_HANDLE_VALUE, handle_);
  }
  ~OfferedPipe() { ::CloseHandle(handle_); }
  OfferedPipe(const OfferedPipe&) = delete;
  OfferedPipe& operator=(const OfferedPipe&) = delete;

  std::string Path(const std::string& prefix) const { return prefix + name_; }

 private:
  static constexpr DWORD kBytes = 512;
  const std::string name_ = "pipe\\kxxlate-" + std::to_string(::GetCurrentProcessId());
  HANDLE handle_;
};

TEST_F(FilesOnWindows, PipesAreNotOpened) {
  for (const std::string prefix : {"\\\\.\\", "\\\\?\\"}) {
    EXPECT_EQ("(not open)", ReadThroughStream(OfferedPipe().Path(prefix))) << prefix;
    EXPECT_FALSE(Append(OfferedPipe().Path(prefix), "bytes")) << prefix;
  }
}

TEST_F(FilesOnWindows, PathsThatAreNotUtf8NameNothing) {
  tree_.Write("a\xEF\xBF\xBD", "bytes");
  EXPECT_EQ("bytes", ReadThroughStream(tree_.Path("a\xEF\xBF\xBD")));
  EXPECT_EQ("(not open)", ReadThroughStream(tree_.Path("a") + "\xFF"));
  EXPECT_FALSE(HasStatus(tree_.Path("a") + "\xFF"));
  EXPECT_NE(0, KxMakeDir((tree_.Path("b") + "\xFF").c_str(), kAnyAccess));
}

TEST_F(FilesOnWindows, TimesBefore1970AreRoundedDown) {
  tree_.Write("file", "");
  const std::int64_t units = 116'444'736'000'000'000 - 5'000'000;  // half a second before
  FILETIME time;
  time.dwLowDateTime = static_cast<DWORD>(units);
  time.dwHighDateTime = static_cast<DWORD>(units >> 32);
  const HANDLE file = ::CreateFileW(PathFromUtf8(tree_.SystemPath("file")).c_str(),
                                    FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(INVALID_HANDLE_VALUE, file);
  EXPECT_TRUE(::SetFileTime(file, nullptr, nullptr, &time));
  ::CloseHandle(file);
  ASSERT_TRUE(HasStatus(tree_.Path("file")));
  EXPECT_EQ(-1, status_.modified);
}

TEST_F(FilesOnWindows, RootOfTheDriveIsListed) {
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(PathFromUtf8(tree_.Path()));
  const std::string drive = tree_.SystemPath().substr(0, 2);
  EntryList named;
  EXPECT_EQ(0, KxTraverseDirectory((drive + "/").c_str(), &named));
  EXPECT_FALSE(named.entries.empty());
  for (const char* const root : {"/", "\\"}) {
    EntryList list;
    EXPECT_EQ(0, KxTraverseDirectory(root, &list)) << root;
    EXPECT_EQ(named.entries, list.entries) << root;
  }
  std::filesystem::current_path(before);
}

DWORD OpenHandles() {
  DWORD count = 0;
  ::GetProcessHandleCount(::GetCurrentProcess(), &count);
  return count;
}

TEST_F(FilesOnWindows, NothingStaysOpen) {
  tree_.Write("file", "bytes");
  const DWORD before = OpenHandles();
  for (int round = 0; round < 20; ++round) {
    EXPECT_EQ("bytes", ReadThroughStream(tree_.Path("file")));
    EXPECT_EQ("(not open)", ReadThroughStream(tree_.Path("")));
    EXPECT_EQ("(not open)", ReadThroughStream("NUL"));
    EXPECT_TRUE(Append(tree_.Path("written"), "bytes"));
    EXPECT_TRUE(HasStatus(tree_.Path("file")));
    EntryList list;
    EXPECT_EQ(0, KxTraverseDirectory(tree_.Path().c_str(), &list));
    list.most = 1;
    EXPECT_EQ(0, KxTraverseDirectory(tree_.Path().c_str(), &list));
  }
  EXPECT_EQ(before, OpenHandles());
}

TEST_F(FilesOnWindows, PathsMayBeLong) {
  const LongTree deep;
  EXPECT_EQ(0, KxMakeDir(deep.Path("made").c_str(), kAnyAccess));
  EXPECT_NE(0, KxMakeDir(deep.Path("made").c_str(), kAnyAccess));
  EXPECT_TRUE(KxIsDirectory(deep.Path("made").c_str()));
  EXPECT_TRUE(Append(deep.Path("made/file"), "bytes"));
  EXPECT_EQ("bytes", deep.Read("made/file"));
  EXPECT_EQ("bytes", ReadThroughStream(deep.Path("made/file")));
  EXPECT_EQ("bytes", ReadThroughStream(deep.Path("made/../made/./file")));
  EXPECT_TRUE(HasStatus(deep.Path("made/file")));
  EXPECT_FALSE(HasStatus(deep.Path("made/missing")));
  EntryList list;
  EXPECT_EQ(0, KxTraverseDirectory(deep.Path("made").c_str(), &list));
  EXPECT_THAT(list.entries, ElementsAre("file"));
}

// Around the length from which paths need another form
TEST_F(FilesOnWindows, PathsOfEveryLengthAroundTheLimitAreTaken) {
  const std::size_t start = tree_.Path().size();
  for (std::size_t length = 240; length <= 265; ++length) {
    const std::string directory = tree_.Path(std::string(length - start - 1, 'd'));
    EXPECT_EQ(0, KxMakeDir(directory.c_str(), kAnyAccess)) << length;
    EXPECT_TRUE(KxIsDirectory(directory.c_str())) << length;
    const std::string file = tree_.Path(std::string(length - start - 1, 'f'));
    EXPECT_TRUE(Append(file, "bytes")) << length;
    EXPECT_EQ("bytes", ReadThroughStream(file)) << length;
  }
}

}  // namespace
