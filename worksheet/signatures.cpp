#include "worksheet/signatures.h"

#include <calvex/calvex.h>

#include <algorithm>
#include <map>

#include "worksheet/texts.h"

namespace calvex::worksheet {

namespace {

constexpr char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool equalInAnyCase(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, lower, lower);
}

template <class Ask>
std::vector<Slot> slots(int member, std::size_t count, Ask ask) {
  std::vector<Slot> found(count);
  for (std::size_t i = 0; i < count; ++i) {
    found[i].name = textOf([&](char* text, std::size_t size, std::size_t* needed) {
      ask(member, i, &found[i].group, text, size, needed);
    });
  }
  return found;
}

std::map<int, Signature> makeAll() {
  std::map<int, Signature> all;
  std::size_t count = 0;
  calvex_member_count(&count);
  for (std::size_t i = 0; i < count; ++i) {
    calvex_member facts{};
    calvex_member_at(i, &facts.number);
    calvex_member_facts(facts.number, &facts, sizeof facts);
    const int member = facts.number;
    if (facts.column_output_count == 0) continue;
    all[member] = {member, textOf([&](char* text, std::size_t size, std::size_t* needed) {
                     calvex_member_text(member, CALVEX_MEMBER_NAME, text, size, needed);
                   }),
                   slots(member, facts.column_input_count, calvex_column_input),
                   slots(member, facts.column_output_count, calvex_column_output),
                   facts.answers_table != 0};
  }
  return all;
}

const std::map<int, Signature>& all() {
  static const std::map<int, Signature> signatures = makeAll();
  return signatures;
}

}  // namespace

std::vector<std::size_t> Signature::chosen(std::string_view text) const {
  constexpr std::string_view separators = ",;: ";  // those of the members' tokens
  std::vector<std::size_t> found;
  std::size_t begin = text.find_first_not_of(separators);
  while (begin != std::string_view::npos) {
    const std::size_t end = text.find_first_of(separators, begin);
    const std::string_view word = text.substr(begin, end - begin);
    const auto place = std::ranges::find_if(
        outputs, [&](const Slot& slot) { return equalInAnyCase(slot.name, word); });
    if (place == outputs.end()) return {};
    found.push_back(static_cast<std::size_t>(place - outputs.begin()));
    begin = text.find_first_not_of(separators, end);
  }
  return found;
}

const Signature& signatureOf(int member) { return all().at(member); }

const Signature* findSignature(std::string_view name) {
  for (const auto& [member, signature] : all()) {
    if (equalInAnyCase(signature.name, name)) return &signature;
  }
  return nullptr;
}

}  // namespace calvex::worksheet
