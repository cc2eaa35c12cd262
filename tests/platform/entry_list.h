#ifndef KX_TESTS_PLATFORM_ENTRY_LIST_H
#define KX_TESTS_PLATFORM_ENTRY_LIST_H

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/directories.h"

/// Notes the entries, directories with a "/" behind them.
class EntryList final : public CKxTraverseCallback {
 public:
  bool OnEntry(const char* name, bool isDirectory) override {
    entries.push_back(std::string(name) + (isDirectory ? "/" : ""));
    if (throwAtLast && entries.size() == most) throw std::runtime_error("enough");
    return entries.size() < most;
  }

  std::vector<std::string> entries;
  std::size_t most = 1000;
  bool throwAtLast = false;
};

#endif  // KX_TESTS_PLATFORM_ENTRY_LIST_H
