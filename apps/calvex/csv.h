/// \file
/// Tables as text: records of cells by RFC 4180 (Y. Shafranovich, 2005), with a separator of one's
/// own, and as they come: line ends LF or CRLF, a byte order mark, quotes that mean themselves
/// inside a cell without quotes around it.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace calvex::cli {

inline constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// A row, as it stands in the text.
struct CsvRecord {
  std::vector<std::string_view> cells;  ///< with their quotes
  std::string_view text;                ///< without the line's end
  std::string_view lineEnd;             ///< "\n", "\r\n", or nothing at the end of the text

  [[nodiscard]] bool isBlank() const noexcept { return text.empty(); }
};

/// Takes the first record off a text that is not empty. Throws UsageError, the text untouched, when
/// a quote is not closed or something stands behind a closing one.
void takeRecord(std::string_view& text, char separator, CsvRecord& record);

/// Without the blanks and tabs around it.
[[nodiscard]] std::string_view withoutBlanks(std::string_view text);

/// What a cell says, without its quotes; `buffer` keeps it where quotes inside are doubled.
[[nodiscard]] std::string_view cellText(std::string_view cell, std::string& buffer);

/// The cell that says this, in quotes where it needs them.
[[nodiscard]] std::string csvCell(std::string_view text, char separator);

/// A record to write, with commas, ended.
[[nodiscard]] std::string csvLine(const std::vector<std::string>& texts);

/// Tab, semicolon or comma: the tab if the first record has one outside quotes, else the more
/// frequent of the others, else the comma.
[[nodiscard]] char guessSeparator(std::string_view text);

/// Whole records of a text that is read a block at a time.
class CsvBlocks {
 public:
  static constexpr std::size_t blockSize = std::size_t{1} << 16;
  static constexpr std::size_t longestRecord = std::size_t{1} << 20;

  struct Block {
    std::string text;
    std::size_t firstLine = 1;  ///< counted in line ends, from 1
  };

  /// Reads the beginning and skips a byte order mark. Throws UsageError for what is no text of
  /// single bytes (UTF-16).
  explicit CsvBlocks(std::istream& in);

  [[nodiscard]] bool hadByteOrderMark() const noexcept { return hadByteOrderMark_; }
  /// What the next block begins with: all of it or a block's size.
  [[nodiscard]] std::string_view beginning() const noexcept { return pending_; }

  /// The next records, about a block's size of them; an empty text at the end. What is in a block
  /// depends on the text alone. Throws UsageError for a record longer than longestRecord, Failure
  /// when the text cannot be read.
  [[nodiscard]] Block next(char separator);

 private:
  void readMore(std::size_t bytes);

  std::istream& in_;
  std::string pending_;
  std::size_t line_ = 1;
  bool hadByteOrderMark_ = false;
};

}  // namespace calvex::cli
