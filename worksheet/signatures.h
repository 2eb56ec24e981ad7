/// \file
/// What the worksheet functions are given and answer, from the table of members.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace calvex::worksheet {

struct Slot {
  std::string name;
  int group;  ///< unit group, or -1
};

struct Signature {
  int member;
  std::string name;
  std::vector<Slot> inputs;   ///< all numbers
  std::vector<Slot> outputs;  ///< of a member with tokens: what its tokens name
  bool hasTokens;             ///< takes a text of tokens after its numbers

  /// The last argument may name what is wanted.
  [[nodiscard]] bool hasChoice() const noexcept { return hasTokens || outputs.size() > 1; }
  /// The outputs that a text names, by names separated by blanks, commas or semicolons, in any
  /// case; none when there is one that is not known.
  [[nodiscard]] std::vector<std::size_t> chosen(std::string_view text) const;
};

/// Of a member that computes numbers.
[[nodiscard]] const Signature& signatureOf(int member);
/// By the name of the member, in any case; null when there is no such worksheet function.
[[nodiscard]] const Signature* findSignature(std::string_view name);

}  // namespace calvex::worksheet
