#ifndef QUOR_I18N_MESSAGE_ITEM_HPP
#define QUOR_I18N_MESSAGE_ITEM_HPP

/// @file
/// One piece of a message: literal text, or a reference to a named argument with the
/// type and the attributes that say how it is written. Messages are made of these;
/// `quor/i18n/message.hpp` joins and renders them.
///
///     using quor::i18n::message_item;
///     message_item used("n\1base\1hex", message_item::type_int);
///     quor::generic::varg_list args;
///     args.push_back("n", 255);
///     std::cout << used.as_string(args);      // 0x00ff
///
/// @since 2.9

#include <cstddef>

#include <quor/export.hpp>
#include <quor/generic/varg_list.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::i18n {

class message_catalogs;
namespace _private {
class xmc_file_loader;
} // namespace _private

/// One piece of a message.
///
/// Holds a text and a type. For a literal piece the text is what is shown. For an
/// argument piece it is a field string: the argument's name, then the format
/// attributes as key and value in turn, every element separated by the one byte 0x01
/// (`"n\1base\1hex"`). Nothing is escaped, so no element can hold that byte.
///
/// A value: copies are deep, a moved-from piece is a literal or argument piece with an
/// empty or unspecified text. Thread-safety: many readers or one writer.
/// @since 2.9
class QUOR_API message_item {
public:
	/// What a piece is and how it is written. The word in quotes is the one that a
	/// catalog file uses for it.
	/// @since 2.9
	enum type_t : int {
		/// "value": literal text.
		type_value = 0,
		/// "string", and every other word: the argument's text, unformatted.
		type_string = 1,
		/// "number": reserved; always renders "?invalid?".
		type_number = 2,
		/// "int": `format_int` of the argument's `as_int64`.
		type_int = 3,
		/// "double": `format_double` of the argument's `as_double`.
		type_double = 4,
		/// "time": reserved; always renders "?invalid?".
		type_time = 5,
		/// "date": reserved; always renders "?invalid?".
		type_date = 6,
		/// "memory" or "mem": the number of `format_memory` of the argument's `as_uint64`.
		type_memory = 7,
		/// "memory_unit" or "mem_unit": the unit that belongs to it.
		type_memory_unit = 8,
		/// "metric": the number of `format_metric` of the argument's `as_uint32`.
		type_metric = 9,
		/// "metric_unit": the unit that belongs to it; it may be empty.
		type_metric_unit = 10,
		/// "duration": `format_duration` of the argument's `as_double`, in seconds.
		type_duration = 11
	};

	/// A literal piece.
	/// @since 2.9
	message_item(strings::ustring8 const &data);

	/// A piece of the given type with its text or field string.
	/// @since 2.9
	message_item(strings::ustring8 const &data, type_t type);

	/// Takes the text and the type of another piece.
	/// @since 2.9
	message_item &assign(message_item const &other);

	/// What the piece is.
	/// @since 2.9
	type_t type() const noexcept { return m_type; }

	/// A copy of the whole text or field string, format attributes included.
	/// @since 2.9
	strings::ustring8 data() const;

	/// Renders the piece with the given arguments, as UTF-8.
	///
	/// A literal gives its text. An argument piece takes the first argument whose name
	/// is the field string up to the first 0x01; an empty name takes the first unnamed
	/// argument. What can't be rendered gives "?invalid?": a missing argument, a
	/// reserved type, attributes that the formatter refuses, a value that it can't
	/// write. A string piece never looks at its attributes.
	///
	/// Whenever the result is "?invalid?" (also where a literal or a string argument
	/// reads so), the debug channel (`quor/debug/output.hpp`) gets "Failure -- " with
	/// the field string in one call and a line feed in a second one.
	///
	/// Note: a number that is written as "-0" counts as refused, for instance -0.4 as
	/// a double with precision 0.
	/// @throws what the conversions of `variant` to text throw, and what the handler of
	///         the debug channel throws.
	/// Untrusted input: safe for any field string. Cost: linear in the number of
	/// arguments and in the result; allocates the result, the text of a string piece that holds
	/// no narrow text, and a report to the debug channel.
	/// @since 2.9
	strings::ustring8 as_string(generic::varg_list const &args) const;

private:
	friend class message_t;

	std::size_t name_size() const noexcept;

	strings::ustring8 m_data;
	type_t m_type;
	// How much of a field string is the name, so that rendering needn't look.
	types::uint32 m_name_size;
};

} // namespace QUOR_2_9::i18n

#endif
