// The binary interface: what the shared library shows is what the header declares and what is kept.
// A function that has been there stays there until the major version changes.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <memory>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include "support/checkout.h"

namespace calvex::test {
namespace {

using Names = std::set<std::string>;

std::string fileText(const std::string& name) {
  std::ifstream file(dataFolder() + "/../../" + name);
  EXPECT_TRUE(file) << name;
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

Names shown() {
  const std::string command = CALVEX_NM " -D --defined-only '" CALVEX_LIBRARY "'";
  std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  Names names;
  char line[1000];
  while (pipe && std::fgets(line, sizeof line, pipe.get()) != nullptr) {
    std::istringstream words(line);
    std::string address, kind, name;
    words >> address >> kind >> name;
    if (kind != "A") names.insert(name);  // the name of the version
  }
  return names;
}

TEST(ExportedSymbols, AreThoseThatAreKept) {
  std::istringstream list(fileText("tests/c/exported_symbols.txt"));
  Names kept;
  for (std::string name; list >> name;) kept.insert(name + "@@CALVEX_4");
  EXPECT_GT(kept.size(), 30U);
  EXPECT_EQ(shown(), kept);
}

TEST(ExportedSymbols, AreThoseThatTheHeaderDeclares) {
  const std::string header = fileText("include/calvex/calvex.h");
  Names declared;
  const std::regex declaration("CALVEX_API int (calvex_[a-z_]+)\\(");
  for (std::sregex_iterator at(header.begin(), header.end(), declaration), end; at != end; ++at) {
    declared.insert((*at)[1].str() + "@@CALVEX_4");
  }
  EXPECT_EQ(shown(), declared);
}

// Programs ask for the library by its major version.
TEST(ExportedSymbols, TheSonameHasTheMajorVersion) {
  const std::string library = CALVEX_LIBRARY;
  const std::string major = projectVersion().substr(0, projectVersion().find('.'));
  std::ifstream file(library, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  EXPECT_NE(bytes.str().find(std::string("\0libcalvex.so.", 14) + major + '\0'), std::string::npos);
}

}  // namespace
}  // namespace calvex::test
