#ifndef QUOR_SRC_CONFIG_NAME_HEAD_HPP
#define QUOR_SRC_CONFIG_NAME_HEAD_HPP

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>

#include <quor/version.hpp>

namespace QUOR_2_9::config::detail {

/// The first four bytes of a name as a number, with zeros behind a shorter one. Names with
/// different heads are ordered as their heads are. (Signed, as that is what processors
/// compare four at a time.)
using name_head = std::int32_t;

inline constexpr std::size_t name_head_size = sizeof(name_head);
inline constexpr name_head last_head = std::numeric_limits<name_head>::max();

constexpr std::uint32_t head_byte(std::string_view name, std::size_t index) noexcept {
	return std::uint32_t(static_cast<unsigned char>(name[index])) << (24 - 8 * index);
}

constexpr name_head head_of(std::string_view name) noexcept {
	std::uint32_t units = 0;
	if (name.size() >= name_head_size) {
		units = head_byte(name, 0) | head_byte(name, 1) | head_byte(name, 2) | head_byte(name, 3);
	} else {
		for (std::size_t i = 0; i != name.size(); ++i) {
			units |= head_byte(name, i);
		}
	}
	return static_cast<name_head>(units ^ 0x80000000U);
}

/// How many heads are less than `head`. Their number is a multiple of four; unused ones at the
/// end are `last_head`.
inline unsigned int count_less(name_head const *heads, unsigned int number, name_head head) noexcept {
	using four_heads [[gnu::vector_size(4 * name_head_size)]] = name_head;
	four_heads const wanted{head, head, head, head};
	four_heads less{};
	for (unsigned int i = 0; i != number; i += 4) {
		four_heads some;
		std::memcpy(&some, heads + i, sizeof some);
		// True is -1.
		less -= some < wanted;
	}
	return static_cast<unsigned int>(less[0] + less[1] + less[2] + less[3]);
}

/// What differs between the four bytes at two places.
inline std::uint32_t difference(char const *left, char const *right) noexcept {
	std::uint32_t left_units = 0;
	std::uint32_t right_units = 0;
	std::memcpy(&left_units, left, sizeof left_units);
	std::memcpy(&right_units, right, sizeof right_units);
	return left_units ^ right_units;
}

/// Whether names are the same that have the same head.
inline bool is_same_name(std::string_view left, std::string_view right) noexcept {
	constexpr std::size_t four = name_head_size;
	std::size_t const size = left.size();
	if (size != right.size()) {
		return false;
	}
	if (size <= four) {
		return true;
	}
	char const *const l = left.data();
	char const *const r = right.data();
	if (size > 4 * four) {
		return std::memcmp(l, r, size) == 0;
	}
	// Names of usual lengths, without a branch that depends on the length.
	std::size_t const last = size - four;
	std::size_t const second = std::min(four, last);
	std::size_t const third = std::min(2 * four, last);
	return (difference(l + second, r + second) | difference(l + third, r + third) | difference(l + last, r + last)) ==
	       0;
}

} // namespace QUOR_2_9::config::detail

#endif
