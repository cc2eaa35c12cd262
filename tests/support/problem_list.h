#ifndef KX_TESTS_SUPPORT_PROBLEM_LIST_H
#define KX_TESTS_SUPPORT_PROBLEM_LIST_H

#include <string>
#include <vector>

#include "log/problem_sink.h"

/// Keeps the problems that a reader reports, in order.
class ProblemList final : public kx::ProblemSink {
 public:
  void Line(const std::string& text) override { lines_.push_back(text); }
  const std::vector<std::string>& Lines() const { return lines_; }

 private:
  std::vector<std::string> lines_;
};

#endif  // KX_TESTS_SUPPORT_PROBLEM_LIST_H
