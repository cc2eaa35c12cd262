#include <sys/stat.h>

#include "platform/file_status.h"

int KxStat(const char* path, KxFileStatus* status) {
  struct stat found;
  if (::stat(path, &found) != 0) return -1;
  status->modified = found.st_mtime;
  // Block devices carry the directory's bit too (they are 0x6000), hence the test of the kind.
  status->mode = S_ISDIR(found.st_mode) ? kKxModeDirectory : 0;
  return 0;
}

bool KxIsNetworkPath(const char* /*path*/) { return false; }
