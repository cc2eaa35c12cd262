#ifndef KX_PLATFORM_DIRECTORIES_H
#define KX_PLATFORM_DIRECTORIES_H

/// Is told of each entry of a directory.
class CKxTraverseCallback {
 public:
  /// @param name         the entry's name within the directory, UTF-8; valid during the call
  /// @param isDirectory  whether it is a directory, or a symbolic link to one
  /// @return true to go on with the next entry
  virtual bool OnEntry(const char* name, bool isDirectory) = 0;

 protected:
  ~CKxTraverseCallback() = default;
};

/// Tells `callback` of each entry of `directory`, sorted by byte comparison of their names, because
/// systems list a directory in different orders and every machine has to answer alike.
///
/// @param directory  UTF-8; not null
/// @return 0 on success, non-zero when the directory cannot be read (the callback is told nothing)
///
/// "." and ".." are left out; subdirectories are named but not visited. Passes on what the callback
/// throws.
int KxTraverseDirectory(const char* directory, CKxTraverseCallback* callback);

/// As KxTraverseDirectory, in the system's order, and each entry as it is read: when the directory
/// cannot be read to its end, the callback has been told of what came before. For whoever can do
/// without the order, which costs more than the rest.
int KxTraverseUnsorted(const char* directory, CKxTraverseCallback* callback);

/// Creates the directory `path` (UTF-8; its parent must exist).
///
/// @param mode  permissions as the system's file mode bits, less the process's mask; not used on
///              Windows
/// @return 0 on success, non-zero on failure, also when the name is taken
int KxMakeDir(const char* path, unsigned mode);

#endif  // KX_PLATFORM_DIRECTORIES_H
