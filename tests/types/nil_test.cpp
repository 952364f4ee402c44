#include <quor/types/nil.hpp>

#include <gtest/gtest.h>

#include <type_traits>

#include <quor/quor.hpp>

namespace {

using quor::types::nil;
using quor::types::nil_t;

int kind_of(nil_t const &) {
	return 1;
}
int kind_of(bool) {
	return 2;
}
int kind_of(int) {
	return 3;
}
int kind_of(char const *) {
	return 4;
}
int kind_of(quor::strings::ustring8 const &) {
	return 5;
}

TEST(nil, is_a_constant_that_static_initialisers_may_use) {
	static constexpr nil_t copy = nil;
	static_assert(std::is_same_v<decltype(nil), nil_t const>);
	EXPECT_EQ(kind_of(copy), 1);
}

TEST(nil, is_one_object_in_the_whole_program) {
	nil_t const *const here = &nil;
	EXPECT_EQ(here, &quor::types::nil);
}

TEST(nil, type_holds_nothing) {
	static_assert(std::is_empty_v<nil_t>);
	static_assert(std::is_trivially_copyable_v<nil_t> && std::is_trivially_destructible_v<nil_t>);
	static_assert(std::is_nothrow_default_constructible_v<nil_t>);
	EXPECT_EQ(sizeof(nil_t), 1U);
}

TEST(nil, is_told_from_every_other_argument) {
	EXPECT_EQ(kind_of(nil), 1);
	EXPECT_EQ(kind_of(nil_t()), 1);
	EXPECT_EQ(kind_of(0), 3);
	EXPECT_EQ(kind_of(false), 2);
	EXPECT_EQ(kind_of("nil"), 4);
	EXPECT_EQ(kind_of(quor::strings::ustring8()), 5);
	static_assert(!std::is_convertible_v<nil_t, bool> && !std::is_convertible_v<nil_t, int>);
	static_assert(!std::is_convertible_v<nil_t, void *> && !std::is_convertible_v<std::nullptr_t, nil_t>);
	static_assert(!std::is_convertible_v<int, nil_t> && !std::is_convertible_v<nil_t, quor::strings::ustring8>);
}

} // namespace
