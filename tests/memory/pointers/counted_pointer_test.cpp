#include "pointer_cases.hpp"

namespace {

using quor::memory::pointers::counted_pointer;
using quor::memory::pointers::rc_pointer;
using quor::memory::pointers::shared_pointer;
using quor_test::create_dynamic;
using quor_test::living;
using quor_test::record;

using both_kinds = ::testing::Types<counted_pointer<quor_test::shape>, counted_pointer<record>>;

// A list whose nodes hold each other.
class link : public quor_test::reference_count_pointer_ability<link>, public living<link> {
public:
	explicit link(int number) : value(number) {}
	int value;
	rc_pointer<link> next;
};

TEST(counted_pointer, object_that_only_the_old_one_keeps_alive_survives_its_assignment) {
	rc_pointer<link> list(create_dynamic<link>(1));
	list->next = create_dynamic<link>(2);
	list->next->next = create_dynamic<link>(3);
	list = list->next.get();
	EXPECT_EQ(list->value, 2);
	EXPECT_EQ(list->get_ref_count(), 1U);
	list = list->next;
	EXPECT_EQ(list->value, 3);
	EXPECT_EQ(living<link>::count(), 1);
	list->next = list;
	EXPECT_EQ(list->get_ref_count(), 2U);
	list->next = nullptr;
	list = std::move(list->next);
	EXPECT_EQ(living<link>::count(), 0);
}

TEST(counted_pointer, both_kinds_count_together) {
	auto *const made = create_dynamic<record>();
	rc_pointer<record> part(made);
	shared_pointer<record> handed(made);
	EXPECT_EQ(made->get_ref_count(), 2U);
	part.reset();
	EXPECT_EQ(made->get_ref_count(), 1U);
	handed.reset();
	EXPECT_EQ(living<record>::count(), 0);
}

TEST(counted_pointer, object_with_a_copied_count_is_kept_by_it) {
	rc_pointer<record> const first(create_dynamic<record>());
	auto *const clone = create_dynamic<record>(*first);
	EXPECT_EQ(clone->get_ref_count(), 1U);
	rc_pointer<record>(clone).reset();
	EXPECT_EQ(living<record>::count(), 2) << "the count of the source keeps the clone";
	delete clone;
	EXPECT_EQ(living<record>::count(), 1);
}

} // namespace

namespace quor_test {
INSTANTIATE_TYPED_TEST_SUITE_P(counted_pointer, pointer_cases, both_kinds);
} // namespace quor_test
