// A host of the library for the process tests. Its arguments are steps, done one after another:
//
//   text BUNDLE LOCALE KEY         prints the text, by GetBundle
//   language BUNDLE LANGUAGE REGION KEY   prints the text, by GetLanguage
//   info BUNDLE LOCALE             prints name, language and country
//   use DIRECTORY                  prints what SetResourceDirectory answers
//   keep BUNDLE LOCALE             gets a translator and keeps it
//   kept KEY                       prints a text of the one kept last
//   same BUNDLE LOCALE             prints whether GetBundle answers the one kept last again
//   threads COUNT BUNDLE LOCALE KEY   COUNT threads, started together, look the text up; prints the
//                                  number of different translators they got
//   misses COUNT BUNDLE LOCALE     COUNT threads ask the one translator for the same 50 absent keys
//   locales COUNT BUNDLE           COUNT threads ask for many locales; prints "done"
//
// "(null)" as an argument passes a null pointer; a null answer is printed as "(null)". Kept
// translators are released at the end.

#include <atomic>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <map>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "CKxXlate.h"

namespace {

const char* Pointer(const std::string& argument) {
  return argument == "(null)" ? nullptr : argument.c_str();
}

void Print(const char* text) { std::cout << (text == nullptr ? "(null)" : text) << std::endl; }

void PrintTruth(bool truth) { Print(truth ? "true" : "false"); }

using Arguments = std::vector<std::string>;

class Host {
 public:
  ~Host() {
    for (CKxXlate* translator : kept_) translator->Release();
  }

  bool Do(const std::string& step, const Arguments& arguments) {
    const auto found = steps_.find(step);
    if (found == steps_.end()) return false;
    found->second.action(arguments);
    return true;
  }

  std::size_t ArgumentsOf(const std::string& step) const {
    const auto found = steps_.find(step);
    return found == steps_.end() ? 0 : found->second.arguments;
  }

 private:
  struct Step {
    std::size_t arguments;
    std::function<void(const Arguments&)> action;
  };

  static void PrintText(CKxXlate* translator, const std::string& key) {
    Print(translator == nullptr ? nullptr : translator->GetText(Pointer(key)));
    if (translator != nullptr) translator->Release();
  }

  static void PrintInfo(CKxXlate* translator) {
    if (translator == nullptr) return Print(nullptr);
    std::cout << translator->GetName() << '|' << translator->GetLanguageCode() << '|'
              << translator->GetCountryCode() << std::endl;
    translator->Release();
  }

  void Keep(const Arguments& a) {
    kept_.push_back(CKxXlate::GetBundle(Pointer(a[0]), Pointer(a[1])));
  }

  void PrintSame(const Arguments& a) {
    CKxXlate* translator = CKxXlate::GetBundle(Pointer(a[0]), Pointer(a[1]));
    PrintTruth(translator == kept_.back());
    if (translator != nullptr) translator->Release();
  }

  /// Runs `work(thread)` in `count` threads that start together.
  template <class Work>
  static void InThreads(const std::string& count, Work work) {
    std::atomic<bool> go = false;
    std::vector<std::thread> threads;
    for (int index = 0; index < std::atoi(count.c_str()); ++index) {
      threads.emplace_back([&, index] {
        while (!go) std::this_thread::yield();
        work(index);
      });
    }
    go = true;
    for (std::thread& thread : threads) thread.join();
  }

  static void LookUpInThreads(const Arguments& a) {
    std::vector<CKxXlate*> got(64);
    InThreads(a[0], [&](int thread) {
      CKxXlate* translator = CKxXlate::GetBundle(Pointer(a[1]), Pointer(a[2]));
      if (translator->GetText(a[3].c_str()) == nullptr) std::abort();
      got[static_cast<std::size_t>(thread)] = translator;
    });
    std::set<CKxXlate*> different(got.begin(), got.end());
    different.erase(nullptr);
    std::cout << different.size() << std::endl;
    for (CKxXlate* translator : got) {
      if (translator != nullptr) translator->Release();
    }
  }

  static void MissInThreads(const Arguments& a) {
    CKxXlate* translator = CKxXlate::GetBundle(Pointer(a[1]), Pointer(a[2]));
    InThreads(a[0], [&](int) {
      for (int key = 0; key < 50; ++key) {
        if (translator->GetText(("ABSENT" + std::to_string(key)).c_str()) != nullptr) std::abort();
      }
    });
    translator->Release();
  }

  static void AskForLocalesInThreads(const Arguments& a) {
    InThreads(a[0], [&](int thread) {
      for (int number = 0; number < 200; ++number) {
        // Half of the locales are the threads' own, half are everybody's.
        const int owner = number % 2 == 0 ? thread : 99;
        const std::string locale = "fr-x" + std::to_string(owner) + "-" + std::to_string(number);
        CKxXlate* translator = CKxXlate::GetBundle(Pointer(a[1]), locale.c_str());
        if (translator == nullptr) std::abort();
        translator->Release();
      }
    });
    Print("done");
  }

  std::vector<CKxXlate*> kept_;
  const std::map<std::string, Step> steps_ = {
      {"text",
       {3,
        [](const auto& a) { PrintText(CKxXlate::GetBundle(Pointer(a[0]), Pointer(a[1])), a[2]); }}},
      {"language",
       {4,
        [](const auto& a) {
          PrintText(CKxXlate::GetLanguage(Pointer(a[0]), Pointer(a[1]), Pointer(a[2])), a[3]);
        }}},
      {"info",
       {2, [](const auto& a) { PrintInfo(CKxXlate::GetBundle(Pointer(a[0]), Pointer(a[1]))); }}},
      {"use",
       {1, [](const auto& a) { PrintTruth(CKxXlate::SetResourceDirectory(Pointer(a[0]))); }}},
      {"keep", {2, [this](const auto& a) { Keep(a); }}},
      {"kept", {1, [this](const auto& a) { Print(kept_.back()->GetText(Pointer(a[0]))); }}},
      {"same", {2, [this](const auto& a) { PrintSame(a); }}},
      {"threads", {4, [](const auto& a) { LookUpInThreads(a); }}},
      {"misses", {3, [](const auto& a) { MissInThreads(a); }}},
      {"locales", {2, [](const auto& a) { AskForLocalesInThreads(a); }}},
  };
};

}  // namespace

int main(int count, char** values) {
  const std::vector<std::string> words(values + 1, values + count);
  Host host;
  for (std::size_t at = 0; at < words.size();) {
    const std::string& step = words[at++];
    const std::size_t end = at + host.ArgumentsOf(step);
    if (end > words.size()) return 3;
    if (!host.Do(step, Arguments(words.begin() + static_cast<std::ptrdiff_t>(at),
                                 words.begin() + static_cast<std::ptrdiff_t>(end)))) {
      std::cerr << "unknown step: " << step << '\n';
      return 3;
    }
    at = end;
  }
  return 0;
}
