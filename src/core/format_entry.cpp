#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "CKxXlate.h"
#include "Xlate.h"
#include "format/positional_insertion.h"
#include "platform/admin_locale.h"

namespace {

constexpr std::size_t kMaxArguments = 16;

// The new translator gets one reference more than GetBundle handed out, which nobody gives back.
// Hosts rely on it: some release the translator twice. Held by
// Format.EachResolutionLeavesAReference.
void ResolveOnce(Xlate& xlate) {
  if (xlate.resolved) return;
  if (xlate.useAdminLocale) {
    xlate.useAdminLocale = false;
    if (const std::optional<std::string> locale = KxGetAdminLocale()) {
      xlate.locale.Set(locale->c_str());
    }
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
std::size_t SplitArguments(const Xlate& xlate, std::array<const char*, kMaxArguments>& arguments) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < xlate.args.size(); ++count) {
    if (count == xlate.argCount || count == kMaxArguments) break;
    arguments[count] = xlate.args.c_str() + at;
    const std::size_t end = xlate.args.find('\0', at);
    at = end == std::string::npos ? xlate.args.size() : end + 1;
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
  // Copied before the output is cleared, where a host may well have the key.
  const std::string shownKey = key == nullptr ? "" : key;
  xlate->output.Clear();
  if (xlate->showKeys) {
    xlate->output.Append("[");
    xlate->output.Append(shownKey.c_str());
    xlate->output.Append("] ");
  }
  xlate->output.AppendString(result);
  return xlate->output.text.c_str();
}
