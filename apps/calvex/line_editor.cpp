#include "line_editor.h"

#include <iostream>

#ifdef CALVEX_LINE_EDITOR
#include <editline/readline.h>

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#elif defined(_WIN32)
#include <windows.h>

#include "units/utf16.h"
#endif

namespace calvex::cli {

#ifdef CALVEX_LINE_EDITOR

namespace {

constexpr int longestHistory = 1000;

LineEditor::Completer& completer() {
  static LineEditor::Completer current;
  return current;
}

char* copied(std::string_view text) {
  auto* const copy = static_cast<char*>(std::malloc(text.size() + 1));
  if (copy == nullptr) return nullptr;
  std::memcpy(copy, text.data(), text.size());
  copy[text.size()] = '\0';
  return copy;
}

// What the library asks for: a list that it frees, the common beginning first, a null last. It
// looks at the third place of every list to see whether the word is the only one.
char** complete(const char* word, int start, int /*end*/) {
  rl_attempted_completion_over = 1;  // no file names
  const std::string_view before(rl_line_buffer, static_cast<std::size_t>(start));
  const std::vector<std::string> words = completer()(before, word);
  if (words.empty()) return nullptr;
  std::string_view common = words.front();
  for (const std::string& other : words) {
    const auto same = std::ranges::mismatch(common, other).in1 - common.begin();
    common = common.substr(0, static_cast<std::size_t>(same));
  }
  // The typed letters stay where the words agree on nothing more (their case may differ).
  if (common.size() < std::strlen(word)) common = word;
  const std::size_t count = words.size() == 1 ? 0 : words.size();
  auto** const list = static_cast<char**>(std::calloc(count + 3, sizeof(char*)));
  if (list == nullptr) return nullptr;
  list[0] = copied(common);
  for (std::size_t i = 0; i < count; ++i) list[i + 1] = copied(words[i]);
  return list;
}

}  // namespace

LineEditor::LineEditor(std::string history, Completer newCompleter) : history_(std::move(history)) {
  std::setlocale(LC_CTYPE, "");  // the library edits characters, not bytes
  completer() = std::move(newCompleter);
  static char name[] = "calvex";
  rl_readline_name = name;
  rl_initialize();
  rl_basic_word_break_characters = " \t";
  rl_attempted_completion_function = complete;
  using_history();
  stifle_history(longestHistory);
  if (!history_.empty()) read_history(history_.c_str());
}

LineEditor::~LineEditor() { completer() = {}; }

std::optional<std::string> LineEditor::read(const std::string& prompt) {
  std::cout.flush();
  char* const typed = readline(prompt.c_str());
  if (typed == nullptr) return std::nullopt;
  std::string line(typed);
  std::free(typed);
  if (line.find_first_not_of(" \t") != std::string::npos) {
    const HIST_ENTRY* const last = history_get(history_base + history_length - 1);
    if (last == nullptr || line != last->line) add_history(line.c_str());
    if (!history_.empty()) {
      std::error_code error;  // a history that cannot be kept is no reason to stop
      std::filesystem::create_directories(std::filesystem::path(history_).parent_path(), error);
      write_history(history_.c_str());
    }
  }
  return line;
}

#else

namespace {

// A Windows console hands over its own code page's bytes.
std::string utf8OfTyped(std::string line) {
#ifdef _WIN32
  std::wstring wide(line.size(), L'\0');
  const int size = static_cast<int>(line.size());
  wide.resize(static_cast<std::size_t>(
      MultiByteToWideChar(GetConsoleCP(), 0, line.data(), size, wide.data(), size)));
  return utf8Of<wchar_t>(wide);
#else
  return line;
#endif
}

}  // namespace

LineEditor::LineEditor(std::string history, Completer /*newCompleter*/)
    : history_(std::move(history)) {}
LineEditor::~LineEditor() = default;

std::optional<std::string> LineEditor::read(const std::string& prompt) {
  std::cout << prompt << std::flush;
  std::string line;
  if (!std::getline(std::cin, line)) return std::nullopt;
  return utf8OfTyped(std::move(line));
}

#endif

}  // namespace calvex::cli
