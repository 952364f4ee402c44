#ifndef QUOR_TESTS_SERIALIZATION_GOLDEN_FILES_HPP
#define QUOR_TESTS_SERIALIZATION_GOLDEN_FILES_HPP

// The files of tests/serialization/golden: bytes that every build on every target writes
// and reads alike.

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "reference/serialize_buffers.hpp"

namespace quor_test {

inline std::string golden_bytes(std::string const &name) {
	std::ifstream file(std::string(QUOR_GOLDEN_DIR) + "/" + name, std::ios::binary);
	std::string const bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
	if (bytes.empty()) {
		throw std::runtime_error("no golden file " + name);
	}
	return bytes;
}

// Bytes written as in the rows: ^ is the byte 1, \hh any byte.
inline std::string unescaped(std::string const &text) {
	std::string bytes;
	for (std::size_t i = 0; i != text.size(); ++i) {
		if (text[i] == '\\') {
			bytes += static_cast<char>(static_cast<unsigned char>(std::stoi(text.substr(i + 1, 2), nullptr, 16)));
			i += 2;
		} else {
			bytes += text[i] == '^' ? '\x01' : text[i];
		}
	}
	return bytes;
}

struct golden_row {
	std::string text; // the whole row, to name it
	quor_reference::field value;
	std::string bytes;
};

inline quor_reference::field golden_value(std::string const &type, std::string const &text) {
	using quor_reference::field_type;
	static std::vector<std::string> const names{"int8",   "int16",  "int32", "int64",  "uint8",  "uint16",
	                                            "uint32", "uint64", "float", "double", "string", "buffer"};
	std::size_t index = 0;
	while (names.at(index) != type) {
		++index;
	}
	quor_reference::field result{static_cast<field_type>(index)};
	if (quor_reference::is_integer(result.type)) {
		result.bits = text[0] == '-' ? static_cast<std::uint64_t>(std::stoll(text)) : std::stoull(text);
	} else if (result.type == field_type::single || result.type == field_type::number) {
		std::size_t const blank = text.find(' ');
		result.number = quor_reference::leading_number(text.substr(0, blank));
		result.precision = static_cast<std::uint32_t>(std::stoull(text.substr(blank)));
	} else {
		result.bytes = unescaped(text);
	}
	return result;
}

// The rows "type | value | bytes" of a file.
inline std::vector<golden_row> golden_rows(std::string const &name) {
	std::vector<golden_row> rows;
	std::istringstream lines(golden_bytes(name));
	for (std::string line; std::getline(lines, line);) {
		if (line.empty() || line[0] == '#') {
			continue;
		}
		std::string const bar = " | ";
		std::size_t const first = line.find(bar);
		std::size_t const second = line.find(bar, first + bar.size());
		std::string const value = line.substr(first + bar.size(), second - first - bar.size());
		rows.push_back({line, golden_value(line.substr(0, first), value), unescaped(line.substr(second + bar.size()))});
	}
	return rows;
}

// The values of record.binary and record.text: every type at a limit, an empty string, one
// with a separator, an empty buffer, and the same again nested, three levels deep.
inline std::vector<quor_reference::field> golden_record(int depth, std::string const &nested) {
	using quor_reference::field_type;
	constexpr std::uint64_t one = 1;
	std::vector<quor_reference::field> fields{{field_type::int8, one << 7},   {field_type::int16, one << 15},
	                                          {field_type::int32, one << 31}, {field_type::int64, one << 63},
	                                          {field_type::uint8, 0xFF},      {field_type::uint16, 0xFFFF},
	                                          {field_type::uint32, ~0U},      {field_type::uint64, ~(one - one)}};
	fields.push_back({field_type::single, 0, static_cast<double>(0.1F), 9});
	fields.push_back({field_type::number, 0, -2.5e-7, 17});
	fields.push_back({field_type::string});
	fields.push_back({field_type::string, 0, 0, 0,
	                  std::string("a\x01"
	                              "b\0c",
	                              5)});
	if (depth < 3) {
		fields.push_back({field_type::buffer});
		fields.push_back({field_type::buffer, 0, 0, 0, nested});
	}
	fields.push_back({field_type::int32, static_cast<std::uint64_t>(depth)});
	return fields;
}

// The innermost depth first: what is nested in each record is the one before.
template <class Append>
std::string golden_record_bytes(Append append) {
	std::string bytes;
	for (int depth = 3; depth >= 0; --depth) {
		bytes = append(golden_record(depth, bytes));
	}
	return bytes;
}

} // namespace quor_test

#endif
