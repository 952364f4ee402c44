// Numbers in a variant: as other numbers, as truth values, as text.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <locale>
#include <random>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

#include <quor/quor.hpp>

#include "support/comma_locale.hpp"

namespace {

using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::types::int32;
using quor::types::int64;
using quor::types::long_t;
using quor::types::uint32;
using quor::types::uint64;
using quor::types::ulong_t;
using quor::types::variant;
using quor::types::wide_char;

constexpr int64 smallest_64 = std::numeric_limits<int64>::min();
constexpr int64 largest_64 = std::numeric_limits<int64>::max();

// All integer results of a variant, each by its low bits.
struct integers {
	std::uint64_t bits;

	void expect_of(variant const &value) const {
		EXPECT_EQ(value.as_int8(), static_cast<signed char>(bits));
		EXPECT_EQ(value.as_uint8(), static_cast<unsigned char>(bits));
		EXPECT_EQ(value.as_short(), static_cast<short>(bits));
		EXPECT_EQ(value.as_int16(), static_cast<short>(bits));
		EXPECT_EQ(value.as_ushort(), static_cast<unsigned short>(bits));
		EXPECT_EQ(value.as_uint16(), static_cast<unsigned short>(bits));
		EXPECT_EQ(value.as_int(), static_cast<int>(bits));
		EXPECT_EQ(value.as_signed(), static_cast<int>(bits));
		EXPECT_EQ(value.as_uint(), static_cast<unsigned int>(bits));
		EXPECT_EQ(value.as_unsigned(), static_cast<unsigned int>(bits));
		EXPECT_EQ(value.as_long(), static_cast<int32>(bits));
		EXPECT_EQ(value.as_int32(), static_cast<int32>(bits));
		EXPECT_EQ(value.as_ulong(), static_cast<uint32>(bits));
		EXPECT_EQ(value.as_uint32(), static_cast<uint32>(bits));
		EXPECT_EQ(value.as_int64(), static_cast<int64>(bits));
		EXPECT_EQ(value.as_uint64(), static_cast<uint64>(bits));
	}
};

// The whole part of a finite number modulo 2^64, digit by binary digit.
template <class Floating>
std::uint64_t whole_part_reference(Floating value) {
	int exponent = 0;
	Floating fraction = std::frexp(value < 0 ? -value : value, &exponent);
	std::uint64_t whole = 0;
	for (; exponent > 0; --exponent) {
		fraction *= 2;
		std::uint64_t const digit = fraction >= 1 ? 1 : 0;
		fraction -= static_cast<Floating>(digit);
		whole = whole * 2 + digit;
	}
	return value < 0 ? 0 - whole : whole;
}

TEST(variant_numbers, integers_are_cut_and_extended_by_their_sign) {
	struct {
		variant value;
		std::uint64_t bits;
	} const rows[] = {
	    {variant(300), 300},
	    {variant(-1), ~0ULL},
	    {variant(std::numeric_limits<int>::min()), 0xFFFFFFFF80000000U},
	    {variant(4000000000U), 4000000000U},
	    {variant(static_cast<signed char>(-128)), 0xFFFFFFFFFFFFFF80U},
	    {variant(static_cast<unsigned char>(255)), 255},
	    {variant(static_cast<short>(-32768)), 0xFFFFFFFFFFFF8000U},
	    {variant(static_cast<unsigned short>(65535)), 65535},
	    {variant(long_t(-2)), 0xFFFFFFFFFFFFFFFEU},
	    {variant(ulong_t(0xFFFFFFFE)), 0xFFFFFFFE},
	    {variant(int64(0x123456789ABCDEF0)), 0x123456789ABCDEF0U},
	    {variant(smallest_64), 0x8000000000000000U},
	    {variant(uint64(0xFEDCBA9876543210U)), 0xFEDCBA9876543210U},
	    {variant(true), 1},
	    {variant(false), 0},
	};
	for (auto const &row : rows) {
		SCOPED_TRACE(row.value.type().name());
		SCOPED_TRACE(row.bits);
		integers{row.bits}.expect_of(row.value);
		EXPECT_EQ(row.value.as_bool(), row.bits != 0);
	}
	EXPECT_EQ(variant(300).as_uint8(), 44);
	EXPECT_EQ(variant(4000000000U).as_int(), -294967296);
	EXPECT_EQ(variant(-1).as_uint32(), 4294967295U);
	EXPECT_TRUE(variant(int64(1) << 40).as_bool()) << "the upper half counts too";
}

TEST(variant_numbers, random_integers_of_every_type_give_their_low_bits) {
	std::mt19937_64 random(20090907);
	for (int i = 0; i != 2000; ++i) {
		std::uint64_t const bits = random() >> (random() % 64);
		SCOPED_TRACE(bits);
		auto const sign_extended = [](auto number) { return static_cast<std::uint64_t>(static_cast<int64>(number)); };
		integers{sign_extended(static_cast<int>(bits))}.expect_of(static_cast<int>(bits));
		integers{static_cast<unsigned int>(bits)}.expect_of(static_cast<unsigned int>(bits));
		integers{sign_extended(static_cast<signed char>(bits))}.expect_of(static_cast<signed char>(bits));
		integers{sign_extended(static_cast<short>(bits))}.expect_of(static_cast<short>(bits));
		integers{sign_extended(static_cast<int32>(bits))}.expect_of(long_t(static_cast<int32>(bits)));
		integers{bits}.expect_of(static_cast<int64>(bits));
		integers{static_cast<unsigned char>(bits)}.expect_of(static_cast<unsigned char>(bits));
		integers{static_cast<unsigned short>(bits)}.expect_of(static_cast<unsigned short>(bits));
		integers{static_cast<uint32>(bits)}.expect_of(ulong_t(static_cast<uint32>(bits)));
		integers{bits}.expect_of(static_cast<uint64>(bits));
	}
}

TEST(variant_numbers, floating_numbers_give_their_whole_part_modulo_two_to_the_64th) {
	double const infinity = std::numeric_limits<double>::infinity();
	struct {
		double value;
		std::uint64_t bits;
	} const rows[] = {
	    {0.0, 0},
	    {-0.0, 0},
	    {0.9, 0},
	    {-0.9, 0},
	    {3.9, 3},
	    {-3.9, 0 - 3ULL},
	    {300.0, 300},
	    {2147483648.0, 2147483648U},
	    {-2147483649.0, 0 - 2147483649ULL},
	    {9223372036854775808.0, 0x8000000000000000U},
	    {-9223372036854775808.0, 0x8000000000000000U},
	    {18446744073709549568.0, 0xFFFFFFFFFFFFF800U},
	    {18446744073709551616.0, 0},
	    {18446744073709555712.0, 4096},
	    {-18446744073709555712.0, 0 - 4096ULL},
	    {1e300, 0},
	    {infinity, 0},
	    {-infinity, 0},
	    {std::numeric_limits<double>::quiet_NaN(), 0},
	};
	for (auto const &row : rows) {
		SCOPED_TRACE(row.value);
		integers{row.bits}.expect_of(row.value);
		integers{row.bits}.expect_of(static_cast<long double>(row.value));
	}
	EXPECT_EQ(variant(-3.9).as_int(), -3);
	EXPECT_EQ(variant(3e9F).as_uint32(), 3000000000U);
	EXPECT_EQ(variant(std::numeric_limits<float>::infinity()).as_int64(), 0);
	EXPECT_EQ(variant(std::numeric_limits<float>::quiet_NaN()).as_uint8(), 0);
	EXPECT_EQ(variant(std::numeric_limits<long double>::infinity()).as_int64(), 0);
	EXPECT_EQ(variant(std::numeric_limits<long double>::max()).as_int64(), 0);
}

TEST(variant_numbers, random_floating_numbers_agree_with_the_reference) {
	std::mt19937_64 random(1);
	std::uniform_real_distribution<double> fraction(-1, 1);
	for (int i = 0; i != 3000; ++i) {
		int const exponent = static_cast<int>(random() % 160);
		double const number = std::ldexp(fraction(random), exponent);
		long double const extended = static_cast<long double>(number) + std::ldexp(1.0L, exponent - 60);
		SCOPED_TRACE(number);
		integers{whole_part_reference(number)}.expect_of(number);
		integers{whole_part_reference(static_cast<float>(number))}.expect_of(static_cast<float>(number));
		integers{whole_part_reference(extended)}.expect_of(extended);
	}
}

TEST(variant_numbers, truth_is_not_zero) {
	EXPECT_TRUE(variant(0.001).as_bool());
	EXPECT_TRUE(variant(-1.0F).as_bool());
	EXPECT_FALSE(variant(-0.0).as_bool());
	EXPECT_FALSE(variant(0.0L).as_bool());
	EXPECT_TRUE(variant(std::numeric_limits<double>::quiet_NaN()).as_bool());
	EXPECT_TRUE(variant(std::numeric_limits<float>::quiet_NaN()).as_bool());
	EXPECT_TRUE(variant(std::numeric_limits<long double>::quiet_NaN()).as_bool());
	EXPECT_TRUE(variant(std::numeric_limits<double>::denorm_min()).as_bool());
}

TEST(variant_numbers, floating_results_round_integers_as_told) {
	EXPECT_EQ(variant(true).as_double(), 1.0);
	EXPECT_EQ(variant(false).as_float(), 0.0F);
	EXPECT_EQ(variant(4000000000U).as_double(), 4000000000.0);
	EXPECT_EQ(variant(ulong_t(4294967295U)).as_long_double(), 4294967295.0L);
	EXPECT_EQ(variant(-1).as_float(), -1.0F);
	EXPECT_EQ(variant(uint64(18446744073709551615U)).as_double(), 18446744073709551616.0);
	EXPECT_EQ(variant(smallest_64).as_long_double(), -9223372036854775808.0L);
	// 2^60 + 2^36 + 1 lies above the middle of two floats, but its double lies on it.
	int64 const twice_rounded = (int64(1) << 60) + (int64(1) << 36) + 1;
	EXPECT_EQ(variant(twice_rounded).as_float(), 1152921504606846976.0F);
	EXPECT_EQ(variant(static_cast<uint64>(twice_rounded)).as_float(), 1152921504606846976.0F);
	EXPECT_EQ(variant(-twice_rounded).as_float(), -1152921504606846976.0F);
	EXPECT_EQ(variant(16777217).as_float(), 16777216.0F);
}

TEST(variant_numbers, double_beyond_the_range_of_float_is_infinite) {
	float const infinity = std::numeric_limits<float>::infinity();
	EXPECT_EQ(variant(1e300).as_float(), infinity);
	EXPECT_EQ(variant(-1e39).as_float(), -infinity);
	EXPECT_EQ(variant("1e39").as_float(), infinity);
	EXPECT_EQ(variant(std::numeric_limits<double>::infinity()).as_float(), infinity);
	EXPECT_TRUE(std::isnan(variant(std::numeric_limits<double>::quiet_NaN()).as_float()));
	EXPECT_EQ(variant(1e-300).as_float(), 0.0F);
	EXPECT_EQ(variant(0.1F).as_double(), static_cast<double>(0.1F));
}

// What a number holder must write: the narrow text, and the wide one where it differs.
void expect_texts(variant const &value, ustring8 const &text, ustring16 const &wide) {
	SCOPED_TRACE(value.type().name());
	EXPECT_EQ(value.as_string(), text);
	EXPECT_EQ(value.as_utf8(), text);
	EXPECT_EQ(value.as_wstring(), wide);
	EXPECT_EQ(value.as_ustring(), quor::strings::utf8_to_utf16(text));
	EXPECT_EQ(value.as_utf16(), quor::strings::utf8_to_utf16(text));
	EXPECT_EQ(value.as_utf32(), quor::strings::utf8_to_utf32(text));
}

void expect_texts(variant const &value, ustring8 const &text) {
	expect_texts(value, text, quor::strings::utf8_to_utf16(text));
}

TEST(variant_numbers, integers_are_written_in_decimal) {
	expect_texts(0, "0");
	expect_texts(-5, "-5");
	expect_texts(std::numeric_limits<int>::min(), "-2147483648");
	expect_texts(4294967295U, "4294967295");
	expect_texts(static_cast<signed char>(65), "65");
	expect_texts(static_cast<signed char>(-128), "-128");
	expect_texts(static_cast<unsigned char>(255), "255");
	expect_texts(static_cast<short>(-32768), "-32768");
	expect_texts(static_cast<unsigned short>(65535), "65535");
	expect_texts(long_t(-2147483647 - 1), "-2147483648");
	expect_texts(ulong_t(4294967295U), "4294967295");
	expect_texts(largest_64, "9223372036854775807");
	expect_texts(smallest_64 + 1, "-9223372036854775807");
	expect_texts(uint64(18446744073709551615U), "18446744073709551615");
	expect_texts(true, "1");
	expect_texts(false, "0");
}

TEST(variant_numbers, smallest_64_bit_number_is_minus_letter_o) {
	ustring16 const wide{wide_char('-'), wide_char(0x14F)};
	expect_texts(smallest_64, "-O", wide);
}

TEST(variant_numbers, float_and_double_are_written_with_ten_digits) {
	struct {
		double value;
		char const *text;
	} const rows[] = {
	    {0.0, "0"},
	    {-0.0, "0"},
	    {1.5, "1.5"},
	    {1.0, "1."},
	    {-1.0, "-1."},
	    {100.0, "100."},
	    {0.5, "0.5"},
	    {0.1, "0.1"},
	    {0.05, "5.e-002"},
	    {1.0 / 3.0, "0.3333333333"},
	    {123456789.0, "123456789."},
	    {1e9, "1000000000."},
	    {1e10, "1.e+010"},
	    {12345678901.0, "1.23456789e+010"},
	    {1.5e100, "1.5e+100"},
	    {-2.5e-300, "-2.5e-300"},
	    {9999999999.5, "1.e+010"},
	};
	for (auto const &row : rows) {
		SCOPED_TRACE(row.text);
		expect_texts(row.value, row.text);
	}
	expect_texts(0.1F, "0.1000000015");
	expect_texts(-0.0F, "0");
	expect_texts(1.5F, "1.5");
	expect_texts(std::numeric_limits<double>::infinity(), "inf");
	expect_texts(-std::numeric_limits<float>::infinity(), "-inf");
	expect_texts(std::numeric_limits<double>::quiet_NaN(), "nan");
}

TEST(variant_numbers, long_double_is_written_as_a_stream_writes_it) {
	long double const infinity = std::numeric_limits<long double>::infinity();
	std::vector<long double> rows = {0.0L,     -0.0L,     1.0L,       1.5L,  100000.0L, 999999.0L,  999999.5L,
	                                 1e6L,     0.0001L,   0.00001L,   1e10L, 1.0L / 3,  -2.5e-300L, 1e4000L,
	                                 infinity, -infinity, 1234567.0L, 0.1L,  123456.5L, 2.5L,       1e-5L};
	std::mt19937_64 random(2);
	for (int i = 0; i != 500; ++i) {
		rows.push_back(std::ldexp(static_cast<long double>(random()), static_cast<int>(random() % 400) - 250));
	}
	for (long double const row : rows) {
		std::ostringstream stream;
		stream.imbue(std::locale::classic());
		stream << row;
		SCOPED_TRACE(stream.str());
		expect_texts(row, stream.str());
	}
	expect_texts(1e10L, "1e+10");
	expect_texts(1.0L / 3, "0.333333");
	expect_texts(0.0L, "0");
}

TEST(variant_numbers, global_locale_plays_no_part) {
	quor_test::comma_locale const comma;
	expect_texts(1234567, "1234567");
	expect_texts(4000000000U, "4000000000");
	expect_texts(1234.5, "1234.5");
	expect_texts(1234.5L, "1234.5");
	expect_texts(largest_64, "9223372036854775807");
	EXPECT_EQ(variant("1.5").as_double(), 1.5);
	EXPECT_EQ(variant("1,5").as_double(), 1.0);
}

TEST(variant_numbers, numbers_read_their_own_text_back) {
	std::mt19937_64 random(3);
	for (int i = 0; i != 2000; ++i) {
		auto const number = static_cast<int64>(random() >> (random() % 64));
		EXPECT_EQ(variant(variant(number).as_string()).as_int64(), number);
		EXPECT_EQ(variant(variant(static_cast<uint64>(number)).as_utf16()).as_uint64(), static_cast<uint64>(number));
		EXPECT_EQ(variant(variant(-number).as_utf32()).as_int64(), -number);
		auto const eight_digits = static_cast<double>(number % 100000000) / 1024;
		EXPECT_NEAR(variant(variant(eight_digits).as_string()).as_double(), eight_digits,
		            std::abs(eight_digits) * 1e-9);
	}
}

} // namespace
