#ifndef QUOR_TESTS_SUPPORT_STR_TO_X_FAMILY_HPP
#define QUOR_TESTS_SUPPORT_STR_TO_X_FAMILY_HPP

// The thirteen text-to-number functions as rows of a table, each for the three text
// widths, with what they answer or throw brought into one form.

#include <quor/quor.hpp>

#include <cstdint>
#include <string>
#include <string_view>

#include "reference/str_to_number_reference.hpp"

namespace quor_test {

namespace convert = QUOR_2_9::generic::convert;
using QUOR_2_9::types::int32;
using QUOR_2_9::types::int64;
using QUOR_2_9::types::radix_t;
using QUOR_2_9::types::uint32;
using QUOR_2_9::types::uint64;
using QUOR_2_9::types::utf32_char;
using QUOR_2_9::types::wide_char;

// One function of the family with its three overloads.
struct family_member {
	char const *name;
	quor_reference::number_type type;
	std::int64_t (*narrow)(char const *, uint32, radix_t::base, bool);
	std::int64_t (*wide)(wide_char const *, uint32, radix_t::base, bool);
	std::int64_t (*utf32)(utf32_char const *, uint32, radix_t::base, bool);

	std::int64_t operator()(char const *text, uint32 length, radix_t::base radix, bool throwing) const {
		return narrow(text, length, radix, throwing);
	}
	std::int64_t operator()(wide_char const *text, uint32 length, radix_t::base radix, bool throwing) const {
		return wide(text, length, radix, throwing);
	}
	std::int64_t operator()(utf32_char const *text, uint32 length, radix_t::base radix, bool throwing) const {
		return utf32(text, length, radix, throwing);
	}
};

template <class Result, class Unit, Result (*function)(Unit const *, uint32, radix_t::base, bool)>
std::int64_t as_bits(Unit const *text, uint32 length, radix_t::base radix, bool throwing) {
	return static_cast<std::int64_t>(function(text, length, radix, throwing));
}

template <class Result, Result (*narrow)(char const *, uint32, radix_t::base, bool),
          Result (*wide)(wide_char const *, uint32, radix_t::base, bool),
          Result (*utf32)(utf32_char const *, uint32, radix_t::base, bool)>
constexpr family_member member(char const *name) {
	return {name,
	        {static_cast<int>(8 * sizeof(Result)), Result(-1) < Result(0)},
	        &as_bits<Result, char, narrow>,
	        &as_bits<Result, wide_char, wide>,
	        &as_bits<Result, utf32_char, utf32>};
}

#define QUOR_FAMILY_MEMBER(result, name) member<result, &convert::name, &convert::name, &convert::name>(#name)

inline constexpr family_member family[] = {
    QUOR_FAMILY_MEMBER(int32, str_to_long),
    QUOR_FAMILY_MEMBER(int, str_to_int),
    QUOR_FAMILY_MEMBER(short, str_to_short),
    QUOR_FAMILY_MEMBER(int, str_to_signed),
    QUOR_FAMILY_MEMBER(unsigned int, str_to_unsigned),
    QUOR_FAMILY_MEMBER(signed char, str_to_int8),
    QUOR_FAMILY_MEMBER(short, str_to_int16),
    QUOR_FAMILY_MEMBER(int32, str_to_int32),
    QUOR_FAMILY_MEMBER(int64, str_to_int64),
    QUOR_FAMILY_MEMBER(unsigned char, str_to_uint8),
    QUOR_FAMILY_MEMBER(unsigned short, str_to_uint16),
    QUOR_FAMILY_MEMBER(uint32, str_to_uint32),
    QUOR_FAMILY_MEMBER(uint64, str_to_uint64),
};

#undef QUOR_FAMILY_MEMBER

inline family_member const &member_named(std::string_view name) {
	for (family_member const &row : family) {
		if (row.name == name) {
			return row;
		}
	}
	throw name;
}

// Whether the report names its place and its text as it must.
inline bool well_reported(QUOR_2_9::exceptions::exception const &error, std::string_view message, bool is_signed) {
	return error.message() == message && error.error_state().file() == std::string_view("generic\\convert\\str_to_x") &&
	       error.error_state().function() == std::string_view(is_signed ? "QUOR_2_9::generic::convert::strtointx"
	                                                                    : "QUOR_2_9::generic::convert::strtouintx");
}

// Calls the function and says what came of it. A report with a wrong text, file or
// function counts as line 0.
template <class Unit>
quor_reference::outcome outcome_of(family_member const &function, Unit const *text, uint32 length, std::uint32_t radix,
                                   bool throwing) {
	namespace exceptions = QUOR_2_9::exceptions;
	using quor_reference::failure;
	auto const report = [&](failure kind, exceptions::exception const &error, std::string_view message) {
		bool const good = well_reported(error, message, function.type.is_signed);
		return quor_reference::outcome{kind, good ? error.error_state().line() : 0, 0};
	};
	try {
		return {failure::none, 0, function(text, length, radix_t::of(radix), throwing)};
	} catch (exceptions::invalid_argument_value const &error) {
		return report(failure::bad_radix, error, "invalid radix value, values of 0, 2-36 are the only valid values");
	} catch (exceptions::underflow_error const &error) {
		return report(failure::too_small, error, "Number value is to small");
	} catch (exceptions::overflow_error const &error) {
		return report(failure::too_large, error, "Number value is to large");
	}
}

// A narrow text in another width, byte by byte.
template <class String>
String widened(std::string const &text) {
	String result;
	for (char const c : text) {
		result.push_back(static_cast<typename String::value_type>(static_cast<unsigned char>(c)));
	}
	return result;
}

} // namespace quor_test

#endif
