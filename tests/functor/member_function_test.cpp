#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include <quor/quor.hpp>

#include "callables.hpp"

namespace {

using quor::functor::member_function_t;
using quor::strings::ustring8;

class listener {
public:
	int add(int value) { return sum += value; }
	int subtract(int value) { return sum -= value; }
	int look(int value) const { return sum + value; }
	void on_pair(ustring8 const &first, ustring8 const &second) { pair = first + "=" + second; }
	int sum = 0;
	ustring8 pair;
};

class derived_listener : public listener {};

using bound = member_function_t<listener, int(int)>;

TEST(member_function, calls_the_member_on_the_object) {
	listener object;
	bound const call(&object, &listener::add);
	EXPECT_EQ(call(5), 5);
	EXPECT_EQ(call(6), 11);
	EXPECT_EQ(object.sum, 11);
	member_function_t<listener, void(ustring8 const &, ustring8 const &)> const pair(&object, &listener::on_pair);
	pair("a", "b");
	EXPECT_EQ(object.pair, "a=b");
}

TEST(member_function, equality_needs_the_same_object_and_the_same_member) {
	listener object;
	listener other;
	bound const call(&object, &listener::add);
	EXPECT_TRUE(call == bound(&object, &listener::add));
	EXPECT_TRUE(call.equal(bound(&object, &listener::add)));
	EXPECT_FALSE(call != bound(&object, &listener::add));
	EXPECT_FALSE(call == bound(&other, &listener::add));
	EXPECT_FALSE(call == bound(&object, &listener::subtract));
	EXPECT_TRUE(call != bound(&object, &listener::subtract));
}

TEST(member_function, equality_with_another_class_of_callable_is_false) {
	listener object;
	derived_listener derived;
	quor_test::callable_log log;
	quor_test::adder const other(log, 1);
	bound const call(&object, &listener::add);
	EXPECT_FALSE(call.equal(other));
	EXPECT_FALSE(other.equal(call));
	member_function_t<derived_listener, int(int)> const of_derived(&derived, &listener::add);
	EXPECT_FALSE(call.equal(of_derived));
}

TEST(member_function, clone_is_a_new_equal_callable) {
	listener object;
	bound const call(&object, &listener::add);
	std::unique_ptr<quor_test::number_callable> const copy(call.clone());
	EXPECT_NE(static_cast<void const *>(copy.get()), static_cast<void const *>(&call));
	EXPECT_TRUE(*copy == call);
	EXPECT_EQ((*copy)(2), 2);
	EXPECT_EQ(object.sum, 2);
}

TEST(member_function, copy_and_assignment_take_both_pointers) {
	listener object;
	listener other;
	bound call(&object, &listener::add);
	bound const copy(call);
	EXPECT_TRUE(copy == call);
	call = bound(&other, &listener::subtract);
	EXPECT_TRUE(call == bound(&other, &listener::subtract));
	EXPECT_EQ(call(1), -1);
}

TEST(member_function, class_and_signature_are_deduced) {
	listener object;
	derived_listener derived;
	listener const &constant = object;
	EXPECT_TRUE((std::is_same_v<decltype(member_function_t(&object, &listener::add)), bound>));
	EXPECT_TRUE((std::is_same_v<decltype(member_function_t(&derived, &listener::add)),
	                            member_function_t<derived_listener, int(int)>>));
	EXPECT_EQ(member_function_t(&derived, &listener::add)(4), 4);
	EXPECT_EQ(member_function_t(&constant, &listener::look)(4), 4);
	EXPECT_EQ(member_function_t(&object, &listener::look)(5), 5);
}

} // namespace
