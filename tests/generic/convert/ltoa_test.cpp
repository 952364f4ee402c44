#include <quor/quor.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>
#include <type_traits>

#include "reference/str_to_number_reference.hpp"
#include "support/comma_locale.hpp"

namespace {

namespace convert = QUOR_2_9::generic::convert;
namespace types = QUOR_2_9::types;
using quor_reference::digits_of;

constexpr types::int32 smallest32 = std::numeric_limits<types::int32>::min();
constexpr types::int64 smallest64 = std::numeric_limits<types::int64>::min();
constexpr std::size_t room = 66;

// The text of a call in one width, by value of its units; empty and flagged when the
// call wrote beyond the terminator.
template <class Unit, class Call>
std::u32string written(Call call) {
	Unit const untouched = static_cast<Unit>('#');
	Unit buffer[room + 1];
	std::fill(buffer, buffer + room + 1, untouched);
	call(buffer);
	std::u32string text;
	std::size_t i = 0;
	for (; buffer[i] != Unit(); ++i) {
		text.push_back(static_cast<char32_t>(static_cast<std::make_unsigned_t<Unit>>(buffer[i])));
	}
	for (++i; i < room + 1; ++i) {
		EXPECT_TRUE(buffer[i] == untouched) << "unit " << i;
	}
	return text;
}

// The char text of a call; the wider ones must be the same units.
template <class Call>
std::string text_of(Call call) {
	std::u32string const narrow = written<char>(call);
	EXPECT_TRUE(narrow == written<types::wide_char>(call));
	EXPECT_TRUE(narrow == written<types::utf32_char>(call));
	return std::string(narrow.begin(), narrow.end());
}

std::string ltoa_text(types::int32 value, unsigned int radix) {
	return text_of([=](auto *buffer) { convert::ltoa(value, buffer, radix); });
}

std::string ultoa_text(types::uint32 value, unsigned int radix) {
	return text_of([=](auto *buffer) { convert::ultoa(value, buffer, radix); });
}

std::string lltoa_text(types::int64 value, unsigned int radix) {
	return text_of([=](auto *buffer) { convert::lltoa(value, buffer, radix); });
}

std::string ulltoa_text(types::uint64 value, unsigned int radix) {
	return text_of([=](auto *buffer) { convert::ulltoa(value, buffer, radix); });
}

TEST(ltoa, literal_calls_compile_for_every_buffer) {
	char narrow[room];
	types::wide_char wide[room];
	types::utf32_char utf32[room];
	convert::ltoa(-5, narrow, 10);
	convert::ltoa(-5, wide, 10);
	convert::ltoa(-5, utf32, 10);
	EXPECT_STREQ(narrow, "-5");
	EXPECT_TRUE(types::wide_string(wide) == QUOR_W("-5"));
	EXPECT_TRUE(types::utf32_string(utf32) == QUOR_U32("-5"));
	convert::ultoa(7, narrow, 10);
	EXPECT_STREQ(narrow, "7");
	convert::lltoa(-7, narrow, 10);
	EXPECT_STREQ(narrow, "-7");
	convert::ulltoa(7U, narrow, 10);
	EXPECT_STREQ(narrow, "7");
}

TEST(ltoa, signed_32_bits) {
	struct row {
		types::int32 value;
		unsigned int radix;
		char const *expected;
	};
	for (row const &r :
	     {row{0, 10, "0"}, row{0, 2, "0"}, row{-5, 10, "-5"}, row{255, 16, "ff"}, row{-255, 16, "-ff"}, row{9, 10, "9"},
	      row{10, 10, "10"}, row{10, 11, "a"}, row{35, 36, "z"}, row{36, 36, "10"}, row{2147483647, 10, "2147483647"},
	      row{-2147483647, 10, "-2147483647"}, row{smallest32, 10, "-2147483648"}, row{smallest32, 16, "-80000000"},
	      row{smallest32, 2, "-10000000000000000000000000000000"}, row{smallest32, 36, "-zik0zk"}}) {
		SCOPED_TRACE(testing::Message() << r.value << " in " << r.radix);
		EXPECT_EQ(ltoa_text(r.value, r.radix), r.expected);
	}
}

TEST(ltoa, unsigned_32_bits) {
	EXPECT_EQ(ultoa_text(0, 10), "0");
	EXPECT_EQ(ultoa_text(4294967295U, 10), "4294967295");
	EXPECT_EQ(ultoa_text(4294967295U, 2), std::string(32, '1'));
	EXPECT_EQ(ultoa_text(4294967295U, 36), "1z141z3");
	EXPECT_EQ(ultoa_text(2147483648U, 10), "2147483648");
}

TEST(ltoa, signed_64_bits) {
	EXPECT_EQ(lltoa_text(0, 10), "0");
	EXPECT_EQ(lltoa_text(-1, 10), "-1");
	EXPECT_EQ(lltoa_text(9223372036854775807LL, 10), "9223372036854775807");
	EXPECT_EQ(lltoa_text(-9223372036854775807LL, 10), "-9223372036854775807");
	EXPECT_EQ(lltoa_text(9223372036854775807LL, 2), std::string(63, '1'));
	EXPECT_EQ(lltoa_text(-9223372036854775807LL, 2), std::string(1, '-').append(63, '1'));
}

TEST(ltoa, unsigned_64_bits) {
	EXPECT_EQ(ulltoa_text(0, 10), "0");
	EXPECT_EQ(ulltoa_text(18446744073709551615ULL, 10), "18446744073709551615");
	EXPECT_EQ(ulltoa_text(18446744073709551615ULL, 36), "3w5e11264sgsf");
	EXPECT_EQ(ulltoa_text(18446744073709551615ULL, 2), std::string(64, '1'));
	EXPECT_EQ(ulltoa_text(9223372036854775808ULL, 16), "8000000000000000");
}

TEST(ltoa, smallest_64_bit_number_is_one_unit_behind_the_sign) {
	auto const call = [](unsigned int radix) {
		return [radix](auto *buffer) { convert::lltoa(smallest64, buffer, radix); };
	};
	EXPECT_TRUE(written<char>(call(10)) == U"-O");
	EXPECT_TRUE(written<types::wide_char>(call(10)) == U"-\u014F");
	EXPECT_TRUE(written<types::utf32_char>(call(10)) == U"-\u014F");
	EXPECT_EQ(lltoa_text(smallest64, 16), "-0");
	EXPECT_EQ(lltoa_text(smallest64, 8), "-0");
	EXPECT_EQ(lltoa_text(smallest64, 2), "-0");
	EXPECT_EQ(lltoa_text(smallest64, 32), "-0");
	for (unsigned int radix = 2; radix <= 36; ++radix) {
		SCOPED_TRACE(radix);
		// The remainder is 0 or from -35 to -1, of which the low byte is written.
		int const remainder = -static_cast<int>((1ULL << 63) % radix);
		char32_t const unit = remainder == 0 ? U'0' : static_cast<char32_t>(256 + remainder + 0x57);
		EXPECT_TRUE(written<types::utf32_char>(call(radix)) == (std::u32string{U'-', unit}));
		EXPECT_TRUE(written<types::wide_char>(call(radix)) == (std::u32string{U'-', unit}));
		EXPECT_TRUE(written<char>(call(radix)) == (std::u32string{U'-', unit & 0xFF}));
	}
}

TEST(ltoa, radix_below_2_gives_an_empty_text) {
	for (unsigned int const radix : {0U, 1U}) {
		EXPECT_EQ(ltoa_text(-5, radix), "");
		EXPECT_EQ(ltoa_text(0, radix), "");
		EXPECT_EQ(ultoa_text(5, radix), "");
		EXPECT_EQ(lltoa_text(-5, radix), "");
		EXPECT_EQ(lltoa_text(smallest64, radix), "");
		EXPECT_EQ(ulltoa_text(5, radix), "");
	}
}

TEST(ltoa, radix_above_36_writes_the_low_byte_of_the_remainder) {
	EXPECT_EQ(ltoa_text(37 * 2 + 36, 37), std::string("2") + static_cast<char>(36 + 0x57));
	EXPECT_EQ(ultoa_text(256 + 9, 1000), "9");
	EXPECT_EQ(ultoa_text(256 + 10, 1000), "a");
	// 200 + 0x57 is 287: one unit of 0x11F in wide buffers, its low byte in narrow ones.
	auto const call = [](auto *buffer) { convert::ultoa(200, buffer, 1000); };
	EXPECT_TRUE(written<char>(call) == U"\x1F");
	EXPECT_TRUE(written<types::wide_char>(call) == U"\u011F");
	EXPECT_TRUE(written<types::utf32_char>(call) == U"\u011F");
	EXPECT_EQ(ltoa_text(smallest32, 0xFFFFFFFF), "-0");
	EXPECT_EQ(ltoa_text(5, 0xFFFFFFFF), "5");
	EXPECT_EQ(lltoa_text(smallest64, 0xFFFFFFFF).front(), '-');
	EXPECT_EQ(lltoa_text(-6, 0xFFFFFFFF), "-6");
	EXPECT_EQ(ulltoa_text(0x100000003ULL, 0xFFFFFFFF), "14");
}

TEST(ltoa, a_locale_with_a_decimal_comma_changes_nothing) {
	quor_test::comma_locale const locale;
	EXPECT_EQ(ltoa_text(-1234567, 10), "-1234567");
	EXPECT_EQ(ulltoa_text(18446744073709551615ULL, 10), "18446744073709551615");
}

TEST(ltoa, digits_agree_with_the_reference_in_every_radix) {
	std::mt19937_64 random(3);
	for (int radix = 2; radix <= 36; ++radix) {
		auto const given = static_cast<unsigned int>(radix);
		for (int round = 0; round != 200; ++round) {
			std::uint64_t const bits = random() >> (random() % 64);
			SCOPED_TRACE(testing::Message() << bits << " in " << radix);
			auto const as_int32 = static_cast<types::int32>(static_cast<std::uint32_t>(bits));
			auto const as_uint32 = static_cast<types::uint32>(bits & 0xFFFFFFFF);
			auto const as_int64 = static_cast<types::int64>(bits);
			ASSERT_EQ(ltoa_text(as_int32, given), digits_of(as_int32, radix));
			ASSERT_EQ(ultoa_text(as_uint32, given), digits_of(as_uint32, radix));
			ASSERT_EQ(ulltoa_text(bits, given), digits_of(bits, radix));
			if (as_int64 != smallest64) {
				ASSERT_EQ(lltoa_text(as_int64, given), digits_of(as_int64, radix));
			}
		}
	}
}

TEST(ltoa, numbers_around_every_power_agree_with_the_reference) {
	for (int const radix : {2, 4, 7, 8, 10, 16, 32, 36}) {
		auto const given = static_cast<unsigned int>(radix);
		std::uint64_t power = 1;
		do {
			for (std::uint64_t const value : {power - 1, power, power + 1, power * 5, 0 - power}) {
				SCOPED_TRACE(testing::Message() << value << " in " << radix);
				ASSERT_EQ(ulltoa_text(value, given), digits_of(value, radix));
				auto const narrow = static_cast<types::int32>(static_cast<std::uint32_t>(value));
				ASSERT_EQ(ltoa_text(narrow, given), digits_of(narrow, radix));
				auto const as_signed = static_cast<types::int64>(value);
				if (as_signed != smallest64) {
					ASSERT_EQ(lltoa_text(as_signed, given), digits_of(as_signed, radix));
				}
			}
			power *= given;
		} while (power % given == 0 && power != 0 && power < (std::uint64_t(1) << 63) / given);
	}
}

TEST(ltoa, text_goes_back_through_str_to_x) {
	std::mt19937_64 random(4);
	for (int round = 0; round != 20000; ++round) {
		auto const radix = static_cast<unsigned int>(2 + random() % 35);
		auto const value = static_cast<types::int64>(random() >> (random() % 64));
		if (value == smallest64) {
			continue;
		}
		char narrow[room];
		types::wide_char wide[room];
		convert::lltoa(value, narrow, radix);
		ASSERT_EQ(convert::str_to_int64(narrow, 0, radix, true), value) << narrow << " in " << radix;
		auto const value32 = static_cast<types::int32>(value);
		convert::ltoa(value32, wide, radix);
		ASSERT_EQ(convert::str_to_long(wide, 0, radix, true), value32) << value32 << " in " << radix;
		auto const unsigned64 = static_cast<types::uint64>(value);
		convert::ulltoa(unsigned64, narrow, radix);
		ASSERT_EQ(convert::str_to_uint64(narrow, room, radix, true), unsigned64) << narrow << " in " << radix;
	}
}

} // namespace
