#include <quor/types/color.hpp>

#include <gtest/gtest.h>

#include <cstring>
#include <type_traits>
#include <vector>

namespace {

using QUOR_2_9::types::color_t;
using QUOR_2_9::types::int32;

// ---- what a compiler can check ------------------------------------------------------

static_assert(sizeof(color_t) == 4 && alignof(color_t) == alignof(int32));
static_assert(std::is_trivially_copyable_v<color_t> && std::is_standard_layout_v<color_t>);
static_assert(std::is_nothrow_default_constructible_v<color_t> && std::is_nothrow_constructible_v<color_t, int32>);
static_assert(std::is_convertible_v<int32, color_t>);
static_assert(std::is_convertible_v<int, color_t>);
template <class Result, class... Results>
constexpr bool all_are = (std::is_same_v<Result, Results> && ...);
static_assert(all_are<color_t, decltype(color_t::rgb(5)), decltype(color_t::rgba(5))>);
static_assert(all_are<color_t const &, decltype(color_t().assign(5)), decltype(color_t().assign(color_t())),
                      decltype(color_t() = 5)>);
static_assert(all_are<int32, decltype(color_t().as_int32()), decltype(color_t().as_rgb())>);
static_assert(all_are<unsigned char, decltype(color_t().red()), decltype(color_t().red(1))>);

// A colour is a constant of a program.
constexpr color_t paper(255, 250, 240);
static_assert(paper.as_rgb() == 0xF0FAFF && paper.alpha() == 255);
static_assert(color_t() == color_t(0) && color_t() != color_t(0, 0, 0) && color_t::rgb(1, 2, 3) == color_t(1, 2, 3));

constexpr color_t changed() {
	color_t color(1, 2, 3, 4);
	color.red(10);
	color.alpha(static_cast<unsigned char>(color.green(20) + color.blue(30)));
	color_t other;
	other = color.as_int32();
	return color.assign(other);
}
static_assert(changed().as_int32() == 0x321E140A);

// ---- values -------------------------------------------------------------------------

int32 number(unsigned int bits) {
	return static_cast<int32>(bits);
}

TEST(color, default_has_four_zero_bytes) {
	color_t const color;
	EXPECT_EQ(color.as_int32(), 0);
	EXPECT_EQ(color.alpha(), 0);
	EXPECT_EQ(color.as_rgb(), 0);
}

TEST(color, constructors_and_makers_agree_on_every_part) {
	struct row {
		char const *name;
		color_t color;
		unsigned int bits;
	};
	std::vector<row> const rows{
	    {"three parts", color_t(1, 2, 3), 0xFF030201},
	    {"four parts", color_t(1, 2, 3, 4), 0x04030201},
	    {"no alpha", color_t(1, 2, 3, 0), 0x00030201},
	    {"number", color_t(0x11223344), 0x11223344},
	    {"negative number", color_t(-2), 0xFFFFFFFE},
	    {"smallest number", color_t(number(0x80000000)), 0x80000000},
	    {"rgb of three", color_t::rgb(1, 2, 3), 0xFF030201},
	    {"rgb of a number keeps alpha", color_t::rgb(0x11223344), 0x11223344},
	    {"rgb of a number without alpha", color_t::rgb(0x223344), 0x00223344},
	    {"rgba of four", color_t::rgba(1, 2, 3, 4), 0x04030201},
	    {"rgba of a number", color_t::rgba(0x11223344), 0x11223344},
	    {"all ones", color_t(255, 255, 255, 255), 0xFFFFFFFF},
	};
	for (row const &r : rows) {
		SCOPED_TRACE(r.name);
		EXPECT_EQ(r.color.as_int32(), number(r.bits));
		EXPECT_EQ(r.color.as_rgb(), number(r.bits & 0xFFFFFF));
		EXPECT_EQ(r.color.red(), r.bits & 0xFF);
		EXPECT_EQ(r.color.green(), r.bits >> 8 & 0xFF);
		EXPECT_EQ(r.color.blue(), r.bits >> 16 & 0xFF);
		EXPECT_EQ(r.color.alpha(), r.bits >> 24);
		EXPECT_EQ(color_t(r.color.as_int32()), r.color);
	}
}

TEST(color, bytes_lie_in_memory_as_red_green_blue_alpha) {
	color_t const colors[] = {color_t(1, 2, 3, 4), color_t(0x08070605)};
	unsigned char bytes[8];
	static_assert(sizeof bytes == sizeof colors);
	std::memcpy(bytes, colors, sizeof bytes);
	for (unsigned int i = 0; i != 8; ++i) {
		EXPECT_EQ(bytes[i], i + 1);
	}
	color_t back;
	std::memcpy(&back, bytes + 4, sizeof back);
	EXPECT_EQ(back, colors[1]);
}

TEST(color, setting_a_part_returns_it_and_leaves_the_others) {
	for (unsigned int value : {0U, 1U, 127U, 128U, 255U}) {
		auto const part = static_cast<unsigned char>(value);
		color_t color(0x44332211);
		EXPECT_EQ(color.red(part), part);
		EXPECT_EQ(color.as_int32(), number(0x44332200 | value));
		color = 0x44332211;
		EXPECT_EQ(color.green(part), part);
		EXPECT_EQ(color.as_int32(), number(0x44330011 | value << 8));
		color = 0x44332211;
		EXPECT_EQ(color.blue(part), part);
		EXPECT_EQ(color.as_int32(), number(0x44002211 | value << 16));
		color = 0x44332211;
		EXPECT_EQ(color.alpha(part), part);
		EXPECT_EQ(color.as_int32(), number(0x00332211 | value << 24));
	}
}

TEST(color, assignments_copy_the_bits_and_return_the_object) {
	color_t color;
	color_t const other(9, 8, 7, 6);
	EXPECT_EQ(&color.assign(other), &color);
	EXPECT_EQ(color, other);
	EXPECT_EQ(&color.assign(0x11223344), &color);
	EXPECT_EQ(color.as_int32(), 0x11223344);
	EXPECT_EQ(&(color = other), &color);
	EXPECT_EQ(color, other);
	EXPECT_EQ(&(color = 0x55667788), &color);
	EXPECT_EQ(color.as_int32(), 0x55667788);
	color_t const &itself = color;
	color = itself;
	EXPECT_EQ(color.as_int32(), 0x55667788);
}

TEST(color, equality_looks_at_every_byte) {
	color_t const color(0x44332211);
	EXPECT_TRUE(color.equal(color_t(0x44332211)) && color == color_t(0x44332211));
	EXPECT_FALSE(color != color_t(0x44332211));
	for (unsigned int other : {0x44332210U, 0x44332311U, 0x44322211U, 0xC4332211U}) {
		EXPECT_FALSE(color.equal(color_t(number(other))));
		EXPECT_FALSE(color == color_t(number(other)));
		EXPECT_TRUE(color != color_t(number(other)));
	}
}

} // namespace
