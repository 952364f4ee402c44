#ifndef QUOR_PARSER_XML_PARSER_HPP
#define QUOR_PARSER_XML_PARSER_HPP

/// @file
/// A small event parser for a narrow, fixed XML dialect: it reads a byte string once
/// and calls one delegate for each event. It validates nothing and knows no DTD, no
/// CDATA, no processing instructions in the body and no namespaces. For a list to walk
/// use `quor/parser/xml_token_stream.hpp`.
///
///     quor::parser::xml_parser parser;
///     parser.on_element_start() = quor::functor::member_function_t(&my_reader, &reader::element);
///     auto error = parser.parse("<?xml version=\"1.0\"?><a>text</a>");
///
/// @since 2.9

#include <deque>
#include <set>
#include <string>

#include <quor/export.hpp>
#include <quor/functor/delegate.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::parser {

/// Reads XML text and reports it as events.
///
/// The dialect: a header `<?xml ... ?>`, which must be there and isn't looked into, then
/// elements, attributes in either kind of quote, text, comments and the entities
/// `&amp; &apos; &gt; &lt; &quot; &nbsp; &#...; &#x...;`. Names begin with an ASCII
/// letter and go on with ASCII letters, digits and "_". Any three bytes in front of the
/// header are taken for a byte order mark. Bytes above 127 pass through unchanged in
/// text, attribute values and comments. White space is blank, tab, carriage return and
/// line feed.
///
/// Rules that surprise:
/// - Text with single white-space characters is one character event; two white-space
///   characters in a row end it and make a space event, also in front of "<".
///   `<a>one two  three</a>` gives character "one two", space, character "three".
///   White space inside a tag gives no event.
/// - Lines count from 0, and only line feeds in runs of white space count, those
///   inside tags too: none in text, values, comments or the header.
/// - An end tag may carry attributes: `</a b="1">` reports the attribute. `</a/>`
///   ends the next open element too, and an end tag with nothing open is reported and
///   is no fault.
/// - Text after the root element is reported as text.
/// - A numeric entity is one byte: `&#233;` is the byte 0xE9, values above 255 give
///   0xFF, and a leading 0 makes the decimal form octal: `&#065;` is "5".
///   `&nbsp;` is an ordinary blank.
/// - The names of the elements that a failed parse left open stay in the object: the
///   next parse begins inside them. Use a fresh object after a failure.
///
/// Untrusted input: safe; nothing is recursive, and work and memory grow linearly with
/// the text. Nothing is kept but the names of the open elements and of the attributes in
/// the current tag.
///
/// A copy holds clones of the delegates, which still point at the objects that the
/// source's point at. Thread-safety: one object serves one parse at a time, on the
/// caller's thread, although `parse` is const.
/// @since 2.9
class QUOR_API xml_parser {
public:
	/// Walks the text to parse.
	using const_iterator = std::string::const_iterator;
	/// Receives a name or a text.
	using text_delegate = functor::delegate_t<void(strings::ustring8 const &)>;
	/// Receives the name and the value of an attribute.
	using attribute_delegate = functor::delegate_t<void(strings::ustring8 const &, strings::ustring8 const &)>;

	/// How a parse ended. Not part of the library's exception tree; thrown by the inner
	/// routines, returned by `parse`.
	/// @since 2.9
	class QUOR_API parse_error {
	public:
		/// What went wrong, and what `text` holds then.
		enum error_code : int {
			/// Parsed to the end. Text: empty.
			error_none = 0,
			/// The input ended inside something. Text: empty.
			error_eof = 1,
			/// An end tag that doesn't close the open element. Text: the name, or empty
			/// for "/>" with nothing open.
			error_mismatched_end = 2,
			/// Nothing behind the header. Text: empty.
			error_no_root = 3,
			/// The header is missing or broken. Text: empty.
			error_bad_header = 4,
			/// A character that can't stand here. Text: that one byte, which may be part
			/// of a longer sequence or zero; empty where "/" in a tag ends the input.
			error_unexpected_char = 5,
			/// An attribute value without quotes, or cut off. Text: the attribute's
			/// name, or empty when the value has no opening quote.
			error_missing_quote = 6,
			/// An entity that begins with none of "a", "g", "l", "n", "q". Text: empty.
			error_unknown_entity = 7,
			/// No "=" behind an attribute's name. Text: the attribute's name.
			error_missing_equals = 8,
			/// A name twice in one start tag. Text: the attribute's name.
			error_attribute_redefined = 9,
			/// A second element on the top level. Text: empty.
			error_data_after_root = 10
		};

		/// Success: code 0, line 0, no text.
		/// @since 2.9
		parse_error() = default;

		/// The three fields as given.
		/// @since 2.9
		parse_error(error_code code, types::uint32 line, strings::ustring8 const &text)
		    : m_code(code), m_line(line), m_text(text) {}

		/// What went wrong.
		/// @since 2.9
		error_code code() const noexcept { return m_code; }

		/// The line counter at the fault, from 0; 0 for success, for a bad header and
		/// for elements that are open at the end. Wraps at 2^32.
		/// @since 2.9
		types::uint32 line() const noexcept { return m_line; }

		/// The offending name or byte, or empty; see `error_code`. It may hold zero
		/// bytes and malformed UTF-8.
		/// @since 2.9
		strings::ustring8 const &text() const noexcept { return m_text; }

	private:
		error_code m_code = error_none;
		types::uint32 m_line = 0;
		strings::ustring8 m_text;
	};

	/// A parser without delegates and with nothing open.
	/// @since 2.9
	xml_parser();

	/// Clones the delegates and copies the names of open elements and the counters.
	/// @since 2.9
	xml_parser(xml_parser const &other);

	/// Takes clones of the delegates and copies of the rest. Self-assignment does nothing.
	/// @since 2.9
	xml_parser &operator=(xml_parser const &other);

	/// Frees the delegates.
	/// @since 2.9
	~xml_parser();

	/// The delegate that receives the name at each start tag. Assign a callable to it
	/// before the parse: a `functor::member_function_t`, or a class of your own that derives
	/// from `functor::function_type_interface`; a plain function or a lambda is none. An
	/// empty delegate is passed over. The same holds for all six.
	/// @since 2.9
	text_delegate &on_element_start() noexcept { return m_element_start; }

	/// The delegate that receives the name at each end tag and each "/>".
	/// @since 2.9
	text_delegate &on_element_end() noexcept { return m_element_end; }

	/// The delegate that receives name and value of each attribute.
	/// @since 2.9
	attribute_delegate &on_attribute() noexcept { return m_attribute; }

	/// The delegate that receives each run of text, entities resolved.
	/// @since 2.9
	text_delegate &on_character() noexcept { return m_character; }

	/// The delegate that receives each run of white space outside tags.
	/// @since 2.9
	text_delegate &on_space() noexcept { return m_space; }

	/// The delegate that receives each comment's body as it stands, entities included.
	/// @since 2.9
	text_delegate &on_comment() noexcept { return m_comment; }

	/// Parses a whole text.
	///
	/// Stops at the first fault and never resumes; events that were reported up to it
	/// stay reported. A text without any element behind its header is no fault as long as
	/// anything is there.
	/// @return how it ended; code 0 for success.
	/// @throws whatever a delegate throws (other than `parse_error`, which is returned).
	/// Empty input: code 4. Cost: linear in the text, plus the set of names in one tag;
	/// allocates one string for each event.
	/// @since 2.9
	parse_error parse(strings::ustring8 const &text) const;

	/// Parses the bytes from `begin` to `end`, both of one string.
	/// @since 2.9
	parse_error parse(const_iterator begin, const_iterator end) const;

	/// The loop behind `parse`. `begin` moves on as the input is consumed and stands
	/// where the parse ended, or at the fault. A delegate that can reach `begin` learns from
	/// it where it is: at a name's last character, an attribute's closing quote, the ">" of
	/// "/>" and of a comment, and behind a run of text or white space.
	/// @since 2.9
	parse_error do_parse(const_iterator &begin, const_iterator const &end) const;

	/// Reads a name. On return `it` stands on its last character.
	/// @throws parse_error code 5 when `it` doesn't stand on an ASCII letter, code 1 at the end.
	/// @since 2.9
	strings::ustring8 parse_name(const_iterator &it, const_iterator const &end) const;

	/// Reads a quoted value. On return `it` stands on the closing quote, or at the end
	/// where there is none.
	/// @throws parse_error code 6 without an opening quote, code 5 at a "<", code 1 at
	///         the end or inside an entity, and what `parse_character` throws.
	/// @since 2.9
	strings::ustring8 parse_attrib_value(const_iterator &it, const_iterator const &end) const;

	/// Reads an entity, one byte long as text. On return `it` stands on its ";".
	/// @throws parse_error code 5 where `it` isn't on "&" and for a malformed entity,
	///         code 7 for an unknown one, code 1 where the input ends first.
	/// @since 2.9
	strings::ustring8 parse_character(const_iterator &it, const_iterator const &end) const;

	/// Reads a run of white space, which may be empty, and counts its line feeds. On
	/// return `it` stands behind it.
	/// @since 2.9
	strings::ustring8 parse_whitespace(const_iterator &it, const_iterator const &end) const;

	/// Whether a blank, tab, carriage return or line feed stands at `it`, which must
	/// not be the end.
	/// @since 2.9
	bool is_white_space(const_iterator const &it) const;

private:
	class reading;

	text_delegate m_element_start;
	text_delegate m_element_end;
	attribute_delegate m_attribute;
	text_delegate m_character;
	text_delegate m_space;
	text_delegate m_comment;
	mutable std::deque<strings::ustring8> m_elements;
	// The names in the current tag: in a row while they are few, in the set otherwise.
	mutable std::string m_attributes;
	mutable std::set<strings::ustring8> m_more_attributes;
	mutable bool m_in_tag = false;
	mutable types::uint32 m_line = 0;
};

} // namespace QUOR_2_9::parser

#endif
