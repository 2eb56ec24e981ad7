// The program on a terminal, as a user sits before it.
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Arguments = std::vector<std::string>;

/// A user's folders, and a program that runs on a terminal of its own.
class OnATerminal : public testing::Test {
 protected:
  OnATerminal() : home_(testing::TempDir() + "calvex_home_XXXXXX") {
    if (mkdtemp(home_.data()) == nullptr) throw std::runtime_error("no folder " + home_);
  }
  ~OnATerminal() override {
    if (child_ > 0) {  // a test gave up: the program waits for keys
      kill(child_, SIGKILL);
      finish();
    }
    fs::remove_all(home_);
  }

  void start(Arguments arguments,
             const std::vector<std::pair<const char*, const char*>>& more = {}) {
    screen_.clear();
    child_ = forkpty(&terminal_, nullptr, nullptr, &size_);
    ASSERT_GE(child_, 0);
    if (child_ != 0) return;
    setenv("HOME", home_.c_str(), 1);
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_STATE_HOME", "CALVEX_CONFIG", "NO_COLOR"}) {
      unsetenv(name);
    }
    setenv("TERM", "xterm", 1);
    for (const auto& [name, value] : more) setenv(name, value, 1);
    arguments.insert(arguments.begin(), CALVEX_CLI);
    std::vector<char*> words;
    for (std::string& word : arguments) words.push_back(word.data());
    words.push_back(nullptr);
    execv(CALVEX_CLI, words.data());
    _exit(127);
  }

  /// Keys typed at a prompt. The editor takes the terminal over only after its prompt is out: until
  /// then a Ctrl-D would be the terminal's.
  void type(const std::string& keys) {
    termios line{};
    for (int waited = 0; waited < 2000; ++waited) {
      if (tcgetattr(terminal_, &line) != 0 || (line.c_lflag & ICANON) == 0U) break;
      usleep(1000);
    }
    send(keys);
  }

  /// Keys for a program that edits no lines.
  void send(const std::string& keys) {
    ASSERT_EQ(write(terminal_, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
  }

  /// Reads until that text appears behind what was seen before.
  testing::AssertionResult sees(const std::string& text) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    for (;;) {
      if (const std::size_t at = screen_.find(text, seen_); at != std::string::npos) {
        seen_ = at + text.size();
        return testing::AssertionSuccess();
      }
      if (std::chrono::steady_clock::now() > end || !readSome()) {
        return testing::AssertionFailure() << "not '" << text << "' but\n" << screen_.substr(seen_);
      }
    }
  }

  /// Types a line and waits for the answer and the next prompt: keys that come between two prompts
  /// are not the editor's.
  testing::AssertionResult answers(const std::string& keys, const std::string& text) {
    type(keys);
    const testing::AssertionResult seen = sees(text);
    return seen ? sees(prompt) : seen;
  }

  /// The exit status.
  int finish() {
    while (readSome()) {
    }
    int status = 0;
    for (int waited = 0; waitpid(child_, &status, WNOHANG) == 0; ++waited) {
      if (waited == 2000) kill(child_, SIGKILL);
      usleep(1000);
    }
    close(terminal_);
    child_ = 0;
    seen_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  static constexpr const char* prompt = "calvex> ";
  winsize size_{};  ///< of the terminal
  std::string home_;
  std::string screen_;

 private:
  // False at the end of the program, or when nothing comes for long.
  bool readSome() {
    pollfd wanted{terminal_, POLLIN, 0};
    if (poll(&wanted, 1, 20000) <= 0) return false;
    char buffer[4096];
    const ssize_t count = read(terminal_, buffer, sizeof buffer);
    if (count <= 0) return false;
    screen_.append(buffer, static_cast<std::size_t>(count));
    return true;
  }

  std::size_t seen_ = 0;
  pid_t child_ = 0;
  int terminal_ = -1;
};

TEST_F(OnATerminal, TablesKeepToItsWidth) {
  size_ = {.ws_row = 25, .ws_col = 80, .ws_xpixel = 0, .ws_ypixel = 0};
  start({"table", "saturation", "--from", "300", "--to", "600", "--step", "100"});
  EXPECT_EQ(finish(), 0);
  std::istringstream lines(screen_);
  int count = 0;
  for (std::string line; std::getline(lines, line); ++count) {
    EXPECT_LE(line.find('\r'), 80U) << line;
  }
  EXPECT_EQ(count, 3 * 6 + 2) << screen_;
}

TEST_F(OnATerminal, RunIsAShellThatAnswersLineByLine) {
  start({"run"});
  ASSERT_TRUE(sees("'help' explains"));
  ASSERT_TRUE(sees(prompt));
  ASSERT_TRUE(answers("SetUserUnit T degC\r", "done"));
  ASSERT_TRUE(answers("HPT 10 500\r", "3373.998049"));
  ASSERT_TRUE(answers("HPT 10 773.15 -u T=K\r", "3373.998049"));
  ASSERT_TRUE(answers("HTP 10 500\r", "there is no member 'HTP'; did you mean HPT"));
  ASSERT_TRUE(answers("convert P 1 bar kPa\r", "1 bara = 100 kPa"));
  // Commands use the units of the session.
  ASSERT_TRUE(answers("table isobar 10 --from 500 --to 500 --step 1\r", "3373.998"));
  ASSERT_TRUE(answers("help\r", "Tab completes names"));
  ASSERT_TRUE(answers("run\r", "this is the shell"));
  type("quit\r");
  EXPECT_EQ(finish(), 0);
}

TEST_F(OnATerminal, TheShellCompletesNames) {
  start({"run"});
  ASSERT_TRUE(sees(prompt));
  ASSERT_TRUE(answers("TSa\t0.101325\r", "373.1"));  // the rest of TSatP and a blank
  type("setuseru\t\t");
  ASSERT_TRUE(sees("SetUserUnitIndex"));
  ASSERT_TRUE(answers("\x15SetUserUnit Pres\tbara\r", "done"));
  ASSERT_TRUE(answers("SetUserUnit T \"\r", "a closing quote is missing"));
  type("\x04");
  EXPECT_EQ(finish(), 0);
}

TEST_F(OnATerminal, TheShellKeepsItsHistory) {
  start({"run"});
  ASSERT_TRUE(sees(prompt));
  ASSERT_TRUE(answers("PSatT 373.15\r", "0.101"));
  type("quit\r");
  EXPECT_EQ(finish(), 0);
  std::ostringstream history;
  history << std::ifstream(home_ + "/.local/state/calvex/history").rdbuf();
  EXPECT_NE(history.str().find("PSatT"), std::string::npos) << history.str();

  start({"run"});
  ASSERT_TRUE(sees(prompt));
  ASSERT_TRUE(answers("\x1B[A\x1B[A\r", "0.101"));  // behind quit
  type("quit\r");
  EXPECT_EQ(finish(), 0);
}

TEST_F(OnATerminal, JsonAndFilesAreReadPlainly) {
  start({"run", "--json"});
  send("TraceLevel\r\x04");
  ASSERT_TRUE(sees("{\"member\":\"TraceLevel\",\"hresult\":0,\"value\":1}"));
  EXPECT_EQ(finish(), 0);
  EXPECT_EQ(screen_.find("calvex> "), std::string::npos) << screen_;
}

TEST_F(OnATerminal, AFailingLineStandsInItsPlaceOnce) {
  const std::string script = home_ + "/script";
  std::ofstream(script) << "TraceLevel\nHPT 10 99999\nSatPolish 1\n";
  start({"run", script});
  EXPECT_EQ(finish(), 1);
  const std::size_t line = screen_.find("HPT 10 99999"), reason = screen_.find("out of range"),
                    next = screen_.find("SatPolish 1");
  EXPECT_LT(line, reason) << screen_;
  EXPECT_LT(reason, next) << screen_;
  EXPECT_EQ(screen_.find("out of range", reason + 1), std::string::npos) << screen_;
}

TEST_F(OnATerminal, ErrorsAreColouredUnlessTheUserWantsNone) {
  start({"HPT", "10", "99999"});
  EXPECT_EQ(finish(), 1);
  EXPECT_NE(screen_.find("\x1B[1;31mcalvex:\x1B[0m HPT failed"), std::string::npos) << screen_;
  for (const auto& [name, value] : {std::pair{"NO_COLOR", "1"}, std::pair{"TERM", "dumb"}}) {
    start({"HPT", "10", "99999"}, {{name, value}});
    EXPECT_EQ(finish(), 1);
    EXPECT_EQ(screen_.find('\x1B'), std::string::npos) << screen_;
  }
}

TEST_F(OnATerminal, RemembersUnitsInTheUsersFolder) {
  start({"config", "T=C"});
  EXPECT_EQ(finish(), 0);
  EXPECT_TRUE(fs::exists(home_ + "/.config/calvex/config"));
  start({"HPT", "10", "500"});
  ASSERT_TRUE(sees("3373.998049"));
  EXPECT_EQ(finish(), 0);
  start({"HPT", "10", "773.15"}, {{"CALVEX_CONFIG", ""}});
  ASSERT_TRUE(sees("3373.998049"));
  EXPECT_EQ(finish(), 0);
}

}  // namespace
