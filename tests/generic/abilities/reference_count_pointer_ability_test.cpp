#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include <quor/quor.hpp>

namespace {

using quor::generic::abilities::alloc_detection_ability;
using quor::generic::abilities::create_dynamic;
using quor::generic::abilities::reference_count_pointer_ability;
using quor::generic::abilities::reference_count_pointer_ability_b;

class node : public reference_count_pointer_ability<node> {};

TEST(reference_count_pointer_ability, fresh_object_has_count_zero_and_no_flag) {
	node const fresh;
	EXPECT_EQ(fresh.get_ref_count(), 0U);
	EXPECT_FALSE(fresh.is_pointer_referenced());
	EXPECT_FALSE(fresh.is_created_dynamic());
}

TEST(reference_count_pointer_ability, increments_and_decrements_give_the_new_count) {
	node object;
	for (unsigned int count = 1; count != 4; ++count) {
		object.inc_pointer_ref();
		EXPECT_EQ(object.get_ref_count(), count);
		EXPECT_TRUE(object.is_pointer_referenced());
	}
	EXPECT_EQ(object.dec_pointer_ref(), 2);
	EXPECT_EQ(object.dec_pointer_ref(), 1);
	EXPECT_TRUE(object.is_pointer_referenced());
	EXPECT_EQ(object.dec_pointer_ref(), 0);
	EXPECT_FALSE(object.is_pointer_referenced());
}

TEST(reference_count_pointer_ability, count_below_zero_is_not_noticed) {
	node object;
	EXPECT_EQ(object.dec_pointer_ref(), -1);
	EXPECT_EQ(object.get_ref_count(), 0xFFFFFFFFU);
	EXPECT_TRUE(object.is_pointer_referenced());
}

TEST(reference_count_pointer_ability, copy_of_an_object_with_count_three_has_count_three) {
	std::unique_ptr<node> const source(create_dynamic<node>());
	for (int i = 0; i != 3; ++i) {
		source->inc_pointer_ref();
	}
	node const copy(*source);
	EXPECT_EQ(copy.get_ref_count(), 3U);
	EXPECT_TRUE(copy.is_created_dynamic());
}

TEST(reference_count_pointer_ability, assignment_takes_flag_and_count) {
	std::unique_ptr<node> const source(create_dynamic<node>());
	source->inc_pointer_ref();
	source->inc_pointer_ref();
	node target;
	for (int i = 0; i != 5; ++i) {
		target.inc_pointer_ref();
	}
	EXPECT_EQ(&(target = *source), &target);
	EXPECT_EQ(target.get_ref_count(), 2U);
	EXPECT_TRUE(target.is_created_dynamic());

	reference_count_pointer_ability_b const base(*source);
	EXPECT_EQ(base.get_ref_count(), 2U);
	reference_count_pointer_ability_b other;
	other = base;
	EXPECT_EQ(other.get_ref_count(), 2U);
}

TEST(reference_count_pointer_ability, clone_starts_with_the_count_of_its_source) {
	node source;
	source.inc_pointer_ref();
	std::unique_ptr<node> const clone(create_dynamic<node>(source));
	EXPECT_EQ(clone->get_ref_count(), 1U);
	EXPECT_TRUE(clone->is_created_dynamic());
	EXPECT_FALSE(source.is_created_dynamic());
}

TEST(reference_count_pointer_ability, class_tree_and_results_are_as_declared) {
	EXPECT_TRUE((std::is_base_of_v<reference_count_pointer_ability_b, reference_count_pointer_ability<node>>));
	EXPECT_TRUE((std::is_base_of_v<alloc_detection_ability, reference_count_pointer_ability_b>));
	EXPECT_FALSE(std::is_polymorphic_v<node>);
	EXPECT_EQ(sizeof(reference_count_pointer_ability<node>), 8U);
	EXPECT_TRUE((std::is_same_v<decltype(std::declval<node &>().dec_pointer_ref()), int>));
	EXPECT_TRUE((std::is_same_v<decltype(std::declval<node &>().get_ref_count()), quor::types::uint32>));
}

} // namespace
