#include "config.h"

#include <fmt/format.h>

#include <filesystem>
#include <fstream>

#include "client.h"
#include "encoding.h"
#include "environment.h"

namespace calvex::cli {

namespace {

namespace fs = std::filesystem;

std::string environment(const char* name) { return environmentVariable(name).value_or(""); }

// A folder of the user's, as the XDG base directory specification has it: what the variable names
// when that is an absolute path, else a folder in the home.
std::string userFolder([[maybe_unused]] const char* variable, [[maybe_unused]] const char* inHome) {
#ifdef _WIN32
  const std::string data = environment("APPDATA");
  return data.empty() ? std::string() : data + "/calvex";
#else
  const std::string named = environment(variable);
  if (fs::path(named).is_absolute()) return named + "/calvex";
  const std::string home = environment("HOME");
  return home.empty() ? std::string() : fmt::format("{}/{}/calvex", home, inHome);
#endif
}

std::string inUserFolder(const std::string& folder, const char* file) {
  return folder.empty() ? std::string() : fmt::format("{}/{}", folder, file);
}

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

}  // namespace

std::string configPath() {
  if (const auto named = environmentVariable("CALVEX_CONFIG")) return *named;
  return inUserFolder(userFolder("XDG_CONFIG_HOME", ".config"), "config");
}

std::string historyPath() {
  return inUserFolder(userFolder("XDG_STATE_HOME", ".local/state"), "history");
}

StartingOptions readConfig(const std::string& path) {
  StartingOptions options;
  std::ifstream in(pathNamed(path), std::ios::binary);
  if (std::error_code error; !in && fs::exists(pathNamed(path), error)) {
    throw UsageError(fmt::format("cannot read {}\n--no-config leaves it out", path));
  }
  std::string text;
  for (int number = 1; std::getline(in, text); ++number) {
    const std::string_view line = trimmed(text);
    if (line.empty() || line.front() == '#') continue;
    const std::size_t blank = line.find(' ');
    const std::string_view kind = line.substr(0, blank);
    ClientOptions one;
    try {
      if (blank == std::string_view::npos || (kind != "unit" && kind != "set")) {
        throw UsageError(
            fmt::format("{} should read 'unit GROUP=UNIT' or 'set SETTING=VALUE'", inQuotes(line)));
      }
      (kind == "unit" ? one.units : one.settings).emplace_back(trimmed(line.substr(blank)));
      Client client;
      one.applyTo(client);
    } catch (const Failure& failure) {
      throw UsageError(fmt::format("{}, line {}: {}\nMend it, or leave it out with --no-config",
                                   path, number, failure.what()));
    }
    options.units.insert(options.units.end(), one.units.begin(), one.units.end());
    options.settings.insert(options.settings.end(), one.settings.begin(), one.settings.end());
  }
  return options;
}

void writeConfig(const std::string& path, const StartingOptions& options) {
  const fs::path file = pathNamed(path);
  std::error_code error;
  const auto check = [&](const char* action) {
    if (error) {
      throw Failure(ExitStatus::callFailed, fmt::format("cannot {} {}: {}", action, path,
                                                        error.default_error_condition().message()));
    }
  };
  if (options.units.empty() && options.settings.empty()) {
    fs::remove(file, error);
    return check("remove");
  }
  if (const fs::path folder = file.parent_path(); !folder.empty()) {
    fs::create_directories(folder, error);
    check("make the folder of");
  }
  const fs::path fresh = pathNamed(path + ".new");
  {
    std::ofstream out(fresh, std::ios::binary);
    out << "# Units and settings that calvex starts with; 'calvex config' shows and changes "
           "them.\n";
    for (const std::string& unit : options.units) out << "unit " << unit << '\n';
    for (const std::string& setting : options.settings) out << "set " << setting << '\n';
    out.close();
    if (!out) {
      fs::remove(fresh, error);
      throw Failure(ExitStatus::callFailed, fmt::format("cannot write {}", path));
    }
  }
  fs::rename(fresh, file, error);
  check("write");
}

}  // namespace calvex::cli
