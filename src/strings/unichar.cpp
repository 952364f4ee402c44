#include <quor/strings/unichar.hpp>

#include <cstddef>

#include <quor/debug/invalid_parameter.hpp>

#include "kernels/decode.hpp"

namespace QUOR_2_9::strings {
namespace {

constexpr types::uint32 all_ones = 0xFFFFFFFF;

template <class Unit>
types::uint32 units_before_zero(Unit const *text) noexcept {
	std::size_t count = 0;
	while (text[count] != Unit()) {
		++count;
	}
	return static_cast<types::uint32>(count);
}

template <class Unit, class Decode>
types::uint32 decode_at(Unit const *text, types::uint32 length, types::uint32 index, types::uint32 &consumed,
                        Decode decode) noexcept {
	if (length > index) {
		kernels::decoded const result = decode(text + index, length - index);
		if (result.units != 0) {
			consumed = result.units;
			return result.code_point;
		}
	}
	consumed = all_ones;
	return '?';
}

/// Steps over `index` code points. `step` gives the units of the one at an offset
/// within the text, 0 for bad input; the terminating zero counts as one.
template <class Text, class Step>
types::uint32 walk(Text const &text, types::uint32 index, Step step) {
	if (index >= text.size()) {
		return all_ones;
	}
	std::size_t offset = 0;
	for (types::uint32 i = 0; i != index; ++i) {
		if (offset > text.size()) {
			debug::invalid_parameter("string subscript out of range", "strings\\unichar", __LINE__);
		}
		unsigned int const units = offset < text.size() ? step(offset) : 1;
		if (units == 0) {
			return all_ones;
		}
		offset += units;
	}
	return static_cast<types::uint32>(offset);
}

} // namespace

types::uint32 string_length(char const *text) noexcept {
	return static_cast<types::uint32>(std::char_traits<char>::length(text));
}

types::uint32 string_length(types::wide_char const *text) noexcept {
	return units_before_zero(text);
}

types::uint32 string_length(types::utf32_char const *text) noexcept {
	return units_before_zero(text);
}

types::uint32 string_length(ustring8 const &text) noexcept {
	return static_cast<types::uint32>(text.size());
}

types::uint32 string_length(ustring16 const &text) noexcept {
	return static_cast<types::uint32>(text.size());
}

types::uint32 string_length(ustring32 const &text) noexcept {
	return static_cast<types::uint32>(text.size());
}

types::uint32 unichar(char const *text, types::uint32 length, types::uint32 index, types::uint32 &consumed) noexcept {
	return decode_at(text, length, index, consumed, kernels::decode_utf8);
}

types::uint32 unichar(types::wide_char const *text, types::uint32 length, types::uint32 index,
                      types::uint32 &consumed) noexcept {
	return decode_at(text, length, index, consumed, kernels::decode_utf16);
}

types::uint32 unichar(types::utf32_char const *text, types::uint32 length, types::uint32 index,
                      types::uint32 &consumed) noexcept {
	return decode_at(text, length, index, consumed, [](types::utf32_char const *unit, std::size_t /*remaining*/) {
		return kernels::decoded{static_cast<types::uint32>(*unit), 1};
	});
}

types::uint32 character_index(ustring8 const &text, types::uint32 index) {
	auto const step = [&text](std::size_t offset) {
		return kernels::decode_utf8(text.data() + offset, text.size() - offset).units;
	};
	return walk(text, index, step);
}

types::uint32 character_index(ustring16 const &text, types::uint32 index) {
	// A low surrogate counts as a character unless the text begins with one: the rule
	// looks at the first unit, wherever the walk stands.
	unsigned int const single = !text.empty() && kernels::is_low_surrogate(text.front()) ? 0 : 1;
	auto const step = [&text, single](std::size_t offset) {
		if (!kernels::is_high_surrogate(text[offset])) {
			return single;
		}
		return kernels::decode_utf16(text.data() + offset, text.size() - offset).units;
	};
	return walk(text, index, step);
}

} // namespace QUOR_2_9::strings
