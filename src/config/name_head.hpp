#ifndef QUOR_SRC_CONFIG_NAME_HEAD_HPP
#define QUOR_SRC_CONFIG_NAME_HEAD_HPP

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

/// How many of the first `count` heads are less than `head`. There is room for a multiple of
/// four, and behind those that count stands `last_head`.
inline unsigned int count_less(name_head const *heads, unsigned int count, name_head head) noexcept {
	using four_heads [[gnu::vector_size(4 * name_head_size)]] = name_head;
	four_heads const wanted{head, head, head, head};
	four_heads less{};
	for (unsigned int i = 0; i < count; i += 4) {
		four_heads some;
		std::memcpy(&some, heads + i, sizeof some);
		// True is -1.
		less -= some < wanted;
	}
	return static_cast<unsigned int>(less[0] + less[1] + less[2] + less[3]);
}

/// Whether the same `Number` stands at both places.
template <class Number>
bool is_same_at(char const *left, char const *right) noexcept {
	Number left_number = 0;
	Number right_number = 0;
	std::memcpy(&left_number, left, sizeof left_number);
	std::memcpy(&right_number, right, sizeof right_number);
	return left_number == right_number;
}

/// Whether names are the same that have the same head.
inline bool is_same_name(std::string_view left, std::string_view right) noexcept {
	std::size_t const size = left.size();
	if (size != right.size()) {
		return false;
	}
	if (size <= name_head_size) {
		return true;
	}
	// Short names without a call; their first and last bytes may overlap.
	if (size <= 2 * name_head_size) {
		std::size_t const rest = size - name_head_size;
		return is_same_at<std::uint32_t>(left.data() + rest, right.data() + rest);
	}
	if (size <= 2 * sizeof(std::uint64_t)) {
		std::size_t const rest = size - sizeof(std::uint64_t);
		return is_same_at<std::uint64_t>(left.data(), right.data()) &&
		       is_same_at<std::uint64_t>(left.data() + rest, right.data() + rest);
	}
	return std::memcmp(left.data(), right.data(), size) == 0;
}

} // namespace QUOR_2_9::config::detail

#endif
