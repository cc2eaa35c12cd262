// A host that formats messages, for the process tests. Its arguments are steps, done one after
// another on the message made last:
//
//   new                     begins another message
//   bundle NAME             sets the bundle's name
//   locale LOCALE           sets the locale
//   admin                   asks for the administrator's locale
//   keys                    shows keys
//   argument TEXT           adds an argument
//   unresolve               clears `resolved`
//   format KEY              formats and prints the result; the translator found is the watched one
//   fields                  prints the locale, then " resolved" and " admin" if these are set
//   language                prints the watched translator's language and country
//   same                    prints whether the last two translators watched are one
//   ask KEY                 prints a text of the watched translator
//   release                 gives the message's own reference back
//   drop                    gives back a reference on the watched translator that nobody owns
//   alive                   prints whether the watched translator has not been destroyed
//   threads COUNT KEY       COUNT threads, started together, format copies of the message that are
//                           not resolved; prints each different result
//
// Every host knows some more: see host_steps.h.
//
// "(null)" as an argument passes a null pointer; a null answer is printed as "(null)".

#include <atomic>
#include <cstdlib>
#include <iostream>
#include <list>
#include <new>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "CKxXlate.h"
#include "Xlate.h"
#include "process/host_steps.h"

namespace {

// What nobody frees before the end must still be held by somebody, or the leak checker reports it.
std::vector<CKxXlate*>& FoundTranslators() {
  static auto& found = *new std::vector<CKxXlate*>;
  return found;
}

std::atomic<void*> g_watched = nullptr;
std::atomic<bool> g_isWatchedAlive = false;

}  // namespace

// The library destroys a translator here, too, which tells how many references there were.
void* operator new(std::size_t size) {
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
  if (memory != nullptr && memory == g_watched) g_isWatchedAlive = false;
  std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept { operator delete(memory); }

namespace {

class FormatHost {
 public:
  FormatHost() : messages_(1) {}
  ~FormatHost() { CKxXlate::FreeCache(); }

  /// The steps; they refer to this object.
  HostSteps Steps();

 private:
  Xlate& Message() { return messages_.back(); }

  void AddArgument(const std::string& text) {
    Message().args += text + '\0';
    ++Message().argCount;
  }

  void Format(const std::string& key) {
    Print(CKxXlate::Format(&Message(), Pointer(key)));
    CKxXlate* const translator = Message().translator;
    if (translator == nullptr || translator == g_watched) return;
    g_watched = translator;
    g_isWatchedAlive = true;
    FoundTranslators().push_back(translator);
  }

  void PrintFields() {
    std::cout << Message().locale.text << (Message().resolved ? " resolved" : "")
              << (Message().useAdminLocale ? " admin" : "") << std::endl;
  }

  static CKxXlate* Watched() { return FoundTranslators().back(); }

  static void PrintLanguage() {
    std::cout << Watched()->GetLanguageCode() << '-' << Watched()->GetCountryCode() << std::endl;
  }

  static void PrintSame() {
    const std::vector<CKxXlate*>& found = FoundTranslators();
    PrintTruth(found.size() < 2 || found[found.size() - 2] == found.back());
  }

  void ReleaseOwn() {
    Message().translator->Release();
    Message().translator = nullptr;
  }

  void FormatInThreads(const std::string& count, const std::string& key) {
    std::list<Xlate> copies(static_cast<std::size_t>(std::atoi(count.c_str())), Message());
    std::atomic<bool> go = false;
    std::vector<std::thread> threads;
    for (Xlate& copy : copies) {
      threads.emplace_back([&go, &key, &copy] {
        while (!go) std::this_thread::yield();
        for (int round = 0; round < 100; ++round) {
          copy.resolved = round % 10 != 0;
          CKxXlate::Format(&copy, key.c_str());
        }
      });
    }
    go = true;
    for (std::thread& thread : threads) thread.join();
    std::set<std::string> results;
    for (const Xlate& copy : copies) {
      results.insert(copy.output.text);
      FoundTranslators().push_back(copy.translator);
    }
    for (const std::string& result : results) Print(result.c_str());
  }

  std::list<Xlate> messages_;
};

HostSteps FormatHost::Steps() {
  return {
      {"new", {0, [this](const auto&) { messages_.emplace_back(); }}},
      {"bundle", {1, [this](const auto& a) { Message().bundleName = a[0]; }}},
      {"locale", {1, [this](const auto& a) { Message().locale.Set(a[0].c_str()); }}},
      {"admin", {0, [this](const auto&) { Message().useAdminLocale = true; }}},
      {"keys", {0, [this](const auto&) { Message().showKeys = true; }}},
      {"argument", {1, [this](const auto& a) { AddArgument(a[0]); }}},
      {"unresolve", {0, [this](const auto&) { Message().resolved = false; }}},
      {"format", {1, [this](const auto& a) { Format(a[0]); }}},
      {"fields", {0, [this](const auto&) { PrintFields(); }}},
      {"language", {0, [](const auto&) { PrintLanguage(); }}},
      {"same", {0, [](const auto&) { PrintSame(); }}},
      {"ask", {1, [](const auto& a) { Print(Watched()->GetText(Pointer(a[0]))); }}},
      {"release", {0, [this](const auto&) { ReleaseOwn(); }}},
      {"drop", {0, [](const auto&) { Watched()->Release(); }}},
      {"alive", {0, [](const auto&) { PrintTruth(g_isWatchedAlive); }}},
      {"threads", {2, [this](const auto& a) { FormatInThreads(a[0], a[1]); }}},
  };
}

}  // namespace

int main(int count, char** values) {
  FormatHost host;
  return TakeSteps(host.Steps(), count, values);
}
