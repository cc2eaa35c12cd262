#include "log/translation_log.h"

#include <algorithm>
#include <memory>
#include <ostream>

#include "log/standard_ostream.h"
#include "platform/directories.h"
#include "platform/file_status.h"
#include "platform/file_streams.h"

namespace kx {
namespace {

constexpr unsigned kEveryPermission = 0777;

/// Empty when no file may be opened there.
std::string LogFilePath(const std::string& root) {
  const std::string directory = root.empty() ? "." : root;
  std::string path = directory;
  if (path.back() == '\\' || path.back() == '/') path.pop_back();
  path += "/log";
  if (!KxIsDirectory(path.c_str()) && KxMakeDir(path.c_str(), kEveryPermission) != 0) {
    path = directory;
  }
  path += "/translate.log";
  return KxLeavesTheMachine(directory, path) ? std::string() : path;
}

bool EndsLines(char c) { return c == '\n' || c == '\r'; }

void AppendOnOneLine(std::string& line, std::string_view piece) {
  while (!piece.empty()) {
    const auto* const end = std::find_if(piece.begin(), piece.end(), EndsLines);
    line.append(piece.begin(), end);
    if (end == piece.end()) return;
    line += *end == '\n' ? "\\n" : "\\r";
    piece.remove_prefix(static_cast<std::size_t>(end - piece.begin()) + 1);
  }
}

}  // namespace

void TranslationLog::WriteLine(const std::string& root,
                               std::initializer_list<std::string_view> pieces) {
  if (choice_.place == LogChoice::Place::kNowhere) return;
  std::string line;
  for (const std::string_view piece : pieces) AppendOnOneLine(line, piece);
  line += '\n';

  const CriticalSectionGuard guard(lock_);
  std::ostream& stream = OpenTranslationLog(root);
  // A full disk loses the lines that met it, not all that follow.
  stream.clear();
  stream.write(line.data(), static_cast<std::streamsize>(line.size())).flush();
}

std::ostream& TranslationLog::OpenTranslationLog(const std::string& root) {
  if (stream_ != nullptr) return *stream_;
  if (choice_.place != LogChoice::Place::kStandardErrors) return OpenLogFile(root);
  stream_ = new StandardOstream(StandardStream::kErrors);
  return *stream_;
}

std::ostream& TranslationLog::OpenLogFile(const std::string& root) {
  if (path_.empty()) path_ = PathOfFile(root);
  auto file = std::make_unique<CKxOfstream>();
  KxOfstreamOpen(*file, path_.c_str());
  // Somebody looks at the log with a program that keeps it to itself, or the like.
  if (file->fail() && file->MayWorkLater()) return StandardOutput();
  stream_ = file->fail() ? &StandardOutput() : file.release();
  return *stream_;
}

std::string TranslationLog::PathOfFile(const std::string& root) const {
  if (choice_.place == LogChoice::Place::kFile) return choice_.path;
  const bool mayOpen = trustsWorkingDirectory_ || root.starts_with('/');
  return mayOpen ? LogFilePath(root) : std::string();
}

std::ostream& TranslationLog::StandardOutput() {
  if (standardOutput_ == nullptr) standardOutput_ = new StandardOstream(StandardStream::kOutput);
  return *standardOutput_;
}

}  // namespace kx
