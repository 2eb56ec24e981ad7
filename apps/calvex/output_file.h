/// \file
/// A file that is whole or not there.
#pragma once

#include <filesystem>
#include <fstream>

namespace calvex::cli {

/// Writes beside the file that is meant, under its name with ".part" behind it, and puts it in its
/// place at the end. Until then what had the name before stays; what was begun is removed when this
/// goes without `finish`, and when the user interrupts the program. Devices and pipes are written
/// at once.
class OutputFile {
 public:
  /// Throws UsageError when the file cannot be made, also when a ".part" is there: another run is
  /// writing it, or one was ended halfway, which is not taken up again.
  explicit OutputFile(const std::filesystem::path& file);
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  [[nodiscard]] std::ostream& stream() { return stream_; }
  /// Throws Failure when not everything could be written.
  void finish();

 private:
  std::filesystem::path file_;
  std::filesystem::path part_;  ///< empty: written at once
  std::ofstream stream_;
};

}  // namespace calvex::cli
