#ifndef KX_TESTS_PROCESS_HOST_STEPS_H
#define KX_TESTS_PROCESS_HOST_STEPS_H

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "support/held_reference.h"

using Arguments = std::vector<std::string>;
using Held = HeldReference<CKxXlate>;

/// What a host does when its arguments name the step, and how many arguments follow the name.
struct HostStep {
  std::size_t arguments;
  std::function<void(const Arguments&)> action;
};
using HostSteps = std::map<std::string, HostStep>;

/// Takes the steps that the arguments of the program name, one after another. Besides `steps` every
/// host knows these:
///
///   free                    calls FreeCache
///   write FILE TEXT         writes a file
///   touch FILE SECONDS      sets a file's time of last change, in seconds since 1970
///
/// @return what main returns: 3 when there is no such step or an argument is missing
int TakeSteps(HostSteps steps, int count, char** values);

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
