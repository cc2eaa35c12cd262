#ifndef KX_TESTS_SUPPORT_SYSTEM_CALLS_H
#define KX_TESTS_SUPPORT_SYSTEM_CALLS_H

#include <cstddef>
#include <limits>

/// What becomes of the system's calls that this program makes itself. Programs that use it list
/// system_calls_posix.cpp, which stands in front of the system's functions.
struct SystemCalls {
  /// So many calls of `read` and `write` are interrupted, every other one, before they did
  /// anything.
  int interruptions = 0;

  /// The most bytes that one of them transfers.
  std::size_t mostBytes = std::numeric_limits<std::size_t>::max();

  /// So many of them that succeed leave errno at EINTR, as it is when somebody else has met one.
  int staleErrors = 0;

  /// How many entries `readdir` names, before it fails; none is named when it is 0.
  int namedEntries = std::numeric_limits<int>::max();

  /// Whether `readdir` says of no entry what it is, as some file systems do.
  bool hidesTypes = false;

  /// How many calls were other than they would have been.
  int meddled = 0;
};

/// Of this process; all are left alone at first.
SystemCalls& Calls();

#endif  // KX_TESTS_SUPPORT_SYSTEM_CALLS_H
