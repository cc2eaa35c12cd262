#include "platform/file_status.h"

bool KxIsDirectory(const char* path) {
  KxFileStatus status;
  return KxStat(path, &status) == 0 && (status.mode & kKxModeDirectory) != 0;
}
