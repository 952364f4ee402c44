#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <quor/quor.hpp>

namespace {

using quor::generic::argument;
using quor::strings::ustring16;
using quor::strings::ustring8;
using quor::types::nil;
using quor::types::nil_t;
using quor::types::variant;

TEST(argument, construction_takes_name_and_value) {
	struct {
		char const *what;
		argument value;
		char const *name;
		char const *text;
		bool is_nil;
	} const rows[] = {
	    {"nothing", argument(), "", "", true},
	    {"nil", argument(nil), "", "", true},
	    {"nil object", argument(nil_t()), "", "", true},
	    {"nil variant", argument(variant()), "", "", true},
	    {"variant", argument(variant(5)), "", "5", false},
	    {"number", argument(5), "", "5", false},
	    {"zero", argument(0), "", "0", false},
	    {"literal", argument("text"), "", "text", false},
	    {"empty literal", argument(""), "", "", false},
	    {"string", argument(std::string("text")), "", "text", false},
	    {"ustring8", argument(ustring8("text")), "", "text", false},
	    {"wide literal", argument(QUOR_W("text")), "", "text", false},
	    {"floating", argument(1.5), "", "1.5", false},
	    {"bool", argument(true), "", "1", false},
	    {"native long", argument(5L), "", "5", false},
	    {"name and value", argument("n", variant(5)), "n", "5", false},
	    {"name and number", argument("n", 5), "n", "5", false},
	    {"name and literal", argument("n", "text"), "n", "text", false},
	    {"string name", argument(std::string("n"), 2.5), "n", "2.5", false},
	    {"name and nil", argument("n", nil), "n", "", false},
	    {"empty name", argument("", 5), "", "5", false},
	    {"empty name and nil", argument("", nil), "", "", true},
	};
	for (auto const &row : rows) {
		SCOPED_TRACE(row.what);
		EXPECT_EQ(row.value.name(), row.name);
		EXPECT_EQ(row.value.value().as_string(), row.text);
		EXPECT_EQ(row.value.has_name(), *row.name != '\0');
		EXPECT_EQ(row.value == nil, row.is_nil);
		EXPECT_EQ(row.value != nil, !row.is_nil);
		EXPECT_EQ(row.value.equal(nil), row.is_nil);
	}
}

TEST(argument, constructors_keep_the_type_of_the_value) {
	EXPECT_EQ(argument(5).value().type(), typeid(int));
	EXPECT_EQ(argument(true).value().type(), typeid(bool));
	EXPECT_EQ(argument("text").value().type(), typeid(ustring8));
	EXPECT_EQ(argument(std::string("text")).value().type(), typeid(std::string));
	EXPECT_EQ(argument(QUOR_W("text")).value().type(), typeid(ustring16));
	EXPECT_FALSE((std::is_constructible_v<argument, void const *>));
	EXPECT_FALSE((std::is_constructible_v<argument, int *>));
	EXPECT_FALSE((std::is_constructible_v<argument, std::vector<int>>));
	EXPECT_TRUE((std::is_convertible_v<int, argument>));
	EXPECT_TRUE((std::is_convertible_v<char const *, argument>));
}

TEST(argument, assignment_of_a_value_keeps_the_name) {
	argument target("n", 1);
	EXPECT_EQ(&(target = variant(2)), &target);
	EXPECT_EQ(target.value().as_int(), 2);
	EXPECT_EQ(&(target = 3), &target);
	EXPECT_EQ(target.value().as_int(), 3);
	EXPECT_EQ(&target.assign(variant("four")), &target);
	EXPECT_EQ(target.value().as_string(), "four");
	EXPECT_EQ(&target.assign("five"), &target);
	EXPECT_EQ(target.value().as_string(), "five");
	target = "six";
	EXPECT_EQ(target.value().as_string(), "six");
	target = variant();
	EXPECT_TRUE(target.value() == nil);
	EXPECT_EQ(target.name(), "n");
	EXPECT_TRUE(target != nil) << "a named argument is not nil";
}

TEST(argument, assignment_of_nil_empties_the_name_too) {
	argument target("n", 1);
	EXPECT_EQ(&(target = nil), &target);
	EXPECT_TRUE(target == nil);
	EXPECT_EQ(target.name(), "");
	argument other("n", 1);
	EXPECT_EQ(&other.assign(nil), &other);
	EXPECT_TRUE(other == nil);
}

TEST(argument, assignment_of_an_argument_replaces_both) {
	argument const source("m", "text");
	argument target("n", 1);
	EXPECT_EQ(&(target = source), &target);
	EXPECT_EQ(target.name(), "m");
	EXPECT_EQ(target.value().as_string(), "text");
	argument other(5);
	EXPECT_EQ(&other.assign(source), &other);
	EXPECT_EQ(other.name(), "m");
	EXPECT_EQ(&other.assign("k", 7), &other);
	EXPECT_EQ(other.name(), "k");
	EXPECT_EQ(other.value().as_int(), 7);
	other = argument();
	EXPECT_TRUE(other == nil);
	EXPECT_EQ(source.value().as_string(), "text");
}

TEST(argument, assignment_of_itself_or_its_parts_is_safe) {
	argument target("a name that is too long for a short string", "a value");
	argument const &same = target;
	target = same;
	target.assign(target);
	target.assign(target.name(), target.value());
	target = target.value();
	target.value(target.value());
	target.name(target.name());
	EXPECT_EQ(target.name(), "a name that is too long for a short string");
	EXPECT_EQ(target.value().as_string(), "a value");
}

TEST(argument, accessors_set_and_give_back) {
	argument target;
	ustring8 const &name = target.name("n");
	EXPECT_EQ(&name, &target.name());
	EXPECT_EQ(name, "n");
	variant const &value = target.value(5);
	EXPECT_EQ(&value, &target.value());
	EXPECT_EQ(value.as_int(), 5);
	target.name("");
	EXPECT_FALSE(target.has_name());
	EXPECT_TRUE(target != nil);
	target.value(nil);
	EXPECT_TRUE(target == nil);
}

TEST(argument, copies_share_the_value_and_are_independent) {
	argument const source("n", 5);
	argument copy(source);
	copy = 6;
	copy.name("m");
	EXPECT_EQ(source.value().as_int(), 5);
	EXPECT_EQ(source.name(), "n");
	argument const moved(std::move(copy));
	EXPECT_EQ(moved.name(), "m");
	EXPECT_EQ(moved.value().as_int(), 6);
	EXPECT_FALSE(std::is_polymorphic_v<argument>);
}

} // namespace
