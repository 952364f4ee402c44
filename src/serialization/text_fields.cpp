#include "serialization/text_fields.hpp"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstring>

#include <quor/generic/convert/str_to_x.hpp>

#include "serialization/contents.hpp"

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

int32 field_int32(std::string_view field) noexcept {
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

std::string_view take_string(std::string_view text, uint32 &position) noexcept {
	std::string_view const field = take_field(text, position);
	return take_framed(text, position, field_int32(field));
}

void append_framed(std::string &text, std::string const &value) {
	std::size_t const size = value.size();
	char count[24];
	char *end = std::to_chars(count, count + sizeof count, size).ptr;
	*end++ = separator;
	auto const count_size = static_cast<std::size_t>(end - count);
	make_room(text, count_size + size + 1);
	text.append(count, count_size);
	text.append(value.data(), size);
	text.push_back(separator);
}

} // namespace QUOR_2_9::serialization::detail
