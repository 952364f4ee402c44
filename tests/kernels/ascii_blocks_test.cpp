// Texts of nothing but ASCII between all widths, against a look at each unit.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <random>
#include <type_traits>
#include <vector>

#include <quor/types/widths.hpp>

#include "kernels/kernels.hpp"

namespace {

namespace ascii = QUOR_2_9::kernels::ascii;
namespace types = QUOR_2_9::types;

// Blocks of their own size, so that a look or a step behind them is found.
template <class In, class Out>
void expect_copied(std::vector<In> const &text) {
	std::vector<Out> made(text.size());
	ascii::copy_text(text.data(), text.size(), made.data());
	for (std::size_t i = 0; i != text.size(); ++i) {
		ASSERT_EQ(static_cast<std::uint32_t>(made[i]), static_cast<std::uint32_t>(text[i])) << i;
	}
}

template <class Unit>
class ascii_texts : public testing::Test {};

using widths = testing::Types<char, types::wide_char, types::utf32_char>;
TYPED_TEST_SUITE(ascii_texts, widths, );

TYPED_TEST(ascii_texts, every_length_is_copied_to_every_width) {
	for (std::size_t size = ascii::block; size <= 300; ++size) {
		SCOPED_TRACE(size);
		std::mt19937 random(static_cast<unsigned>(size));
		std::vector<TypeParam> text(size);
		for (TypeParam &unit : text) {
			unit = static_cast<TypeParam>(random() % 128);
		}
		EXPECT_TRUE(ascii::is_text(text.data(), size));
		expect_copied<TypeParam, char>(text);
		expect_copied<TypeParam, types::wide_char>(text);
		expect_copied<TypeParam, types::utf32_char>(text);
	}
}

TYPED_TEST(ascii_texts, a_unit_of_another_kind_is_seen_at_every_place) {
	using unit = std::make_unsigned_t<TypeParam>;
	for (std::size_t size = ascii::block; size <= 70; ++size) {
		for (std::size_t place = 0; place != size; ++place) {
			for (unsigned bit = 7; bit != 8 * sizeof(unit); ++bit) {
				std::vector<TypeParam> text(size, static_cast<TypeParam>('a'));
				text[place] = static_cast<TypeParam>(unit{1} << bit);
				ASSERT_FALSE(ascii::is_text(text.data(), size)) << size << ' ' << place << ' ' << bit;
			}
			std::vector<TypeParam> text(size);
			text[place] = static_cast<TypeParam>(0x7F);
			ASSERT_TRUE(ascii::is_text(text.data(), size)) << size << ' ' << place;
		}
	}
}

TYPED_TEST(ascii_texts, any_units_are_copied_to_their_own_width) {
	std::mt19937 random(300);
	for (std::size_t size = ascii::block; size <= 100; ++size) {
		std::vector<TypeParam> text(size);
		for (TypeParam &unit : text) {
			unit = static_cast<TypeParam>(random());
		}
		std::vector<TypeParam> made(size);
		ascii::copy_text(text.data(), size, made.data());
		ASSERT_EQ(made, text);
	}
}

} // namespace
