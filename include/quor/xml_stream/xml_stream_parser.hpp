#ifndef QUOR_XML_STREAM_XML_STREAM_PARSER_HPP
#define QUOR_XML_STREAM_XML_STREAM_PARSER_HPP

/// @file
/// Reads an XML file that may be far larger than memory, as a queue of elements. For a
/// text that is in memory use `quor/parser/xml_parser.hpp`.
///
///     quor::xml_stream::xml_stream_parser parser("big.log", 1);
///     unsigned int before = 0;
///     do {
///         before = parser.parse_offset();
///         parser.parse();
///         while (!parser.node_queue_empty()) {
///             auto const element = parser.node_queue_pop();
///         }
///     } while (parser.error() <= 1 && parser.parse_offset() != before);
///
/// @since 2.9

#include <cstddef>
#include <exception>
#include <initializer_list>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include <quor/export.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::xml_stream {

namespace detail {
class stream_reader;
}

/// Reads a file piece by piece and reports its elements.
///
/// Call `parse`, take the nodes out of the queue, call `parse` again, as above. Status 3 is
/// the end of the document, 2 and above a fault; `recover` gets over 4 to 9. Status 0 says
/// that there is more to come, 1 that the file ends too early so far. When a call with an
/// empty queue leaves `parse_offset` where it was, at status 0 or 1, so will all others
/// until the file grows: a loop ends there. A whole document ends so too, with status 0,
/// where `open_depth` is 0.
///
/// Which elements are reported how is settled when they open. An element is shallow as long
/// as fewer than `open_depth` shallow ones are open, and is reported twice: when it
/// opens, status 1, its attributes and text following while the node waits in the queue,
/// and when it closes, a node without attributes and text, status 0, for the root 3. As
/// an empty tag it is reported once, with status 0 in the end. All others, and every
/// element "include", are deep: reported once, when they are closed, whole but without their
/// children, which follow. Nothing behind a deep element that is open is available.
///
/// The dialect: a header `<?xml ... ?>`, which isn't looked into, elements, attributes in
/// either kind of quote, text, comments, the entities `&lt; &gt; &amp; &apos; &quot; &nbsp;
/// &#...; &#x...;`. Names hold ASCII letters, digits, "_" and any byte above 127.
///
/// Rules that surprise:
/// - A file of less than 50 bytes has status 1. Any three bytes in front of a "<" are
///   taken for a byte order mark.
/// - Text right below the root, or outside it, is a fault (6). Other text loses its
///   leading white space, and replaces the text that its element had before.
/// - An element with the root's name ends the document when it closes, if it is shallow.
/// - A reference is one byte: `&#300;` is the byte 255, `&#010;` octal 8, `&#;` 0.
/// - Lines are counted from 1, by line feeds outside text, values and header.
/// - `</>` stops the parser as the end of the file does: status 1.
/// - Behind a recovery, parent ids count the deep elements that were given up.
///
/// Memory: 64 KiB, about 100 nodes, and what the open elements and the current tag take; with
/// the queue's front not available (`open_depth` 0, or a deep element with children) all
/// elements up to its end. A text, a name or an attribute must fit into 64 KiB:
/// one that doesn't has status 1 for ever, and `recover` gets over it. Untrusted input: safe;
/// nothing is recursive, work is linear, but for a token that a growing file brings byte
/// by byte, which is read again at each call.
///
/// The file is opened anew for each piece, shared with everybody, and may grow. One that shrinks
/// has ended. Directories, pipes and devices don't open. Thread-safety: one thread at a time.
/// Want of memory surfaces as `std::bad_alloc`; then only destroy the parser.
/// @since 2.9
class QUOR_API xml_stream_parser {
public:
	/// How the parser stands, and how an element does.
	enum error_type : int {
		/// No error; in a node: the element is complete.
		status_ok = 0,
		/// The file has ended inside something; in a node: the element is open.
		status_more_input = 1,
		/// There is no place to go on at: a recovery had no tags or found none.
		status_no_position = 2,
		/// The root was closed.
		status_end_of_document = 3,
		/// A closing tag that doesn't match the open element.
		status_tag_mismatch = 4,
		/// An attribute's name twice in a tag.
		status_duplicate_attribute = 5,
		/// Any other malformed markup.
		status_syntax = 6,
		/// An attribute's value that doesn't start with a quote.
		status_attribute_quote = 7,
		/// No "=" right behind an attribute's name.
		status_expected_equals = 9,
		/// `recover` before there was a root. Final, as all above.
		status_no_root = 10,
		/// The file can't be opened.
		status_file = 11,
		/// The file doesn't begin with an XML declaration.
		status_bad_header = 12
	};

	/// One report of an element. A value; what `node_queue_pop` gives is the caller's. A moved
	/// node's texts and attributes are unspecified.
	/// @since 2.9
	class QUOR_API node {
	public:
		/// Names and values.
		using attribute_list = std::list<std::pair<strings::ustring8, strings::ustring8>>;

		/// A node with status 1 that isn't available, all else empty or 0.
		/// @since 2.9
		node() = default;

		/// The number of the element, from 1 in the order of the tags; in a shallow element's
		/// closing node how many shallow ones were open, itself included. Wraps at 2^32.
		/// @since 2.9
		unsigned int id() const noexcept { return m_id; }
		/// The number of the element around it; 0 where there is none and in closing nodes.
		/// @since 2.9
		unsigned int parent_id() const noexcept { return m_parent_id; }
		/// The line of the tag that made the node.
		/// @since 2.9
		types::uint32 line() const noexcept { return m_line; }
		/// The element's name.
		/// @since 2.9
		strings::ustring8 const &tag() const noexcept { return m_tag; }
		/// Names and values in the order of the document.
		/// @since 2.9
		attribute_list &attribs() noexcept { return m_attributes; }
		/// The same, to read only.
		/// @since 2.9
		attribute_list const &attribs() const noexcept { return m_attributes; }
		/// The last run of text, entities resolved.
		/// @since 2.9
		strings::ustring8 const &data() const noexcept { return m_data; }
		/// Whether the caller may see the node; true for all that come from the queue.
		/// @since 2.9
		bool available() const noexcept { return m_available; }
		/// 0 complete, 1 open, 3 the root's end.
		/// @since 2.9
		error_type status() const noexcept { return m_status; }

	private:
		friend class detail::stream_reader;

		error_type m_status = status_more_input;
		bool m_available = false;
		strings::ustring8 m_tag;
		types::uint32 m_line = 0;
		unsigned int m_id = 0;
		unsigned int m_parent_id = 0;
		attribute_list m_attributes;
		strings::ustring8 m_data;
	};

	/// Thrown where the queue has no node that is available.
	/// @since 2.9
	class QUOR_API EmptyNodeQueue : public std::exception {
	public:
		/// "empty node queue".
		/// @since 2.9
		char const *what() const noexcept override;
	};

	/// Looks whether the file opens: status 0 or 11. Paths are as `quor/system/io.hpp` tells.
	/// @since 2.9
	/// @{
	xml_stream_parser(strings::ustring8 const &path, unsigned int open_depth);
	xml_stream_parser(strings::ustring16 const &path, unsigned int open_depth);
	xml_stream_parser(strings::ustring32 const &path, unsigned int open_depth);
	/// @}

	xml_stream_parser(xml_stream_parser const &) = delete;
	xml_stream_parser &operator=(xml_stream_parser const &) = delete;

	/// Frees what is queued.
	/// @since 2.9
	~xml_stream_parser();

	/// Goes on until about 100 nodes wait or the file ends, and gives the status, which later
	/// calls change in place. Does nothing at 10 or above, behind the document's end, and
	/// behind a recovery that found nothing. Behind 4 to 9 it meets the same fault again.
	/// Nodes in front of a fault stay in the queue.
	/// @since 2.9
	error_type const &parse();

	/// Looks for the next opening tag with one of the names, from the last fault on; `parse`
	/// goes on there, with status 0. Drops what is queued and the deep elements that are open.
	///
	/// Looks into comments and texts too and counts no lines. Status 2 where there is no such
	/// tag; then `parse` does nothing, but `recover` can be tried again once the file has
	/// grown. Without tags: status 2, and nothing else happens. Before a root was
	/// seen: status 10. Behind the document's end: status 3, and nothing happens.
	/// @since 2.9
	/// @{
	error_type const &recover(std::list<strings::ustring8> const &tags);
	error_type const &recover(std::list<std::string> const &tags);
	error_type const &recover(std::initializer_list<char const *> tags);
	/// @}

	/// The status.
	/// @since 2.9
	error_type const &error() const noexcept;

	/// Whether no available node stands at the front of the queue.
	/// @since 2.9
	bool node_queue_empty() const noexcept;

	/// How many available nodes stand at the front. Linear in the result.
	/// @since 2.9
	types::uint32 node_queue_size() const noexcept;

	/// The front node, valid until it is popped or `recover` is called. `parse` may still add
	/// to it while its status is 1.
	/// @throws EmptyNodeQueue where none is available.
	/// @since 2.9
	node &node_queue_front();

	/// Takes the front node out; what `parse` finds of it later is lost. Throws as above.
	/// @since 2.9
	node node_queue_pop();

	/// The root's name; empty until it was seen.
	/// @since 2.9
	strings::ustring8 const &root() const noexcept;

	/// The line that has been reached, from 1. Wraps at 2^32.
	/// @since 2.9
	types::uint32 line() const noexcept;

	/// The place in the file, in bytes, up to which all is done; its low 32 bits.
	/// @since 2.9
	unsigned int parse_offset() const noexcept;

	/// The file's size now: its low 32 bits; 0 where it can't be opened.
	/// @since 2.9
	unsigned int file_length() const;

protected:
	/// Sets everything to the start, keeps the path and looks whether the file opens.
	void init(strings::ustring16 const &path);
	/// Brings more of the file; how many bytes, 0 at its end, in a full buffer, and where it
	/// can't be opened (status 11).
	std::size_t load();
	/// `parse` behind the header.
	error_type const &do_parse();
	/// Goes through the buffer; a fault becomes the status. The routines below throw an
	/// `error_type`.
	void parse_next();
	/// Queues the node of an element that opens, which becomes the innermost one.
	void new_node(std::string_view name, error_type status, bool available);
	/// Completes the innermost open element, a deep one or an empty tag; throws 4 without one.
	void close_tag();
	/// Queues the closing node of a shallow element.
	void end_of_open_node(std::string_view name, error_type status);
	/// Steps behind the comment's end; false where the buffer doesn't hold it.
	bool finish_comment();
	/// Steps over a name, which may be empty, and gives it; valid until `load`.
	std::string_view parse_name();
	/// Steps over a value and the white space around it; empty also where the buffer ends
	/// first. Valid until `load` and the next value.
	std::string_view parse_attrib_value();
	/// Steps over an entity and gives its one byte; empty where the buffer ends first.
	strings::ustring8 parse_entity();
	/// Steps over white space and counts its line feeds.
	void skip_whitespace();
	/// Whether it is a blank, a tab, a carriage return or a line feed.
	static bool is_whitespace(char byte) noexcept;
	/// Whether fewer than `count` available nodes stand at the queue's front.
	bool queue_size_less_than(std::size_t count) const noexcept;

private:
	unsigned int const m_open_depth;
	std::unique_ptr<detail::stream_reader> m_reader;
};

} // namespace QUOR_2_9::xml_stream

#endif
