// What variants, arguments, pointers and delegates ask the heap for.

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <string>
#include <utility>

#include <quor/quor.hpp>

#include "support/allocation_counter.hpp"

namespace {

using quor::generic::argument;
using quor::generic::varg_list;
using quor::types::variant;
using quor_test::allocation_counter;
using quor_test::allocation_failure;

template <class Operation>
std::size_t allocations(Operation operation) {
	allocation_counter const counter;
	operation();
	return counter.count();
}

// Makes each allocation of an operation fail in turn; nothing may be lost or left over.
template <class Operation>
void expect_every_failure_is_clean(Operation operation) {
	for (std::size_t index = 0;; ++index) {
		SCOPED_TRACE(index);
		allocation_counter const counter;
		bool happened = false;
		{
			allocation_failure const failure(index);
			try {
				operation();
			} catch (std::bad_alloc const &) {
			}
			happened = failure.happened();
		}
		EXPECT_EQ(counter.live(), 0);
		if (!happened) {
			break;
		}
	}
}

quor::strings::ustring8 const long_text("a text that no short string can hold within itself");

TEST(allocation, copying_a_variant_allocates_nothing) {
	variant const source(long_text);
	variant target;
	EXPECT_EQ(allocations([&] {
		          variant copy(source);
		          variant const another(copy);
		          target = another;
		          target.assign(source);
		          variant const moved(std::move(copy)); // NOLINT(performance-move-const-arg): a move copies
	          }),
	          0U);
}

TEST(allocation, making_a_variant_allocates_its_holder) {
	EXPECT_EQ(allocations([] { variant const value(5); }), 1U);
	EXPECT_EQ(allocations([] { variant const value; }), 1U);
	EXPECT_EQ(allocations([] { variant const value("short"); }), 1U);
}

TEST(allocation, number_conversions_allocate_nothing) {
	variant const values[] = {variant(5), variant(1e300), variant("12345678901234567890"), variant(quor::types::nil),
	                          variant(QUOR_W("0x7f"))};
	for (variant const &value : values) {
		SCOPED_TRACE(value.type().name());
		EXPECT_EQ(allocations([&value] {
			          EXPECT_EQ(value.as_int(), value.as_long());
			          EXPECT_EQ(value.as_short(), value.as_int16());
			          EXPECT_EQ(value.as_signed() != 0, value.as_unsigned() != 0);
			          EXPECT_EQ(value.as_uint64() != 0, value.as_uint64() != 0 && value.as_bool());
		          }),
		          0U);
	}
	EXPECT_EQ(allocations([&values] { EXPECT_GT(values[2].as_double(), 1e18); }), 0U);
}

TEST(allocation, short_number_texts_allocate_nothing) {
	variant const values[] = {variant(-2147483647), variant(4000000000U), variant(true), variant(1.5), variant(2.5L)};
	for (variant const &value : values) {
		SCOPED_TRACE(value.type().name());
		EXPECT_EQ(allocations([&value] { EXPECT_FALSE(value.as_string().empty()); }), 0U);
	}
}

TEST(allocation, text_conversion_allocates_its_result) {
	variant const value(long_text);
	EXPECT_EQ(allocations([&value] { EXPECT_FALSE(value.as_string().empty()); }), 1U);
	EXPECT_EQ(allocations([&value] { EXPECT_FALSE(value.as_utf16().empty()); }), 1U);
	EXPECT_EQ(allocations([&value] { EXPECT_FALSE(value.as_wstring().empty()); }), 1U);
	EXPECT_EQ(allocations([&value] { EXPECT_FALSE(value.as_utf32().empty()); }), 1U);
}

TEST(allocation, lookups_in_a_list_allocate_nothing) {
	varg_list const list(argument("first", 1), argument("second", 2));
	EXPECT_EQ(allocations([&list] {
		          EXPECT_EQ(list["second"].value().as_int(), 2);
		          EXPECT_TRUE(list["third"] == quor::types::nil);
		          EXPECT_EQ(list[0].name(), "first");
	          }),
	          0U);
}

TEST(allocation, pointers_allocate_nothing) {
	using holder = quor::types::variant_value_t<int>;
	using pointer = quor::memory::pointers::rc_pointer<quor::types::variant_type>;
	pointer const source(quor::generic::abilities::create_dynamic<holder>(5));
	EXPECT_EQ(allocations([&source] {
		          pointer copy(source);
		          pointer const moved(std::move(copy));
		          copy = moved;
	          }),
	          0U);
}

class listener {
public:
	void on_number(int number) { sum += number; }
	int sum = 0;
};

TEST(allocation, delegates_allocate_their_clone_and_nothing_for_a_call) {
	listener object;
	quor::functor::delegate_t<void(int)> delegate;
	EXPECT_EQ(allocations([&] { delegate = quor::functor::member_function_t(&object, &listener::on_number); }), 1U);
	EXPECT_EQ(allocations([&] { delegate(5); }), 0U);
	EXPECT_EQ(object.sum, 5);
}

TEST(allocation, failures_lose_nothing) {
	expect_every_failure_is_clean([] {
		variant value(long_text);
		value = quor::types::nil;
		value = std::string(long_text);
		variant const copy(value);
		EXPECT_EQ(copy.as_utf16().size(), long_text.size());
	});
	expect_every_failure_is_clean([] {
		varg_list list(1, long_text, argument(long_text, 2.5));
		list.push_back(long_text + "2", long_text);
		varg_list const copy(list);
		list = copy;
		list.push_back(list[0]);
		list.erase(1);
	});
	expect_every_failure_is_clean([] {
		listener object;
		quor::functor::delegate_t<void(int)> delegate;
		delegate = quor::functor::member_function_t(&object, &listener::on_number);
		quor::functor::delegate_t<void(int)> const copy(delegate);
		delegate = copy;
	});
}

TEST(allocation, failed_assignment_of_nil_keeps_the_value) {
	variant value(5);
	{
		allocation_failure const failure(0);
		EXPECT_THROW(value = quor::types::nil, std::bad_alloc);
	}
	EXPECT_EQ(value.as_int(), 5);
}

TEST(allocation, failed_push_back_keeps_the_list) {
	varg_list list(argument("n", 1));
	variant const value(2);
	for (std::size_t index = 0; index != 2; ++index) {
		allocation_failure const failure(index);
		EXPECT_THROW(list.push_back(long_text, value), std::bad_alloc);
		EXPECT_EQ(list.size(), 1U);
	}
	EXPECT_EQ(list["n"].value().as_int(), 1);
}

} // namespace
