#include <benchmark/benchmark.h>

#include <cstdarg>
#include <cstdio>

#include "CKxXlate.h"

namespace {

void InsertTwoArguments(benchmark::State& state) {
  char line[256];
  for (auto _ : state) {
    CKxXlate::Insert(line, sizeof line - 1, "The task %0 on server %1 ended without errors.",
                     "backup", "alpha.example");
    benchmark::ClobberMemory();
  }
}

// What a C programmer would have written instead: a yardstick in the same run.
void PrintTwoArguments(benchmark::State& state) {
  char line[256];
  for (auto _ : state) {
    std::snprintf(line, sizeof line, "The task %s on server %s ended without errors.", "backup",
                  "alpha.example");
    benchmark::ClobberMemory();
  }
}

void InsertVariableTwoArguments(benchmark::State& state) {
  char line[256];
  for (auto _ : state) {
    CKxXlate::InsertVariable(line, sizeof line, "The task %s:1 ended after %d:2 minutes.", "backup",
                             17);
    benchmark::ClobberMemory();
  }
}

void InsertList(char* buffer, KxSize size, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  CKxXlate::InsertVariableVA(buffer, size, format, arguments);
  va_end(arguments);
}

void InsertVariableVATwoArguments(benchmark::State& state) {
  char line[256];
  for (auto _ : state) {
    InsertList(line, sizeof line, "The task %s:1 ended after %d:2 minutes.", "backup", 17);
    benchmark::ClobberMemory();
  }
}

BENCHMARK(InsertVariableTwoArguments);
BENCHMARK(InsertVariableVATwoArguments);
BENCHMARK(InsertTwoArguments);
BENCHMARK(PrintTwoArguments);

}  // namespace
