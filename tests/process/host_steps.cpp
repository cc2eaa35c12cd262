#include "process/host_steps.h"

#include <cstdlib>
#include <iostream>

#include "tools/arguments.h"

namespace {

void AddCommonSteps(HostSteps& steps) {
  steps["free"] = {0, [](const Arguments&) { CKxXlate::FreeCache(); }};
  steps["write"] = {2, [](const Arguments& a) { WriteFile(a[0], a[1]); }};
  steps["touch"] = {2, [](const Arguments& a) { SetModified(a[0], std::atoll(a[1].c_str())); }};
}

}  // namespace

int TakeSteps(HostSteps steps, int count, char** values) {
  AddCommonSteps(steps);
  const std::vector<std::string> words = Utf8Arguments(count, values);
  for (std::size_t at = 0; at < words.size();) {
    const auto step = steps.find(words[at]);
    if (step == steps.end()) {
      std::cerr << "unknown step: " << words[at] << '\n';
      return 3;
    }
    ++at;
    const std::size_t end = at + step->second.arguments;
    if (end > words.size()) return 3;
    step->second.action(Arguments(words.begin() + static_cast<std::ptrdiff_t>(at),
                                  words.begin() + static_cast<std::ptrdiff_t>(end)));
    at = end;
  }
  return 0;
}
