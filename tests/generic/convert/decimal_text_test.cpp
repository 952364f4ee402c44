#include "generic/convert/decimal_text.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "reference/floating_text.hpp"
#include "support/comma_locale.hpp"

namespace {

namespace detail = QUOR_2_9::generic::convert::detail;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();
constexpr double largest = std::numeric_limits<double>::max();
constexpr double smallest = std::numeric_limits<double>::denorm_min();

std::string gcvt(double value, int digits) {
	// A block of exactly the told size, so that a sanitizer sees one character too many.
	std::vector<char> buffer(detail::gcvt_size);
	return std::string(buffer.data(), detail::gcvt(value, digits, buffer.data()));
}

double atof(std::string const &text) {
	std::vector<char> const block(text.begin(), text.end());
	return detail::atof(block.data(), block.size());
}

std::string fixed(double value, int precision, std::size_t size = 400) {
	std::vector<char> buffer(size);
	return std::string(buffer.data(), detail::fixed(value, precision, buffer.data(), size));
}

std::string scientific(double value, int precision, std::size_t size = 400) {
	std::vector<char> buffer(size);
	return std::string(buffer.data(), detail::scientific(value, precision, buffer.data(), size));
}

std::string printed(char const *format, int precision, double value) {
	char buffer[2000];
	std::snprintf(buffer, sizeof buffer, format, precision, value);
	return buffer;
}

double random_double(std::mt19937_64 &random) {
	for (;;) {
		std::uint64_t const bits = random();
		double value = 0.0;
		std::memcpy(&value, &bits, sizeof value);
		if (random() % 2 == 0) {
			value = std::ldexp(static_cast<double>(static_cast<std::int64_t>(bits)), -static_cast<int>(random() % 80));
		}
		if (std::isfinite(value)) {
			return value;
		}
	}
}

bool same_bits(double a, double b) {
	// NOLINTNEXTLINE(bugprone-suspicious-memory-comparison): signs of zeros and NaNs count too
	return std::memcmp(&a, &b, sizeof a) == 0;
}

TEST(decimal_text, gcvt_forms) {
	struct row {
		double value = 0.0;
		int digits;
		char const *expected;
	};
	for (row const &r : {
	         row{1, 10, "1."},
	         row{-1, 10, "-1."},
	         row{0, 10, "0."},
	         row{-0.0, 10, "-0."},
	         row{100, 10, "100."},
	         row{1.5, 10, "1.5"},
	         row{-1.5, 10, "-1.5"},
	         row{123.456, 10, "123.456"},
	         row{0.5, 10, "0.5"},
	         row{0.1, 10, "0.1"},
	         row{static_cast<double>(0.1F), 10, "0.1000000015"},
	         row{0.05, 10, "5.e-002"},
	         row{0.015, 10, "1.5e-002"},
	         row{0.0999999999999, 10, "0.1"},
	         row{0.09999999999, 10, "9.999999999e-002"},
	         row{1e9, 10, "1000000000."},
	         row{1234567890, 10, "1234567890."},
	         row{9999999999, 10, "9999999999."},
	         row{1e10, 10, "1.e+010"},
	         row{9999999999.4, 10, "9999999999."},
	         row{9999999999.5, 10, "1.e+010"},
	         row{12345678901, 10, "1.23456789e+010"},
	         row{1e100, 10, "1.e+100"},
	         row{1.5e-100, 10, "1.5e-100"},
	         row{-2.5e-7, 10, "-2.5e-007"},
	         row{largest, 10, "1.797693135e+308"},
	         row{smallest, 10, "4.940656458e-324"},
	         row{0.30000000000000004, 17, "0.30000000000000004"},
	         row{1.0 / 3, 10, "0.3333333333"},
	         row{2.0 / 3, 10, "0.6666666667"},
	         row{1, 1, "1."},
	         row{9.5, 1, "1.e+001"},
	         row{8.5, 1, "8."},
	         row{10, 1, "1.e+001"},
	         row{0.25, 1, "0.2"},
	         row{0.35, 1, "0.3"},
	         row{1, 6, "1."},
	         row{999999.5, 6, "1.e+006"},
	         row{999998.5, 6, "999998."},
	         row{5, 0, "5."},
	         row{5, -3, "5."},
	         row{infinity, 10, "inf"},
	         row{-infinity, 10, "-inf"},
	         row{not_a_number, 10, "nan"},
	         row{-not_a_number, 10, "nan"},
	     }) {
		SCOPED_TRACE(testing::Message() << r.expected << " in " << r.digits);
		EXPECT_EQ(gcvt(r.value, r.digits), r.expected);
	}
}

TEST(decimal_text, gcvt_fits_its_buffer_in_every_precision) {
	for (double const value : {largest, -largest, smallest, -smallest, -1.0 / 3, -123456.789e-300, 1e300 / 7}) {
		for (int const digits : {1, 10, 17, 308, 309, 310, 339, 340, 341, 400, std::numeric_limits<int>::max()}) {
			SCOPED_TRACE(testing::Message() << value << " in " << digits);
			std::string const text = gcvt(value, digits);
			EXPECT_LE(text.size(), detail::gcvt_size);
			EXPECT_TRUE(digits < 17 || same_bits(atof(text), value)) << text;
		}
	}
	EXPECT_EQ(gcvt(1.0 / 3, 341), gcvt(1.0 / 3, 340));
}

TEST(decimal_text, gcvt_has_the_digits_of_the_exponent_form) {
	std::mt19937_64 random(21);
	for (int round = 0; round != 20000; ++round) {
		double const value = random_double(random);
		int const digits = static_cast<int>(1 + random() % 17);
		// The reference: digits and exponent from the C library's exponent form.
		std::string form = printed("%.*e", digits - 1, std::fabs(value));
		int const exponent = std::atoi(form.c_str() + form.find('e') + 1);
		form.erase(form.find('e'));
		if (digits > 1) {
			form.erase(1, 1);
		}
		while (form.size() > 1 && form.back() == '0') {
			form.pop_back();
		}
		std::string expected = std::signbit(value) ? "-" : "";
		if (exponent == -1) {
			expected += "0." + form;
		} else if (exponent >= 0 && exponent < digits) {
			auto const whole = static_cast<std::size_t>(exponent) + 1;
			form.resize(std::max(form.size(), whole), '0');
			expected += form.substr(0, whole) + "." + form.substr(whole);
		} else {
			char tail[20];
			std::snprintf(tail, sizeof tail, "e%c%03d", exponent < 0 ? '-' : '+', std::abs(exponent));
			expected += form.substr(0, 1) + "." + form.substr(1) + tail;
		}
		ASSERT_EQ(gcvt(value, digits), expected);
	}
}

// The usual numbers are rounded in whole numbers: ties, their neighbours, powers of ten, and the
// bounds of that way.
TEST(decimal_text, gcvt_of_usual_numbers_has_the_digits_of_the_exponent_form) {
	std::mt19937_64 random(26);
	auto const agree = [](double value, int digits) {
		for (double const near : {std::nextafter(value, -infinity), value, std::nextafter(value, infinity)}) {
			ASSERT_EQ(gcvt(near, digits), quor_reference::significant_text(near, static_cast<std::uint32_t>(digits)));
			ASSERT_EQ(gcvt(-near, digits), quor_reference::significant_text(-near, static_cast<std::uint32_t>(digits)));
		}
	};
	for (int digits = 1; digits <= 19; ++digits) {
		for (int exponent = -13; exponent <= 54; ++exponent) {
			agree(std::ldexp(1.0, exponent), digits);
			for (int round = 0; round != 10; ++round) {
				double const mantissa = 1 + std::ldexp(static_cast<double>(random() >> 12), -52);
				agree(std::ldexp(mantissa, exponent), digits);
				// So few bits that what is cut off is often a half.
				agree(std::ldexp(static_cast<double>(random() % 4096 + 1), exponent - 12), digits);
			}
		}
		for (int power = -5; power <= 18; ++power) {
			double const ten = std::pow(10.0, power);
			agree(ten, digits);
			agree(ten * (1 - std::pow(10.0, -digits) / 2), digits);
			agree(ten * 9.5, digits);
		}
	}
}

TEST(decimal_text, gcvt_with_17_digits_reads_back_exactly) {
	std::mt19937_64 random(22);
	for (int round = 0; round != 20000; ++round) {
		double const value = random_double(random);
		ASSERT_TRUE(same_bits(atof(gcvt(value, 17)), value)) << gcvt(value, 17);
	}
}

TEST(decimal_text, atof_forms) {
	struct row {
		char const *text;
		double expected;
	};
	for (row const &r : {
	         row{"", 0},
	         row{" ", 0},
	         row{"1", 1},
	         row{"-1", -1},
	         row{"+1", 1},
	         row{"--1", 0},
	         row{"+-1", 0},
	         row{"- 1", 0},
	         row{" \t\n\v\f\r1.5", 1.5},
	         row{"\b1", 0},
	         row{"1.5abc", 1.5},
	         row{"1.", 1},
	         row{".5", 0.5},
	         row{"-.5", -0.5},
	         row{".", 0},
	         row{"-.", 0},
	         row{".e5", 0},
	         row{"-", 0},
	         row{"+", 0},
	         row{"1,5", 1},
	         row{"1.5.5", 1.5},
	         row{"1e3", 1000},
	         row{"1E3", 1000},
	         row{"1e+3", 1000},
	         row{"1e-3", 0.001},
	         row{"1e", 1},
	         row{"1e+", 1},
	         row{"1e-", 1},
	         row{"1e+-3", 1},
	         row{"1ex", 1},
	         row{"1e3.5", 1000},
	         row{"e3", 0},
	         row{"0x10", 0},
	         row{"-0x10", -0.0},
	         row{"0x1p3", 0},
	         row{"0", 0},
	         row{"-0", -0.0},
	         row{"000012", 12},
	         row{"\\10", 0},
	         row{"abc", 0},
	         row{"inf", infinity},
	         row{"-inf", -infinity},
	         row{"+INF", infinity},
	         row{" Infinity", infinity},
	         row{"infinit", infinity},
	         row{"infx", infinity},
	         row{"in", 0},
	         row{"i", 0},
	         row{"na", 0},
	         row{"1d5", 1},
	         row{"\xC2\xA0"
	             "5",
	             0},
	         row{"1.7976931348623157e308", largest},
	         row{"4.9406564584124654e-324", smallest},
	     }) {
		SCOPED_TRACE(testing::PrintToString(r.text));
		EXPECT_TRUE(same_bits(atof(r.text), r.expected)) << atof(r.text);
	}
	for (char const *const text : {"nan", "NaN", "-nan", " +NAN", "nan(12)", "nanx"}) {
		EXPECT_TRUE(std::isnan(atof(text))) << text;
	}
}

TEST(decimal_text, atof_beyond_the_range_gives_infinity_or_zero) {
	std::string const zeros(2000, '0');
	struct row {
		std::string text;
		double expected;
	};
	for (row const &r : {
	         row{"1e309", infinity},
	         row{"-1e309", -infinity},
	         row{"1.8e308", infinity},
	         row{"1e99999999999999999999", infinity},
	         row{"-1e99999999999999999999", -infinity},
	         row{"1" + zeros, infinity},
	         row{"1" + zeros + "e-2000", 1},
	         row{"1" + zeros + "e-2400", 0},
	         row{"0." + zeros + "1", 0},
	         row{"-0." + zeros + "1", -0.0},
	         row{"0." + zeros + "1e2001", 1},
	         row{"0." + zeros + "1e2500", infinity},
	         row{"." + zeros + "1e+99999999999", infinity},
	         row{zeros + "1", 1},
	         row{zeros + "1e400", infinity},
	         row{zeros + "1e-400", 0},
	         row{"1e-400", 0},
	         row{"-1e-400", -0.0},
	         row{"1e-99999999999999999999", 0},
	         row{"9.9e-325", 0},
	         row{"2e-324", 0},
	         row{"0e99999999999999999999", 0},
	         row{"-0e400", -0.0},
	         row{"0.000e400", 0},
	         row{"3e-324", smallest},
	     }) {
		SCOPED_TRACE(r.text.substr(0, 30));
		EXPECT_TRUE(same_bits(atof(r.text), r.expected)) << atof(r.text);
	}
}

TEST(decimal_text, atof_ends_at_its_length_and_at_zero_units) {
	EXPECT_EQ(detail::atof("12345", 2), 12);
	EXPECT_EQ(detail::atof("1e5", 2), 1);
	EXPECT_EQ(detail::atof("-1", 1), 0);
	EXPECT_EQ(detail::atof("inf", 2), 0);
	EXPECT_EQ(detail::atof(nullptr, 0), 0);
	EXPECT_EQ(atof(std::string("1\0"
	                           "2",
	                           3)),
	          1);
	EXPECT_EQ(atof(std::string("\0"
	                           "2",
	                           2)),
	          0);
}

TEST(decimal_text, atof_agrees_with_the_c_library) {
	std::mt19937_64 random(23);
	std::string const alphabet("0001234567899.e+-E ");
	for (int round = 0; round != 40000; ++round) {
		std::string text;
		if (random() % 2 == 0) {
			for (auto count = random() % 30; count != 0; --count) {
				text.push_back(alphabet[static_cast<std::size_t>(random() % alphabet.size())]);
			}
		} else {
			text = printed("%.*e", static_cast<int>(random() % 40), random_double(random));
			text.replace(text.find('e') + 1, std::string::npos, std::to_string(static_cast<int>(random() % 700) - 350));
		}
		ASSERT_TRUE(same_bits(atof(text), quor_reference::c_number(text))) << testing::PrintToString(text);
	}
}

TEST(decimal_text, fixed_and_scientific_forms) {
	EXPECT_EQ(fixed(3.14159, 2), "3.14");
	EXPECT_EQ(fixed(-3.14159, 0), "-3");
	EXPECT_EQ(fixed(0, 2), "0.00");
	EXPECT_EQ(fixed(-0.4, 0), "-0");
	EXPECT_EQ(fixed(-0.001, 2), "-0.00");
	EXPECT_EQ(fixed(0.5, 0), "0");
	EXPECT_EQ(fixed(1.5, 0), "2");
	EXPECT_EQ(fixed(2.5, 0), "2");
	EXPECT_EQ(fixed(0.125, 2), "0.12");
	EXPECT_EQ(fixed(0.375, 2), "0.38");
	EXPECT_EQ(fixed(2.675, 2), "2.67");
	EXPECT_EQ(fixed(1e22, 1), "10000000000000000000000.0");
	EXPECT_EQ(fixed(0.1, 30), "0.100000000000000005551115123126");
	EXPECT_EQ(fixed(infinity, 2), "inf");
	EXPECT_EQ(fixed(-infinity, 2), "-inf");
	EXPECT_EQ(fixed(-not_a_number, 2), "nan");
	EXPECT_EQ(scientific(123456789, 2), "1.23e+08");
	EXPECT_EQ(scientific(1e100, 0), "1e+100");
	EXPECT_EQ(scientific(-1.5e-7, 3), "-1.500e-07");
	EXPECT_EQ(scientific(0, 2), "0.00e+00");
	EXPECT_EQ(scientific(2.5, 0), "2e+00");
	EXPECT_EQ(scientific(3.5, 0), "4e+00");
	EXPECT_EQ(scientific(infinity, 2), "inf");
}

TEST(decimal_text, fixed_and_scientific_agree_with_the_c_library) {
	std::mt19937_64 random(24);
	for (int round = 0; round != 20000; ++round) {
		double const value = random_double(random);
		int const precision = static_cast<int>(random() % 62);
		ASSERT_EQ(fixed(value, precision), printed("%.*f", precision, value)) << precision;
		ASSERT_EQ(scientific(value, precision), printed("%.*e", precision, value)) << precision;
	}
}

// Few decimals are rounded in whole numbers: ties, their neighbours, and the bounds of that way.
TEST(decimal_text, fixed_with_few_decimals_agrees_with_the_c_library) {
	std::mt19937_64 random(25);
	auto const agree = [](double value) {
		for (double const near : {std::nextafter(value, -infinity), value, std::nextafter(value, infinity)}) {
			for (int precision = 0; precision <= 4; ++precision) {
				ASSERT_EQ(fixed(near, precision), printed("%.*f", precision, near)) << precision;
				ASSERT_EQ(fixed(-near, precision, 63), printed("%.*f", precision, -near)) << precision;
			}
		}
	};
	for (int exponent = -1074; exponent <= 63; ++exponent) {
		agree(std::ldexp(1.0, exponent));
		agree(std::ldexp(1.5, exponent));
	}
	for (int round = 0; round != 3000; ++round) {
		auto const whole = static_cast<double>(random() >> (random() % 64));
		agree(std::ldexp(whole, -static_cast<int>(random() % 24)));
		agree(whole / 1000);
	}
}

TEST(decimal_text, what_does_not_fit_is_not_written) {
	for (std::size_t size = 0; size <= 24; ++size) {
		EXPECT_EQ(fixed(-4503599627370495.5, 3, size), size >= 21 ? "-4503599627370495.500" : "");
		EXPECT_EQ(fixed(7.25, 1, size), size >= 3 ? "7.2" : "");
	}
	EXPECT_EQ(fixed(123.456, 2, 6), "123.46");
	EXPECT_EQ(fixed(123.456, 2, 5), "");
	EXPECT_EQ(fixed(1e63, 0, 63), "");
	EXPECT_EQ(fixed(1e62, 0, 63).size(), 63U);
	EXPECT_EQ(fixed(largest, 0, 63), "");
	EXPECT_EQ(fixed(1, 61, 63).size(), 63U);
	EXPECT_EQ(fixed(1, 62, 63), "");
	EXPECT_EQ(fixed(1, 2000000000, 63), "");
	EXPECT_EQ(fixed(1, std::numeric_limits<int>::max(), 63), "");
	EXPECT_EQ(fixed(1, -1), "");
	EXPECT_EQ(fixed(1, std::numeric_limits<int>::min()), "");
	EXPECT_EQ(fixed(1, 0, 0), "");
	EXPECT_EQ(fixed(infinity, 0, 2), "");
	EXPECT_EQ(fixed(infinity, -1), "");
	EXPECT_EQ(scientific(1, 2, 8), "1.00e+00");
	EXPECT_EQ(scientific(1, 2, 7), "");
	EXPECT_EQ(scientific(1, 2000000000, 63), "");
	EXPECT_EQ(scientific(1, -5), "");
}

TEST(decimal_text, a_locale_with_a_decimal_comma_changes_nothing) {
	quor_test::comma_locale const locale;
	std::ostringstream stream;
	stream << 1234.5;
	ASSERT_EQ(stream.str(), "1.234,5"); // the locale is in force
	EXPECT_EQ(gcvt(1234.5, 10), "1234.5");
	EXPECT_EQ(gcvt(1e10, 10), "1.e+010");
	EXPECT_EQ(fixed(1234567.5, 2), "1234567.50");
	EXPECT_EQ(scientific(1234.5, 2), "1.23e+03");
	EXPECT_EQ(atof("1.5"), 1.5);
	EXPECT_EQ(atof("1,5"), 1);
	EXPECT_EQ(atof("1.234,5"), 1.234);
}

} // namespace
