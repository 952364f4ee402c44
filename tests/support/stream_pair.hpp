#ifndef QUOR_TESTS_SUPPORT_STREAM_PAIR_HPP
#define QUOR_TESTS_SUPPORT_STREAM_PAIR_HPP

// The stream parser on a file of the disk and the reference on the same bytes, taken through
// the same calls. What differs first is in `difference()`.

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <list>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <quor/xml_stream/xml_stream_parser.hpp>

#include "reference/xml_stream.hpp"
#include "support/temporary_directory.hpp"

namespace quor_test {

using stream_parser = QUOR_2_9::xml_stream::xml_stream_parser;

inline reference::stream_node plain_node(stream_parser::node const &from) {
	reference::stream_node result;
	result.status = from.status();
	result.available = from.available();
	result.tag = from.tag();
	result.line = static_cast<std::uint32_t>(from.line());
	result.id = from.id();
	result.parent_id = from.parent_id();
	result.attributes.assign(from.attribs().begin(), from.attribs().end());
	result.data = from.data();
	return result;
}

// "tag id<parent status @line a=b 'data'", without what isn't there.
inline std::string spelled(reference::stream_node const &node) {
	std::ostringstream text;
	text << node.tag << ' ' << node.id << '<' << node.parent_id << ' ' << node.status << " @" << node.line;
	for (auto const &[name, value] : node.attributes) {
		text << ' ' << name << '=' << value;
	}
	if (!node.data.empty()) {
		text << " '" << node.data << '\'';
	}
	return text.str() + (node.available ? "" : " not available");
}

class stream_pair {
public:
	stream_pair(temporary_directory const &directory, std::string content, unsigned int open_depth)
	    : m_path(directory.root() / "stream.xml"), m_reference((write(content), std::move(content)), open_depth),
	      m_parser(directory.path("stream.xml"), open_depth) {
		compare("the constructor");
	}

	void parse() {
		int const got = m_parser.parse();
		same("parse", got, m_reference.parse());
		compare("parse");
	}

	void recover(std::vector<std::string> const &tags) {
		int const got = m_parser.recover(std::list<std::string>(tags.begin(), tags.end()));
		same("recover", got, m_reference.recover(tags));
		compare("recover");
	}

	// Takes a node out, if there is one.
	bool pop() {
		if (m_reference.queue_size() == 0 || m_parser.node_queue_empty()) {
			return false;
		}
		auto const front = plain_node(m_parser.node_queue_front());
		auto const got = plain_node(m_parser.node_queue_pop());
		auto const expected = m_reference.pop();
		if (!(got == expected && front == got)) {
			differ("pop gives \"" + spelled(got) + "\" and should give \"" + spelled(expected) + "\"");
		}
		nodes.push_back(got);
		++m_calls;
		return true;
	}

	// The file's content from now on; nothing removes the file.
	void change(std::optional<std::string> content) {
		if (content) {
			write(*content);
		} else {
			std::filesystem::remove(m_path);
		}
		m_reference.file = std::move(content);
	}

	std::optional<std::string> const &content() const { return m_reference.file; }
	int status() const { return m_reference.error(); }
	std::uint64_t offset() const { return m_reference.offset(); }
	std::string const &difference() const { return m_difference; }

	std::vector<reference::stream_node> nodes; // all that were taken out

private:
	// A new file each time: some systems wait for the disk when one that was cut is written.
	void write(std::string const &content) const {
		std::filesystem::remove(m_path);
		std::ofstream(m_path, std::ios::binary).write(content.data(), static_cast<std::streamsize>(content.size()));
	}

	void differ(std::string const &what) {
		if (m_difference.empty()) {
			m_difference = "call " + std::to_string(m_calls) + ": " + what;
		}
	}

	template <class Left, class Right>
	void same(std::string const &what, Left const &got, Right const &expected) {
		if (!(got == expected)) {
			std::ostringstream text;
			text << what << " is " << got << " and should be " << expected;
			differ(text.str());
		}
	}

	void compare(std::string const &call) {
		same("the status behind " + call, static_cast<int>(m_parser.error()), m_reference.error());
		same("the root behind " + call, static_cast<std::string const &>(m_parser.root()), m_reference.root());
		same("the line behind " + call, static_cast<std::uint32_t>(m_parser.line()), m_reference.line());
		same("the offset behind " + call, m_parser.parse_offset(), static_cast<unsigned int>(m_reference.offset()));
		same("the queue's size behind " + call, static_cast<std::size_t>(m_parser.node_queue_size()),
		     m_reference.queue_size());
		same("the empty queue behind " + call, m_parser.node_queue_empty(), m_reference.queue_size() == 0);
		++m_calls;
	}

	std::filesystem::path m_path;
	reference::xml_stream m_reference;
	stream_parser m_parser;
	std::size_t m_calls = 0;
	std::string m_difference;
};

} // namespace quor_test

#endif
