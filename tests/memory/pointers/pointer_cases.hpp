#ifndef QUOR_TESTS_MEMORY_POINTERS_POINTER_CASES_HPP
#define QUOR_TESTS_MEMORY_POINTERS_POINTER_CASES_HPP

// What every counted pointer must do, for each of the pointer templates:
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(rc_pointer, pointer_cases, to_node<rc_pointer<node>>);

#include <gtest/gtest.h>

#include <map>
#include <new>
#include <type_traits>
#include <utility>
#include <vector>

#include <quor/quor.hpp>

namespace quor_test {

using quor::generic::abilities::create_dynamic;
using quor::generic::abilities::reference_count_pointer_ability;

// Counts the living objects of its class.
template <class T>
class living {
public:
	living() { ++count(); }
	living(living const &) { ++count(); }
	living &operator=(living const &) = default;
	~living() { --count(); }
	static int &count() {
		static int value = 0;
		return value;
	}
};

// A counted class with a virtual destructor, and one derived from it.
class shape : public reference_count_pointer_ability<shape>, public living<shape> {
public:
	virtual ~shape() = default;
	int value = 0;
};
class square : public shape, public living<square> {};

// A counted class without virtual functions.
class record : public reference_count_pointer_ability<record>, public living<record> {
public:
	int value = 0;
};

template <class Pointer>
class pointer_cases : public ::testing::Test {
protected:
	using element = typename Pointer::element_type;

	void TearDown() override { EXPECT_EQ(living<element>::count(), 0) << "objects are left over"; }
};

TYPED_TEST_SUITE_P(pointer_cases);

TYPED_TEST_P(pointer_cases, default_construction_is_empty) {
	TypeParam const empty;
	EXPECT_TRUE(empty.empty());
	EXPECT_FALSE(empty);
	EXPECT_EQ(empty.get(), nullptr);
	EXPECT_TRUE(empty == nullptr);
	EXPECT_TRUE(TypeParam(nullptr).empty());
}

TYPED_TEST_P(pointer_cases, pointer_is_one_word) {
	EXPECT_EQ(sizeof(TypeParam), sizeof(void *));
	EXPECT_TRUE(std::is_nothrow_move_constructible_v<TypeParam>);
	EXPECT_TRUE(std::is_nothrow_copy_constructible_v<TypeParam>);
}

TYPED_TEST_P(pointer_cases, construction_from_a_new_object_brings_the_count_to_one) {
	using object = typename TestFixture::element;
	auto *const made = create_dynamic<object>();
	TypeParam const held(made);
	EXPECT_EQ(held.get(), made);
	EXPECT_EQ(held->get_ref_count(), 1U);
	EXPECT_EQ(&*held, made);
	EXPECT_TRUE(held);
	EXPECT_FALSE(held.empty());
}

TYPED_TEST_P(pointer_cases, copies_count_and_the_last_one_deletes) {
	using object = typename TestFixture::element;
	auto *const made = create_dynamic<object>();
	{
		TypeParam const first(made);
		{
			TypeParam second(first);
			EXPECT_EQ(made->get_ref_count(), 2U);
			TypeParam third;
			third = second;
			EXPECT_EQ(made->get_ref_count(), 3U);
		}
		EXPECT_EQ(made->get_ref_count(), 1U);
		EXPECT_EQ(living<object>::count(), 1);
	}
	EXPECT_EQ(living<object>::count(), 0);
}

TYPED_TEST_P(pointer_cases, construction_from_itself_stays_empty) {
	alignas(TypeParam) unsigned char storage[sizeof(TypeParam)] = {};
	for (unsigned char &byte : storage) {
		byte = 0xFF;
	}
	auto *const place = reinterpret_cast<TypeParam *>(storage);
	auto *const built = ::new (static_cast<void *>(storage)) TypeParam(*place);
	EXPECT_TRUE(built->empty());
	built->~TypeParam();
}

TYPED_TEST_P(pointer_cases, assignment_of_the_held_object_changes_nothing) {
	using object = typename TestFixture::element;
	auto *const made = create_dynamic<object>();
	TypeParam held(made);
	EXPECT_EQ(&(held = made), &held);
	EXPECT_EQ(made->get_ref_count(), 1U);
	TypeParam const &same = held;
	held = same;
	EXPECT_EQ(made->get_ref_count(), 1U);
	EXPECT_EQ(living<object>::count(), 1);
	TypeParam const other(made);
	held = other;
	EXPECT_EQ(made->get_ref_count(), 2U);
}

TYPED_TEST_P(pointer_cases, assignment_of_null_destroys_the_last_reference) {
	using object = typename TestFixture::element;
	TypeParam held(create_dynamic<object>());
	held = nullptr;
	EXPECT_EQ(living<object>::count(), 0);
	EXPECT_TRUE(held.empty());
	held = nullptr;
	EXPECT_TRUE(held.empty());
	held = create_dynamic<object>();
	held = TypeParam();
	EXPECT_TRUE(held.empty());
	EXPECT_EQ(living<object>::count(), 0);
}

TYPED_TEST_P(pointer_cases, assignment_of_another_object_lets_go_of_the_old_one) {
	using object = typename TestFixture::element;
	TypeParam held(create_dynamic<object>());
	auto *const second = create_dynamic<object>();
	held = second;
	EXPECT_EQ(living<object>::count(), 1);
	EXPECT_EQ(second->get_ref_count(), 1U);
}

TYPED_TEST_P(pointer_cases, object_on_the_stack_survives_its_release) {
	using object = typename TestFixture::element;
	object local;
	{
		TypeParam const held(&local);
		EXPECT_EQ(local.get_ref_count(), 1U);
	}
	EXPECT_EQ(local.get_ref_count(), 0U);
	EXPECT_FALSE(local.is_pointer_referenced());
	EXPECT_EQ(living<object>::count(), 1);
	TypeParam again(&local);
	again.reset();
	EXPECT_EQ(local.get_ref_count(), 0U);
	local.value = 5;
}

TYPED_TEST_P(pointer_cases, temporary_assigned_into_a_container_leaves_count_one) {
	using object = typename TestFixture::element;
	std::map<int, TypeParam> held;
	auto *const made = create_dynamic<object>();
	{
		TypeParam const temporary(made);
		held[1] = temporary;
		EXPECT_EQ(made->get_ref_count(), 2U);
	}
	EXPECT_EQ(made->get_ref_count(), 1U);
}

TYPED_TEST_P(pointer_cases, moves_and_swaps_change_no_count) {
	using object = typename TestFixture::element;
	auto *const made = create_dynamic<object>();
	TypeParam first(made);
	TypeParam second(std::move(first));
	EXPECT_TRUE(first.empty());
	EXPECT_EQ(made->get_ref_count(), 1U);
	TypeParam third(create_dynamic<object>());
	third = std::move(second);
	EXPECT_TRUE(second.empty());
	EXPECT_EQ(third.get(), made);
	EXPECT_EQ(living<object>::count(), 1);
	TypeParam &same = third;
	third = std::move(same);
	EXPECT_EQ(third.get(), made);
	swap(first, third);
	EXPECT_EQ(first.get(), made);
	first.swap(second);
	EXPECT_EQ(second.get(), made);
	EXPECT_EQ(made->get_ref_count(), 1U);
}

TYPED_TEST_P(pointer_cases, comparisons_take_no_reference) {
	using object = typename TestFixture::element;
	auto *const made = create_dynamic<object>();
	EXPECT_FALSE(TypeParam() == made);
	EXPECT_EQ(living<object>::count(), 1) << "comparing must not delete a fresh object";
	TypeParam const first(made);
	TypeParam const second(first);
	TypeParam const empty;
	EXPECT_TRUE(first == second);
	EXPECT_FALSE(first != second);
	EXPECT_TRUE(first != empty);
	EXPECT_TRUE(first == made);
	EXPECT_TRUE(made == first);
	EXPECT_FALSE(first != made);
	EXPECT_TRUE(made != empty);
	EXPECT_TRUE(nullptr == empty);
	EXPECT_TRUE(nullptr != first);
	EXPECT_TRUE(first != nullptr);
	EXPECT_TRUE((first < empty) != (empty < first));
	EXPECT_FALSE(first < second);
}

TYPED_TEST_P(pointer_cases, objects_in_a_vector_are_released_with_it) {
	using object = typename TestFixture::element;
	std::vector<TypeParam> held;
	for (int i = 0; i != 100; ++i) {
		held.push_back(create_dynamic<object>());
		held.back()->value = i;
	}
	held.erase(held.begin(), held.begin() + 50);
	EXPECT_EQ(living<object>::count(), 50);
	EXPECT_EQ(held.front()->value, 50);
	EXPECT_EQ(held.front()->get_ref_count(), 1U);
	held.front().reset(create_dynamic<object>());
	EXPECT_EQ(living<object>::count(), 50);
}

REGISTER_TYPED_TEST_SUITE_P(pointer_cases, default_construction_is_empty, pointer_is_one_word,
                            construction_from_a_new_object_brings_the_count_to_one,
                            copies_count_and_the_last_one_deletes, construction_from_itself_stays_empty,
                            assignment_of_the_held_object_changes_nothing,
                            assignment_of_null_destroys_the_last_reference,
                            assignment_of_another_object_lets_go_of_the_old_one,
                            object_on_the_stack_survives_its_release,
                            temporary_assigned_into_a_container_leaves_count_one, moves_and_swaps_change_no_count,
                            comparisons_take_no_reference, objects_in_a_vector_are_released_with_it);

} // namespace quor_test

#endif
