#include "serialization/text_fields.hpp"

#include <algorithm>
#include <cstddef>

#include <quor/generic/convert/str_to_x.hpp>

#include "serialization/contents.hpp"
#include "support/ascii.hpp"

namespace QUOR_2_9::serialization::detail {

using types::int32;
using types::uint32;

std::string_view take_field(std::string_view text, uint32 &position) noexcept {
	uint32 const start = position;
	position = no_position;
	if (start == no_position || start > text.size()) {
		return {};
	}
	std::string_view const rest = text.substr(start);
	std::size_t const length = rest.find(separator);
	if (length == std::string_view::npos) {
		return rest;
	}
	std::size_t const behind = start + length + 1;
	position = static_cast<uint32>(std::min<std::size_t>(behind, no_position));
	return rest.substr(0, length);
}

bool take_plain_number(std::string_view text, uint32 &position, int32 &number) noexcept {
	constexpr std::ptrdiff_t most_digits = 9;
	if (position >= text.size() || text.size() >= no_position) {
		return false;
	}
	char const *at = text.data() + position;
	char const *const end = text.data() + text.size();
	bool const negative = *at == '-';
	char const *const first = at + (negative ? 1 : 0);
	int32 value = 0;
	for (at = first; at != end && support::is_digit(*at) && at - first != most_digits; ++at) {
		value = value * 10 + (*at - '0');
	}
	if (at == first || at == end || *at != separator || (*first == '0' && at - first != 1)) {
		return false;
	}
	position = static_cast<uint32>(at + 1 - text.data());
	number = negative ? -value : value;
	return true;
}

int32 take_int32(std::string_view text, uint32 &position) noexcept {
	int32 number = 0;
	if (take_plain_number(text, position, number)) {
		return number;
	}
	std::string_view const field = take_field(text, position);
	auto const length = static_cast<uint32>(std::min<std::size_t>(field.size(), no_position));
	return length == 0 ? 0 : generic::convert::str_to_int32(field.data(), length, 0, false);
}

std::string_view take_framed(std::string_view text, uint32 &position, int32 count) noexcept {
	uint32 const start = position;
	if (start == no_position) {
		return {};
	}
	auto const moved = static_cast<uint32>(count) + 1U;
	position = count < 0 ? start + moved : advanced(start, moved);
	if (count == 0 || start >= text.size()) {
		return {};
	}
	std::string_view const rest = text.substr(start);
	return count < 0 ? rest : rest.substr(0, static_cast<uint32>(count));
}

void append_framed(stored_bytes &stored, std::string const &value) {
	std::size_t const size = value.size();
	std::size_t const most = number_field_size + size + 1;
	if (room_of(stored) >= most) {
		char *const to = next_byte(stored);
		std::size_t const count = write_number_field(size, to);
		copy_text(to + count, value.data(), size);
		to[count + size] = separator;
		stored.size += count + size + 1;
		return;
	}
	char digits[number_field_size];
	std::string_view const count = number_field(size, digits);
	make_room(stored, count.size() + size + 1);
	append_bytes(stored, count.data(), count.size());
	append_bytes(stored, value.data(), size);
	append_bytes(stored, &separator, 1);
}

} // namespace QUOR_2_9::serialization::detail
