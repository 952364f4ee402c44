#ifndef QUOR_DEBUG_OUTPUT_HPP
#define QUOR_DEBUG_OUTPUT_HPP

/// @file
/// The library's debug channel. Its only user is the rendering of messages, which
/// reports an item that could not be rendered. The default is the debugger's output
/// on Windows and the standard error stream elsewhere.
///
///     quor::debug::set_output_handler([](char const *text) { std::clog << text; });
///
/// @since 2.9

#include <quor/export.hpp>

namespace QUOR_2_9::debug {

/// Receives one piece of debug output, zero-terminated UTF-8, valid during the call.
/// A line may come in several pieces; the line feed is part of the text.
using output_handler = void (*)(char const *text);

/// Installs a handler and returns the previous one; null installs the default.
/// Thread-safety: atomic; the handler may be called from every thread that renders.
/// @since 2.9
QUOR_API output_handler set_output_handler(output_handler handler) noexcept;

/// Sends a zero-terminated text to the installed handler. Throws what it throws.
/// @since 2.9
QUOR_API void output(char const *text);

} // namespace QUOR_2_9::debug

#endif
