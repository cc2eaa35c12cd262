#include "support/run_process.h"

// Before the others, which need its types.
#include <windows.h>

#include <algorithm>
#include <cwchar>
#include <set>
#include <stdexcept>

#include "support/temp_tree.h"

namespace {

std::wstring Wide(const std::string& text) { return PathFromUtf8(text).native(); }

std::wstring WideSystemPath(const std::string& path) {
  return PathFromUtf8(path).make_preferred().native();
}

/// An argument so written that the started program's runtime reads it as it was.
std::wstring Quoted(const std::wstring& argument) {
  std::wstring quoted = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t c : argument) {
    // Backslashes count as such, unless a quotation mark follows: then they come in pairs.
    if (c == L'"') quoted.append(backslashes + 1, L'\\');
    backslashes = c == L'\\' ? backslashes + 1 : 0;
    quoted += c;
  }
  return quoted.append(backslashes, L'\\') + L'"';
}

std::wstring CommandLine(const ProcessStart& start) {
  std::wstring line = Quoted(WideSystemPath(start.program));
  for (const std::string& argument : start.arguments) line += L' ' + Quoted(Wide(argument));
  return line;
}

/// Names of variables are the same whatever their case.
struct LessIgnoringCase {
  bool operator()(const std::wstring& a, const std::wstring& b) const {
    return ::_wcsicmp(a.c_str(), b.c_str()) < 0;
  }
};

std::wstring Environment(const ProcessStart& start) {
  std::set<std::wstring, LessIgnoringCase> left_out;
  for (const std::string& name : start.withoutVariables) left_out.insert(Wide(name));
  for (const auto& [name, value] : start.environment) left_out.insert(Wide(name));

  std::wstring block;
  wchar_t* const inherited = ::GetEnvironmentStringsW();
  for (const wchar_t* entry = inherited; *entry != L'\0'; entry += std::wcslen(entry) + 1) {
    const std::wstring variable(entry);
    // One that begins with "=" is the system's own.
    if (left_out.count(variable.substr(0, variable.find(L'=', 1))) == 0) {
      block += variable + L'\0';
    }
  }
  ::FreeEnvironmentStringsW(inherited);
  for (const auto& [name, value] : start.environment) {
    block += Wide(name) + L'=' + Wide(value) + L'\0';
  }
  return block + L'\0';
}

/// A new file that a started process inherits.
class InheritedFile {
 public:
  explicit InheritedFile(const std::string& path) {
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    handle_ = ::CreateFileW(WideSystemPath(path).c_str(), GENERIC_WRITE,
                            FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, CREATE_ALWAYS,
                            FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle_ == INVALID_HANDLE_VALUE) throw std::runtime_error("cannot make " + path);
  }
  ~InheritedFile() { ::CloseHandle(handle_); }
  InheritedFile(const InheritedFile&) = delete;
  InheritedFile& operator=(const InheritedFile&) = delete;

  HANDLE Handle() const { return handle_; }

 private:
  HANDLE handle_;
};

}  // namespace

int RunProcess(const ProcessStart& start) {
  const InheritedFile output(start.outputFile);
  const InheritedFile errors(start.errorFile);
  STARTUPINFOW streams = {};
  streams.cb = sizeof streams;
  streams.dwFlags = STARTF_USESTDHANDLES;
  streams.hStdInput = ::GetStdHandle(STD_INPUT_HANDLE);
  streams.hStdOutput = output.Handle();
  streams.hStdError = errors.Handle();

  std::wstring commandLine = CommandLine(start);
  std::wstring environment = Environment(start);
  PROCESS_INFORMATION process;
  if (::CreateProcessW(WideSystemPath(start.program).c_str(), commandLine.data(), nullptr, nullptr,
                       TRUE, CREATE_UNICODE_ENVIRONMENT, environment.data(),
                       WideSystemPath(start.workingDirectory).c_str(), &streams, &process) == 0) {
    throw std::runtime_error("cannot start " + start.program);
  }
  ::CloseHandle(process.hThread);
  ::WaitForSingleObject(process.hProcess, INFINITE);
  DWORD exitCode = 0;
  ::GetExitCodeProcess(process.hProcess, &exitCode);
  ::CloseHandle(process.hProcess);
  return static_cast<int>(exitCode);
}

std::string FromStandardStream(const std::string& bytes) {
  std::string text;
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    const bool endsLine = bytes[at] == '\r' && at + 1 < bytes.size() && bytes[at + 1] == '\n';
    if (!endsLine) text += bytes[at];
  }
  return text;
}
