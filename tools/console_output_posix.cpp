#include "console_output.h"

// Terminals take UTF-8 as it comes.
struct ConsoleOutput::State {};

ConsoleOutput::ConsoleOutput() = default;
ConsoleOutput::~ConsoleOutput() = default;
