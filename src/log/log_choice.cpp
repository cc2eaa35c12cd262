#include "log/log_choice.h"

#include <exception>
#include <string_view>

#include "platform/environment.h"
#include "platform/given_text.h"

namespace kx {

LogChoice ParseLogChoice(const char* value) {
  if (!IsGiven(value)) return {};
  const std::string_view said = value;
  if (said == "off") return {LogChoice::Place::kNowhere};
  if (said == "stderr") return {LogChoice::Place::kStandardErrors};
  return {LogChoice::Place::kFile, value};
}

LogChoice LogChoiceOfEnvironment() noexcept {
  try {
    CKxGetEnv environment;
    return ParseLogChoice(environment.set("KXXLATE_LOG"));
  } catch (const std::exception&) {
    return {};
  }
}

}  // namespace kx
