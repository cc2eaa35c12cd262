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

/// Whether the path has become that of another machine, though the directory, without the separator
/// behind it, is on this one. When no directory was found it is nothing, and a language may be
/// empty or begin with a separator.
bool LeavesTheMachine(const std::string& directory, const std::string& path) {
  const std::string place = directory.substr(0, directory.size() - 1);
  return KxIsNetworkPath(path.c_str()) && !KxIsNetworkPath(place.c_str());
}

}  // namespace

std::string LangFileName(const std::string& language, const std::string& country,
                         const std::string& name) {
  std::string relative = language;
  if (!country.empty()) relative.append("-").append(country);
  return relative.append("/").append(name.empty() ? "(Common)" : name).append(".lang");
}

bool StaysInDirectory(const std::string& relative) {
  std::string_view rest = relative;
  int depth = 0;
  while (!rest.empty()) {
    const std::size_t end = rest.find_first_of("/\\");
    const std::string_view part = rest.substr(0, end);
    if (part == "..") {
      if (--depth < 0) return false;
    } else if (!part.empty() && part != ".") {
      ++depth;
    }
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  return true;
}

bool LoadLangFile(const LanguageContext& context, const std::string& relative,
                  LanguageContents& contents, LangCandidate& candidate) {
  candidate.path = context.paths.directory + relative;
  // Language, region and name may come from a stranger's request.
  if (!StaysInDirectory(relative) || LeavesTheMachine(context.paths.directory, candidate.path))
    return false;
  // Asked before the file is opened: of a file that is replaced meanwhile the old time is then kept
  // with the new text, and the next request reads it again.
  KxFileStatus status;
  const bool known = KxStat(candidate.path.c_str(), &status) == 0;
  CKxIfstream stream;
  KxIfstreamOpen(stream, candidate.path.c_str());
  if (stream.fail()) return false;
  if (!known) KxStat(candidate.path.c_str(), &status);
  candidate.modified = status.modified;
  LogSink problems(context.log, context.paths.root);
  LangFileParser parser(relative, problems, context.strings);
  return ReadLangFile(parser, stream, contents);
}

}  // namespace kx
