#include "platform/caller_trust.h"

#include <sys/auxv.h>

bool KxTrustsWorkingDirectory() { return ::getauxval(AT_SECURE) == 0; }
