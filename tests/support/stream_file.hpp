#ifndef QUOR_TESTS_SUPPORT_STREAM_FILE_HPP
#define QUOR_TESTS_SUPPORT_STREAM_FILE_HPP

// What the tests of the stream parser share: a file to parse, and all of its nodes as text.

#include <string>
#include <vector>

#include "support/stream_pair.hpp"
#include "support/temporary_directory.hpp"

namespace quor_test {

// 54 bytes, so that any file that begins with it is long enough.
inline std::string const stream_header = "<?xml version=\"1.0\" encoding=\"utf-8\"                ?>";

// Takes all nodes out of the queue.
inline void drain(stream_parser &from, std::vector<std::string> &to) {
	while (!from.node_queue_empty()) {
		to.push_back(spelled(plain_node(from.node_queue_pop())));
	}
}

// The nodes of all calls up to the first one that changes nothing.
inline std::vector<std::string> stream_nodes(stream_parser &from) {
	std::vector<std::string> result;
	unsigned int before = 0;
	do {
		before = from.parse_offset();
		from.parse();
		drain(from, result);
	} while (from.error() <= 1 && from.parse_offset() != before);
	return result;
}

class stream_file {
public:
	stream_parser open(std::string const &content, unsigned int open_depth) const {
		write(content);
		return {path(), open_depth};
	}
	// A new file each time: some systems wait for the disk when one that was cut is written.
	void write(std::string const &content) const {
		remove();
		m_directory.write("file.xml", content);
	}
	void remove() const { std::filesystem::remove(m_directory.root() / "file.xml"); }
	QUOR_2_9::strings::ustring8 path() const { return m_directory.path("file.xml"); }
	temporary_directory const &directory() const { return m_directory; }

private:
	temporary_directory m_directory;
};

} // namespace quor_test

#endif
