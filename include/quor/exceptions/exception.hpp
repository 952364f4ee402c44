#ifndef QUOR_EXCEPTIONS_EXCEPTION_HPP
#define QUOR_EXCEPTIONS_EXCEPTION_HPP

/// @file
/// The root of the library's exceptions. Each exception object carries a message and
/// a fixed-size record of the place of the throw. The tree stands apart from the
/// standard one: a handler for `std::exception` doesn't see these objects.
///
///     try {
///         quor::generic::convert::str_to_int("9999999999", 0, 10, true);
///     } catch (quor::exceptions::exception const &error) {
///         std::cerr << error.message() << " in " << error.error_state().function() << '\n';
///     }
///
/// @since 2.9

#include <quor/export.hpp>

namespace QUOR_2_9::exceptions {

/// The abstract root of the tree: `logic_error` and `runtime_error` derive from it.
///
/// Thrown by value. Immutable but for assignment. No default and no move
/// constructor: a moved exception is a copied one, so that both keep their texts.
/// Thread-safety: as any value, many readers or one writer.
/// @since 2.9
class QUOR_API exception {
public:
	/// The place of a throw: line, source file and function, 516 bytes by value.
	/// @since 2.9
	class QUOR_API state {
	public:
		/// Copies the two zero-terminated texts into the record.
		///
		/// A text of more than 255 characters is cut to its first 255. A null pointer
		/// leaves its field as it was, which in a new record is the empty text.
		/// @since 2.9
		state(unsigned int line, char const *file, char const *function) noexcept;
		/// Copies the whole record. @since 2.9
		state(state const &other) noexcept;
		/// Copies the whole record. @since 2.9
		state &operator=(state const &other) noexcept;
		/// Does nothing. @since 2.9
		~state();

		/// The source line of the throw. @since 2.9
		unsigned int line() const noexcept;
		/// The source file, zero-terminated; points into this record. @since 2.9
		char const *file() const noexcept;
		/// The qualified name of the function, zero-terminated; points into this record. @since 2.9
		char const *function() const noexcept;

	private:
		unsigned int m_line;
		char m_file[256];
		char m_function[256];
	};

	/// Builds the record from its parts, as `state` does. @since 2.9
	exception(unsigned int line, char const *file, char const *function) noexcept;
	/// Takes a copy of a record. @since 2.9
	exception(state const &place) noexcept;
	/// Copies the record. @since 2.9
	exception(exception const &other) noexcept;
	/// Copies the record and nothing else. @since 2.9
	exception &operator=(exception const &other) noexcept;
	/// Destroys the derived object. @since 2.9
	virtual ~exception();

	/// The text that the thrower passed, character for character, zero-terminated.
	/// Valid while this object lives and is not assigned to. @since 2.9
	char const *message() const;
	/// This object's own record. @since 2.9
	state const &error_state() const noexcept;

private:
	/// The derived class's text; `message()` returns what this returns.
	virtual char const *get_message() const = 0;

	state m_state;
};

} // namespace QUOR_2_9::exceptions

#endif
