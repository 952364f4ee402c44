#include "pointer_cases.hpp"

namespace {

using quor::memory::pointers::rc_pointer;
using quor_test::create_dynamic;
using quor_test::living;

using all_kinds = ::testing::Types<rc_pointer<quor_test::shape>, rc_pointer<quor_test::record>>;

TEST(rc_pointer, derived_object_is_destroyed_through_the_virtual_destructor) {
	rc_pointer<quor_test::shape> held(create_dynamic<quor_test::square>());
	EXPECT_EQ(living<quor_test::square>::count(), 1);
	held = nullptr;
	EXPECT_EQ(living<quor_test::square>::count(), 0);
	EXPECT_EQ(living<quor_test::shape>::count(), 0);
}

TEST(rc_pointer, assignment_gives_the_pointer_itself) {
	rc_pointer<quor_test::record> held;
	rc_pointer<quor_test::record> const other(create_dynamic<quor_test::record>());
	EXPECT_EQ(&(held = other), &held);
	EXPECT_EQ(&(held = other.get()), &held);
	EXPECT_EQ(&(held = nullptr), &held);
}

} // namespace

namespace quor_test {
INSTANTIATE_TYPED_TEST_SUITE_P(rc_pointer, pointer_cases, all_kinds);
} // namespace quor_test
