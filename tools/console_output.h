#ifndef KX_TOOLS_CONSOLE_OUTPUT_H
#define KX_TOOLS_CONSOLE_OUTPUT_H

#include <memory>

/// While it lives, std::cout and std::cerr show UTF-8 text right on a console. From its making on,
/// files and pipes get the bytes as they are.
class ConsoleOutput {
 public:
  ConsoleOutput();
  ~ConsoleOutput();
  ConsoleOutput(const ConsoleOutput&) = delete;
  ConsoleOutput& operator=(const ConsoleOutput&) = delete;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

#endif  // KX_TOOLS_CONSOLE_OUTPUT_H
