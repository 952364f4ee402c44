#ifndef QUOR_PARSER_XML_TOKEN_STREAM_HPP
#define QUOR_PARSER_XML_TOKEN_STREAM_HPP

/// @file
/// The events of `xml_parser` as a flat list of tokens, for readers that want to walk a
/// document with an iterator, look ahead and go back. The end of an attribute list is
/// a token of its own.
///
///     quor::parser::xml_token_stream tokens;
///     if (tokens.parse("<?xml?><a x=\"1\"/>").code() == 0) {
///         for (auto const &token : tokens) { std::cout << token.type() << ' ' << token.value() << '\n'; }
///     }
///
/// @since 2.9

#include <cstddef>
#include <list>
#include <memory>

#include <quor/export.hpp>
#include <quor/parser/xml_parser.hpp>
#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::parser {

/// A list of the tokens of a document.
///
/// `<a x="1"><b/>t</a>` gives: element start "a", attribute name "x", attribute value
/// "1", attributes end, element start "b", attributes end, element end "b", character
/// "t", element end "a". Every start tag that any further event follows has its
/// attributes end, also without attributes. A comment doesn't close an attribute list:
/// directly behind a start tag it stands before the attributes end.
///
/// A value: copies are deep, and a copy parses into itself. Thread-safety: one object
/// serves one parse at a time; many readers while nobody parses.
/// Untrusted input: safe; linear in the text. A token is a list node with a string,
/// so a text of short tags takes some fifty times its size. The memory of all nodes is
/// freed together, with the object.
/// @since 2.9
class QUOR_API xml_token_stream {
public:
	/// One token: a type and a text.
	/// @since 2.9
	class QUOR_API token {
	public:
		/// What a token is, and what its value holds.
		enum token_type : int {
			/// A start tag. Value: the element's name.
			token_element_start = 0,
			/// An end tag or "/>". Value: the element's name.
			token_element_end = 1,
			/// An attribute's name; its value is the next token.
			token_attribute_name = 2,
			/// An attribute's value.
			token_attribute_value = 3,
			/// The attribute list of a start tag is over. Value: empty.
			token_attributes_end = 4,
			/// A comment. Value: its body.
			token_comment = 5,
			/// A run of white space. Value: the run.
			token_space = 6,
			/// A run of text. Value: the text, entities resolved.
			token_character = 7
		};

		/// The two fields as given.
		/// @since 2.9
		token(token_type type, strings::ustring8 const &value) : m_type(type), m_value(value) {}

		/// What the token is.
		/// @since 2.9
		token_type type() const noexcept { return m_type; }

		/// Its text.
		/// @since 2.9
		strings::ustring8 const &value() const noexcept { return m_value; }

	private:
		token_type m_type;
		strings::ustring8 m_value;
	};

	/// The result of a parse.
	using parse_error = xml_parser::parse_error;
	/// Walks the tokens and may change them.
	using iterator = std::list<token>::iterator;
	/// Walks the tokens.
	using const_iterator = std::list<token>::const_iterator;
	/// Walks the text to parse.
	using text_iterator = xml_parser::const_iterator;

	/// An empty list.
	/// @since 2.9
	xml_token_stream();

	/// Copies the tokens and the parser's state. The copy's parser reports to the copy.
	/// @since 2.9
	xml_token_stream(xml_token_stream const &other);

	/// Copies the tokens and the parser's state; the parser goes on reporting to this
	/// object. Self-assignment does nothing.
	/// @since 2.9
	xml_token_stream &operator=(xml_token_stream const &other);

	/// Frees the tokens; linear, never recursive.
	/// @since 2.9
	~xml_token_stream();

	/// Appends the tokens of a whole text; those that are there stay.
	/// @return how the parse ended (see `xml_parser::parse`); on a fault the tokens made
	///         up to it stay in the list. After a fault use a fresh object: the
	///         parser keeps the elements that were open.
	/// @since 2.9
	parse_error parse(strings::ustring8 const &text);

	/// Appends the tokens of the bytes from `begin` to `end`, both of one string.
	/// @since 2.9
	parse_error parse(text_iterator const &begin, text_iterator const &end);

	/// The first token.
	/// @since 2.9
	iterator begin() noexcept;

	/// Behind the last token.
	/// @since 2.9
	iterator end() noexcept;

	/// The first token.
	/// @since 2.9
	const_iterator begin() const noexcept;

	/// Behind the last token.
	/// @since 2.9
	const_iterator end() const noexcept;

	/// The number of tokens, the attributes-end tokens included.
	/// @since 2.9
	std::size_t size() const noexcept;

protected:
	/// Appends an attribute's name and value.
	void on_attribute(strings::ustring8 const &name, strings::ustring8 const &value);
	/// Appends an element start and opens its attribute list; ends one that is still open.
	void on_element_start(strings::ustring8 const &name);
	/// Ends an open attribute list and appends a text run.
	void on_character(strings::ustring8 const &text);
	/// Appends a comment and leaves an open attribute list open.
	void on_comment(strings::ustring8 const &text);
	/// Ends an open attribute list and appends an element end.
	void on_element_end(strings::ustring8 const &name);
	/// Ends an open attribute list and appends a run of white space.
	void on_space(strings::ustring8 const &text);

private:
	class storage;

	void bind();
	void close_attributes();
	void append(token::token_type type, strings::ustring8 const &value);

	bool m_attributes_closed = true;
	std::unique_ptr<storage> m_storage;
	xml_parser m_parser;
};

} // namespace QUOR_2_9::parser

#endif
