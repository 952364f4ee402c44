// Any bytes and any units through every code page: the service keeps to the room it is
// given, tells the size that it writes, and what it reads comes back.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include <quor/quor.hpp>

namespace {

using quor::strings::code_page;
using quor::strings::ustring16;

#define CHECK(condition)                                                                                               \
  do {                                                                                                                 \
	if (!(condition)) {                                                                                                \
	  std::cerr << __FILE__ << ':' << __LINE__ << ": does not hold: " #condition "\n";                                 \
	  std::abort();                                                                                                    \
	}                                                                                                                  \
  } while (false)

constexpr std::size_t longest = 4096;
constexpr quor::types::wide_char replacement = 0xFFFD;

constexpr int pages[] = {1,     2,     3,     4,     932,   936,   949,   950,   1250,  1251,
                         1252,  1253,  1254,  1255,  1256,  1257,  1258,  20866, 21866, 28591,
                         28592, 28593, 28594, 28595, 28596, 28597, 28598, 28599, 28605};

// Text that was read once has no bad parts any more.
void check_bytes(code_page const &page, std::string const &bytes) {
	ustring16 const units = page.as_utf16(bytes);
	std::size_t const end = std::min(bytes.find('\0'), bytes.size());
	CHECK(units.size() <= end);
	CHECK(units == page.as_utf16(bytes.substr(0, end)));
	CHECK(page.as_ustring(bytes) == units);
	if (units.find(replacement) == ustring16::npos) {
		// Some characters have two places in a page, so that the bytes may be others.
		CHECK(page.as_utf16(page.encode(units)) == units);
	}
	// Cut between characters the parts are the whole.
	std::size_t const space = bytes.find(' ');
	if (space < end) {
		CHECK(page.as_utf16(bytes.substr(0, space + 1)) + page.as_utf16(bytes.substr(space + 1, end - space - 1)) ==
		      units);
	}
}

void check_units(code_page const &page, ustring16 const &units) {
	std::string const bytes = page.encode(units);
	std::size_t const end = std::min(units.find(quor::types::wide_char(0)), units.size());
	CHECK(bytes.size() <= 3 * end);
	CHECK(bytes == page.encode(units.substr(0, end)));
	// What was written is well-formed, and writing it again changes nothing.
	ustring16 const back = page.as_utf16(bytes);
	CHECK(page.encode(back) == bytes);
	CHECK(page == code_page::utf_8 || page.type() < 4 || back.find(replacement) == ustring16::npos);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const *data, std::size_t size) {
	if (size > longest) {
		return 0;
	}
	std::string const bytes(data, data + size);
	ustring16 units;
	for (std::size_t i = 1; i < size; i += 2) {
		units.push_back(static_cast<quor::types::wide_char>(data[i - 1] << 8 | data[i]));
	}
	for (int const number : pages) {
		code_page const page(static_cast<code_page::encoding_type>(number));
		check_bytes(page, bytes);
		check_units(page, units);
	}
	return 0;
}
