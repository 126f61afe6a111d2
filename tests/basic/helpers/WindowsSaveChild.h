#pragma once
// Windows' SaveChild for the archive file tests: archive_save_child started with CreateProcess,
// its standard output read through a pipe. Killed (TerminateProcess, the equivalent of SIGKILL)
// and waited for at the latest when destroyed.
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <filesystem>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

class SaveChild {
public:
  explicit SaveChild(const std::vector<std::string>& arguments) {
    std::wstring command = Quoted(CVX_ARCHIVE_SAVE_CHILD);
    for (const std::string& argument : arguments) command += L" " + Quoted(argument);
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE write = nullptr;
    if (!::CreatePipe(&m_Output, &write, &inherited, 0) ||
        !::SetHandleInformation(m_Output, HANDLE_FLAG_INHERIT, 0)) {
      throw std::system_error(static_cast<int>(::GetLastError()), std::system_category());
    }
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = ::GetStdHandle(STD_INPUT_HANDLE);
    startup.hStdOutput = write;
    startup.hStdError = ::GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION process{};
    const BOOL started = ::CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0,
                                          nullptr, nullptr, &startup, &process);
    const DWORD error = ::GetLastError();
    ::CloseHandle(write);
    if (!started) throw std::system_error(static_cast<int>(error), std::system_category());
    ::CloseHandle(process.hThread);
    m_Process = process.hProcess;
  }
  SaveChild(const SaveChild&) = delete;
  SaveChild& operator=(const SaveChild&) = delete;
  ~SaveChild() {
    if (m_Process) {
      Kill();
      Wait();
    }
    ::CloseHandle(m_Output);
  }

  // The output up to the next newline or the end, without the newline (or carriage return).
  std::string ReadLine() {
    std::string line;
    char c;
    DWORD got = 0;
    while (::ReadFile(m_Output, &c, 1, &got, nullptr) && got == 1 && c != '\n') line += c;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return line;
  }
  void Kill() { ::TerminateProcess(m_Process, kKilled); }
  // The exit status; kKilled for a child that was killed.
  int Wait() {
    ::WaitForSingleObject(m_Process, INFINITE);
    DWORD status = 0;
    ::GetExitCodeProcess(m_Process, &status);
    ::CloseHandle(std::exchange(m_Process, nullptr));
    return static_cast<int>(status);
  }

private:
  static constexpr UINT kKilled = 128 + 9;  // as a shell reports SIGKILL

  static std::wstring Quoted(const std::string& word) {
    return L"\"" + std::filesystem::path(word).wstring() + L"\"";
  }

  HANDLE m_Process = nullptr;
  HANDLE m_Output = nullptr;
};
