#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>

#include <quor/quor.hpp>

namespace {

using quor::generic::abilities::create_dynamic;
using quor::memory::pointers::rc_pointer;
using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::types::int64;
using quor::types::long_t;
using quor::types::nil;
using quor::types::nil_t;
using quor::types::uint32;
using quor::types::uint64;
using quor::types::ulong_t;
using quor::types::variant_type;
using quor::types::variant_value_t;
using quor::types::wide_string;

// One value of each of the twenty types, in the order of the constructors of `variant`.
using twenty_types = ::testing::Types<nil_t, int, unsigned int, signed char, short, long_t, int64, unsigned char,
                                      unsigned short, ulong_t, uint64, bool, float, double, long double, std::string,
                                      wide_string, ustring8, ustring16, ustring32>;

// A value that reads as 1.
template <class T>
T one() {
	if constexpr (std::is_same_v<T, nil_t>) {
		return nil;
	} else if constexpr (std::is_constructible_v<T, std::size_t, char>) {
		return T(1, '1');
	} else {
		return T(1);
	}
}

template <class T>
class every_holder : public ::testing::Test {};
TYPED_TEST_SUITE(every_holder, twenty_types);

TYPED_TEST(every_holder, is_set_and_tells_its_type) {
	variant_value_t<TypeParam> const holder(one<TypeParam>());
	EXPECT_EQ(holder.is_set(), 1);
	EXPECT_EQ(holder.type(), typeid(TypeParam));
	EXPECT_EQ(holder.get_ref_count(), 0U);
	EXPECT_FALSE(holder.is_created_dynamic());
}

TYPED_TEST(every_holder, clone_is_a_dynamic_holder_with_count_zero) {
	rc_pointer<variant_type> const source(create_dynamic<variant_value_t<TypeParam>>(one<TypeParam>()));
	rc_pointer<variant_type> const more(source); // NOLINT(performance-unnecessary-copy-initialization): it counts
	std::unique_ptr<variant_type> const clone(source->clone());
	EXPECT_NE(clone.get(), source.get());
	EXPECT_EQ(clone->type(), typeid(TypeParam));
	EXPECT_TRUE(clone->is_created_dynamic());
	EXPECT_EQ(clone->get_ref_count(), 0U);
	EXPECT_EQ(clone->as_string(), source->as_string());
	EXPECT_EQ(source->get_ref_count(), 2U);
}

TYPED_TEST(every_holder, all_conversions_give_one_or_for_nil_zero) {
	int const expected = std::is_same_v<TypeParam, nil_t> ? 0 : 1;
	bool const keeps_point = std::is_same_v<TypeParam, float> || std::is_same_v<TypeParam, double>;
	ustring8 const text = keeps_point ? "1." : expected == 1 ? "1" : "0";
	variant_value_t<TypeParam> const value(one<TypeParam>());
	variant_type const &holder = value;
	EXPECT_EQ(holder.as_int(), expected);
	EXPECT_EQ(holder.as_short(), expected);
	EXPECT_EQ(holder.as_long(), expected);
	EXPECT_EQ(holder.as_int8(), expected);
	EXPECT_EQ(holder.as_int16(), expected);
	EXPECT_EQ(holder.as_int32(), expected);
	EXPECT_EQ(holder.as_int64(), expected);
	EXPECT_EQ(holder.as_uint8(), expected);
	EXPECT_EQ(holder.as_uint16(), expected);
	EXPECT_EQ(holder.as_uint32(), static_cast<uint32>(expected));
	EXPECT_EQ(holder.as_uint64(), static_cast<uint64>(expected));
	EXPECT_EQ(holder.as_bool(), expected == 1);
	EXPECT_EQ(holder.as_float(), static_cast<float>(expected));
	EXPECT_EQ(holder.as_double(), expected);
	EXPECT_EQ(holder.as_long_double(), expected);
	EXPECT_EQ(holder.as_string(), text);
	EXPECT_EQ(holder.as_utf8(), text);
	EXPECT_EQ(holder.as_wstring(), quor::strings::utf8_to_utf16(text));
	EXPECT_EQ(holder.as_ustring(), quor::strings::utf8_to_utf16(text));
	EXPECT_EQ(holder.as_utf16(), quor::strings::utf8_to_utf16(text));
	EXPECT_EQ(holder.as_utf32(), quor::strings::utf8_to_utf32(text));
}

TYPED_TEST(every_holder, stream_operation_gives_the_stream_itself) {
	std::ostringstream stream;
	variant_value_t<TypeParam> const holder(one<TypeParam>());
	EXPECT_EQ(&holder.ostream(stream), &stream);
	EXPECT_FALSE(stream.str().empty());
}

TEST(variant_type, class_tree_is_as_declared) {
	using quor::generic::abilities::clone_ability;
	using quor::generic::abilities::reference_count_pointer_ability;
	EXPECT_TRUE(std::is_abstract_v<variant_type>);
	EXPECT_TRUE((std::is_base_of_v<clone_ability, variant_type>));
	EXPECT_TRUE((std::is_base_of_v<reference_count_pointer_ability<variant_type>, variant_type>));
	EXPECT_TRUE((std::is_base_of_v<variant_type, variant_value_t<int>>));
	EXPECT_EQ(sizeof(variant_type), sizeof(void *) + 8);
	EXPECT_FALSE(std::is_copy_assignable_v<variant_value_t<int>>);
}

TEST(variant_type, copied_holder_starts_fresh) {
	rc_pointer<variant_type> const source(create_dynamic<variant_value_t<int>>(5));
	variant_value_t<int> const copy(static_cast<variant_value_t<int> const &>(*source));
	EXPECT_EQ(copy.get_ref_count(), 0U);
	EXPECT_FALSE(copy.is_created_dynamic());
	EXPECT_EQ(copy.as_int(), 5);
}

#if defined(__GXX_ABI_VERSION) && defined(__x86_64__)

// A pointer to a virtual member holds the offset of its place in the table, plus one. The
// destructor has two places there.
template <class Result>
std::size_t slot_of(Result (variant_type::*member)() const) {
	std::ptrdiff_t words[2];
	static_assert(sizeof words == sizeof member);
	std::memcpy(words, &member, sizeof words);
	return static_cast<std::size_t>(words[0] - 1) / sizeof(void *) - 1;
}

TEST(variant_type, virtual_functions_stand_in_their_order) {
	EXPECT_EQ(slot_of(&variant_type::is_set), 1U);
	EXPECT_EQ(slot_of(&variant_type::type), 2U);
	EXPECT_EQ(slot_of(&variant_type::clone), 3U);
	std::ostream &(variant_type::*const stream)(std::ostream &) const = &variant_type::ostream;
	std::ptrdiff_t word = 0;
	std::memcpy(&word, &stream, sizeof word);
	EXPECT_EQ(static_cast<std::size_t>(word - 1) / sizeof(void *) - 1, 4U);
	EXPECT_EQ(slot_of(&variant_type::as_int), 5U);
	EXPECT_EQ(slot_of(&variant_type::as_short), 6U);
	EXPECT_EQ(slot_of(&variant_type::as_long), 7U);
	EXPECT_EQ(slot_of(&variant_type::as_int8), 8U);
	EXPECT_EQ(slot_of(&variant_type::as_int16), 9U);
	EXPECT_EQ(slot_of(&variant_type::as_int32), 10U);
	EXPECT_EQ(slot_of(&variant_type::as_int64), 11U);
	EXPECT_EQ(slot_of(&variant_type::as_uint8), 12U);
	EXPECT_EQ(slot_of(&variant_type::as_uint16), 13U);
	EXPECT_EQ(slot_of(&variant_type::as_uint32), 14U);
	EXPECT_EQ(slot_of(&variant_type::as_uint64), 15U);
	EXPECT_EQ(slot_of(&variant_type::as_bool), 16U);
	EXPECT_EQ(slot_of(&variant_type::as_string), 17U);
	EXPECT_EQ(slot_of(&variant_type::as_wstring), 18U);
	EXPECT_EQ(slot_of(&variant_type::as_ustring), 19U);
	EXPECT_EQ(slot_of(&variant_type::as_utf8), 20U);
	EXPECT_EQ(slot_of(&variant_type::as_utf16), 21U);
	EXPECT_EQ(slot_of(&variant_type::as_utf32), 22U);
	EXPECT_EQ(slot_of(&variant_type::as_float), 23U);
	EXPECT_EQ(slot_of(&variant_type::as_double), 24U);
	EXPECT_EQ(slot_of(&variant_type::as_long_double), 25U);
}

#endif

} // namespace
