#include <quor/types/absolute_unit.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "reference/exact_double.hpp"

namespace {

namespace types = QUOR_2_9::types;
namespace reference = quor_reference;
using types::absolute_unit;
using types::basic_absolute_impl;
using types::int32;

template <class... Numbers>
constexpr bool all_convert = (std::is_convertible_v<Numbers, basic_absolute_impl<absolute_unit::mm>> && ...);

static_assert(std::is_abstract_v<absolute_unit> && !std::is_destructible_v<absolute_unit>);
static_assert(all_convert<int, unsigned int, types::int32, types::uint32, types::long_t, types::int64, types::uint64>);
static_assert(all_convert<long, unsigned long, short, char, bool, float, double, long double, basic_absolute_impl<5>>);
static_assert(!std::is_convertible_v<char const *, basic_absolute_impl<5>>);
static_assert(std::is_same_v<std::underlying_type_t<absolute_unit::unit_types>, int>);
static_assert(std::is_same_v<decltype(absolute_unit::m_md_per_inch), types::int64 const> &&
              absolute_unit::m_md_per_inch == 100000);
static_assert(absolute_unit::md == 1 && absolute_unit::dot_300 == 2 && absolute_unit::mm == 3 &&
              absolute_unit::cm == 4 && absolute_unit::inch == 5 && absolute_unit::point == 6 &&
              absolute_unit::pica == 7 && absolute_unit::dot_96 == 8);

// The rules, from the table of units, with arithmetic that no compiler can change.
double units_of_an_inch(int unit) {
	double const counts[] = {0, 100000, 300, 25.4, 2.54, 1, 72, 6, 96};
	return counts[unit];
}

double expected_value(double md, int unit) {
	return unit == 1 ? md : reference::exact_quotient(reference::exact_product(md, units_of_an_inch(unit)), 100000.0);
}

double expected_md(double value, int unit) {
	return unit == 1 ? value
	                 : reference::exact_quotient(reference::exact_product(value, 100000.0), units_of_an_inch(unit));
}

int32 expected_int32(double value) {
	return reference::exact_low_32(reference::exact_floor(reference::exact_sum(value, 0.5)));
}

double expected_double(double value) {
	double const hundredths = reference::exact_sum(reference::exact_product(value, 100.0), 0.5);
	return reference::exact_quotient(reference::exact_floor(hundredths), 100.0);
}

double md_of(absolute_unit const &length) {
	return basic_absolute_impl<absolute_unit::md>(length).value();
}

template <int Unit>
void check_unit(double number) {
	SCOPED_TRACE(testing::Message() << "unit " << Unit << ", number " << number);
	basic_absolute_impl<Unit> length;
	length.value(number);
	double const md = expected_md(number, Unit);
	ASSERT_EQ(md_of(length), md);
	ASSERT_EQ(length.as_md(), reference::exact_low_32(md));
	double const value = expected_value(md, Unit);
	ASSERT_EQ(length.value(), value);
	ASSERT_EQ(length.as_int32(), expected_int32(value));
	ASSERT_EQ(length.as_double(), expected_double(value));
	ASSERT_EQ(static_cast<int>(length.type()), Unit);
}

void check_every_unit(double number) {
	check_unit<1>(number);
	check_unit<2>(number);
	check_unit<3>(number);
	check_unit<4>(number);
	check_unit<5>(number);
	check_unit<6>(number);
	check_unit<7>(number);
	check_unit<8>(number);
}

TEST(absolute_unit, numbers_are_those_of_exact_arithmetic_rounded_at_each_step) {
	for (double number : {0.0,
	                      -0.0,
	                      1.0,
	                      -1.0,
	                      0.5,
	                      -0.5,
	                      1.5,
	                      2.5,
	                      -2.5,
	                      25.4,
	                      36.0,
	                      0.005,
	                      0.015,
	                      1.005,
	                      -1.005,
	                      21.0,
	                      29.7,
	                      0.49999999999999994,
	                      4503599627370497.5,
	                      1e-300,
	                      5e-324,
	                      2147483647.0,
	                      2147483648.0,
	                      -2147483649.0,
	                      1e15,
	                      1e22,
	                      1e300}) {
		check_every_unit(number);
	}
	for (int number = -2000; number != 2000; ++number) {
		check_every_unit(number / 8.0);
		check_every_unit(number / 100.0);
	}
	std::mt19937_64 random(2);
	for (int i = 0; i != 20000; ++i) {
		auto const mantissa = static_cast<double>(static_cast<std::int64_t>(random()));
		check_every_unit(std::ldexp(mantissa, static_cast<int>(random() % 100) - 80));
		if (HasFatalFailure()) {
			return;
		}
	}
}

TEST(absolute_unit, edge_values) {
	basic_absolute_impl<absolute_unit::inch> inch;
	inch.value(1.0);
	EXPECT_EQ(inch.as_md(), 100000);
	EXPECT_EQ(inch.as_int32(), 1);
	EXPECT_EQ(inch.as_double(), 1.0);
	basic_absolute_impl<absolute_unit::mm> mm;
	mm.value(25.4);
	EXPECT_EQ(md_of(mm), 100000.0);
	EXPECT_EQ(mm.as_md(), 100000);
	basic_absolute_impl<absolute_unit::point> point;
	point.value(36.0);
	EXPECT_DOUBLE_EQ(point.value(), 36.0);
	EXPECT_EQ(point.as_double(), 36.0);
	EXPECT_EQ(point.as_md(), 50000);
	// A little below a whole number is one md less.
	basic_absolute_impl<absolute_unit::md> md;
	md.value(0.99999999999999989);
	EXPECT_EQ(md.as_md(), 0);
	EXPECT_EQ(md.as_int32(), 1);
	md.value(-0.99999999999999989);
	EXPECT_EQ(md.as_md(), 0);
	EXPECT_EQ(md.as_int32(), -1);
}

TEST(absolute_unit, rounding_goes_up_at_halves) {
	struct row {
		double md;
		int32 whole;
		double hundredths;
	};
	for (row const &r : std::vector<row>{{2.5, 3, 2.5},
	                                     {-2.5, -2, -2.5},
	                                     {0.5, 1, 0.5},
	                                     {-0.5, 0, -0.5},
	                                     {1.49, 1, 1.49},
	                                     {-1.5, -1, -1.5},
	                                     {0.125, 0, 0.13},
	                                     {-0.125, 0, -0.12},
	                                     {0.375, 0, 0.38},
	                                     {-0.375, 0, -0.37},
	                                     {2.499, 2, 2.5}}) {
		basic_absolute_impl<absolute_unit::md> length;
		length.value(r.md);
		EXPECT_EQ(length.as_int32(), r.whole) << r.md;
		EXPECT_EQ(length.as_double(), r.hundredths) << r.md;
		EXPECT_EQ(length.value(), r.md);
	}
}

TEST(absolute_unit, constructors_take_md_and_cut_the_fraction) {
	using inches = basic_absolute_impl<absolute_unit::inch>;
	EXPECT_EQ(md_of(inches()), 0.0);
	EXPECT_EQ(md_of(inches(2.9)), 2.0);
	EXPECT_EQ(md_of(inches(-2.9)), -2.0);
	EXPECT_EQ(md_of(inches(2.9F)), 2.0);
	EXPECT_EQ(md_of(inches(-2.9L)), -2.0);
	EXPECT_EQ(md_of(inches(0.9)), 0.0);
	EXPECT_EQ(md_of(inches(7)), 7.0);
	EXPECT_EQ(md_of(inches(std::numeric_limits<int32>::min())), -2147483648.0);
	EXPECT_EQ(md_of(inches(3000000000.5)), 3000000000.0);
	EXPECT_EQ(md_of(inches(1e300)), 1e300);
	EXPECT_EQ(md_of(inches(std::numeric_limits<double>::infinity())), 0.0);
	EXPECT_EQ(md_of(inches(std::numeric_limits<double>::quiet_NaN())), 0.0);
	// Integers of other widths by their low 32 bits.
	EXPECT_EQ(md_of(inches(types::int64(0x100000005))), 5.0);
	EXPECT_EQ(md_of(inches(4294967295U)), -1.0);
	EXPECT_EQ(md_of(inches(7UL)), 7.0);
	EXPECT_EQ(md_of(inches(types::long_t(7))), 7.0);
	EXPECT_EQ(md_of(inches('A')), 65.0);
	EXPECT_EQ(inches(250000).value(), 2.5);
}

TEST(absolute_unit, copies_keep_the_length_and_not_the_unit) {
	basic_absolute_impl<absolute_unit::inch> inch;
	inch.value(1.0000001); // 100000.01 md
	basic_absolute_impl<absolute_unit::mm> mm(inch);
	EXPECT_EQ(md_of(mm), md_of(inch));
	EXPECT_NE(md_of(mm), 100000.0);
	EXPECT_EQ(mm.type(), absolute_unit::mm);
	basic_absolute_impl<absolute_unit::pica> pica;
	pica = inch;
	EXPECT_EQ(md_of(pica), md_of(inch));
	EXPECT_EQ(pica.type(), absolute_unit::pica);
	absolute_unit &base = pica;
	absolute_unit const &from = basic_absolute_impl<absolute_unit::cm>(5);
	EXPECT_EQ(&(base = from), &base);
	EXPECT_EQ(md_of(pica), 5.0);
	basic_absolute_impl<absolute_unit::pica> const copy(pica);
	EXPECT_EQ(md_of(copy), 5.0);
	pica = 12;
	EXPECT_EQ(md_of(pica), 12.0);
}

template <int Unit>
void check_no_unit() {
	basic_absolute_impl<Unit> length(100000);
	EXPECT_EQ(static_cast<int>(length.type()), Unit);
	EXPECT_EQ(length.value(), 0.0) << Unit;
	EXPECT_EQ(length.as_int32(), 0);
	EXPECT_EQ(length.as_double(), 0.0);
	EXPECT_EQ(length.as_md(), 100000);
	length.value(5.0);
	EXPECT_EQ(length.as_md(), 0) << Unit;
}

TEST(absolute_unit, a_unit_that_is_none_has_the_value_0) {
	check_no_unit<0>();
	check_no_unit<9>();
	check_no_unit<-1>();
	check_no_unit<16>();
	check_no_unit<std::numeric_limits<int>::max()>();
	check_no_unit<std::numeric_limits<int>::min()>();
}

TEST(absolute_unit, whole_numbers_out_of_range_keep_their_low_32_bits) {
	struct row {
		double md;
		int32 expected;
	};
	constexpr double infinity = std::numeric_limits<double>::infinity();
	for (row const &r : std::vector<row>{{2147483647.9, 2147483647},
	                                     {2147483648.0, std::numeric_limits<int32>::min()},
	                                     {4294967301.7, 5},
	                                     {-4294967301.7, -5},
	                                     {1e300, 0},
	                                     {infinity, 0},
	                                     {-infinity, 0},
	                                     {std::numeric_limits<double>::quiet_NaN(), 0}}) {
		basic_absolute_impl<absolute_unit::md> length;
		length.value(r.md);
		EXPECT_EQ(length.as_md(), r.expected) << r.md;
	}
	basic_absolute_impl<absolute_unit::md> length;
	length.value(4294967301.5);
	EXPECT_EQ(length.as_int32(), 6);
	length.value(infinity);
	EXPECT_EQ(length.as_int32(), 0);
	EXPECT_EQ(length.as_double(), infinity);
}

// A class of a client's own.
class own_unit final : public absolute_unit {
public:
	using absolute_unit::absolute_unit;
	unit_types do_type() const override { return cm; }
	int32 do_as_int32() const override { return 11; }
	double do_as_double() const override { return 12.5; }
};

TEST(absolute_unit, public_operations_call_the_virtual_ones) {
	own_unit object(2.9);
	absolute_unit &length = object;
	EXPECT_EQ(length.as_md(), 2);
	EXPECT_EQ(length.type(), absolute_unit::cm);
	EXPECT_EQ(length.as_int32(), 11);
	EXPECT_EQ(length.as_double(), 12.5);
	length.value(2.54);
	EXPECT_EQ(length.as_md(), 100000);
	EXPECT_EQ(length.value(), 2.54);
}

} // namespace
