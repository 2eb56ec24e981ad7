/// \file
/// Requests of the C interface's arrays, from what tells one from another.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "calvex/calvex.h"

namespace calvex::test {

/// States of a pair ("PT") by the direct road.
inline calvex_request requestOf(std::string_view pair, std::size_t count, calvex_column first,
                                calvex_column second, std::span<const calvex_result> results,
                                calvex_codes status = {nullptr, 0}) {
  calvex_request request{};
  request.first_letter = pair[0];
  request.second_letter = pair[1];
  request.count = count;
  request.first = first;
  request.second = second;
  request.results = results.data();
  request.result_count = results.size();
  request.status = status;
  return request;
}

/// A member over columns.
inline calvex_rows rowsOf(int member, std::size_t count, std::span<const calvex_column> inputs,
                          std::span<const calvex_output> outputs,
                          calvex_codes status = {nullptr, 0}) {
  calvex_rows rows{};
  rows.member = member;
  rows.count = count;
  rows.inputs = inputs.data();
  rows.input_count = inputs.size();
  rows.outputs = outputs.data();
  rows.output_count = outputs.size();
  rows.status = status;
  return rows;
}

}  // namespace calvex::test
