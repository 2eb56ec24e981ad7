#include "csv.h"

#include <fmt/format.h>

#include <algorithm>
#include <istream>

#include "failure.h"

namespace calvex::cli {

namespace {

// Behind the closing quote of a text that begins with a quote; npos when it is not closed.
std::size_t endOfQuotes(std::string_view text) {
  std::size_t i = text.find('"', 1);
  while (i != std::string_view::npos && i + 1 < text.size() && text[i + 1] == '"') {
    i = text.find('"', i + 2);
  }
  return i == std::string_view::npos ? i : i + 1;
}

// Behind the cell that the text begins with: at a separator, a line's end or the end of the text.
// npos when a quote is open at the end.
std::size_t endOfCell(std::string_view text, char separator) {
  std::size_t i = text.starts_with('"') ? endOfQuotes(text) : 0;
  while (i < text.size() && text[i] != separator && text[i] != '\n') ++i;
  return i;
}

// Behind the last line's end that is not inside quotes.
std::size_t endOfRecords(std::string_view text, char separator) {
  if (text.find('"') == std::string_view::npos) return text.rfind('\n') + 1;  // npos + 1 is 0
  std::size_t end = 0;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = endOfCell(text.substr(i), separator);
    if (length == std::string_view::npos || i + length == text.size()) break;
    i += length + 1;
    if (text[i - 1] == '\n') end = i;
  }
  return end;
}

}  // namespace

std::string_view withoutBlanks(std::string_view text) {
  text.remove_prefix(std::min(text.size(), text.find_first_not_of(" \t")));
  return text.substr(0, text.find_last_not_of(" \t") + 1);
}

void takeRecord(std::string_view& text, char separator, CsvRecord& record) {
  record.cells.clear();
  std::size_t begin = 0;
  for (;;) {
    const std::string_view rest = text.substr(begin);
    const std::size_t length = endOfCell(rest, separator);
    if (length == std::string_view::npos) throw UsageError("a quote is never closed");
    std::string_view cell = rest.substr(0, length);
    begin += length;
    const bool ends = begin == text.size() || text[begin] == '\n';
    const bool carriageReturn = ends && begin != text.size() && cell.ends_with('\r');
    if (carriageReturn) cell.remove_suffix(1);
    if (cell.starts_with('"') && endOfQuotes(cell) != cell.size()) {
      throw UsageError(
          "something stands between a closing quote and the next separator (a quote inside quotes "
          "is doubled)");
    }
    record.cells.push_back(cell);
    if (ends) {
      const std::size_t textLength = begin - (carriageReturn ? 1 : 0);
      if (begin != text.size()) ++begin;
      record.text = text.substr(0, textLength);
      record.lineEnd = text.substr(textLength, begin - textLength);
      text.remove_prefix(begin);
      return;
    }
    ++begin;
  }
}

std::string_view cellText(std::string_view cell, std::string& buffer) {
  if (!cell.starts_with('"')) return cell;
  cell = cell.substr(1, cell.size() - 2);
  if (cell.find('"') == std::string_view::npos) return cell;
  buffer.clear();
  for (std::size_t i = 0; i < cell.size(); ++i) {
    buffer += cell[i];
    if (cell[i] == '"') ++i;  // its double
  }
  return buffer;
}

std::string csvCell(std::string_view text, char separator) {
  const bool plain = text.find(separator) == std::string_view::npos &&
                     text.find_first_of("\"\n\r") == std::string_view::npos;
  if (plain) return std::string(text);
  std::string cell = "\"";
  for (const char c : text) {
    if (c == '"') cell += c;
    cell += c;
  }
  return cell + '"';
}

std::string csvLine(const std::vector<std::string>& texts) {
  std::string line;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (i > 0) line += ',';
    line += csvCell(texts[i], ',');
  }
  return line + '\n';
}

char guessSeparator(std::string_view text) {
  std::size_t commas = 0, semicolons = 0;
  bool quoted = false;
  for (const char c : text) {
    if (c == '"') quoted = !quoted;
    if (quoted) continue;
    if (c == '\t') return c;
    if (c == '\n') break;
    commas += c == ',' ? 1 : 0;
    semicolons += c == ';' ? 1 : 0;
  }
  return semicolons > commas ? ';' : ',';
}

CsvBlocks::CsvBlocks(std::istream& in) : in_(in) {
  readMore(blockSize);
  if (pending_.starts_with("\xFF\xFE") || pending_.starts_with("\xFE\xFF") ||
      pending_.find('\0') != std::string::npos) {
    throw UsageError(
        "the input is not text in UTF-8 (perhaps UTF-16); save it as \"CSV UTF-8\" or convert it "
        "with iconv");
  }
  hadByteOrderMark_ = pending_.starts_with(byteOrderMark);
  if (hadByteOrderMark_) pending_.erase(0, byteOrderMark.size());
}

void CsvBlocks::readMore(std::size_t bytes) {
  const std::size_t before = pending_.size();
  pending_.resize(before + bytes);
  in_.read(pending_.data() + before, static_cast<std::streamsize>(bytes));
  pending_.resize(before + static_cast<std::size_t>(in_.gcount()));
  if (in_.bad()) throw Failure(ExitStatus::callFailed, "the input cannot be read to its end");
}

CsvBlocks::Block CsvBlocks::next(char separator) {
  if (pending_.size() < blockSize && in_) readMore(blockSize - pending_.size());
  std::size_t end = endOfRecords(pending_, separator);
  while (end == 0 && in_ && pending_.size() < longestRecord) {
    readMore(pending_.size());
    end = endOfRecords(pending_, separator);
  }
  if (!in_ && end == 0) end = pending_.size();  // the last line need not be ended
  if (end == 0 && in_) {
    throw UsageError(
        fmt::format("line {} begins a row of more than {} bytes: is a quote not closed?", line_,
                    longestRecord));
  }
  Block block{pending_.substr(0, end), line_};
  pending_.erase(0, end);
  line_ += static_cast<std::size_t>(std::ranges::count(block.text, '\n'));
  return block;
}

}  // namespace calvex::cli
