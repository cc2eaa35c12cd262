#ifndef KX_PLATFORM_CALLER_TRUST_H
#define KX_PLATFORM_CALLER_TRUST_H

/// Whether the working directory may say where files are looked for or written. Not in a program
/// that runs with more rights than its caller (on Linux one with set-user-ID, set-group-ID or file
/// capabilities): the caller chose the directory, and what lies in it. For the same reason
/// CKxGetEnv reads no variable there.
bool KxTrustsWorkingDirectory();

#endif  // KX_PLATFORM_CALLER_TRUST_H
