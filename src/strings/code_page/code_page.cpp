#include <quor/strings/code_page/code_page.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

#include <quor/exceptions/logic_error.hpp>
#include <quor/strings/transcode.hpp>

#include "platform/code_page.hpp"

namespace QUOR_2_9::strings {
namespace {

using types::int32;
using types::uint32;
using types::wide_char;

constexpr auto no_encoding = static_cast<code_page::encoding_type>(0);

/// The offset of the first zero, or the size.
std::size_t end_of_text(std::string const &text) noexcept {
	return std::min(text.find('\0'), text.size());
}

std::size_t end_of_text(ustring16 const &text) noexcept {
	constexpr std::size_t step = 32;
	wide_char const *const units = text.data();
	std::size_t at = 0;
	for (; text.size() - at >= step; at += step) {
		// Without a way out in the middle, so that the step can be one of vectors.
		std::uint16_t zeros = 0;
		for (std::size_t i = 0; i != step; ++i) {
			zeros = static_cast<std::uint16_t>(zeros | (units[at + i] == 0 ? 1U : 0U));
		}
		if (zeros != 0) {
			break;
		}
	}
	while (at != text.size() && units[at] != 0) {
		++at;
	}
	return at;
}

/// The length to tell the service, with the zero that ends the text; -1 where no number
/// of its width is large enough.
template <class Text>
int32 told_length(Text const &text) noexcept {
	std::size_t const length = end_of_text(text) + 1;
	return length <= static_cast<std::size_t>(std::numeric_limits<int32>::max()) ? static_cast<int32>(length) : -1;
}

/// Asks the service twice, for the size and for the result. The zero that ends the text
/// is converted with it and is the one unit that doesn't fit into the result.
template <class Result, class Text, class Service>
Result convert_measured(Text const &text, int32 length, Service service) {
	int32 const count = service(text.c_str(), length, nullptr, int32(0));
	Result result;
	// The service answers 0 where it fails; no string has the size that this makes.
	result.resize(static_cast<std::size_t>(static_cast<std::ptrdiff_t>(count) - 1));
	if (!result.empty()) {
		service(text.c_str(), length, result.data(), static_cast<int32>(count - 1));
	}
	return result;
}

/// The same where no unit becomes more than `most`, in most cases with one call. A short
/// text goes through a place that is there already. For a longer one the room is taken
/// first, hardly more than is needed in most cases, unless it could be too much.
template <class Result, class Text, class Service>
Result convert(Text const &text, std::size_t most, Service service) {
	constexpr std::size_t short_room = 256;
	int32 const length = told_length(text);
	std::size_t const room = length > 0 ? static_cast<std::size_t>(length) * most : 0;
	if (room == 0 || room > static_cast<std::size_t>(std::numeric_limits<int32>::max()) ||
	    (most > 2 && room > short_room)) {
		return convert_measured<Result>(text, length, service);
	}
	typename Result::value_type units[short_room];
	Result result;
	if (room > short_room) {
		result.resize(room);
	}
	int32 const count =
	    service(text.c_str(), length, room > short_room ? result.data() : units, static_cast<int32>(room));
	if (count <= 0) {
		return convert_measured<Result>(text, length, service);
	}
	auto const size = static_cast<std::size_t>(count - 1);
	if (room <= short_room) {
		result.assign(units, size);
		return result;
	}
	result.resize(size);
	if (size < result.capacity() / 4 * 3) {
		Result(result.data(), size).swap(result);
	}
	return result;
}

/// How many bytes a unit takes at most in a page of the system. Where a page of the
/// process takes more the service fails, and the text is measured.
std::size_t most_bytes(uint32 page) noexcept {
	switch (page) {
	case 0:
	case 1:
	case 65001:
		return 3;
	case 932:
	case 936:
	case 949:
	case 950:
		return 2;
	default:
		return 1;
	}
}

template <class Result>
Result decode(uint32 page, std::string const &text) {
	return convert<Result>(text, 1, [page](char const *bytes, int32 length, wide_char *out, int32 size) {
		return platform::multi_byte_to_wide(page, bytes, length, out, size);
	});
}

} // namespace

code_page::code_page() noexcept : m_type(no_encoding) {}

code_page::code_page(types::nil_t const &) noexcept : m_type(no_encoding) {}

code_page::code_page(encoding_type const &type) noexcept : m_type(type) {}

code_page::code_page(code_page const &other) noexcept = default;

code_page const &code_page::assign(types::nil_t const &) noexcept {
	m_type = no_encoding;
	return *this;
}

code_page const &code_page::assign(code_page const &other) noexcept {
	m_type = other.m_type;
	return *this;
}

code_page const &code_page::assign(encoding_type const &type) noexcept {
	m_type = type;
	return *this;
}

code_page const &code_page::operator=(types::nil_t const &nil) noexcept {
	return assign(nil);
}

code_page const &code_page::operator=(code_page const &other) noexcept {
	return assign(other);
}

code_page const &code_page::operator=(encoding_type const &type) noexcept {
	return assign(type);
}

bool code_page::equal(types::nil_t const &) const noexcept {
	return m_type < 0;
}

bool code_page::equal(code_page const &other) const noexcept {
	return m_type == other.m_type;
}

bool code_page::equal(encoding_type const &type) const noexcept {
	return m_type == type;
}

bool code_page::operator==(types::nil_t const &nil) const noexcept {
	return equal(nil);
}

bool code_page::operator==(code_page const &other) const noexcept {
	return equal(other);
}

bool code_page::operator==(encoding_type const &type) const noexcept {
	return equal(type);
}

bool code_page::operator!=(types::nil_t const &nil) const noexcept {
	return !equal(code_page(nil));
}

bool code_page::operator!=(code_page const &other) const noexcept {
	return !equal(other);
}

bool code_page::operator!=(encoding_type const &type) const noexcept {
	return !equal(type);
}

code_page::encoding_type const &code_page::type() const noexcept {
	return m_type;
}

code_page::encoding_type &code_page::type() noexcept {
	return m_type;
}

code_page::encoding_type &code_page::type(encoding_type const &type) noexcept {
	m_type = type;
	return m_type;
}

int code_page::to_system_type(encoding_type type) const {
	switch (type) {
	case system_ansi:
		return 0;
	case system_oem:
	case system_oem_alt:
		return 1;
	case utf_8:
		return 65001;
	case cp_932:
	case cp_936:
	case cp_949:
	case cp_950:
	case cp_1250:
	case cp_1251:
	case cp_1252:
	case cp_1253:
	case cp_1254:
	case cp_1255:
	case cp_1256:
	case cp_1257:
	case cp_1258:
	case cp_20866:
	case cp_21866:
	case cp_28591:
	case cp_28592:
	case cp_28593:
	case cp_28594:
	case cp_28595:
	case cp_28596:
	case cp_28597:
	case cp_28598:
	case cp_28599:
	case cp_28605:
		return type;
	}
	// The line is part of the interface, a number of its own that doesn't follow this file.
	throw exceptions::invalid_argument_value("Not valid code_page type", 458, "strings\\code_page",
	                                         "QUOR_2_9::strings::code_page::to_system_type");
}

std::string code_page::encode(ustring8 const &text) const {
	return encode(utf8_to_utf16(text));
}

std::string code_page::encode(ustring16 const &text) const {
	auto const page = static_cast<uint32>(to_system_type(m_type));
	return convert<std::string>(text, most_bytes(page),
	                            [page](wide_char const *units, int32 length, char *out, int32 size) {
		                            return platform::wide_to_multi_byte(page, units, length, out, size);
	                            });
}

std::string code_page::encode(ustring32 const &text) const {
	return encode(utf32_to_utf16(text));
}

ustring16 code_page::as_utf16(std::string const &text) const {
	return decode<ustring16>(static_cast<uint32>(to_system_type(m_type)), text);
}

ustring8 code_page::as_utf8(std::string const &text) const {
	return utf16_to_utf8(as_utf16(text));
}

ustring32 code_page::as_utf32(std::string const &text) const {
	return utf16_to_utf32(as_utf16(text));
}

types::wide_string code_page::as_ustring(std::string const &text) const {
	return decode<types::wide_string>(static_cast<uint32>(to_system_type(m_type)), text);
}

} // namespace QUOR_2_9::strings
