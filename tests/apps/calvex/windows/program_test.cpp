// The program as Windows starts it: with words, names and variables in UTF-16, streams of bytes and
// a console.
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "units/utf16.h"

namespace calvex::cli {
namespace {

namespace fs = std::filesystem;

std::string text(std::u8string_view utf8) { return {utf8.begin(), utf8.end()}; }

/// A program that was started.
class Process {
 public:
  Process(std::wstring words, HANDLE in, HANDLE out, HANDLE err, const fs::path& folder) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = in;
    startup.hStdOutput = out;
    startup.hStdError = err;
    words.insert(0, L"calvex ");
    EXPECT_TRUE(CreateProcessW(fs::absolute(CALVEX_CLI).c_str(), words.data(), nullptr, nullptr,
                               TRUE, 0, nullptr, folder.c_str(), &startup, &process_));
  }
  ~Process() {
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
  }
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  [[nodiscard]] DWORD status() const {
    DWORD status = 99;
    EXPECT_EQ(WaitForSingleObject(process_.hProcess, 60000), WAIT_OBJECT_0);
    GetExitCodeProcess(process_.hProcess, &status);
    return status;
  }

 private:
  PROCESS_INFORMATION process_{};
};

/// Runs the program in a folder of its own, whose name no code page of one byte has.
class WindowsProgram : public testing::Test {
 protected:
  WindowsProgram()
      : folder_(fs::temp_directory_path() /
                (L"calvex Łódź 锅炉 " + std::to_wstring(GetCurrentProcessId()))) {
    fs::create_directories(folder_);
    SetEnvironmentVariableW(L"CALVEX_CONFIG", (folder_ / L"настройки").c_str());
  }
  ~WindowsProgram() override { fs::remove_all(folder_); }

  void write(const wchar_t* name, std::string_view content) const {
    std::ofstream(folder_ / name, std::ios::binary) << content;
  }
  [[nodiscard]] std::string read(const wchar_t* name) const {
    std::ostringstream content;
    content << std::ifstream(folder_ / name, std::ios::binary).rdbuf();
    return content.str();
  }
  [[nodiscard]] HANDLE opened(const wchar_t* name, DWORD access, DWORD how) const {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    return CreateFileW((folder_ / name).c_str(), access, FILE_SHARE_READ, &inherited, how, 0,
                       nullptr);
  }
  /// Standard input is the file "in"; the streams that are written go to "out" and "err".
  DWORD calvex(const std::wstring& words) const {
    const HANDLE in = opened(L"in", GENERIC_READ, OPEN_ALWAYS);
    const HANDLE out = opened(L"out", GENERIC_WRITE, CREATE_ALWAYS);
    const HANDLE err = opened(L"err", GENERIC_WRITE, CREATE_ALWAYS);
    const DWORD status = Process(words, in, out, err, folder_).status();
    for (const HANDLE stream : {in, out, err}) CloseHandle(stream);
    return status;
  }

  fs::path folder_;
};

TEST_F(WindowsProgram, TakesUnitsInAnyScript) {
  EXPECT_EQ(calvex(L"HPT 10 500 -u T=°C"), 0U) << read(L"err");
  EXPECT_EQ(read(L"out"), "H = 3373.998049 kJ/kg  enthalpy\r\n");
  EXPECT_EQ(calvex(L"convert V 1 m³/kg m³/kg"), 0U) << read(L"err");
  EXPECT_EQ(read(L"out"), text(u8"1 m³/kg = 1 m³/kg\r\n"));
}

TEST_F(WindowsProgram, RepeatsAWordThatItDoesNotKnow) {
  EXPECT_EQ(calvex(L"энтальпия 1"), 2U);
  EXPECT_TRUE(read(L"err").starts_with(text(u8"calvex: there is no member or command 'энтальпия'")))
      << read(L"err");
  EXPECT_EQ(calvex(L"*"), 2U);
  EXPECT_TRUE(read(L"err").starts_with("calvex: there is no member or command '*'"))
      << read(L"err");
}

TEST_F(WindowsProgram, HelpsWithoutAdviceForOtherSystems) {
  for (const wchar_t* command : {L"batch", L"config", L"plot", L"run"}) {
    EXPECT_EQ(calvex(std::wstring(L"help ") + command), 0U);
    const std::string help = read(L"out");
    EXPECT_GT(help.size(), 300U);
    for (const char* foreign :
         {"~/", "XDG", "zcat", "gzip", "apt ", "pip ", "Ctrl-D", "Tab", "'h="}) {
      EXPECT_EQ(help.find(foreign), std::string::npos) << foreign << " in:\n" << help;
    }
  }
  EXPECT_EQ(calvex(L"plot hs -o x.svg"), 1U);
  EXPECT_EQ(read(L"err"),
            "calvex: plot needs the Python package calvex, which is not made for Windows\r\n");
}

TEST_F(WindowsProgram, ReadsAndWritesFilesWhateverTheirNames) {
  write(L"Łódź тест 锅炉.csv", "P,T\n10,773.15\n");
  EXPECT_EQ(calvex(LR"(batch "Łódź тест 锅炉.csv" h=HPT(P,T) -o котельная.csv)"), 0U)
      << read(L"err");
  EXPECT_EQ(calvex(LR"(batch "Łódź тест 锅炉.csv" s=SPT(P,T) -o 锅炉锅炉锅炉锅炉锅.csv)"), 0U)
      << read(L"err");
  EXPECT_TRUE(read(L"котельная.csv").starts_with("P,T,h,why\n10,773.15,3373.998"));
  EXPECT_TRUE(read(L"锅炉锅炉锅炉锅炉锅.csv").starts_with("P,T,s,why\n10,773.15,6.597"));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_), {}), 6) << "in, out, err, three tables";

  write(L"скрипт.calvex", "HPT 10 773.15\n");
  EXPECT_EQ(calvex(L"run скрипт.calvex"), 0U) << read(L"err");
  EXPECT_EQ(read(L"out"), "HPT 10 773.15\r\n  H = 3373.998049 kJ/kg  enthalpy\r\n");
}

TEST_F(WindowsProgram, NamesAFileThatIsNotThereOrCannotBeWritten) {
  EXPECT_EQ(calvex(L"batch 锅炉.csv h=HPT(P,T)"), 2U);
  EXPECT_EQ(read(L"err"), text(u8"calvex: cannot read '锅炉.csv': No such file or directory\r\n"));
  EXPECT_EQ(calvex(L"run 锅炉.calvex"), 2U);
  EXPECT_EQ(read(L"err"),
            text(u8"calvex: cannot read '锅炉.calvex': No such file or directory\r\n"));
  write(L"in", "P\n1\n");
  EXPECT_EQ(calvex(L"batch - T=TSatP(P) -o Łódź/锅炉.csv"), 2U);
  EXPECT_EQ(read(L"err"),
            text(u8"calvex: cannot write 'Łódź/锅炉.csv': No such file or directory\r\n"));
}

TEST_F(WindowsProgram, KeepsUnitsInAFileWhateverItsName) {
  EXPECT_EQ(calvex(L"config T=°C"), 0U) << read(L"err");
  EXPECT_TRUE(read(L"настройки").ends_with("\nunit T=C\n")) << read(L"настройки");
  EXPECT_EQ(calvex(L"HPT 10 500"), 0U) << read(L"err");
  EXPECT_EQ(read(L"out"), "H = 3373.998049 kJ/kg  enthalpy\r\n");
  EXPECT_EQ(calvex(L"config"), 0U);
  EXPECT_NE(read(L"out").find(text(u8"настройки")), std::string::npos) << read(L"out");
}

// 1A is Ctrl-Z, the end of a text that is typed.
TEST_F(WindowsProgram, PassesTheBytesOfATableThrough) {
  for (const std::string end : {"\n", "\r\n"}) {
    write(L"in", "P,x" + end + "10,\x1A" + end);
    EXPECT_EQ(calvex(L"batch - c=CritP()"), 0U) << read(L"err");
    EXPECT_EQ(read(L"out"), "P,x,c,why" + end + "10,\x1A,22.055," + end);
  }
}

TEST_F(WindowsProgram, RunsAllOfAScriptThatComesThroughStandardInput) {
  for (const std::string end : {"\n", "\r\n"}) {
    write(L"in", "# a note \x1A" + end + "HPT 10 773.15" + end);
    EXPECT_EQ(calvex(L"run -"), 0U) << read(L"err");
    EXPECT_EQ(read(L"out"), "HPT 10 773.15\r\n  H = 3373.998049 kJ/kg  enthalpy\r\n");
  }
}

// A shell that is not Windows' own takes a CR for part of the last word.
TEST_F(WindowsProgram, EndsTheLinesOfCompletionsAsTheirShellsDo) {
  for (const wchar_t* shell : {L"bash", L"zsh", L"fish"}) {
    EXPECT_EQ(calvex(std::wstring(L"completion ") + shell), 0U) << read(L"err");
    EXPECT_GT(read(L"out").size(), 1000U);
    EXPECT_EQ(read(L"out").find('\r'), std::string::npos);
  }
}

/// A console of this process's own.
class Console {
 public:
  Console() {
    FreeConsole();
    EXPECT_TRUE(AllocConsole());
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const auto opened = [&](const wchar_t* name) {
      return CreateFileW(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                         &inherited, OPEN_EXISTING, 0, nullptr);
    };
    in = opened(L"CONIN$");
    out = opened(L"CONOUT$");
  }
  ~Console() {
    CloseHandle(in);
    CloseHandle(out);
    FreeConsole();
  }
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;

  void type(std::wstring_view text) const {
    for (const wchar_t character : text) {
      INPUT_RECORD key{};
      key.EventType = KEY_EVENT;
      key.Event.KeyEvent.bKeyDown = TRUE;
      key.Event.KeyEvent.wRepeatCount = 1;
      key.Event.KeyEvent.wVirtualKeyCode = character == L'\r' ? VK_RETURN : 0;
      key.Event.KeyEvent.uChar.UnicodeChar = character;
      DWORD written = 0;
      EXPECT_TRUE(WriteConsoleInputW(in, &key, 1, &written));
    }
  }
  [[nodiscard]] std::wstring line(SHORT number) const {
    std::wstring line(80, L'\0');
    DWORD size = 0;
    ReadConsoleOutputCharacterW(out, line.data(), 80, COORD{0, number}, &size);
    line.resize(size);
    line.erase(line.find_last_not_of(L' ') + 1);
    return line;
  }

  HANDLE in, out;
};

TEST_F(WindowsProgram, AConsoleShowsUnitsAsTheyAre) {
  const Console console;
  const UINT before = GetConsoleOutputCP();
  EXPECT_EQ(
      Process(L"convert V 1 m³/kg m³/kg", console.in, console.out, console.out, folder_).status(),
      0U);
  EXPECT_EQ(console.line(0), L"1 m³/kg = 1 m³/kg");
  EXPECT_EQ(GetConsoleOutputCP(), before);
}

TEST_F(WindowsProgram, TheShellTakesUnitsAsTheyAreTyped) {
  const Console console;
  console.type(L"convert T 100 °C K\rquit\r");
  EXPECT_EQ(Process(L"run", console.in, console.out, console.out, folder_).status(), 0U);
  EXPECT_EQ(console.line(2), L"100 C = 373.15 K");
}

}  // namespace
}  // namespace calvex::cli
