#ifndef QUOR_VERSION_HPP
#define QUOR_VERSION_HPP

/// @file
/// The library's version, written once: the build, the package files and the
/// shared library's name are derived from these three numbers.
///
///     static_assert(QUOR_VERSION_MAJOR == 2);
///
/// @since 2.9

/// Major version; part of the library's file name and of its namespace.
#define QUOR_VERSION_MAJOR 2
/// Minor version; part of the library's file name and of its namespace.
#define QUOR_VERSION_MINOR 9
/// Patch level; never changes the interface.
#define QUOR_VERSION_PATCH 0

/// The library's versioned namespace. `quor/quor.hpp` adds the alias `quor`.
namespace QUOR_2_9 {}

#endif
