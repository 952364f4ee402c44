// Text to number: the three text widths agree with each other and with the slow reference.
// An input is one byte that names the function ("a" to "m"), one for the radix (" " is
// 0, "*" is 10, "0" is 16), one for the options (bit 0: report, bit 1: length 0, bit 2: the
// text is made of 16-bit units) and the text.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <iterator>
#include <vector>

#include "support/str_to_x_family.hpp"

namespace {

void check(bool holds, char const *what) {
	if (!holds) {
		std::cerr << "fails: " << what << '\n';
		std::abort();
	}
}

struct call {
	quor_test::family_member const &function;
	std::uint32_t radix;
	bool throwing;
	bool without_length;
};

// Calls with the text in a block of exactly its size, with a zero unit behind it only
// where the length is not given.
template <class Unit>
quor_reference::outcome outcome_of(call const &made, std::vector<std::int64_t> const &units) {
	std::vector<Unit> block;
	block.reserve(units.size());
	for (std::int64_t const unit : units) {
		block.push_back(static_cast<Unit>(unit));
	}
	if (!made.without_length && block.size() > 1) {
		block.pop_back();
		block.shrink_to_fit();
	}
	auto const length = made.without_length ? 0 : static_cast<quor_test::uint32>(units.size() - 1);
	return quor_test::outcome_of(made.function, block.data(), length, made.radix, made.throwing);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const *data, std::size_t size) {
	if (size < 3) {
		return 0;
	}
	unsigned int const options = data[2];
	call const made{quor_test::family[static_cast<std::uint8_t>(data[0] - 'a') % std::size(quor_test::family)],
	                static_cast<std::uint8_t>(data[1] - ' ') % 64U, (options & 1) != 0, (options & 2) != 0};
	bool const wide_units = (options & 4) != 0;
	std::vector<std::int64_t> units;
	for (std::size_t i = 3; i < size; ++i) {
		if (wide_units && i + 1 < size) {
			units.push_back(data[i] << 8 | data[i + 1]);
			++i;
		} else {
			units.push_back(data[i]);
		}
	}
	units.push_back(0);
	std::size_t const length = made.without_length ? 0 : units.size() - 1;
	auto const expected = quor_reference::str_to_number(units, length, made.radix, made.throwing, made.function.type);
	check(outcome_of<quor_test::wide_char>(made, units) == expected, "16-bit units give what the reference gives");
	check(outcome_of<quor_test::utf32_char>(made, units) == expected, "32-bit units give what the reference gives");
	if (!wide_units) {
		check(outcome_of<char>(made, units) == expected, "8-bit units give what the reference gives");
	}
	return 0;
}
