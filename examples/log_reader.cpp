// Reads a big XML log in constant memory and counts its records by level, with a bar that
// shows how far it is. Damaged records are told and passed over.
//
//   log_reader FILE
//
// A log is <log><entry level="...">text</entry>...</log>. Exit status: 0 when all of it was
// read, 1 when it can't be opened or is no log, 2 when the command line is wrong, 3 when
// records were damaged or the file is cut off.

#include <cstdint>
#include <iostream>
#include <map>
#include <string>
#include <string_view>

#include <quor/quor.hpp>

#ifdef LOG_READER_HAS_TERMINALS
#  include <unistd.h>
#endif

namespace log_reader {
namespace {

using quor::xml_stream::xml_stream_parser;

constexpr int exit_failed = 1;
constexpr int exit_usage = 2;
constexpr int exit_damaged = 3;

// --- the bar ------------------------------------------------------------------------------

/// On the error stream, and only where that is a terminal.
class progress_bar {
public:
	void show(unsigned int done, unsigned int all) {
		// Both numbers are cut to 32 bits: beyond 4 GiB there is no bar.
		unsigned int const now = all == 0 ? 0 : static_cast<unsigned int>(std::uint64_t(done) * width / all);
		if (!m_wanted || now == m_shown || now > width) {
			return;
		}
		m_shown = now;
		std::cerr << "\r[" << std::string(now, '#') << std::string(width - now, ' ') << ']' << std::flush;
	}

	~progress_bar() {
		if (m_shown != nothing) {
			std::cerr << '\r' << std::string(width + 2, ' ') << '\r';
		}
	}

private:
	static constexpr unsigned int width = 50;
	static constexpr unsigned int nothing = width + 1;

	static bool is_terminal() {
#ifdef LOG_READER_HAS_TERMINALS
		return ::isatty(STDERR_FILENO) == 1;
#else
		return false;
#endif
	}

	bool m_wanted = is_terminal();
	unsigned int m_shown = nothing;
};

// --- the records --------------------------------------------------------------------------

char const *meaning(xml_stream_parser::error_type status) {
	switch (status) {
	case xml_stream_parser::status_tag_mismatch:
		return "a closing tag doesn't match";
	case xml_stream_parser::status_duplicate_attribute:
		return "an attribute is there twice";
	case xml_stream_parser::status_attribute_quote:
		return "a value has no quotes";
	case xml_stream_parser::status_expected_equals:
		return "an attribute has no value";
	default:
		return "malformed";
	}
}

class reader {
public:
	explicit reader(std::string const &path) : m_parser(path, 1) {}

	int run() {
		while (read_on()) {
		}
		return m_failed ? exit_failed : m_damaged != 0 ? exit_damaged : 0;
	}

	void report() const {
		std::uint64_t all = 0;
		for (auto const &[level, count] : m_counts) {
			std::cout << level << ": " << count << '\n';
			all += count;
		}
		std::cout << "records: " << all << "\ndamaged: " << m_damaged << '\n';
	}

private:
	/// False at the end.
	bool read_on() {
		unsigned int const before = m_parser.parse_offset();
		auto const status = m_parser.parse();
		bool const counted = count_records();
		m_bar.show(m_parser.parse_offset(), m_length);
		switch (status) {
		case xml_stream_parser::status_ok:
		case xml_stream_parser::status_more_input:
			return counted || m_parser.parse_offset() != before || recover("the file is cut off");
		case xml_stream_parser::status_end_of_document:
		case xml_stream_parser::status_no_position:
			return false;
		case xml_stream_parser::status_file:
			return fail("can't be opened");
		case xml_stream_parser::status_bad_header:
			return fail("has no XML declaration");
		default:
			return m_parser.root().empty() ? fail("is no log") : recover(meaning(status));
		}
	}

	bool count_records() {
		bool const any = !m_parser.node_queue_empty();
		for (; !m_parser.node_queue_empty(); m_parser.node_queue_pop()) {
			auto &node = m_parser.node_queue_front();
			if (node.tag() == "entry") {
				++m_counts[level_of(node)];
			}
		}
		return any;
	}

	static std::string level_of(xml_stream_parser::node const &entry) {
		for (auto const &[name, value] : entry.attribs()) {
			if (name == "level") {
				return value;
			}
		}
		return "(no level)";
	}

	/// Goes on with the next record. The records in front of the damage are counted by then.
	bool recover(std::string_view why) {
		std::cerr << "log_reader: byte " << m_parser.parse_offset() << ": " << why << '\n';
		++m_damaged;
		return m_parser.recover({"entry"}) == xml_stream_parser::status_ok;
	}

	bool fail(std::string_view why) {
		std::cerr << "log_reader: the file " << why << '\n';
		m_failed = true;
		return false;
	}

	xml_stream_parser m_parser;
	unsigned int const m_length = m_parser.file_length();
	progress_bar m_bar;
	std::map<std::string, std::uint64_t> m_counts;
	std::uint64_t m_damaged = 0;
	bool m_failed = false;
};

} // namespace
} // namespace log_reader

int main(int argc, char **argv) {
	if (argc != 2) {
		std::cerr << "usage: log_reader FILE\n";
		return log_reader::exit_usage;
	}
	log_reader::reader reader(argv[1]);
	int const status = reader.run();
	if (status != log_reader::exit_failed) {
		reader.report();
	}
	return status;
}
