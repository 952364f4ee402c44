#include "parser/xml_entity.hpp"

#include <algorithm>
#include <cstddef>
#include <limits>

#include <quor/generic/convert/str_to_x.hpp>
#include <quor/types/radix.hpp>

#include "parser/xml_bytes.hpp"
#include "support/ascii.hpp"

namespace QUOR_2_9::parser::detail {

namespace {

using strings::ustring8;
using parse_error = xml_parser::parse_error;

// The number is one byte, cut off at 255; without "x" its digits tell the radix.
char read_number(char const *&it, char const *end, types::uint32 line) {
	bool const hex = it != end && *it == 'x';
	if (hex) {
		++it;
	}
	char const *const first = it;
	it = std::find_if_not(first, end, hex ? support::is_hex_digit<char> : support::is_digit<char>);
	if (it == end || *it != ';') {
		fail_at(it, end, line);
	}
	ustring8 const digits(first, it);
	constexpr std::size_t longest = std::numeric_limits<types::uint32>::max();
	auto const length = static_cast<types::uint32>(std::min(digits.size(), longest));
	auto const radix = static_cast<types::radix_t::base>(hex ? 16 : 0);
	return static_cast<char>(generic::convert::str_to_uint8(digits.c_str(), length, radix, false));
}

} // namespace

// The first letter, and for "a" the second one, decide which entity it must be; a
// difference is reported at the second letter, where `it` waits.
char read_entity(char const *&it, char const *end, types::uint32 line) {
	if (it == end || *it != '&') {
		fail_at(it, end, line);
	}
	++it;
	if (it == end) {
		fail_at(it, end, line);
	}
	if (*it == '#') {
		++it;
		return read_number(it, end, line);
	}
	struct entity {
		char const *name;
		char result;
	};
	static constexpr entity entities[] = {{"amp;", '&'}, {"apos;", '\''}, {"gt;", '>'},
	                                      {"lt;", '<'},  {"nbsp;", ' '},  {"quot;", '"'}};
	bool known = false;
	bool cut = false;
	char const first = *it;
	for (entity const &candidate : entities) {
		if (candidate.name[0] != first) {
			continue;
		}
		known = true;
		std::ptrdiff_t length = 1;
		while (candidate.name[length] != '\0' && end - it > length && it[length] == candidate.name[length]) {
			++length;
		}
		if (candidate.name[length] == '\0') {
			it += length - 1;
			return candidate.result;
		}
		cut = cut || end - it == length;
	}
	if (!known) {
		fail(parse_error::error_unknown_entity, line, ustring8());
	}
	if (cut) {
		fail(parse_error::error_eof, line, ustring8());
	}
	++it;
	fail_at(it, end, line);
}

} // namespace QUOR_2_9::parser::detail
