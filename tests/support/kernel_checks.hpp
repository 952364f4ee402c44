#ifndef QUOR_TESTS_SUPPORT_KERNEL_CHECKS_HPP
#define QUOR_TESTS_SUPPORT_KERNEL_CHECKS_HPP

// Runs every variant of the kernels that this processor can run on a text, and tells what
// differs from the slow rules. The text and the room are blocks of their own of the exact
// size, so that the sanitizers see a step behind them.

#include <algorithm>
#include <cstddef>
#include <memory>
#include <sstream>
#include <string>

#include "kernels/variants.hpp"
#include "reference/conversions.hpp"
#include "reference/text.hpp"

namespace quor_test {

namespace kernels = QUOR_2_9::kernels;

using quor_reference::character;
using quor_reference::numbers;

template <class Unit>
bool begins_with(numbers const &text, Unit const *units, std::size_t count, std::size_t from) {
	for (std::size_t i = 0; i != count; ++i) {
		auto const unit =
		    sizeof(Unit) == 1 ? static_cast<unsigned char>(units[i]) : static_cast<quor_reference::number>(units[i]);
		if (from + i >= text.size() || text[from + i] != unit) {
			return false;
		}
	}
	return true;
}

// A kernel and its slow sibling.
template <class In, class Out>
struct kernel_check {
	char const *name;
	kernels::conversion<In, Out> kernels::variant::*kernel;
	character (*read)(numbers const &, std::size_t);
	quor_reference::write_units write;
};

// Converts through pieces of the given room; an empty text where all is as it must be.
template <class In, class Out>
std::string difference(kernel_check<In, Out> const &check, numbers const &text, std::size_t shift, std::size_t room) {
	quor_reference::made const expected = quor_reference::convert(text, check.read, check.write);
	// The shift moves the text in its block.
	std::unique_ptr<In[]> const units(new In[text.size() + shift]());
	std::transform(text.begin(), text.end(), units.get() + shift, [](auto unit) { return static_cast<In>(unit); });
	std::ostringstream what;
	for (kernels::variant const *variant : kernels::all_variants()) {
		if (!variant->runs_here()) {
			continue;
		}
		std::unique_ptr<Out[]> const out(new Out[room]());
		std::size_t read = 0;
		std::size_t written = 0;
		bool same = true;
		for (kernels::progress made{1, 0}; same && made.read != 0;) {
			made = (variant->*check.kernel)(units.get() + shift + read, text.size() - read, out.get(), room);
			same = made.written <= room && begins_with(expected.units, out.get(), made.written, written);
			read += made.read;
			written += made.written;
		}
		if (!same || read != expected.read || written != expected.units.size()) {
			what << variant->name << ' ' << check.name << ": read " << read << " of " << text.size() << ", expected "
			     << expected.read << "; wrote " << written << ", expected " << expected.units.size()
			     << (same ? "" : ", other units") << "; text:" << std::hex;
			for (auto const unit : text) {
				what << ' ' << unit;
			}
			what << '\n';
		}
	}
	return what.str();
}

inline std::string utf8_difference(numbers const &text, std::size_t shift, std::size_t room) {
	using kernels::variant;
	using namespace quor_reference;
	return difference<char, QUOR_2_9::types::wide_char>(
	           {"utf8_to_utf16", &variant::utf8_to_utf16, &read_utf8, &write_utf16_of_utf8}, text, shift, room) +
	       difference<char, QUOR_2_9::types::utf32_char>(
	           {"utf8_to_utf32", &variant::utf8_to_utf32, &read_utf8, &write_utf32}, text, shift, room);
}

inline std::string utf16_difference(numbers const &text, std::size_t shift, std::size_t room) {
	using kernels::variant;
	using namespace quor_reference;
	return difference<QUOR_2_9::types::wide_char, char>(
	           {"utf16_to_utf8", &variant::utf16_to_utf8, &read_utf16, &write_utf8_of_any}, text, shift, room) +
	       difference<QUOR_2_9::types::wide_char, QUOR_2_9::types::utf32_char>(
	           {"utf16_to_utf32", &variant::utf16_to_utf32, &read_utf16, &write_utf32}, text, shift, room);
}

inline std::string utf32_difference(numbers const &text, std::size_t shift, std::size_t room) {
	using kernels::variant;
	using namespace quor_reference;
	return difference<QUOR_2_9::types::utf32_char, char>(
	           {"utf32_to_utf8", &variant::utf32_to_utf8, &read_utf32_as_utf8, &write_utf8_of_any}, text, shift, room) +
	       difference<QUOR_2_9::types::utf32_char, QUOR_2_9::types::wide_char>(
	           {"utf32_to_utf16", &variant::utf32_to_utf16, &read_utf32_as_utf16, &write_utf16_of_utf32}, text, shift,
	           room);
}

} // namespace quor_test

#endif
