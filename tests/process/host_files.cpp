#include <chrono>
#include <fstream>
#include <iostream>

#include "process/host_steps.h"

const char* Pointer(const std::string& argument) {
  return argument == "(null)" ? nullptr : argument.c_str();
}

void Print(const char* text) { std::cout << (text == nullptr ? "(null)" : text) << std::endl; }

void PrintTruth(bool truth) { Print(truth ? "true" : "false"); }

std::filesystem::path HostPath(const std::string& text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

void WriteFile(const std::string& path, const std::string& text) {
  std::ofstream(HostPath(path), std::ios::binary) << text;
}

void SetModified(const std::string& path, std::int64_t seconds) {
  using FileClock = std::filesystem::file_time_type::clock;
  const std::chrono::system_clock::time_point time{std::chrono::seconds(seconds)};
  std::filesystem::last_write_time(
      HostPath(path),
      FileClock::from_sys(std::chrono::time_point_cast<std::chrono::system_clock::duration>(time)));
}
