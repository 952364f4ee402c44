#include <quor/strings/transcode.hpp>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>

#include "kernels/decode.hpp"
#include "kernels/kernels.hpp"

namespace QUOR_2_9::strings {
namespace {

using types::utf32_char;

/// A kernel between the units of two strings.
template <class Target, class Source>
using kernel_of = kernels::progress (*)(typename Source::value_type const *in, std::size_t size,
                                        typename Target::value_type *out, std::size_t room) noexcept;

/// Texts of up to so many units are converted before memory is asked for.
constexpr std::size_t short_text = 128;

/// The most that a unit becomes in any of the encodings.
constexpr std::size_t longest = 4;

/// Lets the kernel write up to `room` units behind what the result holds.
template <class Target, class Source>
kernels::progress append_made(Target &result, typename Source::value_type const *in, std::size_t size,
                              kernel_of<Target, Source> kernel, std::size_t room) {
	using unit = typename Target::value_type;
	std::size_t const before = result.size();
	kernels::progress made{0, 0};
#ifdef __cpp_lib_string_resize_and_overwrite
	result.resize_and_overwrite(before + room, [&](unit *units, std::size_t) {
		made = kernel(in, size, units + before, room);
		return before + made.written;
	});
#else
	// What is written over is cleared first, in stretches that stay in the nearest cache
	// until then; zeros are copied faster than a fill writes wide units.
	static constexpr unit zeros[8192 / sizeof(unit)] = {};
	room = std::min(room, std::size(zeros));
	result.append(zeros, room);
	made = kernel(in, size, result.data() + before, room);
	result.resize(before + made.written);
#endif
	return made;
}

/// Appends the result of a text, for which there is room, and tells how much of the text
/// came before malformed input.
template <class Target, class Source>
std::size_t append_long(Target &result, Source const &text, kernel_of<Target, Source> kernel) {
	using unit = typename Target::value_type;
	std::size_t read = 0;
	for (kernels::progress made{1, 0}; read != text.size() && made.read != 0; read += made.read) {
		auto const *const in = text.data() + read;
		std::size_t const size = text.size() - read;
		std::size_t const room = result.capacity() - result.size();
		if (room >= kernels::least_room) {
			made = append_made<Target, Source>(result, in, size, kernel, room);
		} else {
			unit last[kernels::least_room];
			made = kernel(in, size, last, kernels::least_room);
			result.append(last, made.written);
		}
	}
	return read;
}

/// Copies a few units, those of another width if they are ASCII. A call of the general function
/// takes longer than that.
template <class In, class Out>
[[gnu::always_inline]] inline void copy_few(In const *from, std::size_t size, Out *to) noexcept {
	if (size >= kernels::ascii::block) {
		kernels::ascii::copy_text(from, size, to);
	} else {
		std::copy_n(from, size, to);
	}
}

/// The text of a few units with room for `reserved` at least.
template <class Target, class Unit>
[[gnu::always_inline]] inline Target text_of(Unit const *units, std::size_t size, std::size_t reserved) {
	Target result;
	if (reserved > size) {
		result.reserve(reserved);
	}
#ifdef __cpp_lib_string_resize_and_overwrite
	// The library may offer more than was asked for.
	result.resize_and_overwrite(size, [units, size](typename Target::value_type *to, std::size_t /*offered*/) {
		copy_few(units, size, to);
		return size;
	});
#else
	result.resize(size);
	copy_few(units, size, result.data());
#endif
	return result;
}

/// The result of a long text, with room for `room` units at first. `read` is how much of the text
/// came before malformed input.
template <class Target, class Source>
Target convert_long(Source const &text, kernel_of<Target, Source> kernel, std::size_t room, std::size_t &read) {
	Target result;
	result.reserve(room);
	read = append_long(result, text, kernel);
	return result;
}

/// Makes the result with room for `reserved` units at least, and for `room(text)` where the text
/// is long. What becomes of malformed text is `answer(read)`. The result is built where it is
/// returned to.
template <class Target, class Source, class Room, class Answer>
[[gnu::always_inline]] inline Target convert(Source const &text, kernel_of<Target, Source> kernel, std::size_t reserved,
                                             Room room, Answer answer) {
	if (text.size() > short_text) {
		std::size_t read = 0;
		Target result = convert_long<Target>(text, kernel, std::max(reserved, room(text)), read);
		if (read != text.size()) {
			result = answer(read);
		}
		return result;
	}
	if (text.size() >= kernels::ascii::block && kernels::ascii::is_text(text.data(), text.size())) {
		return text_of<Target>(text.data(), text.size(), reserved);
	}
	typename Target::value_type units[longest * short_text + kernels::least_room];
	kernels::progress const made = kernel(text.data(), text.size(), units, std::size(units));
	if (made.read != text.size()) {
		return answer(made.read);
	}
	return text_of<Target>(units, made.written, reserved);
}

/// The same for those that answer malformed input with "-1". A unit of the text becomes
/// `most` units at most.
template <class Target, class Source>
Target converted(Source const &text, kernel_of<Target, Source> kernel, std::size_t reserved, std::size_t most) {
	using unit = typename Target::value_type;
	auto const room = [most](Source const &from) { return most * from.size(); };
	auto const answer = [](std::size_t /*read*/) { return Target{static_cast<unit>('-'), static_cast<unit>('1')}; };
	return convert<Target>(text, kernel, reserved, room, answer);
}

/// Enough for the code points of a text, and at most twice as many as there are.
std::size_t room_for_points(ustring8 const &text) noexcept {
	constexpr std::size_t step = 64;
	std::size_t known = 0;
	std::size_t at = 0;
	while (text.size() - at > std::max(known, step)) {
		// The sum is as narrow as what is summed, which suits vectors.
		unsigned char points = 0;
		for (std::size_t i = 0; i != step; ++i) {
			points = static_cast<unsigned char>(points + (kernels::is_continuation(text[at + i]) ? 0 : 1));
		}
		known += points;
		at += step;
	}
	return known + (text.size() - at);
}

} // namespace

ustring16 utf8_to_utf16(ustring8 const &text) {
	return converted<ustring16>(text, &kernels::utf8_to_utf16, text.size() / 2, 1);
}

ustring32 utf8_to_utf32(ustring8 const &text) {
	auto const answer = [](std::size_t read) {
		if (read != 0) {
			throw std::length_error("utf8_to_utf32: malformed text");
		}
		return ustring32(1, static_cast<utf32_char>('?'));
	};
	return convert<ustring32>(text, &kernels::utf8_to_utf32, 0, &room_for_points, answer);
}

ustring8 utf16_to_utf8(ustring16 const &text) {
	return converted<ustring8>(text, &kernels::utf16_to_utf8, text.size() * 2, 3);
}

ustring32 utf16_to_utf32(ustring16 const &text) {
	return converted<ustring32>(text, &kernels::utf16_to_utf32, 0, 1);
}

ustring8 utf32_to_utf8(ustring32 const &text) {
	return converted<ustring8>(text, &kernels::utf32_to_utf8, text.size() * 2, 4);
}

ustring16 utf32_to_utf16(ustring32 const &text) {
	return converted<ustring16>(text, &kernels::utf32_to_utf16, 0, 2);
}

} // namespace QUOR_2_9::strings
