#include <atomic>
#include <cstdlib>
#include <iostream>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "process/host_steps.h"

namespace {

/// Runs `work(thread)` in `count` threads that start together.
template <class Work>
void InThreads(const std::string& count, Work work) {
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

}  // namespace

void LookUpInThreads(const Arguments& a) {
  std::vector<CKxXlate*> got(std::stoul(a[0]));
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

void MissInThreads(const Arguments& a) {
  CKxXlate* translator = CKxXlate::GetBundle(Pointer(a[1]), Pointer(a[2]));
  InThreads(a[0], [&](int) {
    for (int key = 0; key < 50; ++key) {
      if (translator->GetText(("ABSENT" + std::to_string(key)).c_str()) != nullptr) std::abort();
    }
  });
  translator->Release();
}

void AskForLocalesInThreads(const Arguments& a) {
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

void ChurnInThreads(const Arguments& a) {
  constexpr int kRounds = 200;
  InThreads(a[0], [&](int thread) {
    for (int round = 0; round < kRounds; ++round) {
      if (thread == 0) {
        SetModified(a[4], 1000000 + round);
      } else if (thread == 1) {
        CKxXlate::FreeCache();
      }
      const Held translator(CKxXlate::GetBundle(Pointer(a[1]), Pointer(a[2])));
      if (translator->GetText(a[3].c_str()) == nullptr) std::abort();
      const std::string absent = "ABSENT" + std::to_string(round % 10);
      if (translator->GetLabel(absent.c_str()) != nullptr) std::abort();
    }
  });
  Print("done");
}
