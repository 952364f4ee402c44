#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

#include "reference/wide_integer.hpp"

namespace {

using quor_reference::two_halves;

#ifdef __SIZEOF_INT128__

template <bool Signed, class Wide>
Wide joined(two_halves<Signed> const &value) {
	return static_cast<Wide>(static_cast<quor_reference::wide_uint>(value.high()) << 64 | value.low());
}

template <bool Signed, class Wide>
two_halves<Signed> split(Wide value) {
	auto const bits = static_cast<quor_reference::wide_uint>(value);
	return (two_halves<Signed>(static_cast<std::uint64_t>(bits >> 64)) << 64) +
	       two_halves<Signed>(two_halves<false>(static_cast<std::uint64_t>(bits)));
}

template <bool Signed, class Wide>
void compare(Wide a, Wide b) {
	using unsigned_wide = quor_reference::wide_uint;
	auto const x = split<Signed>(a);
	auto const y = split<Signed>(b);
	auto const same = [](two_halves<Signed> const &value, Wide expected) {
		EXPECT_TRUE((joined<Signed, Wide>(value) == expected));
	};
	auto const wrapped = [](unsigned_wide value) { return static_cast<Wide>(value); };
	same(x, a);
	same(x + y, wrapped(unsigned_wide(a) + unsigned_wide(b)));
	same(x - y, wrapped(unsigned_wide(a) - unsigned_wide(b)));
	same(x * y, wrapped(unsigned_wide(a) * unsigned_wide(b)));
	same(x & y, a & b);
	same(-x, wrapped(-unsigned_wide(a)));
	EXPECT_EQ(x < y, a < b);
	EXPECT_EQ(x <= y, a <= b);
	EXPECT_EQ(x == y, a == b);
	EXPECT_EQ(static_cast<bool>(x), a != 0);
	int const count = static_cast<int>(static_cast<unsigned int>(b) % 128);
	same(x << count, wrapped(unsigned_wide(a) << count));
	same(x >> count, a >> count);
	// The most negative number has no opposite.
	if (b != 0 && b != Wide(-1)) {
		same(x / y, a / b);
		same(x % y, a % b);
	}
}

TEST(wide_integer, halves_agree_with_the_compilers_own) {
	std::mt19937_64 random(4711);
	for (int round = 0; round < 3000; ++round) {
		auto const any = [&random] {
			auto const bits = quor_reference::wide_uint(random()) << 64 | random();
			return bits >> (random() % 128);
		};
		auto const a = any();
		auto const b = any();
		compare<false, quor_reference::wide_uint>(a, b);
		compare<true, quor_reference::wide_int>(static_cast<quor_reference::wide_int>(a),
		                                        static_cast<quor_reference::wide_int>(b));
		compare<true, quor_reference::wide_int>(-static_cast<quor_reference::wide_int>(a >> 1),
		                                        static_cast<quor_reference::wide_int>(b));
	}
}

#endif

TEST(wide_integer, halves_take_and_give_plain_integers) {
	two_halves<true> const minus_three(-3);
	EXPECT_EQ(static_cast<int>(minus_three), -3);
	EXPECT_TRUE(minus_three < 0 && minus_three * -5 == 15 && minus_three / 2 == -1 && minus_three % 2 == -1);
	EXPECT_EQ(static_cast<std::int64_t>((two_halves<true>(1) << 63) - 1), INT64_MAX);
	EXPECT_EQ(static_cast<std::uint64_t>(two_halves<false>(UINT64_MAX) * UINT64_MAX >> 64), UINT64_MAX - 1);
}

} // namespace
