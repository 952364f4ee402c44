// The stream parser and its reference, taken through a script of calls. The first bytes are
// the script, up to a zero byte; the rest is the file, behind a header in most inputs and
// some blanks that bring it to the border of the buffer.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "support/stream_pair.hpp"
#include "support/temporary_directory.hpp"

namespace {

using quor_test::stream_pair;
using quor_test::temporary_directory;

void check(bool holds, std::string const &what) {
	if (!holds) {
		std::cerr << "fails: " << what << '\n';
		std::abort();
	}
}

// The file's bytes that are there from the start, and the call that a letter of the script is.
class script {
public:
	script(temporary_directory const &directory, std::string const &calls, std::string content)
	    : m_calls(calls), m_content(std::move(content)),
	      m_pair(directory, m_content, calls.empty() ? 1 : static_cast<unsigned char>(calls[0]) % 4) {}

	void run() {
		for (char const call : m_calls) {
			step(static_cast<unsigned char>(call));
			check(m_pair.difference().empty(), m_pair.difference());
		}
		end();
	}

private:
	void step(unsigned int call) {
		static std::vector<std::vector<std::string>> const tags = {{"a"}, {"b", "include"}, {}, {"r", "a", "b", "c"},
		                                                           {""},  {"nowhere"}};
		switch (call % 8) {
		case 0:
			m_pair.recover(tags[call / 8 % tags.size()]);
			break;
		case 1:
			for (unsigned int i = call / 8; i != 0 && m_pair.pop(); --i) {
			}
			break;
		case 2:
			m_pair.change(m_content.substr(0, m_content.size() * (call / 8) / 31));
			break;
		case 3:
			m_pair.change(m_content);
			break;
		case 4:
			m_pair.change(std::nullopt);
			break;
		default: {
			auto const before = m_pair.offset();
			m_pair.parse();
			check(m_pair.offset() >= before, "a parse never steps back");
		}
		}
	}

	// The rest comes to an end: a call that does nothing is the last one.
	void end() {
		m_pair.change(m_content);
		std::size_t const most = m_content.size() / 100 + 10;
		std::size_t calls = 0;
		bool moved = true;
		while (moved) {
			auto const before = m_pair.offset();
			m_pair.parse();
			moved = m_pair.offset() != before && m_pair.status() <= 1;
			while (m_pair.pop()) {
				moved = moved || m_pair.status() <= 1;
			}
			check(m_pair.difference().empty(), m_pair.difference());
			check(++calls <= most + m_pair.nodes.size(), "it ends");
		}
	}

	std::string m_calls;
	std::string m_content;
	stream_pair m_pair;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const *data, std::size_t size) {
	static temporary_directory const directory;
	std::string const input(data, data + size);
	std::size_t const end = std::min(input.find('\0'), input.size());
	std::string const calls = input.substr(0, std::min<std::size_t>(end, 64));
	std::string const content = input.substr(std::min(end + 1, input.size()));
	script(directory, calls, content).run();
	std::string const header = "<?xml version=\"1.0\" encoding=\"utf-8\"                ?>";
	script(directory, calls, header + content).run();
	if (calls.size() % 8 == 3) {
		// Every so often at the border, at a place that the script tells.
		std::size_t const shift = static_cast<unsigned char>(calls[1]) + static_cast<std::size_t>(header.size());
		script(directory, calls, header + std::string(65536 - shift, ' ') + content).run();
	}
	return 0;
}
