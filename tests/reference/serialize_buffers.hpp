#ifndef QUOR_TESTS_REFERENCE_SERIALIZE_BUFFERS_HPP
#define QUOR_TESTS_REFERENCE_SERIALIZE_BUFFERS_HPP

// The binary and the text buffer, slow and obvious: contents, a read position, and the
// steps of each operation one after the other. What was read is a text, so that all
// types compare alike.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>

#include "reference/floating_text.hpp"
#include "reference/str_to_number_reference.hpp"

namespace quor_reference {

enum class field_type { int8, int16, int32, int64, uint8, uint16, uint32, uint64, single, number, string, buffer };

inline constexpr int field_types = 12;

// A value of any type: a bit pattern, a floating number with its precision, or bytes.
struct field {
	field_type type;
	std::uint64_t bits = 0;
	double number = 0;
	std::uint32_t precision = 0;
	std::string bytes = {};
};

struct integer_type {
	int bits;
	bool is_signed;
};

inline integer_type integer_of(field_type type) {
	int const index = static_cast<int>(type);
	return {8 << index % 4, index < 4};
}

inline bool is_integer(field_type type) {
	return type <= field_type::uint64;
}

// An integer in decimal.
inline std::string integer_text(std::uint64_t bits, integer_type type) {
	return digits_of(narrowed(static_cast<whole>(bits), type.bits, type.is_signed), 10);
}

// A floating number by its bits; every NaN is the same.
inline std::string number_text(double value) {
	if (std::isnan(value)) {
		return "nan";
	}
	char text[64];
	std::snprintf(text, sizeof text, "%a", value);
	return text;
}

inline std::string buffer_text(std::string const &bytes) {
	return "buffer of " + bytes;
}

// What reading the field gives when nothing is lost.
inline std::string text_of_field(field const &value) {
	switch (value.type) {
	case field_type::single:
		return number_text(static_cast<double>(static_cast<float>(value.number)));
	case field_type::number:
		return number_text(value.number);
	case field_type::string:
		return value.bytes;
	case field_type::buffer:
		return buffer_text(value.bytes);
	default:
		return integer_text(value.bits, integer_of(value.type));
	}
}

inline constexpr std::uint64_t behind_all = 0xFFFFFFFF;

// The bytes from a position on, at most so many.
inline std::string part(std::string const &bytes, std::uint64_t position, std::uint64_t count) {
	std::string result;
	for (std::uint64_t i = position; i < bytes.size() && i - position < count; ++i) {
		result += bytes[static_cast<std::size_t>(i)];
	}
	return result;
}

class binary_reference {
public:
	std::string contents;
	std::uint64_t position = 0;

	void append(field const &value) {
		if (is_integer(value.type)) {
			append_image(value.bits, integer_of(value.type).bits / 8);
		} else if (value.type == field_type::single) {
			auto const single = static_cast<float>(value.number);
			std::uint32_t bits = 0;
			std::memcpy(&bits, &single, sizeof bits);
			append_image(bits, 4);
		} else if (value.type == field_type::number) {
			std::uint64_t bits = 0;
			std::memcpy(&bits, &value.number, sizeof bits);
			append_image(bits, 8);
		} else {
			append_image(value.bytes.size(), 4);
			contents += value.bytes;
		}
	}

	bool at_end() const { return position == behind_all || position >= contents.size(); }

	std::string read(field_type type) {
		if (is_integer(type)) {
			return integer_text(read_image(integer_of(type).bits / 8), integer_of(type));
		}
		if (type == field_type::single) {
			auto const bits = static_cast<std::uint32_t>(read_image(4));
			float value = 0;
			std::memcpy(&value, &bits, sizeof value);
			return number_text(static_cast<double>(value));
		}
		if (type == field_type::number) {
			std::uint64_t const bits = read_image(8);
			double value = 0;
			std::memcpy(&value, &bits, sizeof value);
			return number_text(value);
		}
		std::string const nothing = type == field_type::string ? "" : "null";
		if (at_end()) {
			return nothing;
		}
		std::uint64_t const count = read_image(4);
		if (at_end()) {
			return nothing;
		}
		std::string const bytes = part(contents, position, count);
		advance(count);
		return type == field_type::string ? bytes : buffer_text(bytes);
	}

private:
	void append_image(std::uint64_t bits, int width) {
		for (int i = 0; i != width; ++i) {
			contents += static_cast<char>(static_cast<unsigned char>(bits >> 8 * i));
		}
	}

	std::uint64_t read_image(int width) {
		std::uint64_t bits = 0;
		if (at_end()) {
			return bits;
		}
		for (int i = 0; i != width; ++i) {
			std::uint64_t const at = position + static_cast<unsigned int>(i);
			std::uint64_t const byte =
			    at < contents.size() ? static_cast<unsigned char>(contents[static_cast<std::size_t>(at)]) : 0;
			bits |= byte << 8 * i;
		}
		advance(static_cast<std::uint64_t>(width));
		return bits;
	}

	void advance(std::uint64_t count) {
		position += count;
		if (position > behind_all) {
			position = behind_all;
		}
	}
};

class text_reference {
public:
	std::string contents;
	std::uint32_t position = 0;

	void append(field const &value) {
		if (is_integer(value.type)) {
			std::string const digits = integer_text(value.bits, integer_of(value.type));
			contents += (digits == "-9223372036854775808" ? "-O" : digits) + '\x01';
		} else if (value.type == field_type::single) {
			contents +=
			    significant_text(static_cast<double>(static_cast<float>(value.number)), value.precision) + '\x01';
		} else if (value.type == field_type::number) {
			contents += significant_text(value.number, value.precision) + '\x01';
		} else {
			contents += std::to_string(value.bytes.size()) + '\x01' + value.bytes + '\x01';
		}
	}

	bool at_end() const { return position == behind_all || position >= contents.size(); }

	std::string read(field_type type) {
		if (is_integer(type)) {
			return digits_of(integer(take_field(), integer_of(type)), 10);
		}
		if (type == field_type::single) {
			return number_text(static_cast<double>(static_cast<float>(leading_number(take_field()))));
		}
		if (type == field_type::number) {
			return number_text(leading_number(take_field()));
		}
		std::string const bytes = take_string();
		return type == field_type::string ? bytes : buffer_text(bytes);
	}

private:
	std::string take_field() {
		std::string result;
		if (position == behind_all) {
			return result;
		}
		for (std::uint64_t i = position; i < contents.size(); ++i) {
			char const c = contents[static_cast<std::size_t>(i)];
			if (c == '\x01') {
				position = static_cast<std::uint32_t>(i + 1);
				return result;
			}
			result += c;
		}
		position = 0xFFFFFFFF;
		return result;
	}

	std::string take_string() {
		if (position == behind_all) {
			return "";
		}
		whole const count = integer(take_field(), {32, true});
		if (position == behind_all) {
			return "";
		}
		std::uint32_t const start = position;
		whole const behind = whole(start) + count + 1;
		position = behind > whole(behind_all) ? 0xFFFFFFFF : static_cast<std::uint32_t>(narrowed(behind, 32, false));
		if (count == 0) {
			return "";
		}
		return part(contents, start, count < 0 ? contents.size() : static_cast<std::uint64_t>(count));
	}

	// A negative number of 8 or 16 bits is itself or the smallest one.
	static whole integer(std::string const &digits, integer_type type) {
		if (digits.empty()) {
			return 0;
		}
		if (type.is_signed && type.bits == 64 && digits == "-O") {
			return -power_of_two(63);
		}
		std::size_t const sign = digits.find_first_not_of(" \t\n\v\f\r");
		bool const negative = sign != std::string::npos && digits[sign] == '-';
		if (type.is_signed && type.bits < 32 && negative) {
			std::string const magnitude = digits.substr(sign + 1);
			bool const is_number = !magnitude.empty() && std::strchr("0123456789\\", magnitude[0]) != nullptr;
			whole const value = is_number && magnitude[0] != '\0' ? -integer(magnitude, {64, false}) : 0;
			return value < -power_of_two(type.bits - 1) ? -power_of_two(type.bits - 1) : value;
		}
		outcome const found = str_to_number(units_of(digits), digits.size(), 0, false, {type.bits, type.is_signed});
		return narrowed(static_cast<whole>(found.value), type.bits, type.is_signed);
	}
};

} // namespace quor_reference

#endif
