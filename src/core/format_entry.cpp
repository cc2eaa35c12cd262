#include <array>
#include <cstddef>
#include <cstring>
#include <optional>
#include <string>

#include "CKxXlate.h"
#include "Xlate.h"
#include "core/message_text.h"
#include "format/positional_insertion.h"
#include "platform/admin_locale.h"

namespace {

constexpr std::size_t kMaxArguments = 16;

// The new translator gets one reference more than GetBundle handed out: each resolution leaves a
// reference that the message does not own, and hosts count with it. Held by
// FormattedMessage.EachResolutionLeavesAReference.
void ResolveOnce(Xlate& xlate) {
  if (xlate.resolved) return;
  if (xlate.useAdminLocale) {
    if (const std::optional<std::string> locale = KxGetAdminLocale()) {
      kx::SetMessageText(xlate.locale, locale->c_str());
    }
    xlate.useAdminLocale = false;
  }
  CKxXlate* found = CKxXlate::GetBundle(xlate.bundleName.c_str(), xlate.locale.text.c_str());
  if (found != nullptr) found->AddRef();
  if (xlate.translator != nullptr) xlate.translator->Release();
  xlate.translator = found;
  xlate.resolved = true;
}

const char* FindText(const Xlate& xlate, const char* key) {
  if (xlate.translator == nullptr || key == nullptr) return key;
  const char* text = xlate.translator->GetText(key);
  return text == nullptr ? key : text;
}

/// Points `arguments` at the texts in `args`; answers how many there are, whatever the host claims.
/// The terminator of `args` itself counts as a NUL: behind a last text with its own it is one more
/// text, an empty one.
std::size_t SplitArguments(const Xlate& xlate, std::array<const char*, kMaxArguments>& arguments) {
  std::size_t count = 0;
  for (std::size_t at = 0; at <= xlate.args.size(); ++count) {
    if (count == xlate.argCount || count == kMaxArguments) break;
    arguments[count] = xlate.args.c_str() + at;
    at += std::strlen(arguments[count]) + 1;
  }
  return count;
}

}  // namespace

const char* CKxXlate::Format(Xlate* xlate, const char* key) {
  if (xlate == nullptr) return nullptr;
  ResolveOnce(*xlate);
  std::array<const char*, kMaxArguments> arguments{};
  const std::size_t count = SplitArguments(*xlate, arguments);
  std::string result;
  kx::InsertArguments(result, FindText(*xlate, key), count, arguments.data());
  // Copied first: a host may well have the key in the output, which is cleared.
  const std::string shownKey = xlate->showKeys && key != nullptr ? key : "";
  kx::SetMessageResult(xlate->output, xlate->showKeys ? shownKey.c_str() : nullptr, result);
  return xlate->output.text.c_str();
}
