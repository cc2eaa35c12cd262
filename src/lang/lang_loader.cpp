#include "lang/lang_loader.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "lang/lang_file_parser.h"
#include "log/translation_log.h"
#include "platform/file_status.h"
#include "platform/file_streams.h"

namespace kx {
namespace {

constexpr std::string_view kCommon = "(Common)";
constexpr std::string_view kExtension = ".lang";
constexpr std::size_t kMostOfTheRest = 2 + kCommon.size() + kExtension.size();

void AppendLangFileName(std::string& path, const LangFile& file) {
  path += file.language;
  if (!file.country.empty()) path.append("-").append(file.country);
  path += '/';
  path += file.name.empty() ? kCommon : std::string_view(file.name);
  path += kExtension;
}

std::string LangFilePath(const LanguageContext& context, const LangFile& file) {
  std::string path;
  path.reserve(context.paths.directory.size() + file.language.size() + file.country.size() +
               file.name.size() + kMostOfTheRest);
  path = context.paths.directory;
  AppendLangFileName(path, file);
  return path;
}

/// Whether the candidate may be looked for: its language, region and name may come from a
/// stranger's request.
bool IsWithin(const std::string& directory, const LangFile& file, const std::string& path) {
  if (!StaysInDirectory(file.language) || !StaysInDirectory(file.country)) return false;
  if (!StaysInDirectory(file.name)) return false;
  // When no directory was found it is nothing but the separator behind it, and a language may be
  // empty or begin with another one.
  const std::string_view withoutSeparator(directory.data(), directory.size() - 1);
  return !KxLeavesTheMachine(withoutSeparator, path);
}

}  // namespace

std::string LangFileName(const std::string& language, const std::string& country,
                         const std::string& name) {
  std::string relative;
  AppendLangFileName(relative, {language, country, name});
  return relative;
}

bool StaysInDirectory(std::string_view part) {
  const auto isSeparator = [](char c) { return c == '/' || c == '\\'; };
  for (;;) {
    const auto* const end = std::find_if(part.begin(), part.end(), isSeparator);
    const auto size = static_cast<std::size_t>(end - part.begin());
    if (!KxIsPlainComponent(part.substr(0, size))) return false;
    if (end == part.end()) return true;
    part.remove_prefix(size + 1);
  }
}

bool LangCandidate::IsStale() const {
  if (path.empty() || status.modified == 0) return false;
  KxFileStatus now;
  if (KxStat(path.c_str(), &now) != 0) return true;
  // The size as well: a file may be rewritten within the finest unit of time that the system gives,
  // and one that is still being written grows.
  return now.modified != status.modified || now.modifiedNanoseconds != status.modifiedNanoseconds ||
         now.size != status.size;
}

LangSource::LangSource(const LanguageContext& context, const LangFile& file)
    : directorySize_(context.paths.directory.size()) {
  candidate_.path = LangFilePath(context, file);
  isWithin_ = kx::IsWithin(context.paths.directory, file, candidate_.path);
  if (!isWithin_) return;
  const OpenedFile opened = OpenRegularFile(candidate_.path.c_str(), &seen_);
  file_ = opened.file;
  candidate_.isUnsettled = opened.mayOpenLater;
}

LangSource::~LangSource() {
  if (IsOpen()) CloseFile(file_);
}

void LangSource::Read(InternTable& strings, ProblemSink& problems, LanguageContents& contents) {
  // From before it was opened: of a file that is replaced meanwhile the old time is then kept with
  // the new text, and the next request reads it again.
  candidate_.status = seen_;
  CKxIfstream stream(std::exchange(file_, kNoFile));
  const std::string relative = candidate_.path.substr(directorySize_);
  LangFileParser parser(relative, problems, strings);
  ReadLangFile(parser, stream, contents, static_cast<std::size_t>(seen_.size));
  candidate_.isUnsettled = stream.MayWorkLater();
}

void LogSink::Line(const std::string& text) { log_.WriteLine(root_, {text}); }

bool LoadLangFile(const LanguageContext& context, const LangFile& file, LanguageContents& contents,
                  LangCandidate& candidate) {
  LangSource source(context, file);
  const bool isThere = source.IsOpen();
  if (isThere) {
    LogSink problems(context);
    source.Read(context.strings, problems, contents);
    candidate.status = source.Candidate().status;
  }
  candidate.isUnsettled = source.Candidate().isUnsettled;
  candidate.path = source.TakeCandidate().path;
  return isThere;
}

}  // namespace kx
