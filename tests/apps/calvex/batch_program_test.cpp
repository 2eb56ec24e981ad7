// Tables and the files that they come from and go to: the program as a user starts it.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <thread>

namespace {

namespace fs = std::filesystem;

class BatchProgram : public testing::Test {
 protected:
  BatchProgram()
      : folder_(fs::path(testing::TempDir()) / ("calvex_batch_" + std::to_string(getpid()))) {
    fs::create_directory(folder_);
  }
  ~BatchProgram() override { fs::remove_all(folder_); }

  [[nodiscard]] std::string path(const std::string& name) const { return folder_ / name; }
  void write(const std::string& name, const std::string& text) const {
    std::ofstream(path(name), std::ios::binary) << text;
  }
  [[nodiscard]] std::string read(const std::string& name) const {
    std::ifstream file(path(name), std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
  }
  [[nodiscard]] std::string files() const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_)) names.insert(entry.path().filename());
    std::string text;
    for (const std::string& name : names) text += name + " ";
    return text;
  }
  /// `arguments` are a shell's, in the folder.
  [[nodiscard]] int calvex(const std::string& arguments) const {
    const int status = std::system(("cd " + folder_.string() + " && " + CALVEX_CLI + " " +
                                    arguments + " >stdout.txt 2>stderr.txt")
                                       .c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  fs::path folder_;
};

TEST_F(BatchProgram, WritesAFile) {
  write("plant.csv", "P,T\n10,773.15\n");
  EXPECT_EQ(calvex("batch plant.csv 'h=HPT(P,T)' -o out.csv"), 0) << read("stderr.txt");
  EXPECT_EQ(read("stdout.txt") + read("stderr.txt"), "");
  EXPECT_TRUE(read("out.csv").starts_with("P,T,h,why\n10,773.15,3373.998")) << read("out.csv");
  EXPECT_EQ(files(), "out.csv plant.csv stderr.txt stdout.txt ");
}

TEST_F(BatchProgram, ReadsStandardInputAndWritesStandardOutput) {
  write("plant.csv", "P,T\n10,773.15\n");
  EXPECT_EQ(calvex("batch plant.csv 'h=HPT(P,T)'"), 0);
  const std::string fromFile = read("stdout.txt");
  EXPECT_EQ(calvex("batch - 'h=HPT(P,T)' <plant.csv"), 0);
  EXPECT_EQ(read("stdout.txt"), fromFile);
  EXPECT_TRUE(fromFile.starts_with("P,T,h,why\n"));
}

TEST_F(BatchProgram, ReplacesAnOutputOnlyWhenTheNewOneIsWhole) {
  write("out.csv", "old");
  write("good.csv", "P\n1\n");
  write("bad.csv", "P\n1\n1,2\n");
  EXPECT_EQ(calvex("batch bad.csv 'T=TSatP(P)' -o out.csv"), 2);
  EXPECT_EQ(read("out.csv"), "old");
  EXPECT_EQ(files(), "bad.csv good.csv out.csv stderr.txt stdout.txt ");
  EXPECT_EQ(calvex("batch good.csv 'T=TSatP(P)' -o out.csv"), 0);
  EXPECT_TRUE(read("out.csv").starts_with("P,T,why\n1,453."));
}

TEST_F(BatchProgram, ATableWithReasonsIsWhole) {
  write("plant.csv", "P\n1\n99\n");
  EXPECT_EQ(calvex("batch plant.csv 'T=TSatP(P)' -o out.csv"), 1);
  EXPECT_NE(read("out.csv").find("\n99,,T: Pressure parameter out of range"), std::string::npos)
      << read("out.csv");
  EXPECT_NE(read("stderr.txt").find("1 of 2 rows"), std::string::npos) << read("stderr.txt");
}

TEST_F(BatchProgram, DoesNotOverwriteItsInput) {
  const std::string table = "P\n1\n";
  write("plant.csv", table);
  fs::create_symlink("plant.csv", path("link.csv"));
  fs::create_hard_link(path("plant.csv"), path("hard.csv"));
  for (const char* words :
       {"plant.csv 'T=TSatP(P)' -o ./plant.csv", "plant.csv 'T=TSatP(P)' -o link.csv",
        "plant.csv 'T=TSatP(P)' -o hard.csv", "- 'T=TSatP(P)' -o plant.csv <plant.csv"}) {
    EXPECT_EQ(calvex(std::string("batch ") + words), 2) << words;
    EXPECT_NE(read("stderr.txt").find("is the input"), std::string::npos) << read("stderr.txt");
    EXPECT_EQ(read("plant.csv"), table);
  }
}

TEST_F(BatchProgram, DoesNotTakeUpAnUnfinishedRun) {
  write("plant.csv", "P\n1\n");
  write("out.csv.part", "half");
  EXPECT_EQ(calvex("batch plant.csv 'T=TSatP(P)' -o out.csv"), 2);
  EXPECT_NE(read("stderr.txt").find("'out.csv.part' is there"), std::string::npos)
      << read("stderr.txt");
  EXPECT_EQ(read("out.csv.part"), "half");
  EXPECT_FALSE(fs::exists(path("out.csv")));
}

TEST_F(BatchProgram, FollowsALinkAndWritesDevicesAtOnce) {
  write("plant.csv", "P\n1\n");
  write("real.csv", "old");
  fs::create_symlink("real.csv", path("out.csv"));
  EXPECT_EQ(calvex("batch plant.csv 'c=1' -o out.csv"), 0) << read("stderr.txt");
  EXPECT_TRUE(fs::is_symlink(path("out.csv")));
  EXPECT_EQ(read("real.csv"), "P,c,why\n1,1,\n");
  EXPECT_EQ(calvex("batch plant.csv 'c=1' -o /dev/null"), 0);
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  EXPECT_EQ(calvex("batch plant.csv 'c=1' -o /dev/full"), 1);
}

TEST_F(BatchProgram, FilesThatAreNoneAreRefused) {
  write("plant.csv", "P\n1\n");
  for (const char* words :
       {"none.csv c=1", ". c=1", "plant.csv c=1 -o .", "plant.csv c=1 -o none/out.csv", ""}) {
    EXPECT_EQ(calvex(std::string("batch ") + words), 2) << words;
    EXPECT_EQ(read("stdout.txt"), "");
    EXPECT_TRUE(read("stderr.txt").starts_with("calvex: ")) << read("stderr.txt");
  }
}

TEST_F(BatchProgram, LeavesNothingWhenInterrupted) {
  // Standard input stays open, so that the program waits in the middle of its work.
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const pid_t child = fork();
  if (child == 0) {
    dup2(ends[0], STDIN_FILENO);
    close(ends[1]);
    const std::string out = path("out.csv");
    execl(CALVEX_CLI, CALVEX_CLI, "batch", "-", "T=TSatP(P)", "-o", out.c_str(), nullptr);
    _exit(127);
  }
  close(ends[0]);
  for (int i = 0; i < 3000 && !fs::exists(path("out.csv.part")); ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  ASSERT_TRUE(fs::exists(path("out.csv.part")));
  std::this_thread::sleep_for(std::chrono::milliseconds(100));
  kill(child, SIGTERM);
  int status = 0;
  waitpid(child, &status, 0);
  close(ends[1]);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(files(), "");
}

TEST_F(BatchProgram, TakesNoMoreMemoryForALongTable) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  GTEST_SKIP() << "sanitizers take memory of their own";
#endif
  constexpr long rows = 1000000;
  {
    std::ofstream table(path("plant.csv"), std::ios::binary);
    table << "a place for words,P\n";
    for (long i = 0; i < rows; ++i)
      table << "a row of some sixty letters and not many more than that,10.25\n";
  }
  ASSERT_GT(fs::file_size(path("plant.csv")), 50000000U);
  ASSERT_EQ(calvex("batch plant.csv 'c=1' -o out.csv"), 0) << read("stderr.txt");
  rusage use{};
  getrusage(RUSAGE_CHILDREN, &use);
  EXPECT_LT(use.ru_maxrss, 40000)
      << "kilobytes";  // about 20,000 of two cores; the table has 51,000
  EXPECT_EQ(fs::file_size(path("out.csv")), fs::file_size(path("plant.csv")) + 3 * rows + 6);
}

}  // namespace
