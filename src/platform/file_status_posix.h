#ifndef KX_PLATFORM_FILE_STATUS_POSIX_H
#define KX_PLATFORM_FILE_STATUS_POSIX_H

#include <sys/stat.h>

struct KxFileStatus;

namespace kx {

/// What the library needs of what the system says.
void SetStatus(const struct stat& found, KxFileStatus& status);

}  // namespace kx

#endif  // KX_PLATFORM_FILE_STATUS_POSIX_H
