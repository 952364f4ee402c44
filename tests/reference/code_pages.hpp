#ifndef QUOR_TESTS_REFERENCE_CODE_PAGES_HPP
#define QUOR_TESTS_REFERENCE_CODE_PAGES_HPP

// The code pages as tables that were made without the library: tests/strings/code_page/
// tables. Slow, obvious versions of the conversions.

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace quor_reference {

constexpr unsigned bad = 0xFFFD;

inline std::vector<unsigned> const &all_code_pages() {
	static std::vector<unsigned> const pages = {932,   936,   949,   950,   1250,  1251,  1252,  1253,  1254,
	                                            1255,  1256,  1257,  1258,  20866, 21866, 28591, 28592, 28593,
	                                            28594, 28595, 28596, 28597, 28598, 28599, 28605};
	return pages;
}

class code_page_table {
public:
	code_page_table(std::string const &folder, unsigned page) : m_page(page) {
		for (unsigned byte = 0; byte != 0x80; ++byte) {
			m_characters[byte] = byte;
		}
		read_single_bytes(folder + "/single_bytes.txt");
		if (page < 1000) {
			read_pairs(folder + "/pairs_" + std::to_string(page) + ".txt");
		}
		read_differences(folder + "/windows.txt");
		for (auto const &[bytes, point] : m_characters) {
			auto const found = m_bytes.emplace(point, bytes).first;
			// Of two encodings of a character the first one counts, but for these.
			if (gives_way(found->second) && !gives_way(bytes)) {
				found->second = bytes;
			}
		}
	}

	// Bytes or pairs and their characters.
	std::map<unsigned, unsigned> const &characters() const { return m_characters; }
	// Characters and the bytes that they are encoded in.
	std::map<unsigned, unsigned> const &bytes() const { return m_bytes; }

	bool is_lead(unsigned byte) const { return m_page < 1000 && byte >= 0x80 && m_characters.count(byte) == 0; }

	bool is_trail(unsigned byte) const {
		switch (m_page) {
		case 932:
			return byte >= 0x40 && byte <= 0xFC && byte != 0x7F;
		case 936:
			return byte >= 0x40 && byte <= 0xFE && byte != 0x7F;
		case 949:
			return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') || (byte >= 0x81 && byte <= 0xFE);
		default:
			return (byte >= 0x40 && byte <= 0x7E) || (byte >= 0xA1 && byte <= 0xFE);
		}
	}

	// Up to the first zero.
	std::vector<unsigned> decode(std::string const &text) const {
		std::vector<unsigned> points;
		std::size_t at = 0;
		auto const byte = [&](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
		while (byte(at) != 0) {
			unsigned code = byte(at++);
			if (is_lead(code)) {
				if (!is_trail(byte(at))) {
					points.push_back(bad);
					continue;
				}
				code = code << 8 | byte(at++);
			}
			auto const found = m_characters.find(code);
			points.push_back(found != m_characters.end() ? found->second : bad);
		}
		return points;
	}

	std::string encode(unsigned point) const {
		auto const found = m_bytes.find(point);
		if (found == m_bytes.end()) {
			return "?";
		}
		std::string result;
		if (found->second > 0xFF) {
			result.push_back(static_cast<char>(found->second >> 8));
		}
		result.push_back(static_cast<char>(found->second & 0xFF));
		return result;
	}

private:
	bool gives_way(unsigned bytes) const {
		return (m_page == 932 && bytes >= 0xED40 && bytes <= 0xEEFC) ||
		       (m_page == 950 && ((bytes >= 0xA2A4 && bytes <= 0xA2A7) || bytes == 0xA2CC || bytes == 0xA2CE));
	}

	static std::ifstream opened(std::string const &path) {
		std::ifstream file(path);
		if (!file) {
			throw std::runtime_error("no file " + path);
		}
		return file;
	}

	void read_single_bytes(std::string const &path) {
		std::ifstream file = opened(path);
		for (std::string line; std::getline(file, line);) {
			std::istringstream row(line);
			unsigned page = 0;
			row >> page >> std::hex;
			for (unsigned byte = 0x80; byte != 0x100 && page == m_page; ++byte) {
				unsigned point = bad;
				row >> point;
				if (point != bad) {
					m_characters[byte] = point;
				}
			}
		}
	}

	// A lead byte, then its characters for the trail bytes from 40 to FE, in UTF-8.
	void read_pairs(std::string const &path) {
		std::ifstream file = opened(path);
		for (std::string line; std::getline(file, line);) {
			auto const lead = static_cast<unsigned>(std::stoul(line.substr(0, 2), nullptr, 16));
			std::size_t at = 3;
			for (unsigned trail = 0x40; trail != 0xFF; ++trail) {
				unsigned const point = next_point(line, at);
				if (point != bad) {
					m_characters[lead << 8 | trail] = point;
				}
			}
		}
	}

	static unsigned next_point(std::string const &line, std::size_t &at) {
		auto const byte = [&] { return static_cast<unsigned char>(line.at(at++)); };
		unsigned const first = byte();
		unsigned const more = first < 0x80 ? 0 : first < 0xE0 ? 1 : 2;
		unsigned point = more == 0 ? first : first & (more == 1 ? 0x1FU : 0x0FU);
		for (unsigned i = 0; i != more; ++i) {
			point = point << 6 | (byte() & 0x3FU);
		}
		return point;
	}

	void read_differences(std::string const &path) {
		std::ifstream file = opened(path);
		for (std::string line; std::getline(file, line);) {
			std::istringstream row(line);
			unsigned page = 0;
			unsigned first = 0;
			unsigned last = 0;
			unsigned point = 0;
			std::string which;
			if (line[0] != '#' && (row >> page >> std::hex >> first >> last >> point >> which) && page == m_page) {
				differ(first, last, point, which == "all");
			}
		}
	}

	void differ(unsigned first, unsigned last, unsigned point, bool all) {
		for (unsigned bytes = first; bytes <= last; ++bytes) {
			bool const exists = bytes < 0x100 || is_trail(bytes & 0xFF);
			if (exists && (all || m_characters.count(bytes) == 0)) {
				m_characters[bytes] = point++;
			}
		}
	}

	unsigned m_page;
	std::map<unsigned, unsigned> m_characters;
	std::map<unsigned, unsigned> m_bytes;
};

} // namespace quor_reference

#endif
