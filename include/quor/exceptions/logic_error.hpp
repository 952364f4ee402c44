#ifndef QUOR_EXCEPTIONS_LOGIC_ERROR_HPP
#define QUOR_EXCEPTIONS_LOGIC_ERROR_HPP

/// @file
/// `logic_error` and its leaves `invalid_argument_value`, `length_error` and `out_of_range`.
/// They share no base with the standard classes of the same names.
///
///     throw quor::exceptions::invalid_argument_value("no such colour", __LINE__, "palette.cpp", "palette::find");
///
/// @since 2.9

#include <string>

#include <quor/exceptions/exception.hpp>
#include <quor/export.hpp>

namespace QUOR_2_9::exceptions {

/// Faults of the calling program: a value that no correct caller passes.
///
/// Holds the message as a string of its own; a copy holds a copy of it.
/// @since 2.9
class QUOR_API logic_error : public exception {
public:
	/// Keeps the message as it stands and records the place, see `exception::state`.
	/// @throws std::bad_alloc when the message can't be copied. @since 2.9
	logic_error(std::string const &message, unsigned int line, char const *file, char const *function);
	/// Keeps the message as it stands and a copy of the record.
	/// @throws std::bad_alloc when the message can't be copied. @since 2.9
	logic_error(std::string const &message, exception::state const &place);
	/// Copies record and message. @since 2.9
	logic_error(logic_error const &other);
	/// Copies the record, then the message. @since 2.9
	logic_error &operator=(logic_error const &other);
	/// Frees the message. @since 2.9
	~logic_error() override;

private:
	char const *get_message() const override;

	std::string m_message;
};

/// An argument has a value that the operation doesn't know, such as a radix of 1.
/// @since 2.9
class QUOR_API invalid_argument_value : public logic_error {
public:
	/// As the constructor of `logic_error` of the same shape. @since 2.9
	invalid_argument_value(std::string const &message, unsigned int line, char const *file, char const *function);
	/// As the constructor of `logic_error` of the same shape. @since 2.9
	invalid_argument_value(std::string const &message, exception::state const &place);
	/// Copies record and message. @since 2.9
	invalid_argument_value(invalid_argument_value const &other);
	/// Copies the record, then the message. @since 2.9
	invalid_argument_value &operator=(invalid_argument_value const &other);
	/// Frees the message. @since 2.9
	~invalid_argument_value() override;
};

/// A length is beyond what an object can hold. For the library's users; the library doesn't throw it.
/// @since 2.9
class QUOR_API length_error : public logic_error {
public:
	/// As the constructor of `logic_error` of the same shape. @since 2.9
	length_error(std::string const &message, unsigned int line, char const *file, char const *function);
	/// As the constructor of `logic_error` of the same shape. @since 2.9
	length_error(std::string const &message, exception::state const &place);
	/// Copies record and message. @since 2.9
	length_error(length_error const &other);
	/// Copies the record, then the message. @since 2.9
	length_error &operator=(length_error const &other);
	/// Frees the message. @since 2.9
	~length_error() override;
};

/// A position lies outside an object. For the library's users; the library doesn't throw it.
/// @since 2.9
class QUOR_API out_of_range : public logic_error {
public:
	/// As the constructor of `logic_error` of the same shape. @since 2.9
	out_of_range(std::string const &message, unsigned int line, char const *file, char const *function);
	/// As the constructor of `logic_error` of the same shape. @since 2.9
	out_of_range(std::string const &message, exception::state const &place);
	/// Copies record and message. @since 2.9
	out_of_range(out_of_range const &other);
	/// Copies the record, then the message. @since 2.9
	out_of_range &operator=(out_of_range const &other);
	/// Frees the message. @since 2.9
	~out_of_range() override;
};

} // namespace QUOR_2_9::exceptions

#endif
