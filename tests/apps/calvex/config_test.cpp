#include "config.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "command_line_harness.h"

namespace calvex::cli::test {
namespace {

namespace fs = std::filesystem;

/// A user with a file of his own.
class Config : public testing::Test {
 protected:
  Config()
      : folder_(testing::TempDir() + "calvex_config_" + std::to_string(getpid())),
        path_(folder_ + "/deep/config") {}
  ~Config() override { fs::remove_all(folder_); }

  Answer calvex(Words words, const std::string& input = "") {
    std::istringstream in(input);
    std::ostringstream out, err;
    Console console{in, out, err};
    console.configFile = path_;
    console.startingOptions = [this] { return readConfig(path_); };
    const ExitStatus status = runCommandLine(std::move(words), console);
    return {static_cast<int>(status), out.str(), err.str()};
  }
  void write(const std::string& text) {
    fs::create_directories(fs::path(path_).parent_path());
    std::ofstream(path_) << text;
  }
  [[nodiscard]] std::string content() const {
    std::ostringstream text;
    text << std::ifstream(path_).rdbuf();
    return text.str();
  }

  std::string folder_, path_;
};

TEST_F(Config, RemembersUnitsAndSettingsForLaterCalls) {
  const std::string here = calvex({"HPT", "10", "773.15"}).out;
  EXPECT_EQ(calvex({"config", "temperature=degC", "-u", "p=bar", "satpolish=0"}).status, 0);
  EXPECT_TRUE(contains(content(), "unit T=C\nunit P=bara\nset SatPolish=0\n")) << content();
  EXPECT_EQ(calvex({"HPT", "100", "500"}).out, here);
  EXPECT_EQ(calvex({"SatPolish"}).out, "SatPolish = 0  exactness of the saturation line\n");
  EXPECT_EQ(calvex({"HPT", "100", "773.15", "-u", "T=K"}).out, here) << "-u goes on from there";
  EXPECT_EQ(calvex({"HPT", "10", "773.15", "--no-config"}).out, here);
  EXPECT_EQ(calvex({"--no-config", "HPT", "10", "773.15"}).out, here);
  EXPECT_TRUE(contains(calvex({"config"}).out, "  P=bara "));
}

TEST_F(Config, ScriptsStartWithoutItUnlessAsked) {
  calvex({"config", "T=C"});
  const std::string plain = calvex({"run", "--json"}, "CritT\n").out;
  EXPECT_TRUE(contains(plain, "\"value\":647.126,")) << plain;
  const std::string asked = calvex({"run", "--json", "--config"}, "CritT\n").out;
  EXPECT_NEAR(numberAt(asked, "value"), 373.976, 1e-9);
  EXPECT_EQ(calvex({"run", "--json", "--config", "--no-config"}, "CritT\n").out, plain);
}

TEST_F(Config, ForgetsOneOrAll) {
  calvex({"config", "T=C", "P=bar", "SatPolish=0"});
  calvex({"config", "Pressure="});
  EXPECT_TRUE(contains(content(), "unit T=C\nset SatPolish=0\n")) << content();
  calvex({"config", "T=F"});
  EXPECT_TRUE(contains(content(), "unit T=F\n")) << content();
  EXPECT_FALSE(contains(content(), "T=C")) << content();
  EXPECT_TRUE(contains(calvex({"config", "--clear"}).out, "nothing is remembered"));
  EXPECT_FALSE(fs::exists(path_));
}

TEST_F(Config, NothingIsWrittenOfWhatIsWrong) {
  EXPECT_EQ(calvex({"config", "T=C", "P=furlong"}).status, 2);
  EXPECT_EQ(calvex({"config", "Presure=bar"}).status, 2);
  EXPECT_EQ(calvex({"config", "T"}).status, 2);
  EXPECT_EQ(calvex({"config", "LastError=x"}).status, 2);
  const Answer refused = calvex({"config", "TraceLevel=9"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_TRUE(contains(refused.err, "Invalid reporting level.")) << refused.err;
  EXPECT_FALSE(fs::exists(path_));
}

TEST_F(Config, AWrongFileIsNamedWithItsLineAndCanBeLeftOut) {
  for (const char* line : {"unit T=furlong", "unit T", "T=C", "set Satpolis=0", "\"", "set X"}) {
    write("# mine\n" + std::string(line) + "\n");
    const Answer answer = calvex({"HPT", "10", "773.15"});
    EXPECT_EQ(answer.status, 2) << line;
    EXPECT_TRUE(contains(answer.err, path_ + ", line 2: ")) << answer.err;
    EXPECT_TRUE(contains(answer.err, "--no-config")) << answer.err;
    EXPECT_EQ(calvex({"HPT", "10", "773.15", "--no-config"}).status, 0);
    EXPECT_EQ(calvex({"convert", "P", "1", "bar", "psi"}).status, 0);
    EXPECT_EQ(calvex({"config", "--clear"}).status, 0);
  }
}

TEST_F(Config, AUnitThatIsNotPhysicalIsWarnedOfEachTime) {
  EXPECT_TRUE(contains(calvex({"config", "V=ft3/lb"}).err, "not the physical unit"));
  EXPECT_TRUE(contains(calvex({"VPT", "10", "773.15"}).err, "not the physical unit"));
  EXPECT_EQ(calvex({"config", "V=ft3/lbm"}).err, "");
  EXPECT_TRUE(contains(calvex({"VPT", "10", "773.15"}).out, "ft3/lbm"));
}

#ifndef _WIN32
TEST_F(Config, AFolderThatCannotBeMadeIsAFailure) {
  path_ = "/dev/null/config";
  const Answer answer = calvex({"config", "T=C"});
  EXPECT_EQ(answer.status, 1);
  EXPECT_TRUE(contains(answer.err, "cannot make the folder of /dev/null/config")) << answer.err;
}

/// Sets a variable for a test, or takes it away.
class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) {
    if (const char* before = std::getenv(name)) before_ = before;
    set(value);
  }
  ~Variable() { set(before_ ? before_->c_str() : nullptr); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  void set(const char* value) const {
    value == nullptr ? unsetenv(name_) : setenv(name_, value, 1);
  }
  const char* name_;
  std::optional<std::string> before_;
};

TEST(ConfigPath, IsInTheUsersFolderForSuchFiles) {
  const Variable home("HOME", "/home/user"), none("CALVEX_CONFIG", nullptr);
  {
    const Variable folder("XDG_CONFIG_HOME", nullptr);
    EXPECT_EQ(configPath(), "/home/user/.config/calvex/config");
  }
  {
    const Variable folder("XDG_CONFIG_HOME", "/etc/mine");
    EXPECT_EQ(configPath(), "/etc/mine/calvex/config");
    const Variable file("CALVEX_CONFIG", "here");
    EXPECT_EQ(configPath(), "here");
    const Variable empty("CALVEX_CONFIG", "");
    EXPECT_EQ(configPath(), "");
  }
  const Variable relative("XDG_CONFIG_HOME", "mine");
  EXPECT_EQ(configPath(), "/home/user/.config/calvex/config") << "a relative path counts as none";
  const Variable homeless("HOME", nullptr);
  EXPECT_EQ(configPath(), "");
}

TEST(HistoryPath, IsInTheUsersFolderForStates) {
  const Variable home("HOME", "/home/user"), folder("XDG_STATE_HOME", nullptr);
  EXPECT_EQ(historyPath(), "/home/user/.local/state/calvex/history");
  const Variable named("XDG_STATE_HOME", "/var/mine");
  EXPECT_EQ(historyPath(), "/var/mine/calvex/history");
}
#endif

}  // namespace
}  // namespace calvex::cli::test
