#ifndef QUOR_DEBUG_INVALID_PARAMETER_HPP
#define QUOR_DEBUG_INVALID_PARAMETER_HPP

/// @file
/// The one place where the library stops: a checked index or a checked iteration
/// that runs beyond its end. What "stop" means is the application's choice: the
/// default handler writes one line to the standard error stream and aborts, a
/// handler of the application may throw (then nothing is left half-changed) or
/// return (then the operation goes on as if a zero unit stood there, or as if the
/// iteration had ended). Nothing is ever read beyond the end.
///
///     quor::debug::set_invalid_parameter_handler(
///         [](char const *what, char const *file, unsigned int line) { throw std::runtime_error(what); });
///
/// @since 2.9

#include <quor/export.hpp>

namespace QUOR_2_9::debug {

/// Receives what failed and the library's source place where it was noticed; the
/// texts are zero-terminated and valid during the call.
using invalid_parameter_handler = void (*)(char const *what, char const *file, unsigned int line);

/// Installs a handler and returns the previous one; null installs the default.
/// Thread-safety: atomic; set it before other threads use the library.
/// @since 2.9
QUOR_API invalid_parameter_handler set_invalid_parameter_handler(invalid_parameter_handler handler) noexcept;

/// A handler that does nothing, so that operations go on as told above.
/// @since 2.9
QUOR_API void ignore_invalid_parameter(char const *what, char const *file, unsigned int line);

/// Calls the installed handler. Returns when the handler does; throws what it throws.
/// @since 2.9
QUOR_API void invalid_parameter(char const *what, char const *file, unsigned int line);

} // namespace QUOR_2_9::debug

#endif
