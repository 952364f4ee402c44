#include <quor/generic/convert/units.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <csignal>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "reference/exact_double.hpp"

namespace {

namespace convert = QUOR_2_9::generic::convert;
namespace reference = quor_reference;
namespace types = QUOR_2_9::types;
using types::absolute_unit;
using types::basic_absolute_impl;
using types::device_unit;
using types::int32;
using md_length = basic_absolute_impl<1>;

// ---- the rules, in integers ---------------------------------------------------------

std::int32_t wrapped(std::int64_t value) {
	auto const bits = static_cast<std::uint32_t>(static_cast<std::uint64_t>(value));
	return bits < 0x80000000U ? static_cast<std::int32_t>(bits) : -static_cast<std::int32_t>(~bits) - 1;
}

std::int32_t expected_whole_inches(std::int32_t pixels, std::int32_t dpi) {
	return wrapped(std::int64_t(wrapped(std::int64_t(pixels) / dpi)) * 100000);
}

std::int32_t expected_pixels(std::int32_t md, std::int32_t dpi) {
	return wrapped(std::int64_t(md) * dpi) / 100000;
}

double expected_md(double value, int unit) {
	double const counts[] = {300, 25.4, 2.54, 1, 72, 6, 96};
	return unit < 2 || unit > 8
	           ? value
	           : reference::exact_quotient(reference::exact_product(value, 100000.0), counts[unit - 2]);
}

std::vector<int32> interesting_numbers() {
	std::vector<int32> numbers{std::numeric_limits<int32>::min(), std::numeric_limits<int32>::min() + 1,
	                           std::numeric_limits<int32>::max(), std::numeric_limits<int32>::max() - 1};
	for (int32 number : {0,   1,   2,   5,     6,     25,    72,    96,     100,     150,    299,
	                     300, 301, 600, 21474, 21475, 65536, 99999, 100000, 7158278, 7158279}) {
		numbers.push_back(number);
		numbers.push_back(-number);
	}
	std::mt19937 random(3);
	for (int i = 0; i != 60; ++i) {
		numbers.push_back(wrapped(static_cast<std::int64_t>(random())) >> (random() % 31));
	}
	return numbers;
}

std::vector<int> const units{std::numeric_limits<int>::min(), -1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 16, 99};

absolute_unit::unit_types unit_of(int number) {
	return static_cast<absolute_unit::unit_types>(number);
}

// ---- to_md --------------------------------------------------------------------------

TEST(to_md, of_a_length_keeps_the_fraction) {
	basic_absolute_impl<absolute_unit::inch> inch;
	inch.value(1.0000001);
	EXPECT_EQ(convert::to_md(inch).value(), expected_md(1.0000001, 5));
	EXPECT_NE(convert::to_md(inch).value(), 100000.0);
	basic_absolute_impl<77> const none(5);
	EXPECT_EQ(convert::to_md(none).as_md(), 5);
}

TEST(to_md, of_numbers_in_every_unit_is_exact_arithmetic_rounded_at_each_step) {
	std::mt19937_64 random(4);
	std::vector<double> numbers{0.0, 0.5, -0.5, 1.0, 25.4, 36.0, 0.1, 1e15, 1e300, 4294967301.0};
	for (int i = 0; i != 3000; ++i) {
		numbers.push_back(std::ldexp(static_cast<double>(static_cast<std::int64_t>(random())),
		                             static_cast<int>(random() % 100) - 80));
	}
	for (int unit : units) {
		for (double number : numbers) {
			ASSERT_EQ(convert::to_md(number, unit_of(unit)).value(), expected_md(number, unit))
			    << number << ' ' << unit;
			ASSERT_EQ(convert::to_md(number, unit).value(), expected_md(number, unit)) << number << ' ' << unit;
		}
		for (int32 number : interesting_numbers()) {
			double const expected = expected_md(static_cast<double>(number), unit);
			ASSERT_EQ(convert::to_md(number, unit_of(unit)).value(), expected) << number << ' ' << unit;
			ASSERT_EQ(convert::to_md(number, unit).value(), expected) << number << ' ' << unit;
		}
	}
}

TEST(to_md, of_pixels_divides_first_and_wraps) {
	EXPECT_EQ(convert::to_md(device_unit(150), 300).as_md(), 0);
	EXPECT_EQ(convert::to_md(device_unit(450), 300).as_md(), 100000);
	EXPECT_EQ(convert::to_md(150, device_unit::dpx, 300).as_md(), 0);
	EXPECT_EQ(convert::to_md(150.0, device_unit::dpx, 300).as_md(), 50000);
	EXPECT_EQ(convert::to_md(device_unit(std::numeric_limits<int32>::min()), -1).as_md(), 0);
	EXPECT_EQ(convert::to_md(device_unit(21475), 1).as_md(), wrapped(2147500000));
	for (int32 pixels : interesting_numbers()) {
		for (int32 dpi : interesting_numbers()) {
			if (dpi == 0) {
				continue;
			}
			int32 const expected = expected_whole_inches(pixels, dpi);
			ASSERT_EQ(convert::to_md(device_unit(pixels), dpi).value(), static_cast<double>(expected))
			    << pixels << ' ' << dpi;
			ASSERT_EQ(convert::to_md(pixels, device_unit::dpx, dpi).value(), static_cast<double>(expected));
			ASSERT_EQ(convert::to_md(pixels, static_cast<device_unit::unit_types>(9), dpi).as_md(), expected);
			ASSERT_EQ(convert::to_md(pixels, 1, dpi).as_md(), expected);
		}
	}
}

TEST(to_md, of_floating_pixels_is_exact_arithmetic_rounded_at_each_step) {
	std::mt19937_64 random(5);
	for (int i = 0; i != 20000; ++i) {
		double const pixels =
		    std::ldexp(static_cast<double>(static_cast<std::int64_t>(random())), static_cast<int>(random() % 100) - 80);
		int32 const dpi = wrapped(static_cast<std::int64_t>(random())) >> (random() % 31);
		if (dpi == 0) {
			continue;
		}
		double const expected =
		    reference::exact_product(reference::exact_quotient(pixels, static_cast<double>(dpi)), 100000.0);
		ASSERT_EQ(convert::to_md(pixels, device_unit::dpx, dpi).value(), expected) << pixels << ' ' << dpi;
		ASSERT_EQ(convert::to_md(pixels, 5, dpi).value(), expected) << pixels << ' ' << dpi;
	}
}

TEST(to_md, of_floating_pixels_without_any_in_an_inch_is_infinite) {
	EXPECT_EQ(convert::to_md(1.0, device_unit::dpx, 0).value(), std::numeric_limits<double>::infinity());
	EXPECT_EQ(convert::to_md(-1.0, device_unit::dpx, 0).value(), -std::numeric_limits<double>::infinity());
	EXPECT_TRUE(std::isnan(convert::to_md(0.0, device_unit::dpx, 0).value()));
	EXPECT_EQ(convert::to_md(1.0, device_unit::dpx, 0).as_md(), 0);
}

// ---- to_device_unit -----------------------------------------------------------------

TEST(to_device_unit, of_pixels_is_a_copy) {
	EXPECT_EQ(convert::to_device_unit(device_unit(-7)).as_int32(), -7);
	EXPECT_EQ(convert::to_dpx(device_unit(-7)).as_int32(), -7);
	EXPECT_EQ(convert::to_device_unit(-7, device_unit::dpx).as_int32(), -7);
	EXPECT_EQ(convert::to_device_unit(2.9, device_unit::dpx).as_int32(), 2);
	EXPECT_EQ(convert::to_device_unit(4294967301.5, static_cast<device_unit::unit_types>(8)).as_int32(), 5);
	EXPECT_EQ(convert::to_dpx(-7, device_unit::dpx).as_int32(), -7);
	EXPECT_EQ(convert::to_dpx(-2.9, device_unit::dpx).as_int32(), -2);
}

TEST(to_device_unit, edge_values) {
	basic_absolute_impl<absolute_unit::inch> inch;
	inch.value(1.0);
	EXPECT_EQ(convert::to_device_unit(inch, 300).as_int32(), 300);
	EXPECT_EQ(convert::to_device_unit(inch, 0).as_int32(), 0);
	inch.value(30000.0);
	EXPECT_EQ(convert::to_device_unit(inch, 300).as_int32(), expected_pixels(wrapped(3000000000), 300));
	EXPECT_NE(convert::to_device_unit(inch, 300).as_int32(), 9000000);
	EXPECT_EQ(convert::to_dpx(21.0, absolute_unit::cm, 300).as_int32(), 2480);
	EXPECT_EQ(convert::to_dpx(71.58, absolute_unit::inch, 300).as_int32(), 21474);
	EXPECT_EQ(convert::to_dpx(71.59, absolute_unit::inch, 300).as_int32(), expected_pixels(7159000, 300));
	EXPECT_LT(convert::to_dpx(71.59, absolute_unit::inch, 300).as_int32(), 0);
}

TEST(to_device_unit, of_lengths_multiplies_whole_md_in_32_bits) {
	std::vector<int32> const numbers = interesting_numbers();
	for (int32 md : numbers) {
		for (int32 dpi : numbers) {
			int32 const expected = expected_pixels(md, dpi);
			basic_absolute_impl<absolute_unit::pica> const length(md);
			ASSERT_EQ(convert::to_device_unit(length, dpi).as_int32(), expected) << md << ' ' << dpi;
			ASSERT_EQ(convert::to_dpx(length, dpi).as_int32(), expected) << md << ' ' << dpi;
			ASSERT_EQ(convert::to_device_unit(md, absolute_unit::md, dpi).as_int32(), expected) << md << ' ' << dpi;
		}
	}
}

TEST(to_device_unit, of_numbers_in_every_unit_cuts_md_first) {
	std::mt19937_64 random(6);
	for (int i = 0; i != 20000; ++i) {
		double const number =
		    std::ldexp(static_cast<double>(static_cast<std::int64_t>(random())), static_cast<int>(random() % 80) - 80);
		int const unit = units[static_cast<std::size_t>(random() % units.size())];
		int32 const dpi = wrapped(static_cast<std::int64_t>(random())) >> (random() % 31);
		int32 const expected = expected_pixels(reference::exact_low_32(expected_md(number, unit)), dpi);
		SCOPED_TRACE(testing::Message() << number << ' ' << unit << ' ' << dpi);
		ASSERT_EQ(convert::to_device_unit(number, unit_of(unit), dpi).as_int32(), expected);
		ASSERT_EQ(convert::to_dpx(number, unit_of(unit), dpi).as_int32(), expected);
		ASSERT_EQ(convert::to_device_unit(number, unit, dpi).as_int32(), expected);
		ASSERT_EQ(convert::to_dpx(number, unit, dpi).as_int32(), expected);
		int32 const whole = reference::exact_low_32(number);
		int32 const from_whole =
		    expected_pixels(reference::exact_low_32(expected_md(static_cast<double>(whole), unit)), dpi);
		ASSERT_EQ(convert::to_device_unit(whole, unit_of(unit), dpi).as_int32(), from_whole);
		ASSERT_EQ(convert::to_dpx(whole, unit_of(unit), dpi).as_int32(), from_whole);
		ASSERT_EQ(convert::to_device_unit(whole, unit, dpi).as_int32(), from_whole);
		ASSERT_EQ(convert::to_dpx(whole, unit, dpi).as_int32(), from_whole);
	}
}

TEST(units, not_a_number_and_infinities_are_0_pixels) {
	for (double value : {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
	                     std::numeric_limits<double>::quiet_NaN(), 1e308}) {
		for (int unit : units) {
			EXPECT_EQ(convert::to_device_unit(value, unit_of(unit), 300).as_int32(), 0) << value << ' ' << unit;
			EXPECT_EQ(convert::to_md(value, unit_of(unit)).as_md(), 0) << value << ' ' << unit;
		}
	}
}

// ---- calls as one writes them ------------------------------------------------------------

template <class Result, class... Results>
constexpr bool all_are = (std::is_same_v<Result, Results> && ...);

static_assert(all_are<md_length, decltype(convert::to_md(0.5, 5)), decltype(convert::to_md(7, 99)),
                      decltype(convert::to_md(7L, absolute_unit::cm)), decltype(convert::to_md(7U, 5)),
                      decltype(convert::to_md(7LL, 5L)), decltype(convert::to_md(0.5F, absolute_unit::mm)),
                      decltype(convert::to_md(types::long_t(7), 5)), decltype(convert::to_md(types::ulong_t(7), 5)),
                      decltype(convert::to_md(std::size_t(7), std::size_t(5))), decltype(convert::to_md('a', 5)),
                      decltype(convert::to_md(md_length())), decltype(convert::to_md(device_unit(7), 300)),
                      decltype(convert::to_md(device_unit(7), 300L)), decltype(convert::to_md(150, 1, 300)),
                      decltype(convert::to_md(150.0, 1, 300)), decltype(convert::to_md(150L, device_unit::dpx, 300)),
                      decltype(convert::to_md(150U, device_unit::dpx, types::long_t(300)))>);
static_assert(
    all_are<device_unit, decltype(convert::to_device_unit(7)), decltype(convert::to_device_unit(7.5)),
            decltype(convert::to_device_unit(md_length(), 300)), decltype(convert::to_device_unit(7, 1)),
            decltype(convert::to_device_unit(7U, device_unit::dpx)), decltype(convert::to_device_unit(7.5F, 1)),
            decltype(convert::to_device_unit(7, 5, 300)), decltype(convert::to_device_unit(7L, absolute_unit::cm, 300)),
            decltype(convert::to_device_unit(types::long_t(7), 5L, types::ulong_t(300))), decltype(convert::to_dpx(7)),
            decltype(convert::to_dpx(md_length(), 300)), decltype(convert::to_dpx(7, 1)),
            decltype(convert::to_dpx(7L, device_unit::dpx)), decltype(convert::to_dpx(0.5, 5, 300)),
            decltype(convert::to_dpx(7ULL, absolute_unit::cm, 300))>);

// A unit of the wrong enumeration isn't taken for a number.
template <class... Arguments>
using device_call = decltype(convert::to_device_unit(std::declval<Arguments>()...));
template <class Void, class... Arguments>
constexpr bool has_device_call = false;
template <class... Arguments>
constexpr bool has_device_call<std::void_t<device_call<Arguments...>>, Arguments...> = true;
static_assert(has_device_call<void, int, int> && has_device_call<void, int, device_unit::unit_types>);
static_assert(!has_device_call<void, int, absolute_unit::unit_types>);
static_assert(!has_device_call<void, int, device_unit::unit_types, int>);
static_assert(!has_device_call<void, char const *, int> && !has_device_call<void, int, double>);

TEST(units, literals_mean_what_they_say) {
	EXPECT_EQ(convert::to_md(0.5, 5).as_md(), 50000);
	EXPECT_EQ(convert::to_md(7, 99).as_md(), 7);
	EXPECT_EQ(convert::to_md(7L, 99L).as_md(), 7);
	EXPECT_EQ(convert::to_md(2U, 5U).as_md(), 200000);
	EXPECT_EQ(convert::to_md(0.5F, absolute_unit::inch).as_md(), 50000);
	EXPECT_EQ(convert::to_md(types::long_t(2), 5).as_md(), 200000);
	EXPECT_EQ(convert::to_md(types::ulong_t(2), 5).as_md(), 200000);
	EXPECT_EQ(convert::to_md(types::int64(0x100000002), 5).as_md(), 200000);
	EXPECT_EQ(convert::to_md(2, types::int64(0x100000005)).as_md(), 2);
	EXPECT_EQ(convert::to_md(2, -5).as_md(), 2);
	EXPECT_EQ(convert::to_md(450, 1, 300).as_md(), 100000);
	EXPECT_EQ(convert::to_md(150.0F, 1, 300).as_md(), 50000);
	EXPECT_EQ(convert::to_device_unit(2, 5, 300).as_int32(), 600);
	EXPECT_EQ(convert::to_device_unit(0.5L, 5, 300).as_int32(), 150);
	EXPECT_EQ(convert::to_device_unit(types::uint64(0x100000005), 1).as_int32(), 5);
	EXPECT_EQ(convert::to_dpx(2.9F, 1).as_int32(), 2);
	EXPECT_EQ(convert::to_dpx(2, 5L, 300).as_int32(), 600);
}

// ---- no pixels in an inch ----------------------------------------------------------------

#if defined(__has_feature)
#  if __has_feature(undefined_behavior_sanitizer)
#	define QUOR_TEST_REPORTS_DIVISION
#  endif
#endif

// Where the machine faults, the fault ends the program; a build with the sanitizer reports
// the division instead.
#if defined(QUOR_TEST_REPORTS_DIVISION)
TEST(units_death_test, integer_division_by_a_dpi_of_0_is_reported_by_the_sanitizer) {
	EXPECT_DEATH(convert::to_md(device_unit(300), 0), "division by zero");
	EXPECT_DEATH(convert::to_md(300, device_unit::dpx, 0), "division by zero");
}
#elif defined(__x86_64__) || defined(__i386__)
#  if GTEST_OS_WINDOWS
// The status of an integer division by zero.
testing::ExitedWithCode const ended_by_division(static_cast<int>(0xC0000094U));
#  else
testing::KilledBySignal const ended_by_division(SIGFPE);
#  endif

TEST(units_death_test, integer_division_by_a_dpi_of_0_is_a_fault_of_the_machine) {
	EXPECT_EXIT(convert::to_md(device_unit(300), 0), ended_by_division, "");
	EXPECT_EXIT(convert::to_md(0, device_unit::dpx, 0), ended_by_division, "");
}
#endif

} // namespace
