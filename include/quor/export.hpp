#ifndef QUOR_EXPORT_HPP
#define QUOR_EXPORT_HPP

/// @file
/// The export macro `QUOR_API`, which marks every class and function that lives
/// in the shared library. Which form it takes is the build's decision: the
/// library's own build defines `QUOR_DLL_EXPORT` and its users `QUOR_DLL_IMPORT`
/// where the target's shared libraries need it (the CMake package and the
/// pkg-config file pass the right one on); elsewhere it sets the visibility.
///
///     class QUOR_API widget { ... };
///
/// `QUOR_API_TYPE` marks a class that is inline as a whole, so that there is nothing to
/// export, but is an argument of exported templates, which are only as visible as it is.
///
/// @since 2.9

#include <quor/version.hpp>

/// @def QUOR_API
/// Marks a class or function that lives in the shared library.
#if defined(QUOR_DLL_EXPORT)
#  define QUOR_API __declspec(dllexport)
#elif defined(QUOR_DLL_IMPORT)
#  define QUOR_API __declspec(dllimport)
#elif defined(__GNUC__)
#  define QUOR_API __attribute__((visibility("default")))
#else
#  define QUOR_API
#endif

/// @def QUOR_LOCAL
/// Marks a class inside an exported one that is the library's own, so that its members
/// aren't exported.
#if defined(__GNUC__) && !defined(_WIN32)
#  define QUOR_LOCAL __attribute__((visibility("hidden")))
#else
#  define QUOR_LOCAL
#endif

/// @def QUOR_API_TYPE
/// Marks an inline class that is an argument of exported templates.
#if defined(__GNUC__) && !defined(_WIN32)
#  define QUOR_API_TYPE __attribute__((visibility("default")))
#else
#  define QUOR_API_TYPE
#endif

#endif
