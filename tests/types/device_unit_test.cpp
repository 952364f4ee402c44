#include <quor/types/device_unit.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "reference/exact_double.hpp"

namespace {

namespace types = QUOR_2_9::types;
using types::device_unit;
using types::int32;

// ---- every number makes one, in an argument too ----------------------------------------

template <class... Numbers>
constexpr bool all_convert = (std::is_convertible_v<Numbers, device_unit> && ...);
template <class... Numbers>
constexpr bool all_assign =
    (std::is_same_v<decltype(std::declval<device_unit &>() = std::declval<Numbers>()), device_unit const &> && ...) &&
    (std::is_same_v<decltype(std::declval<device_unit &>().assign(std::declval<Numbers>())), device_unit const &> &&
     ...);

static_assert(all_convert<types::long_t, types::ulong_t, double, float, signed char, short, int, unsigned int>);
static_assert(all_convert<types::int64, unsigned char, unsigned short, types::uint64, types::int32, types::uint32>);
static_assert(all_convert<long, unsigned long, bool, char, wchar_t, char16_t, std::size_t, std::ptrdiff_t>);
static_assert(all_convert<long double> && all_assign<long double>);
static_assert(all_assign<types::long_t, double, float, signed char, short, int, unsigned int, types::int64>);
static_assert(all_assign<unsigned char, unsigned short, types::uint64, types::int32, types::uint32, long, bool>);
static_assert(all_assign<device_unit, device_unit const &, types::ulong_t, unsigned long, char>);
static_assert(std::is_nothrow_constructible_v<device_unit, double> &&
              std::is_nothrow_copy_constructible_v<device_unit>);
static_assert(!std::is_convertible_v<char const *, device_unit> && !std::is_convertible_v<void *, device_unit>);
static_assert(std::is_same_v<std::underlying_type_t<device_unit::unit_types>, int>);
static_assert(std::is_same_v<decltype(device_unit().as_int32()), int32>);
static_assert(std::is_same_v<decltype(device_unit().as_float()), float>);
static_assert(std::is_same_v<decltype(device_unit().as_double()), double>);

// ---- values -----------------------------------------------------------------------------

constexpr int32 smallest = std::numeric_limits<int32>::min();
constexpr int32 largest = std::numeric_limits<int32>::max();

TEST(device_unit, default_is_no_pixels_of_the_only_unit) {
	device_unit const none;
	EXPECT_EQ(none.as_int32(), 0);
	EXPECT_EQ(none.as_float(), 0.0F);
	EXPECT_EQ(none.as_double(), 0.0);
	EXPECT_EQ(none.type(), device_unit::dpx);
	EXPECT_EQ(static_cast<int>(none.type()), 1);
}

TEST(device_unit, numbers_keep_their_low_32_bits) {
	struct row {
		char const *name;
		device_unit made;
		int32 expected;
	};
	std::vector<row> const rows{
	    {"long", types::long_t(-7), -7},
	    {"unsigned long", types::ulong_t(0xFFFFFFFE), -2},
	    {"signed char", static_cast<signed char>(-128), -128},
	    {"short", static_cast<short>(-32768), -32768},
	    {"int", 2147483647, largest},
	    {"smallest int", std::numeric_limits<int>::min(), smallest},
	    {"unsigned char", static_cast<unsigned char>(255), 255},
	    {"unsigned short", static_cast<unsigned short>(65535), 65535},
	    {"unsigned int", 4294967295U, -1},
	    {"unsigned int of the top bit", 2147483648U, smallest},
	    {"64 bits", types::int64(0x100000005), 5},
	    {"negative 64 bits", types::int64(-0x100000005), -5},
	    {"64 bits, all in the upper half", types::int64(0x7FFFFFFF00000000), 0},
	    {"unsigned 64 bits", types::uint64(0xFFFFFFFF80000000), smallest},
	    {"largest unsigned 64 bits", std::numeric_limits<types::uint64>::max(), -1},
	    {"long literal", 7L, 7},
	    {"unsigned long literal", 7UL, 7},
	    {"largest long", std::numeric_limits<long>::max(), sizeof(long) == 8 ? -1 : largest},
	    {"largest unsigned long", std::numeric_limits<unsigned long>::max(), -1},
	    {"size", sizeof(int), 4},
	    {"bool", true, 1},
	    {"char", 'A', 65},
	};
	for (row const &r : rows) {
		SCOPED_TRACE(r.name);
		EXPECT_EQ(r.made.as_int32(), r.expected);
		EXPECT_EQ(r.made.as_double(), static_cast<double>(r.expected));
		EXPECT_EQ(r.made.as_float(), static_cast<float>(r.expected));
	}
}

TEST(device_unit, floating_numbers_lose_their_fraction_and_what_does_not_fit) {
	constexpr double infinity = std::numeric_limits<double>::infinity();
	struct row {
		double value;
		int32 expected;
	};
	std::vector<row> const rows{
	    {2.9, 2},
	    {-2.9, -2},
	    {0.99999, 0},
	    {-0.99999, 0},
	    {-0.0, 0},
	    {2147483647.9, largest},
	    {-2147483648.9, smallest},
	    {2147483648.0, smallest},
	    {4294967301.5, 5},
	    {-4294967301.5, -5},
	    {1e300, 0},
	    {-1e300, 0},
	    {18446744073709551616.0, 0},
	    {9223372036854775808.0, 0},
	    {infinity, 0},
	    {-infinity, 0},
	    {std::numeric_limits<double>::quiet_NaN(), 0},
	    {5e-324, 0},
	};
	for (row const &r : rows) {
		EXPECT_EQ(device_unit(r.value).as_int32(), r.expected) << r.value;
		device_unit assigned;
		EXPECT_EQ((assigned = r.value).as_int32(), r.expected) << r.value;
		EXPECT_EQ(assigned.assign(r.value).as_int32(), r.expected) << r.value;
	}
	EXPECT_EQ(device_unit(2.9F).as_int32(), 2);
	EXPECT_EQ(device_unit(-2.9L).as_int32(), -2);
	EXPECT_EQ(device_unit(4294967301.5L).as_int32(), 5);
	EXPECT_EQ(device_unit(std::nextafter(3.0L, 0.0L)).as_int32(), 2);
	EXPECT_EQ(device_unit(std::numeric_limits<long double>::max()).as_int32(), 0);
	EXPECT_EQ(device_unit(std::numeric_limits<long double>::infinity()).as_int32(), 0);
	EXPECT_EQ(device_unit(-8589934592.0F).as_int32(), 0);
	EXPECT_EQ(device_unit(4294967808.0F).as_int32(), 512);
	EXPECT_EQ(device_unit(std::numeric_limits<float>::infinity()).as_int32(), 0);
}

TEST(device_unit, floating_numbers_of_every_size_keep_the_bits_that_integers_give) {
	std::mt19937_64 random(1);
	for (int i = 0; i != 20000; ++i) {
		double const value =
		    std::ldexp(static_cast<double>(static_cast<std::int64_t>(random())), static_cast<int>(random() % 90) - 70);
		ASSERT_EQ(device_unit(value).as_int32(), quor_reference::exact_low_32(value)) << value;
		auto const narrow = static_cast<float>(value);
		ASSERT_EQ(device_unit(narrow).as_int32(), quor_reference::exact_low_32(static_cast<double>(narrow))) << value;
	}
}

TEST(device_unit, float_is_the_nearest_one) {
	EXPECT_EQ(device_unit(16777217).as_float(), 16777216.0F);
	EXPECT_EQ(device_unit(largest).as_float(), 2147483648.0F);
	EXPECT_EQ(device_unit(largest).as_double(), 2147483647.0);
	EXPECT_EQ(device_unit(smallest).as_float(), -2147483648.0F);
}

TEST(device_unit, assignments_store_the_count_and_return_the_object) {
	device_unit unit;
	device_unit const other(9);
	EXPECT_EQ(&unit.assign(other), &unit);
	EXPECT_EQ(unit.as_int32(), 9);
	EXPECT_EQ(&unit.assign(-8), &unit);
	EXPECT_EQ(unit.as_int32(), -8);
	EXPECT_EQ(&(unit = other), &unit);
	EXPECT_EQ(unit.as_int32(), 9);
	EXPECT_EQ(&(unit = 7), &unit);
	EXPECT_EQ(unit.as_int32(), 7);
	device_unit const &itself = unit;
	unit = itself;
	EXPECT_EQ(unit.as_int32(), 7);
	unit = types::int64(0x200000006);
	EXPECT_EQ(unit.as_int32(), 6);
	unit = types::long_t(5);
	EXPECT_EQ(unit.as_int32(), 5);
	EXPECT_EQ(device_unit(unit).as_int32(), 5);
}

TEST(device_unit, equality_compares_the_counts) {
	EXPECT_TRUE(device_unit(5).equal(device_unit(5)) && device_unit(5) == device_unit(5));
	EXPECT_FALSE(device_unit(5) != device_unit(5));
	EXPECT_FALSE(device_unit(5).equal(device_unit(6)) || device_unit(5) == device_unit(-5));
	EXPECT_TRUE(device_unit(5) != device_unit(6));
	EXPECT_TRUE(device_unit(5) == 5);
}

// A class of a client's own: the public operations ask the virtual ones.
class doubled final : public device_unit { // NOLINT(cppcoreguidelines-virtual-class-destructor): as its base
public:
	using device_unit::device_unit;

protected:
	unit_types do_type() const override { return static_cast<unit_types>(77); }
	int32 do_as_int32() const override { return 2; }
	float do_as_float() const override { return 3.5F; }
	double do_as_double() const override { return 4.5; }
};

TEST(device_unit, public_operations_call_the_virtual_ones) {
	doubled const object;
	device_unit const &unit = object;
	EXPECT_EQ(static_cast<int>(unit.type()), 77);
	EXPECT_EQ(unit.as_int32(), 2);
	EXPECT_EQ(unit.as_float(), 3.5F);
	EXPECT_EQ(unit.as_double(), 4.5);
	EXPECT_EQ(unit, device_unit()); // equality is that of the stored counts
}

} // namespace
