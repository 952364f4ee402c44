#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <quor/quor.hpp>

namespace {

using quor::generic::argument;
using quor::generic::varg_list;
using quor::strings::ustring8;
using quor::types::nil;
using quor::types::variant;

bool const nil_argument_in_static_initialisers = varg_list::nil_argument == nil;
varg_list const list_in_static_initialisers(argument("n", 5), 6);

// The list as one text: name=value for each argument, separated by blanks.
std::string text_of(varg_list const &list) {
	std::string text;
	for (argument const &element : list) {
		text += (text.empty() ? "" : " ") + element.name() + "=" +
		        (element.value() == nil ? "nil" : element.value().as_string());
	}
	return text;
}

TEST(varg_list, default_construction_is_empty) {
	varg_list const list;
	EXPECT_TRUE(list == nil);
	EXPECT_FALSE(list != nil);
	EXPECT_TRUE(list.equal(nil));
	EXPECT_TRUE(list.empty());
	EXPECT_EQ(list.size(), 0U);
	EXPECT_EQ(list.count(), 0U);
	EXPECT_TRUE(list.begin() == list.end());
}

TEST(varg_list, constructor_takes_arguments_up_to_the_first_nil) {
	argument const a("a", 1);
	argument const b(2);
	argument const named_nil("c", nil);
	struct {
		char const *what;
		varg_list list;
		char const *text;
	} const rows[] = {
	    {"one", varg_list(a), "a=1"},
	    {"two", varg_list(a, b), "a=1 =2"},
	    {"stop at nil", varg_list(a, b, nil, a, named_nil), "a=1 =2"},
	    {"nil first", varg_list(nil, a), ""},
	    {"nil argument", varg_list(a, varg_list::nil_argument, b), "a=1"},
	    {"nil variant", varg_list(a, variant(), b), "a=1"},
	    {"named nil goes on", varg_list(a, named_nil, b), "a=1 c=nil =2"},
	    {"name twice", varg_list(a, argument("a", 7), b), "a=1 =2"},
	    {"unnamed twice", varg_list(b, b, b), "=2 =2 =2"},
	    {"everyday use", varg_list(1, "two", 3.5, argument("n", true)), "=1 =two =3.5 n=1"},
	    {"empty text is no nil", varg_list("", a), "= a=1"},
	    {"zero is no nil", varg_list(0, false, a), "=0 =0 a=1"},
	};
	for (auto const &row : rows) {
		SCOPED_TRACE(row.what);
		EXPECT_EQ(text_of(row.list), row.text);
	}
}

TEST(varg_list, constructor_takes_twenty_six_arguments) {
	varg_list const list(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26);
	ASSERT_EQ(list.size(), 26U);
	for (int i = 0; i != 26; ++i) {
		EXPECT_EQ(list[i].value().as_int(), i + 1);
	}
	using take_26 = std::is_constructible<varg_list, int, int, int, int, int, int, int, int, int, int, int, int, int,
	                                      int, int, int, int, int, int, int, int, int, int, int, int, int>;
	using take_27 = std::is_constructible<varg_list, int, int, int, int, int, int, int, int, int, int, int, int, int,
	                                      int, int, int, int, int, int, int, int, int, int, int, int, int, int>;
	EXPECT_TRUE(take_26::value);
	EXPECT_FALSE(take_27::value);
}

TEST(varg_list, static_objects_are_there_for_static_initialisers) {
	EXPECT_TRUE(nil_argument_in_static_initialisers);
	EXPECT_EQ(text_of(list_in_static_initialisers), "n=5 =6");
	EXPECT_TRUE(varg_list::nil_argument == nil);
}

TEST(varg_list, push_back_refuses_a_name_that_is_there) {
	varg_list list;
	EXPECT_TRUE(list.push_back("n", 1));
	EXPECT_FALSE(list.push_back("n", 2));
	EXPECT_FALSE(list.push_back(argument("n", 3)));
	EXPECT_EQ(text_of(list), "n=1");
	EXPECT_TRUE(list.push_back("N", 4)) << "case matters";
	EXPECT_TRUE(list.push_back(ustring8("n\0", 2), 5)) << "the whole name counts";
	EXPECT_EQ(list.size(), 3U);
}

TEST(varg_list, push_back_without_a_name_repeats) {
	varg_list list;
	EXPECT_TRUE(list.push_back("", 1));
	EXPECT_TRUE(list.push_back("", 2));
	EXPECT_TRUE(list.push_back(argument(3)));
	EXPECT_TRUE(list.push_back(4));
	EXPECT_TRUE(list.push_back("text"));
	EXPECT_TRUE(list.push_back(argument()));
	EXPECT_TRUE(list.push_back(nil));
	EXPECT_EQ(text_of(list), "=1 =2 =3 =4 =text =nil =nil");
	EXPECT_TRUE(list != nil) << "a list of nil arguments is not empty";
}

TEST(varg_list, lookup_by_name_gives_the_first_or_the_nil_argument) {
	varg_list list(argument("a", 1), 2, argument("b", 3), 4);
	varg_list const &constant = list;
	EXPECT_EQ(list["a"].value().as_int(), 1);
	EXPECT_EQ(list.at("b").value().as_int(), 3);
	EXPECT_EQ(constant[ustring8("b")].value().as_int(), 3);
	EXPECT_EQ(constant.at(std::string("b")).value().as_int(), 3);
	EXPECT_EQ(list[""].value().as_int(), 2) << "the first unnamed one";
	EXPECT_TRUE(list["missing"] == nil);
	EXPECT_EQ(&list["missing"], &varg_list::nil_argument);
	EXPECT_EQ(&list.at("A"), &varg_list::nil_argument);
	EXPECT_EQ(&varg_list()[""], &varg_list::nil_argument);
	EXPECT_TRUE(list.has_argument("a"));
	EXPECT_TRUE(list.has_argument(""));
	EXPECT_FALSE(list.has_argument("missing"));
	EXPECT_EQ(list.find("b") - list.begin(), 2);
	EXPECT_EQ(constant.find("b") - constant.begin(), 2);
	EXPECT_TRUE(list.find("missing") == list.end());
	EXPECT_TRUE(constant.find("missing") == constant.end());
	list.find("a")->value(9);
	EXPECT_EQ(&list["a"], &list[0]);
	EXPECT_EQ(list["a"].value().as_int(), 9);
}

TEST(varg_list, names_that_repeat_by_other_ways_find_the_first) {
	varg_list list(argument("a", 1), argument("b", 2));
	list[1].name("a");
	EXPECT_EQ(list["a"].value().as_int(), 1);
	varg_list const copy(list);
	EXPECT_EQ(text_of(copy), "a=1 a=2");
	varg_list assigned(7);
	EXPECT_EQ(&assigned.assign(list), &assigned);
	EXPECT_EQ(text_of(assigned), "a=1 a=2");
	list.erase("a");
	EXPECT_EQ(text_of(list), "a=2");
}

// Every way to name an index.
template <class List>
void expect_out_of_range(List &list) {
	auto const refuse = [](auto operation) {
		try {
			operation();
			ADD_FAILURE() << "nothing was thrown";
		} catch (std::out_of_range const &error) {
			EXPECT_STREQ(error.what(), "invalid vector<T> subscript");
		}
	};
	refuse([&list] { list.at(3); });
	refuse([&list] { list[3]; });
	refuse([&list] { list.at(99U); });
	refuse([&list] { list[quor::types::uint32(3)]; });
	refuse([&list] { list.at(quor::types::uint32(3)); });
	refuse([&list] { list.at(quor::types::ulong_t(3)); });
	refuse([&list] { list.at(-1); });
	refuse([&list] { list[std::numeric_limits<std::int64_t>::min()]; });
	refuse([&list] { list.at(std::uint64_t(1) << 32); });
	refuse([&list] { list[std::numeric_limits<std::size_t>::max()]; });
}

TEST(varg_list, lookup_by_index_is_checked) {
	varg_list list(argument("a", 1), 2, 3);
	varg_list const &constant = list;
	EXPECT_EQ(list[0].name(), "a");
	EXPECT_EQ(list.at(0).name(), "a");
	EXPECT_EQ(constant[2].value().as_int(), 3);
	EXPECT_EQ(constant.at(2U).value().as_int(), 3);
	EXPECT_EQ(list[std::size_t(1)].value().as_int(), 2);
	EXPECT_EQ(list[1L].value().as_int(), 2);
	EXPECT_EQ(list[static_cast<short>(1)].value().as_int(), 2);
	EXPECT_EQ(list[quor::types::uint32(1)].value().as_int(), 2);
	list[1] = "two";
	list.at(2).name("c");
	EXPECT_EQ(text_of(list), "a=1 =two c=3");
	expect_out_of_range(list);
	expect_out_of_range(constant);
	EXPECT_THROW(varg_list()[0], std::out_of_range);
}

TEST(varg_list, erase_removes_and_keeps_the_order) {
	varg_list const source(argument("a", 1), argument("b", 2), argument("c", 3), 4);
	struct {
		char const *what;
		void (*erase)(varg_list &);
		char const *text;
	} const rows[] = {
	    {"literal zero", [](varg_list &list) { list.erase(0); }, "b=2 c=3 =4"},
	    {"index", [](varg_list &list) { list.erase(2); }, "a=1 b=2 =4"},
	    {"unsigned index", [](varg_list &list) { list.erase(quor::types::uint32(3)); }, "a=1 b=2 c=3"},
	    {"wide index", [](varg_list &list) { list.erase(std::size_t(1)); }, "a=1 c=3 =4"},
	    {"index beyond", [](varg_list &list) { list.erase(4); }, "a=1 b=2 c=3 =4"},
	    {"negative index", [](varg_list &list) { list.erase(-1); }, "a=1 b=2 c=3 =4"},
	    {"name", [](varg_list &list) { list.erase("b"); }, "a=1 c=3 =4"},
	    {"empty name", [](varg_list &list) { list.erase(""); }, "a=1 b=2 c=3"},
	    {"missing name", [](varg_list &list) { list.erase("x"); }, "a=1 b=2 c=3 =4"},
	    {"own name", [](varg_list &list) { list.erase(list[0].name()); }, "b=2 c=3 =4"},
	    {"iterator", [](varg_list &list) { list.erase(list.begin() + 1); }, "a=1 c=3 =4"},
	    {"range", [](varg_list &list) { list.erase(list.begin() + 1, list.end() - 1); }, "a=1 =4"},
	    {"empty range", [](varg_list &list) { list.erase(list.begin(), list.begin()); }, "a=1 b=2 c=3 =4"},
	    {"all", [](varg_list &list) { list.erase(); }, ""},
	    {"clear", [](varg_list &list) { list.clear(); }, ""},
	    {"nil", [](varg_list &list) { list = nil; }, ""},
	    {"braces", [](varg_list &list) { list = {}; }, ""},
	};
	for (auto const &row : rows) {
		SCOPED_TRACE(row.what);
		varg_list list(source);
		row.erase(list);
		EXPECT_EQ(text_of(list), row.text);
		EXPECT_EQ(list == nil, *row.text == '\0');
	}
	EXPECT_EQ(source.size(), 4U);
}

TEST(varg_list, own_elements_as_arguments_are_safe) {
	for (int size = 1; size != 20; ++size) {
		varg_list list;
		for (int i = 0; i != size; ++i) {
			list.push_back(argument(i));
		}
		EXPECT_TRUE(list.push_back(list[0]));
		EXPECT_TRUE(list.push_back("", list[size - 1].value()));
		EXPECT_TRUE(list.push_back("a name that no short string holds", list[0].value()));
		EXPECT_FALSE(list.push_back(list[size + 2]));
		EXPECT_FALSE(list.push_back(list[size + 2].name(), 5));
		EXPECT_EQ(list[size].value().as_int(), 0);
		EXPECT_EQ(list[size + 1].value().as_int(), size - 1);
		EXPECT_EQ(list.size(), static_cast<quor::types::uint32>(size + 3));
	}
	varg_list list(argument("a", 1), argument("b", 2));
	varg_list const &same = list;
	list = same;
	list.assign(list);
	list.at(1) = list.at(1);
	EXPECT_EQ(text_of(list), "a=1 b=2");
	list[0] = list[1];
	EXPECT_EQ(text_of(list), "b=2 b=2");
	list = varg_list(list[1], list[0], 7);
	EXPECT_EQ(text_of(list), "b=2 =7");
}

TEST(varg_list, copies_are_independent_and_moves_take_over) {
	varg_list source(argument("a", 1), 2);
	varg_list copy(source);
	copy[0] = 9;
	EXPECT_EQ(text_of(source), "a=1 =2");
	varg_list const moved(std::move(copy));
	EXPECT_EQ(text_of(moved), "a=9 =2");
	source = moved;
	EXPECT_EQ(text_of(source), "a=9 =2");
	EXPECT_FALSE(std::is_polymorphic_v<varg_list>);
}

TEST(varg_list, iterators_walk_in_order_and_may_change) {
	varg_list list(1, 2, 3);
	for (argument &element : list) {
		element = element.value().as_int() * 10;
	}
	EXPECT_EQ(text_of(list), "=10 =20 =30");
	EXPECT_EQ(list.end() - list.begin(), 3);
}

// A list as a plain vector of pairs, with every rule spelled out.
using plain_list = std::vector<std::pair<std::string, int>>;

TEST(varg_list, random_operations_agree_with_a_plain_vector) {
	std::mt19937 random(8);
	varg_list list;
	plain_list plain;
	for (int step = 0; step != 5000; ++step) {
		std::string const name = std::string(random() % 2, static_cast<char>('a' + random() % 6));
		int const number = static_cast<int>(random() % 1000);
		auto found = plain.begin();
		while (found != plain.end() && found->first != name) {
			++found;
		}
		ASSERT_EQ(list.has_argument(name), found != plain.end());
		switch (random() % 4) {
		case 0:
		case 1: {
			bool const taken = name.empty() || found == plain.end();
			ASSERT_EQ(random() % 2 == 0 ? list.push_back(name, number) : list.push_back(argument(name, number)), taken);
			if (taken) {
				plain.emplace_back(name, number);
			}
			break;
		}
		case 2:
			list.erase(name);
			if (found != plain.end()) {
				plain.erase(found);
			}
			break;
		default:
			list.erase(number % 12);
			if (static_cast<std::size_t>(number % 12) < plain.size()) {
				plain.erase(plain.begin() + number % 12);
			}
			break;
		}
		ASSERT_EQ(list.size(), plain.size());
		for (std::size_t i = 0; i != plain.size(); ++i) {
			ASSERT_EQ(list[i].name(), plain[i].first);
			ASSERT_EQ(list[i].value().as_int(), plain[i].second);
		}
	}
}

} // namespace
