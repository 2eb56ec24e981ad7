#include "output_file.h"

#include <fmt/format.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <string>
#include <utility>
#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

#include "encoding.h"
#include "environment.h"
#include "failure.h"

namespace calvex::cli {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void refuse(const fs::path& file, std::string_view reason) {
  throw UsageError(fmt::format("cannot write {}: {}", inQuotes(nameOf(file)), reason));
}

// False when there is one already.
bool makeNew(const fs::path& file) {
#ifdef _WIN32
  return !fs::exists(file);
#else
  const int made = open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (made >= 0) close(made);
  return made >= 0 || errno != EEXIST;
#endif
}

#ifndef _WIN32

// What a signal's handler may look at: the file to be removed before the program ends.
std::string removedOnSignal;  // NOLINT(cert-err58-cpp)

void removeAndEnd(int signal) {
  unlink(removedOnSignal.c_str());
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

void guardAgainstSignals(const fs::path& file) {
  removedOnSignal = file.string();
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    if (std::signal(signal, removeAndEnd) == SIG_IGN) std::signal(signal, SIG_IGN);
  }
}

void endGuard() {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    if (std::signal(signal, SIG_DFL) == SIG_IGN) std::signal(signal, SIG_IGN);
  }
}

#else

// A file that is open cannot be removed there.
void guardAgainstSignals(const fs::path& /*file*/) {}
void endGuard() {}

#endif

}  // namespace

OutputFile::OutputFile(const fs::path& file) {
  std::error_code error;
  // A link stays one: what it leads to is replaced.
  file_ = fs::is_symlink(file, error) ? fs::weakly_canonical(file, error) : file;
  if (fs::is_directory(file_, error)) refuse(file, "it is a directory");
  const bool device = fs::exists(file_, error) && !fs::is_regular_file(file_, error);
  if (!device) {
    part_ = file_;
    part_ += ".part";
    if (!makeNew(part_)) {
      const fs::path part = std::exchange(part_, {});
      refuse(file, fmt::format("{} is there, of a run that is not finished; a run is not taken up "
                               "again: remove that file first",
                               inQuotes(nameOf(part))));
    }
  }
  errno = 0;
  stream_.open(device ? file_ : part_, std::ios::binary);
  if (!stream_) {
    part_.clear();
    refuse(file, std::strerror(errno));
  }
  if (!device) guardAgainstSignals(part_);
}

OutputFile::~OutputFile() {
  if (part_.empty()) return;
  stream_.close();
  std::error_code error;
  fs::remove(part_, error);
  endGuard();
}

void OutputFile::finish() {
  stream_.close();
  std::error_code error;
  if (stream_ && !part_.empty()) fs::rename(part_, file_, error);
  if (!stream_ || error) {
    throw Failure(ExitStatus::callFailed,
                  fmt::format("cannot write {}: {}", inQuotes(nameOf(file_)),
                              error ? error.default_error_condition().message()
                                    : "the device is full or failed"));
  }
  if (!part_.empty()) endGuard();
  part_.clear();
}

}  // namespace calvex::cli
