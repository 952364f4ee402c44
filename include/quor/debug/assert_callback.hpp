#ifndef QUOR_DEBUG_ASSERT_CALLBACK_HPP
#define QUOR_DEBUG_ASSERT_CALLBACK_HPP

/// @file
/// A slot in which a program can keep an assertion callback of its own. The library
/// owns what is put there and deletes it when it is unloaded, but never calls it.
///
///     auto &hook = quor::debug::_private::g_assert_callback;
///     hook = my_assert_callback();          // a function_type_interface of its signature
///     unsigned int value = 0;
///     hook("text", "another", value);       // an empty hook is skipped
///
/// @since 2.9

#include <quor/export.hpp>
#include <quor/functor/delegate.hpp>

/// The library's global hooks.
namespace QUOR_2_9::debug::_private {

/// The assertion callback; what its three arguments mean is the program's own matter.
///
/// Empty from the first static initialiser on until a program assigns it, and empty again
/// once the library has been unloaded or the program's static objects are gone; the
/// callable is destroyed then. Thread-safety: set it before other threads start.
/// @since 2.9
extern QUOR_API functor::delegate_t<void(char const *const, char const *const, unsigned int &)> g_assert_callback;

} // namespace QUOR_2_9::debug::_private

#endif
