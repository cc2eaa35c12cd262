#ifndef KX_BUNDLES_RESOURCE_DIRECTORY_H
#define KX_BUNDLES_RESOURCE_DIRECTORY_H

#include <string>

#include "platform/critical_section.h"
#include "platform/thread_annotations.h"

namespace kx {

/// What the search for a directory asks of the machine, so that it can be tested without one.
class SearchSources {
 public:
  /// The running executable's path; may be null or "".
  virtual const char* ExecutablePath() = 0;

  /// The value of an environment variable; null when not set. Valid until the next call.
  virtual const char* Environment(const char* name) = 0;

  virtual bool IsDirectory(const char* path) = 0;

  /// Whether the working directory may be searched: see KxTrustsWorkingDirectory.
  virtual bool TrustsWorkingDirectory() = 0;

 protected:
  ~SearchSources() = default;
};

/// Joins `base` and `subdirectory` into `joined` and tells whether that is a directory.
///
/// @param base          null or "" answers false; one "/" or "\" at its end is dropped
/// @param subdirectory  null for the base itself
bool IsDirectoryUnder(SearchSources& sources, const char* base, const char* subdirectory,
                      std::string& joined);

/// Looks for a directory that holds `subdirectory`: first the executable's own directory and the
/// three above it, then five environment variables, last the working directory, if that is trusted.
/// "/" and "\" both count as separators on every system.
///
/// The ancestors of the executable come before the environment on purpose, so that an installed
/// product finds its own files whatever the environment says.
///
/// @param directory  the full path of the subdirectory; empty when nothing is found
/// @param root       the directory that holds it. When nothing is found it is what the first source
///                   last tried, which is where diagnostics go.
bool FindResourceDirectory(SearchSources& sources, const char* subdirectory, std::string& directory,
                           std::string& root);

/// The same on this machine.
bool FindResourceDirectory(const char* subdirectory, std::string& directory, std::string& root);

/// Where the bundle files lie.
///
/// One object of this class serves the process (ProcessResources).
class ResourceLocation {
 public:
  /// Runs the search for "resources". To be called while the library is loaded, before any lookup.
  bool Locate();

  /// The directory of the bundle files; empty when there is none.
  std::string Directory() const KX_EXCLUDES(lock_);
  void SetDirectory(std::string directory) KX_EXCLUDES(lock_);

  /// The directory in which the search found the first one; constant after the load.
  const std::string& Root() const noexcept { return root_; }

 private:
  std::string root_;

  mutable CriticalSection lock_;
  std::string directory_ KX_GUARDED_BY(lock_);
};

/// The location of this process. Lives in core/process_state.cpp.
ResourceLocation& ProcessResources();

}  // namespace kx

#endif  // KX_BUNDLES_RESOURCE_DIRECTORY_H
