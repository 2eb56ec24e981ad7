#include "diagnostics/formatting.h"

template void fmt::detail::vformat_to<char>(fmt::detail::buffer<char>&,
                                            fmt::basic_string_view<char>,
                                            fmt::basic_format_args<fmt::buffer_context<char>>,
                                            fmt::detail::locale_ref);
template void fmt::detail::vprintf<char, fmt::printf_context>(
    fmt::detail::buffer<char>&, fmt::basic_string_view<char>,
    fmt::basic_format_args<fmt::printf_context>);
