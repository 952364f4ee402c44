#ifndef QUOR_TESTS_SUPPORT_EXCEPTION_CLASSES_HPP
#define QUOR_TESTS_SUPPORT_EXCEPTION_CLASSES_HPP

// What every concrete exception class has to do, as one routine for all of them.

#include <quor/quor.hpp>

#include <gtest/gtest.h>

#include <exception>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace quor_test {

namespace exceptions = QUOR_2_9::exceptions;

// Whether a handler for `Caught` sees a thrown `Thrown`.
template <class Caught, class Thrown>
bool catches(Thrown const &error) {
	try {
		throw error;
	} catch (Caught const &) {
		return true;
	} catch (...) {
		return false;
	}
}

template <class Class>
void check_construction() {
	using state = exceptions::exception::state;
	static_assert(std::is_constructible_v<Class, std::string const &, unsigned int, char const *, char const *>);
	static_assert(std::is_constructible_v<Class, std::string const &, state const &>);
	static_assert(std::is_copy_constructible_v<Class> && std::is_copy_assignable_v<Class>);
	static_assert(!std::is_default_constructible_v<Class>);
	static_assert(!std::is_constructible_v<Class, std::string const &>);
	static_assert(!std::is_constructible_v<Class, unsigned int, char const *, char const *>);
	static_assert(!std::is_base_of_v<std::exception, Class>);
	static_assert(std::has_virtual_destructor_v<Class>);

	for (std::string const message : {"", "a text", "a text that is far too long for a short string's own place"}) {
		SCOPED_TRACE(message);
		Class const error(message, 12, "folder\\file", "ns::function");
		EXPECT_EQ(error.message(), message);
		EXPECT_EQ(error.error_state().line(), 12U);
		EXPECT_STREQ(error.error_state().file(), "folder\\file");
		EXPECT_STREQ(error.error_state().function(), "ns::function");

		Class const from_record(message, error.error_state());
		EXPECT_EQ(from_record.message(), message);
		EXPECT_EQ(from_record.error_state().line(), 12U);
		EXPECT_STREQ(from_record.error_state().file(), "folder\\file");
		EXPECT_STREQ(from_record.error_state().function(), "ns::function");
	}
}

// A zero character inside the message is kept, and ends the text only for who reads it so.
template <class Class>
void check_message_with_zero() {
	std::string const message("a\0b", 3);
	Class const error(message, 1, "", "");
	EXPECT_EQ(std::string(error.message(), 4), message + '\0');
	Class const copy(error);
	EXPECT_EQ(std::string(copy.message(), 4), message + '\0');
}

template <class Class>
void check_copies() {
	Class error("a text that is far too long for a short string's own place", 12, "file", "function");
	Class const copy(error);
	EXPECT_STREQ(copy.message(), error.message());
	EXPECT_NE(copy.message(), error.message());
	EXPECT_EQ(copy.error_state().line(), 12U);
	EXPECT_STREQ(copy.error_state().file(), "file");
	EXPECT_NE(copy.error_state().file(), error.error_state().file());
	EXPECT_NE(copy.error_state().function(), error.error_state().function());

	// Moving is copying: the source keeps its text.
	Class const moved(std::move(error));
	EXPECT_STREQ(moved.message(), copy.message());
	EXPECT_STREQ(error.message(), copy.message());

	Class assigned("x", 1, "y", "z");
	Class &result = assigned = copy;
	EXPECT_EQ(&result, &assigned);
	EXPECT_STREQ(assigned.message(), copy.message());
	EXPECT_EQ(assigned.error_state().line(), 12U);
	EXPECT_STREQ(assigned.error_state().file(), "file");
	EXPECT_STREQ(assigned.error_state().function(), "function");
	assigned = std::move(error);
	EXPECT_STREQ(error.message(), copy.message());
	Class const &alias = assigned;
	assigned = alias;
	EXPECT_STREQ(assigned.message(), copy.message());
}

// `Branch` is the class's own branch of the tree, `Other` the one beside it.
template <class Class, class Branch, class Other>
void check_catching() {
	Class const error("text", 1, "file", "function");
	EXPECT_TRUE((catches<Class>(error)));
	EXPECT_TRUE((catches<Branch>(error)));
	EXPECT_TRUE((catches<exceptions::exception>(error)));
	EXPECT_FALSE((catches<Other>(error)));
	EXPECT_FALSE((catches<std::exception>(error)));
	try {
		throw Class("text", 1, "file", "function");
	} catch (exceptions::exception const &caught) {
		EXPECT_STREQ(caught.message(), "text");
		EXPECT_STREQ(caught.error_state().function(), "function");
		EXPECT_TRUE(typeid(caught) == typeid(Class));
	}
}

template <class Class, class Branch, class Other>
void check_class() {
	check_construction<Class>();
	check_message_with_zero<Class>();
	check_copies<Class>();
	check_catching<Class, Branch, Other>();
}

} // namespace quor_test

#endif
