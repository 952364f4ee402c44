#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include <quor/quor.hpp>

#include "callables.hpp"

namespace {

using quor::functor::delegate_t;
using quor::functor::member_function_t;
using quor_test::adder;
using quor_test::callable_log;
using quor_test::number_delegate;

TEST(delegate, default_construction_is_empty_and_skipped) {
	number_delegate const empty;
	EXPECT_TRUE(empty.empty());
	EXPECT_FALSE(empty);
	EXPECT_EQ(empty.get(), nullptr);
	EXPECT_EQ(empty(5), 0);
	delegate_t<void(quor::strings::ustring8 const &)> const event;
	event("nothing happens");
	EXPECT_TRUE(number_delegate(quor::types::nil).empty());
}

TEST(delegate, is_one_pointer_and_constant_initialised) {
	EXPECT_EQ(sizeof(number_delegate), sizeof(void *));
	static constinit number_delegate at_load;
	EXPECT_TRUE(at_load.empty());
}

TEST(delegate, owns_a_clone_and_the_temporary_can_die) {
	callable_log log;
	{
		number_delegate delegate;
		delegate = adder(log, 3);
		EXPECT_EQ(log.living(), 1);
		EXPECT_EQ(log.cloned, 1);
		EXPECT_TRUE(delegate);
		EXPECT_EQ(delegate(4), 7);
	}
	EXPECT_EQ(log.living(), 0);
}

TEST(delegate, assigning_a_new_callable_destroys_the_previous_one_once) {
	callable_log first;
	callable_log second;
	number_delegate delegate(adder(first, 1));
	delegate = adder(second, 2);
	EXPECT_EQ(first.cloned, 1);
	EXPECT_EQ(first.living(), 0);
	EXPECT_EQ(first.destroyed, 2) << "the temporary and its clone";
	EXPECT_EQ(second.living(), 1);
	EXPECT_EQ(delegate(0), 2);
}

TEST(delegate, copies_clone_and_moves_take_over) {
	callable_log log;
	number_delegate const source(adder(log, 3));
	number_delegate copy(source);
	EXPECT_EQ(log.living(), 2);
	EXPECT_NE(copy.get(), source.get());
	EXPECT_EQ(copy(1), 4);
	number_delegate moved(std::move(copy));
	EXPECT_TRUE(copy.empty()); // NOLINT(bugprone-use-after-move): what a move leaves is told
	EXPECT_EQ(log.living(), 2);
	number_delegate assigned(adder(log, 9));
	assigned = source;
	EXPECT_EQ(assigned(0), 3);
	EXPECT_EQ(log.living(), 3);
	assigned = std::move(moved);
	EXPECT_TRUE(moved.empty()); // NOLINT(bugprone-use-after-move)
	EXPECT_EQ(log.living(), 2);
	assigned = number_delegate();
	EXPECT_TRUE(assigned.empty());
	EXPECT_EQ(log.living(), 1);
	number_delegate const empty;
	EXPECT_TRUE(number_delegate(empty).empty());
	assigned = source;
	assigned = empty;
	EXPECT_TRUE(assigned.empty());
}

TEST(delegate, nil_clear_and_braces_empty_it) {
	callable_log log;
	number_delegate delegate(adder(log, 1));
	delegate = quor::types::nil;
	EXPECT_TRUE(delegate.empty());
	delegate = adder(log, 1);
	delegate.clear();
	EXPECT_TRUE(delegate.empty());
	delegate.clear();
	delegate = adder(log, 1);
	delegate = {};
	EXPECT_TRUE(delegate.empty());
	EXPECT_EQ(log.living(), 0);
}

TEST(delegate, self_assignment_does_nothing) {
	callable_log log;
	number_delegate delegate(adder(log, 1));
	auto const *const callable = delegate.get();
	number_delegate &same = delegate;
	delegate = same;
	EXPECT_EQ(delegate.get(), callable);
	delegate = std::move(same);
	EXPECT_EQ(delegate.get(), callable);
	EXPECT_EQ(log.living(), 1);
}

TEST(delegate, assigned_its_own_callable_keeps_working) {
	callable_log log;
	number_delegate delegate(adder(log, 5));
	delegate = *delegate.get();
	EXPECT_EQ(delegate(1), 6);
	EXPECT_EQ(log.living(), 1);
}

TEST(delegate, failed_clone_leaves_it_empty) {
	callable_log log;
	number_delegate delegate(adder(log, 5));
	EXPECT_THROW(delegate = quor_test::unclonable(), std::bad_alloc);
	EXPECT_TRUE(delegate.empty());
	EXPECT_EQ(log.living(), 0) << "the old callable has gone";
	EXPECT_THROW(number_delegate{quor_test::unclonable()}, std::bad_alloc);
}

// Puts another callable into the delegate while it is cloned.
class meddling : public quor_test::number_callable {
public:
	meddling(number_delegate &target, callable_log &log) : m_target(target), m_log(log) {}
	bool equal(function_type_interface const & /*other*/) const override { return false; }
	meddling *clone() const override {
		m_target = adder(m_log, 1);
		return new meddling(*this);
	}
	int operator()(int value) const override { return value * 2; }

private:
	number_delegate &m_target;
	callable_log &m_log;
};

TEST(delegate, clone_that_assigns_to_the_delegate_loses_nothing) {
	callable_log log;
	number_delegate delegate;
	delegate = meddling(delegate, log);
	EXPECT_EQ(delegate(5), 10) << "the assignment that ends last counts";
	EXPECT_EQ(log.cloned, 1);
	EXPECT_EQ(log.living(), 0);
}

TEST(delegate, callable_may_replace_itself_while_it_runs) {
	callable_log log;
	callable_log other;
	number_delegate delegate;
	delegate = adder(log, 1, [&] {
		delegate = adder(other, 2);
		EXPECT_EQ(log.living(), 1) << "the running callable is kept";
	});
	EXPECT_EQ(delegate(10), 11);
	EXPECT_EQ(log.living(), 0);
	EXPECT_EQ(delegate(10), 12);
}

TEST(delegate, callable_may_clear_or_move_its_delegate_while_it_runs) {
	callable_log log;
	number_delegate delegate;
	number_delegate other;
	delegate = adder(log, 1, [&] { delegate.clear(); });
	EXPECT_EQ(delegate(1), 2);
	EXPECT_EQ(log.living(), 0);
	delegate = adder(log, 1, [&] { other = std::move(delegate); });
	EXPECT_EQ(delegate(1), 2);
	EXPECT_EQ(log.living(), 1);
	EXPECT_TRUE(delegate.empty());
	EXPECT_FALSE(other.empty());
}

TEST(delegate, callable_may_assign_its_own_callable_while_it_runs) {
	callable_log log;
	number_delegate delegate;
	delegate = adder(log, 1, [&] { delegate = *delegate.get(); });
	EXPECT_EQ(delegate(1), 2);
	EXPECT_EQ(delegate(2), 3);
	EXPECT_EQ(log.living(), 1);
}

TEST(delegate, callable_may_destroy_its_delegate_while_it_runs) {
	callable_log log;
	auto delegate = std::make_unique<number_delegate>();
	*delegate = adder(log, 1, [&] { delegate.reset(); });
	EXPECT_EQ((*delegate)(1), 2);
	EXPECT_EQ(log.living(), 0);
}

TEST(delegate, nested_calls_keep_the_callable_until_the_outermost_returns) {
	callable_log log;
	number_delegate delegate;
	int depth = 0;
	delegate = adder(log, 1, [&] {
		if (++depth < 3) {
			EXPECT_EQ(delegate(0), 1);
		} else {
			delegate.clear();
		}
		EXPECT_EQ(log.living(), 1);
	});
	EXPECT_EQ(delegate(1), 2);
	EXPECT_EQ(log.living(), 0);
	EXPECT_EQ(log.called, 3);
}

TEST(delegate, throwing_callable_is_released_when_it_cleared_its_delegate) {
	callable_log log;
	number_delegate delegate;
	delegate = adder(log, 1, [&] {
		delegate.clear();
		throw 5;
	});
	EXPECT_THROW(delegate(1), int);
	EXPECT_EQ(log.living(), 0);
}

TEST(delegate, equality_compares_the_callables) {
	callable_log log;
	number_delegate const one(adder(log, 1));
	number_delegate const same(adder(log, 1));
	number_delegate const two(adder(log, 2));
	number_delegate const empty;
	EXPECT_TRUE(one == same);
	EXPECT_FALSE(one != same);
	EXPECT_TRUE(one != two);
	EXPECT_TRUE(one != empty);
	EXPECT_TRUE(empty != one);
	EXPECT_TRUE(empty == number_delegate());
}

class bound {
public:
	void take(std::unique_ptr<int> value) { taken = std::move(value); }
	int &number(int &value) { return ++value; }
	void replace() {
		target->clear();
		++calls;
	}
	std::unique_ptr<int> taken;
	delegate_t<void()> *target = nullptr;
	int calls = 0;
};

TEST(delegate, arguments_and_results_are_passed_on_as_they_are) {
	bound object;
	delegate_t<void(std::unique_ptr<int>)> const moving(member_function_t(&object, &bound::take));
	moving(std::make_unique<int>(5));
	ASSERT_NE(object.taken, nullptr);
	EXPECT_EQ(*object.taken, 5);
	delegate_t<int &(int &)> const by_reference(member_function_t(&object, &bound::number));
	int value = 1;
	EXPECT_EQ(&by_reference(value), &value);
	EXPECT_EQ(value, 2);
}

TEST(delegate, member_function_may_clear_its_delegate_while_it_runs) {
	bound object;
	delegate_t<void()> delegate(member_function_t(&object, &bound::replace));
	object.target = &delegate;
	delegate();
	delegate();
	EXPECT_EQ(object.calls, 1);
	EXPECT_TRUE(delegate.empty());
}

} // namespace
