#ifndef QUOR_SRC_XML_STREAM_STREAM_READER_HPP
#define QUOR_SRC_XML_STREAM_STREAM_READER_HPP

#include <cstddef>
#include <functional>
#include <list>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <quor/strings/ustring.hpp>
#include <quor/types/widths.hpp>
#include <quor/xml_stream/xml_stream_parser.hpp>

#include "xml_stream/input_window.hpp"
#include "xml_stream/node_queue.hpp"
#include "xml_stream/stream_bytes.hpp"

namespace QUOR_2_9::xml_stream::detail {

/// An element that is open.
struct open_element {
	open_element(std::string_view its_name, node_queue::position its_node, bool is_deep)
	    : name(its_name), node(its_node), deep(is_deep) {}

	strings::ustring8 name;
	node_queue::position node;
	/// Reported when it is closed. Shallow ones are those on the path.
	bool deep;
};

/// The parser itself. The routines for tokens begin at the read cursor, move it on and throw
/// an `error_type`: `status_more_input` where the window ends inside the token, which is
/// then read again from the committed cursor on. Nothing else may have changed by then.
class stream_reader {
public:
	using error_type = xml_stream_parser::error_type;
	using node = xml_stream_parser::node;

	stream_reader(strings::ustring16 const &path, unsigned int open_depth);

	error_type const &parse();
	error_type const &recover(std::list<strings::ustring8> const &tags);
	error_type const &do_parse();
	void parse_next();
	std::size_t load();

	void new_node(std::string_view name, error_type status, bool available);
	void close_tag();
	void end_of_open_node(std::string_view name, error_type status);
	bool finish_comment();
	std::string_view parse_name() noexcept;
	std::string_view parse_attrib_value();
	strings::ustring8 parse_entity();
	void skip_whitespace() noexcept;
	bool queue_size_less_than(std::size_t count) const noexcept { return queue.count_front(count) < count; }

	error_type status = xml_stream_parser::status_ok;
	strings::ustring8 root;
	input_window window;
	node_queue queue;

private:
	[[noreturn]] static void fail(error_type fault) { throw error_type(fault); }
	bool read_header();
	bool is_queue_long(std::size_t more_than) const noexcept {
		return queue.size() > more_than && !queue_size_less_than(2);
	}
	bool wants_promised() const noexcept;
	void settle(error_type stopped);
	void fill(node &made, std::string_view name, error_type node_status, bool available, unsigned int id,
	          unsigned int parent_id) const;
	bool parse_token();
	bool parse_markup();
	bool parse_opening_tag();
	void parse_closing_tag();
	bool parse_empty_end();
	void parse_attribute();
	bool is_new_attribute(std::string_view name);
	void keep_attribute_names();
	void forget_attribute_names() noexcept;
	void parse_text();
	void decode_text(char const *end);
	strings::ustring8 parse_reference();
	void close_element(std::string_view name);
	void leave_path();
	bool close_root_at_end();
	void give_up_deep_elements();
	bool find_tag(std::list<strings::ustring8> const &tags);

	unsigned int const m_open_depth;
	unsigned int m_next_id = 1;
	bool m_in_tag = false;
	bool m_closing_tag_pending = false;
	bool m_in_comment = false;
	bool m_header_read = false;
	bool m_finished = false;
	bool m_positioned = true;
	bool m_value_is_empty = false; // and not cut off
	bool m_queue_was_long = false; // when `parse_next` left
	bool m_names_kept = false;     // in `m_attribute_names`
	std::vector<open_element> m_open;
	std::vector<strings::ustring8> m_path; // the names of the open elements that are shallow
	std::vector<unsigned int> m_ids;
	/// The names of the attributes in the current tag, once the list in the node can't be
	/// relied on or is long.
	std::set<std::string, std::less<>> m_attribute_names;
	strings::ustring8 m_text;
};

inline std::string_view stream_reader::parse_name() noexcept {
	char const *const begin = window.read.at;
	char const *at = begin;
	while (at != window.end && is_name_byte(*at)) {
		++at;
	}
	window.read.at = at;
	return between(begin, at);
}

inline void stream_reader::skip_whitespace() noexcept {
	for (cursor &read = window.read; read.at != window.end && is_whitespace(*read.at); ++read.at) {
		read.line += *read.at == '\n' ? 1 : 0;
	}
}

} // namespace QUOR_2_9::xml_stream::detail

#endif
