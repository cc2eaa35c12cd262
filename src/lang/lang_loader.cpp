#include "lang/lang_loader.h"

#include <string_view>

#include "lang/lang_file_parser.h"
#include "log/problem_sink.h"
#include "log/translation_log.h"
#include "platform/file_status.h"
#include "platform/file_streams.h"

namespace kx {
namespace {

/// Writes problems to the log.
class LogSink final : public ProblemSink {
 public:
  LogSink(TranslationLog& log, const std::string& root) : log_(log), root_(root) {}
  void Line(const std::string& text) override { log_.WriteLine(root_, {text}); }

 private:
  TranslationLog& log_;
  const std::string& root_;
};

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
  std::string relative = language;
  if (!country.empty()) relative.append("-").append(country);
  return relative.append("/").append(name.empty() ? "(Common)" : name).append(".lang");
}

bool StaysInDirectory(std::string_view part) {
  for (;;) {
    const std::size_t end = part.find_first_of("/\\");
    if (!KxIsPlainComponent(part.substr(0, end))) return false;
    if (end == std::string_view::npos) return true;
    part.remove_prefix(end + 1);
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

bool LoadLangFile(const LanguageContext& context, const LangFile& file, LanguageContents& contents,
                  LangCandidate& candidate) {
  const std::string relative = LangFileName(file.language, file.country, file.name);
  candidate.path = context.paths.directory + relative;
  if (!IsWithin(context.paths.directory, file, candidate.path)) return false;
  // Asked before the file is opened: of a file that is replaced meanwhile the old time is then kept
  // with the new text, and the next request reads it again.
  KxFileStatus status;
  const bool known = KxStat(candidate.path.c_str(), &status) == 0;
  CKxIfstream stream;
  KxIfstreamOpen(stream, candidate.path.c_str());
  candidate.isUnsettled = stream.MayWorkLater();
  if (stream.fail()) return false;
  if (!known) KxStat(candidate.path.c_str(), &status);
  candidate.status = status;
  LogSink problems(context.log, context.paths.root);
  LangFileParser parser(relative, problems, context.strings);
  ReadLangFile(parser, stream, contents, static_cast<std::size_t>(status.size));
  candidate.isUnsettled = stream.MayWorkLater();
  return true;
}

}  // namespace kx
