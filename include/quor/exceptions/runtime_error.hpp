#ifndef QUOR_EXCEPTIONS_RUNTIME_ERROR_HPP
#define QUOR_EXCEPTIONS_RUNTIME_ERROR_HPP

/// @file
/// `runtime_error` and its leaves `overflow_error` and `underflow_error`.
/// They share no base with the standard classes of the same names.
///
///     try {
///         quor::generic::convert::str_to_short("40000", 0, 10, true);
///     } catch (quor::exceptions::runtime_error const &error) {   // an overflow_error
///         std::cerr << error.message() << '\n';
///     }
///
/// @since 2.9

#include <string>

#include <quor/exceptions/exception.hpp>
#include <quor/export.hpp>

namespace QUOR_2_9::exceptions {

/// Faults that only show while the program runs, such as a number too large for its type.
///
/// Holds the message as a string of its own; a copy holds a copy of it.
/// @since 2.9
class QUOR_API runtime_error : public exception {
public:
	/// Keeps the message as it stands and records the place, see `exception::state`.
	/// @throws std::bad_alloc when the message can't be copied. @since 2.9
	runtime_error(std::string const &message, unsigned int line, char const *file, char const *function);
	/// Keeps the message as it stands and a copy of the record.
	/// @throws std::bad_alloc when the message can't be copied. @since 2.9
	runtime_error(std::string const &message, exception::state const &place);
	/// Copies record and message. @since 2.9
	runtime_error(runtime_error const &other);
	/// Copies the record, then the message. @since 2.9
	runtime_error &operator=(runtime_error const &other);
	/// Frees the message. @since 2.9
	~runtime_error() override;

private:
	char const *get_message() const override;

	std::string m_message;
};

/// A number lies above the range of its type.
/// @since 2.9
class QUOR_API overflow_error : public runtime_error {
public:
	/// As the constructor of `runtime_error` of the same shape. @since 2.9
	overflow_error(std::string const &message, unsigned int line, char const *file, char const *function);
	/// As the constructor of `runtime_error` of the same shape. @since 2.9
	overflow_error(std::string const &message, exception::state const &place);
	/// Copies record and message. @since 2.9
	overflow_error(overflow_error const &other);
	/// Copies the record, then the message. @since 2.9
	overflow_error &operator=(overflow_error const &other);
	/// Frees the message. @since 2.9
	~overflow_error() override;
};

/// A number lies below the range of its type.
/// @since 2.9
class QUOR_API underflow_error : public runtime_error {
public:
	/// As the constructor of `runtime_error` of the same shape. @since 2.9
	underflow_error(std::string const &message, unsigned int line, char const *file, char const *function);
	/// As the constructor of `runtime_error` of the same shape. @since 2.9
	underflow_error(std::string const &message, exception::state const &place);
	/// Copies record and message. @since 2.9
	underflow_error(underflow_error const &other);
	/// Copies the record, then the message. @since 2.9
	underflow_error &operator=(underflow_error const &other);
	/// Frees the message. @since 2.9
	~underflow_error() override;
};

} // namespace QUOR_2_9::exceptions

#endif
