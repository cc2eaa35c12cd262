#ifndef KX_LOG_PROBLEM_SINK_H
#define KX_LOG_PROBLEM_SINK_H

#include <string>

namespace kx {

/// Is told of each problem in a catalogue, in reading order, one finished line at a time.
class ProblemSink {
 public:
  /// @param text  the line, without a line end
  virtual void Line(const std::string& text) = 0;

 protected:
  ~ProblemSink() = default;
};

/// Writes each problem as a line of the process's standard error stream. Any thread; lines of
/// different threads do not mix.
class StandardErrorSink final : public ProblemSink {
 public:
  void Line(const std::string& text) override;
};

}  // namespace kx

#endif  // KX_LOG_PROBLEM_SINK_H
