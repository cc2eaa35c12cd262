#include "platform/caller_trust.h"

// A program of this system has the rights of whoever started it, or asks that user for more.
bool KxTrustsWorkingDirectory() { return true; }
