/// \file
/// fmt::sprintf and fmt::print to streams. Included instead of the library's own headers, whose
/// users each compile the whole of the formatting again: five seconds a source, ten with
/// sanitizers.
#pragma once

#include <fmt/format.h>
#include <fmt/ostream.h>
#include <fmt/printf.h>

extern template void fmt::detail::vformat_to<char>(
    fmt::detail::buffer<char>&, fmt::basic_string_view<char>,
    fmt::basic_format_args<fmt::buffer_context<char>>, fmt::detail::locale_ref);
extern template void fmt::detail::vprintf<char, fmt::printf_context>(
    fmt::detail::buffer<char>&, fmt::basic_string_view<char>,
    fmt::basic_format_args<fmt::printf_context>);
