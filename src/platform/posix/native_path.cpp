#include "platform/posix/native_path.hpp"

namespace QUOR_2_9::platform {
namespace {

bool is_high_surrogate(char32_t unit) {
	return unit >= 0xD800 && unit <= 0xDBFF;
}

bool is_low_surrogate(char32_t unit) {
	return unit >= 0xDC00 && unit <= 0xDFFF;
}

void append_utf8(std::string &text, char32_t point) {
	auto const byte = [&text](char32_t value) { text.push_back(static_cast<char>(static_cast<unsigned char>(value))); };
	if (point < 0x80) {
		byte(point);
	} else if (point < 0x800) {
		byte(0xC0 | point >> 6);
		byte(0x80 | (point & 63));
	} else if (point < 0x10000) {
		byte(0xE0 | point >> 12);
		byte(0x80 | (point >> 6 & 63));
		byte(0x80 | (point & 63));
	} else {
		byte(0xF0 | point >> 18);
		byte(0x80 | (point >> 12 & 63));
		byte(0x80 | (point >> 6 & 63));
		byte(0x80 | (point & 63));
	}
}

/// Reads one code point at `offset` and moves `offset` behind it; nothing where the
/// bytes there are malformed.
std::optional<char32_t> next_point(std::string_view text, std::size_t &offset) {
	auto const lead = static_cast<unsigned char>(text[offset]);
	if (lead < 0x80) {
		++offset;
		return lead;
	}
	std::size_t count = 0;
	char32_t point = 0;
	char32_t least = 0;
	if ((lead & 0xE0) == 0xC0) {
		count = 2;
		point = lead & 0x1FU;
		least = 0x80;
	} else if ((lead & 0xF0) == 0xE0) {
		count = 3;
		point = lead & 0x0FU;
		least = 0x800;
	} else if ((lead & 0xF8) == 0xF0) {
		count = 4;
		point = lead & 0x07U;
		least = 0x10000;
	} else {
		return std::nullopt;
	}
	if (text.size() - offset < count) {
		return std::nullopt;
	}
	for (std::size_t i = 1; i != count; ++i) {
		auto const next = static_cast<unsigned char>(text[offset + i]);
		if ((next & 0xC0) != 0x80) {
			return std::nullopt;
		}
		point = point << 6 | (next & 0x3FU);
	}
	if (point < least || point > 0x10FFFF || is_high_surrogate(point) || is_low_surrogate(point)) {
		return std::nullopt;
	}
	offset += count;
	return point;
}

} // namespace

std::optional<std::string> native_path(types::wide_string const &path) {
	std::string result;
	result.reserve(path.size());
	for (std::size_t i = 0; i != path.size() && path[i] != 0; ++i) {
		char32_t point = path[i];
		if (is_low_surrogate(point)) {
			return std::nullopt;
		}
		if (is_high_surrogate(point)) {
			if (i + 1 == path.size() || !is_low_surrogate(path[i + 1])) {
				return std::nullopt;
			}
			++i;
			point = 0x10000 + ((point - 0xD800) << 10) + (path[i] - 0xDC00U);
		}
		append_utf8(result, point == U'\\' ? U'/' : point);
	}
	if (result.empty()) {
		return std::nullopt;
	}
	return result;
}

std::optional<types::wide_string> name_from_native(std::string_view name) {
	types::wide_string result;
	result.reserve(name.size());
	for (std::size_t offset = 0; offset != name.size();) {
		auto const point = next_point(name, offset);
		if (!point || *point == U'\\') {
			return std::nullopt;
		}
		if (*point < 0x10000) {
			result.push_back(static_cast<types::wide_char>(*point));
		} else {
			result.push_back(static_cast<types::wide_char>(0xD800 + ((*point - 0x10000) >> 10)));
			result.push_back(static_cast<types::wide_char>(0xDC00 + (*point & 0x3FF)));
		}
	}
	return result;
}

} // namespace QUOR_2_9::platform
