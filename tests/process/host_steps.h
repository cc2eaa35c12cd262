#ifndef KX_TESTS_PROCESS_HOST_STEPS_H
#define KX_TESTS_PROCESS_HOST_STEPS_H

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "CKxXlate.h"

using Arguments = std::vector<std::string>;

struct ReleaseTranslator {
  void operator()(CKxXlate* translator) const { translator->Release(); }
};
using Held = std::unique_ptr<CKxXlate, ReleaseTranslator>;

/// The argument's text; null for "(null)".
const char* Pointer(const std::string& argument);

void Print(const char* text);
void PrintTruth(bool truth);

/// A path for std::filesystem from UTF-8 text, on every platform.
std::filesystem::path HostPath(const std::string& text);

void WriteFile(const std::string& path, const std::string& text);

/// Sets a file's time of last change, in seconds since 1970-01-01 00:00 UTC.
void SetModified(const std::string& path, std::int64_t seconds);

// The steps with threads; see xlate_host.cpp.
void LookUpInThreads(const Arguments& a);
void MissInThreads(const Arguments& a);
void AskForLocalesInThreads(const Arguments& a);
void ChurnInThreads(const Arguments& a);

#endif  // KX_TESTS_PROCESS_HOST_STEPS_H
