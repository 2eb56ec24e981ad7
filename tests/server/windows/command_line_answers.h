/// \file
/// Runs the command line on a sequence of calls and reads its answers to the last bit.
#pragma once

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <bit>
#include <cstdio>
#include <fstream>
#include <string>
#include <variant>
#include <vector>

#include "client.h"
#include "interface_members.h"
#include "json.h"

namespace calvex::test {

/// One call of a sequence, as a line of the command line's scripts has it.
struct Line {
  const InterfaceEntry* entry;
  std::vector<std::string> words;  ///< inputs in call order, UTF-8
};

/// What a call answered, as a text that shows every bit: "hresult=0 pSucc=1 pH=40aa5bfeff...".
using Answers = std::vector<std::string>;

inline std::wstring fromUtf8(const std::string& text) {
  const int size = static_cast<int>(text.size());
  std::wstring result(static_cast<std::size_t>(size), L'\0');
  result.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, 0, text.data(), size, result.data(), size)));
  return result;
}
inline std::string toUtf8(BSTR text) {
  const int length = static_cast<int>(SysStringLen(text));
  std::string result(static_cast<std::size_t>(3 * length), '\0');
  result.resize(static_cast<std::size_t>(
      WideCharToMultiByte(CP_UTF8, 0, text, length, result.data(), 3 * length, nullptr, nullptr)));
  return result;
}

inline std::string bits(double value) {
  return fmt::format("{:016x}", std::bit_cast<unsigned long long>(value));
}

inline std::string bits(const Json& json, bool isText);
inline std::string rowsBits(const std::vector<Json>& rows) {
  std::string text;
  for (const Json& row : rows) {
    text += "[";
    for (const Json& cell : std::get<std::vector<Json>>(row.value)) {
      text += bits(cell, std::holds_alternative<std::string>(cell.value)) + ";";
    }
    text += "]";
  }
  return text;
}
inline std::string bits(const Json& json, bool isText) {
  if (const auto* rows = std::get_if<std::vector<Json>>(&json.value)) return rowsBits(*rows);
  if (const auto* number = std::get_if<double>(&json.value)) return bits(*number);
  const auto& text = std::get<std::string>(json.value);
  return isText ? fmt::format("'{}'", text) : bits(std::stod(text));  // "inf"
}

inline std::string answerOf(const Line& line, const std::string& jsonLine) {
  const Json json = JsonReader::read(jsonLine);
  const auto& object = json.object();
  EXPECT_EQ(object.count("member"), 1U) << jsonLine;
  EXPECT_EQ(std::get<std::string>(object.at("member").value), line.entry->name);
  std::string text = fmt::format("hresult={}", std::get<double>(object.at("hresult").value));
  for (const InterfaceParameter& parameter : line.entry->parameters) {
    if (!parameter.isOutput()) continue;
    const bool isValue = parameter.direction == "retval" && parameter.name != "pSucc";
    const auto found = object.find(isValue ? "value" : parameter.name);
    if (found == object.end()) continue;
    text += fmt::format(" {}={}", parameter.name, bits(found->second, parameter.type == VT_BSTR));
  }
  if (const auto error = object.find("lastError"); error != object.end()) {
    text += " error=" + std::get<std::string>(error->second.value);
  }
  return text;
}

inline std::wstring windowsPath(const std::string& path) {
  std::wstring full(32768, L'\0');
  full.resize(GetFullPathNameW(wide(path).c_str(), 32768, full.data(), nullptr));
  return full;
}

/// Runs the command line on a script; answers the lines that it prints.
inline std::vector<std::string> runCommandLine(const std::string& script) {
  const std::string base = fmt::format("every-member-{}", GetCurrentProcessId());
  const std::string in = base + ".calvex", out = base + ".json";
  std::FILE* file = std::fopen(in.c_str(), "wb");
  std::fwrite(script.data(), 1, script.size(), file);
  std::fclose(file);
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  const HANDLE output = CreateFileW(wide(out).c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited,
                                    CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  EXPECT_NE(output, INVALID_HANDLE_VALUE);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = output;
  PROCESS_INFORMATION process{};
  const std::wstring program = windowsPath(CALVEX_CLI);
  // The settings that the server starts with; the command line has its own.
  std::wstring command = L"calvex run --json -s SatPolish=1 -s TraceLevel=0 " + wide(in);
  if (CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                     &startup, &process) == FALSE) {
    ADD_FAILURE() << "cannot start " << CALVEX_CLI;
    return {};
  }
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD status = 99;
  GetExitCodeProcess(process.hProcess, &status);
  EXPECT_LE(status, 1U) << "a line could not be run";
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  CloseHandle(output);
  std::vector<std::string> lines;
  {
    std::ifstream answers(out);
    for (std::string line; std::getline(answers, line);) {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      lines.push_back(line);
    }
  }
  std::remove(in.c_str());
  std::remove(out.c_str());
  return lines;
}

inline std::string quoted(const std::string& word) {
  std::string text = "\"";
  for (const char c : word) {
    if (c == '"' || c == '\\') text += '\\';
    text += c;
  }
  text += '"';
  return text;
}

inline Answers answersOfCommandLine(const std::vector<Line>& sequence) {
  std::string script;
  for (const Line& line : sequence) {
    script += line.entry->name;
    for (const std::string& word : line.words) script += fmt::format(" {}", quoted(word));
    script += "\n";
  }
  const std::vector<std::string> lines = runCommandLine(script);
  Answers answers;
  for (std::size_t i = 0; i < sequence.size() && i < lines.size(); ++i) {
    answers.push_back(answerOf(sequence[i], lines[i]));
  }
  return answers;
}

}  // namespace calvex::test
