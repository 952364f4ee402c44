#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <iomanip>
#include <iostream>
#include <list>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "support/config_sources.hpp"
#include "support/cout_capture.hpp"

namespace {

using quor::config::base_config_item;
using quor::config::commandline_item;
using quor::strings::ustring8;
using quor_test::config_entry;
using quor_test::head;
using quor_test::listing_of;
using quor_test::passage;
using quor_test::string_block;
using quor_test::value;

using entries = std::vector<config_entry>;
using arguments = std::vector<std::string>;

struct loaded {
	entries tree;
	std::string output;
};

bool is_program_name(config_entry const &entry) {
	return entry.name == "application" || entry.name == "application.name" || entry.name == "application.name.raw";
}

// What the arguments behind the program's name, which is left out, leave in a tree.
loaded load(arguments texts) {
	texts.insert(texts.begin(), "p");
	string_block block(texts);
	commandline_item item(block.count(), block.pointers());
	quor_test::cout_capture const capture;
	EXPECT_TRUE(item.load());
	loaded result{listing_of(item), capture.text()};
	result.tree.erase(std::remove_if(result.tree.begin(), result.tree.end(), is_program_name), result.tree.end());
	return result;
}

struct row {
	arguments texts;
	entries expected;
};

void expect_trees(std::vector<row> const &rows) {
	for (auto const &[texts, expected] : rows) {
		SCOPED_TRACE(testing::PrintToString(texts));
		loaded const result = load(texts);
		EXPECT_EQ(result.tree, expected);
		EXPECT_EQ(result.output, "");
	}
}

TEST(commandline_item, grammar) {
	expect_trees({
	    {{"-key"}, {value("key", "")}},
	    {{"-key", "-other"}, {value("key", ""), value("other", "")}},
	    {{"-key", "/other"}, {value("key", ""), value("other", "")}},
	    {{"-key", "value"}, {value("key", "value")}},
	    {{"-key", "a", "b", "c"}, {head("key"), value("key.0", "a"), value("key.1", "b"), value("key.2", "c")}},
	    {{"-key=value"}, {value("key", "value")}},
	    {{"-key:value"}, {value("key", "value")}},
	    {{"-key:=value"}, {value("key", "value")}},
	    {{"-key=a,b,c"}, {head("key"), value("key.0", "a"), value("key.1", "b"), value("key.2", "c")}},
	    {{"-key:a,b"}, {head("key"), value("key.0", "a"), value("key.1", "b")}},
	    {{"-key:=a,b"}, {head("key"), value("key.0", "a"), value("key.1", "b")}},
	    {{"-key$a,b"}, {value("key", "a,b")}},
	    {{"/key"}, {value("key", "")}},
	    {{"/key", "value"}, {value("key", "value")}},
	    {{"/key=value"}, {value("key", "value")}},
	    {{"/key$a,b"}, {value("key", "a,b")}},
	    {{"/key", "a", "b"}, {head("key"), value("key.0", "a"), value("key.1", "b")}},
	});
}

TEST(commandline_item, following_arguments_end_at_the_next_key) {
	expect_trees({
	    {{"-x", "-y"}, {value("x", ""), value("y", "")}},
	    {{"-x", "v", "-y"}, {value("x", "v"), value("y", "")}},
	    // The first value may not begin with a slash, the others may.
	    {{"-x", "/b"}, {value("b", ""), value("x", "")}},
	    {{"-x", "a", "/b"}, {head("x"), value("x.0", "a"), value("x.1", "/b")}},
	    {{"-x", "a", "/b", "-y"}, {head("x"), value("x.0", "a"), value("x.1", "/b"), value("y", "")}},
	    {{"-x", "/b", "c"}, {value("b", "c"), value("x", "")}},
	    // Empty arguments are values.
	    {{"-x", ""}, {value("x", "")}},
	    {{"-x", "", ""}, {head("x"), value("x.0", ""), value("x.1", "")}},
	    {{"-x", "a", "", "-y"}, {head("x"), value("x.0", "a"), value("x.1", ""), value("y", "")}},
	    // A comma separates nothing here, and the value of a switch is not taken for one.
	    {{"-x", "a,b"}, {value("x", "a,b")}},
	    {{"-x", "a=b", "c$d"}, {head("x"), value("x.0", "a=b"), value("x.1", "c$d")}},
	    // Lists of one key don't reach into the next.
	    {{"-x", "a", "b", "-y", "c"}, {head("x"), value("x.0", "a"), value("x.1", "b"), value("y", "c")}},
	    {{"-x=1,2", "-y=3"}, {head("x"), value("x.0", "1"), value("x.1", "2"), value("y", "3")}},
	    // The same key twice; elements of the longer array stay.
	    {{"-x=1", "-x=2"}, {value("x", "2")}},
	    {{"-x=1,2,3", "-x=4,5"}, {head("x"), value("x.0", "4"), value("x.1", "5"), value("x.2", "3")}},
	    {{"-x=1,2", "-x=4"}, {value("x", "4"), value("x.0", "1"), value("x.1", "2")}},
	});
}

TEST(commandline_item, delimiters_of_the_key) {
	expect_trees({
	    {{"-a="}, {value("a", "")}},
	    {{"-a:"}, {value("a", "")}},
	    {{"-a:="}, {value("a", "")}},
	    {{"-a$"}, {value("a", "")}},
	    // Their first character stays in the key; that of "/=" separates components.
	    {{"-a+=1"}, {value("a+", "1")}},
	    {{"-a-=1"}, {value("a-", "1")}},
	    {{"-a*=1"}, {value("a*", "1")}},
	    {{"-a/=1"}, {value("a", "1")}},
	    {{"-a>=1"}, {value("a>", "1")}},
	    {{"-a<=1"}, {value("a<", "1")}},
	    {{"-a+=1,2"}, {head("a+"), value("a+.0", "1"), value("a+.1", "2")}},
	    {{"-+=1"}, {value("+", "1")}},
	    // None of these ends the key.
	    {{"-a==1"}, {value("a==1", "")}},
	    {{"-a<1"}, {value("a<1", "")}},
	    {{"-a>1"}, {value("a>1", "")}},
	    {{"-a//1"}, {passage("a"), passage("a."), value("a..1", "")}},
	    {{"-a.b"}, {passage("a"), value("a.b", "")}},
	    {{"-a[]#*+-"}, {value("a[]#*+-", "")}},
	    {{"-a*/b"}, {passage("a*"), value("a*.b", "")}},
	    {{"-a,b"}, {value("a,b", "")}},
	    {{"-a_1!"}, {value("a_1!", "")}},
	    {{"-a===1"}, {value("a==", "1")}},
	    {{"-a:==1"}, {value("a", "=1")}},
	    {{"-a=b=c"}, {value("a", "b=c")}},
	    {{"-a=b:=c$d"}, {value("a", "b:=c$d")}},
	    // A doubled dash belongs to the key.
	    {{"--name=x"}, {value("-name", "x")}},
	    {{"--"}, {value("-", "")}},
	    {{"-/name=x"}, {passage(""), value("name", "x")}},
	    {{"//name=x"}, {passage(""), value("name", "x")}},
	    {{"--=x"}, {value("-", "x")}},
	});
}

TEST(commandline_item, keys_are_folded_and_cut) {
	expect_trees({
	    {{"-Server.PORT=80"}, {passage("server"), value("server.port", "80")}},
	    {{"-a/B\\c=x"}, {passage("a"), passage("a.b"), value("a.b.c", "x")}},
	    {{"/home/user"}, {passage("home"), value("home.user", "")}},
	    {{"/home/user", "x"}, {passage("home"), value("home.user", "x")}},
	    {{"-\xC3\x84=x"}, {value("\xC3\x84", "x")}},
	    {{"-\xEF\xBB\xBF=x"}, {value("\xEF\xBB\xBF", "x")}},
	});
}

TEST(commandline_item, empty_keys) {
	expect_trees({
	    {{"-"}, {value("", "")}},
	    {{"/"}, {value("", "")}},
	    {{"-", "x"}, {value("", "x")}},
	    {{"-=x"}, {value("", "x")}},
	    {{"-$x"}, {value("", "x")}},
	    {{"-=1,2"}, {head(""), value("0", "1"), value("1", "2")}},
	});
}

TEST(commandline_item, lists) {
	expect_trees({
	    {{"-a=1,"}, {head("a"), value("a.0", "1"), value("a.1", "")}},
	    {{"-a=,"}, {head("a"), value("a.0", ""), value("a.1", "")}},
	    {{"-a=,,1"}, {head("a"), value("a.0", ""), value("a.1", ""), value("a.2", "1")}},
	    // Ten elements and more stand in the order of their names.
	    {{"-a=0,1,2,3,4,5,6,7,8,9,x"},
	     {head("a"), value("a.0", "0"), value("a.1", "1"), value("a.10", "x"), value("a.2", "2"), value("a.3", "3"),
	      value("a.4", "4"), value("a.5", "5"), value("a.6", "6"), value("a.7", "7"), value("a.8", "8"),
	      value("a.9", "9")}},
	});
}

TEST(commandline_item, quoted_texts) {
	expect_trees({
	    {{"-a=\"x,y\""}, {value("a", "x,y")}},
	    {{"-a=\"x y\",z"}, {head("a"), value("a.0", "x y"), value("a.1", "z")}},
	    {{"-a=\",\",\",\""}, {head("a"), value("a.0", ","), value("a.1", ",")}},
	    {{"-a$\"x,y\",z"}, {value("a", "x,y,z")}},
	    {{"-a", "\"x y\""}, {value("a", "x y")}},
	    {{"-\"a b\"=c"}, {value("a b", "c")}},
	    {{"-\"a=b\"=c"}, {value("a=b", "c")}},
	    {{"-\"a$b\"c=d"}, {value("a$bc", "d")}},
	    {{"-\"$\"a=d"}, {value("$a", "d")}},
	    {{"-a=\"\""}, {value("a", "")}},
	    {{"-a=\""}, {value("a", "")}},
	    {{"-a=\"b,c"}, {value("a", "b,c")}},
	    {{"-a=\"b\\\"c\""}, {value("a", "b\\\"c")}},
	    // A backslash at the end protects the terminating zero.
	    {{"-a=\"\\"}, {value("a", std::string("\\\0", 2))}},
	    {{"-a=\"b\\", "-c=d"}, {value("a", std::string("b\\\0", 3)), value("c", "d")}},
	});
}

TEST(commandline_item, line_ends_and_tabs_are_text) {
	expect_trees({
	    {{"-a=x\ny"}, {value("a", "x\ny")}},
	    {{"-a=x\r\ny"}, {value("a", "x\ny")}},
	    {{"-a=x\ry"}, {value("a", "x\ry")}},
	    {{"-a=x\ty"}, {value("a", "x\ty")}},
	    {{"-a\tb=x"}, {value("a\tb", "x")}},
	    {{"-a\r\nb=x"}, {value("a\nb", "x")}},
	});
}

TEST(commandline_item, blanks_repeat_the_text_before_them) {
	expect_trees({
	    {{"-a b"}, {value("aab", "")}},
	    {{"-k v"}, {value("kkv", "")}},
	    {{"-k v w"}, {value("kkvvw", "")}},
	    {{"-k   v"}, {value("kkv", "")}},
	    {{"-k \"\" v"}, {value("kkv", "")}},
	    {{"-a=hello world"}, {value("a", "hellohelloworld")}},
	    {{"-a= b"}, {value("a", "=b")}},
	    {{"-a:= b"}, {value("a", ":=b")}},
	    {{"-a$ b"}, {value("a", "$b")}},
	    {{"-a+= b"}, {value("a+", "+=b")}},
	    {{"-a=b "}, {value("a", "bb")}},
	    // The repeated comma separates nothing.
	    {{"-a=1, 2"}, {head("a"), value("a.0", "1"), value("a.1", ",2")}},
	    {{"-a=1 ,2"}, {head("a"), value("a.0", "11"), value("a.1", "2")}},
	    {{"-a", "b c"}, {value("a", "bbc")}},
	    // At the start of an argument the text comes from the argument before.
	    {{"-x", " v"}, {value("x", "xv")}},
	    {{"-x", "a", " v"}, {head("x"), value("x.0", "a"), value("x.1", "av")}},
	    {{"-a=b", "- "}, {value("a", "b"), value("b", "")}},
	    {{"-a=b", "- c=d"}, {value("a", "b"), value("bc", "d")}},
	    {{"- a=b"}, {value("a", "b")}},
	    {{"-x", "", " v"}, {head("x"), value("x.0", ""), value("x.1", "xv")}},
	});
}

TEST(commandline_item, dollar_sign_counts_by_its_text_alone) {
	std::string const warning = "Warning! unknown key:v\nIgnoring key and continuing\n";
	struct {
		arguments texts;
		entries expected;
		bool warns;
	} const rows[] = {
	    {{"-a", "v"}, {value("a", "v")}, false},
	    // The text of the last token, quoted, repeated or left over from the argument before.
	    {{"-\"$\"", "v"}, {value("$", "")}, true},
	    {{"-a\"$\"", "v"}, {value("a$", "")}, true},
	    {{"-\"$\" ", "v"}, {value("$$", "")}, true},
	    {{"-a$", "-", "v"}, {value("", ""), value("a", "")}, true},
	    {{"-a$", "- ", "v"}, {value("$", ""), value("a", "")}, true},
	    {{"-a$b", "-", "v"}, {value("", "v"), value("a", "b")}, false},
	    {{"-\"$\"a", "v"}, {value("$a", "v")}, false},
	};
	for (auto const &[texts, expected, warns] : rows) {
		SCOPED_TRACE(testing::PrintToString(texts));
		loaded const result = load(texts);
		EXPECT_EQ(result.tree, expected);
		EXPECT_EQ(result.output, warns ? warning : "");
	}
}

TEST(commandline_item, switches_are_read_as_assignments) {
	expect_trees({
	    {{"-\"a=b\""}, {value("a", "b")}},
	    {{"-\"a = b c\""}, {value("a", "bc")}},
	    {{"-\"a b\""}, {value("ab", "")}},
	    {{"-\"a\tb\n\""}, {value("ab", "")}},
	    {{"-\"a=b\nc\""}, {value("a", "b")}},
	    {{"-\"a=b\"", "-c"}, {value("a", "b"), value("c", "")}},
	    {{"-\"a=b\"", "c"}, {value("a=b", "c")}},
	});
}

TEST(commandline_item, other_arguments_are_warned_of_and_passed_over) {
	struct {
		arguments texts;
		entries expected;
		std::string output;
	} const rows[] = {
	    {{"other"}, {}, "Warning! unknown key:other\nIgnoring key and continuing\n"},
	    {{""}, {}, "Warning! unknown key:\nIgnoring key and continuing\n"},
	    {{" -a"}, {}, "Warning! unknown key: -a\nIgnoring key and continuing\n"},
	    {{"\\a", "=b"},
	     {},
	     "Warning! unknown key:\\a\nIgnoring key and continuing\n"
	     "Warning! unknown key:=b\nIgnoring key and continuing\n"},
	    {{"-a=b", "c", "-d"},
	     {value("a", "b"), value("d", "")},
	     "Warning! unknown key:c\nIgnoring key and continuing\n"},
	};
	for (auto const &[texts, expected, output] : rows) {
		SCOPED_TRACE(testing::PrintToString(texts));
		loaded const result = load(texts);
		EXPECT_EQ(result.tree, expected);
		EXPECT_EQ(result.output, output);
	}
}

TEST(commandline_item, warning_does_not_depend_on_the_settings_of_the_stream) {
	string_block block({"", "b"});
	commandline_item item(block.count(), block.pointers());
	quor_test::cout_capture const capture;
	std::cout << std::setw(60) << std::setfill('*');
	item.load();
	std::cout << std::setw(0) << std::setfill(' ');
	EXPECT_EQ(capture.text(), "Warning! unknown key:b\nIgnoring key and continuing\n");
}

// What is stored of the program's name.
entries names_of(std::string const &program) {
	string_block block({program});
	commandline_item item(block.count(), block.pointers());
	EXPECT_TRUE(item.load());
	return listing_of(item);
}

entries names(std::string const &name, std::string const &raw) {
	return {passage("application"), value("application.name", name), value("application.name.raw", raw)};
}

entries names(std::string const &name, std::string const &extension, std::string const &raw) {
	entries result = names(name, raw);
	result.insert(result.begin() + 2, value("application.name.extention", extension));
	return result;
}

TEST(commandline_item, program_name) {
	struct {
		std::string program;
		entries expected;
	} const rows[] = {
	    {"tool.test.exe", names("tool.test.exe", "exe", "tooltest")},
	    {"app", names("app", "")},
	    {"App.EXE", names("App.EXE", "EXE", "App")},
	    {"C:\\dir.d\\tool.exe", names("tool.exe", "exe", "tool")},
	    {"dir\\app", names("app", "")},
	    {"\\app", names("app", "")},
	    // One separator or dot at the end cuts nothing off.
	    {"C:\\dir\\", names("dir", "")},
	    {"C:\\dir\\\\", names("", "")},
	    {"app.", names("app.", "")},
	    {"app..", names("app..", "", "app")},
	    {".app", names(".app", "app", "")},
	    {"a..b", names("a..b", "b", "a")},
	    {".", names(".", "")},
	    {"..", names("..", "", "")},
	    {"\\", names("", "")},
	    {"", names("", "")},
	    {"a b.c d", names("a b.c d", "c d", "a b")},
	};
	for (auto const &[program, expected] : rows) {
		SCOPED_TRACE(program);
		EXPECT_EQ(names_of(program), expected);
	}
}

TEST(commandline_item, arguments_end_at_the_count_and_at_a_null_pointer) {
	struct {
		unsigned int count;
		std::size_t null_at;
		std::size_t expected;
	} const rows[] = {
	    {0, 4, 0},       {1, 4, 0}, {2, 4, 1}, {3, 4, 2}, {4, 4, 3},        {5, 4, 3},
	    {INT_MAX, 4, 3}, {4, 1, 0}, {4, 2, 1}, {4, 3, 2}, {UINT_MAX, 4, 0}, {INT_MAX + 1U, 4, 0},
	    {4, 0, 0},
	};
	for (auto const &[count, null_at, expected] : rows) {
		SCOPED_TRACE(testing::PrintToString(count) + " " + testing::PrintToString(null_at));
		string_block block({"p", "-a", "-b", "-c"});
		block.pointers()[null_at] = nullptr;
		commandline_item item(count, block.pointers());
		EXPECT_TRUE(item.load());
		entries tree = null_at == 0 ? entries() : names("p", "");
		entries const switches{value("a", ""), value("b", ""), value("c", "")};
		// "a" stands before "application".
		tree.insert(tree.begin(), switches.begin(), switches.begin() + (expected > 0 ? 1 : 0));
		for (std::size_t i = 1; i < expected; ++i) {
			tree.push_back(switches[i]);
		}
		EXPECT_EQ(listing_of(item), tree);
		EXPECT_EQ(item.get_argc(), static_cast<int>(count));
		EXPECT_EQ(item.get_argv(), block.pointers());
	}
}

TEST(commandline_item, null_array_stores_nothing) {
	for (unsigned int const count : {0U, 1U, 7U, UINT_MAX}) {
		commandline_item item(count, nullptr);
		EXPECT_TRUE(item.load());
		EXPECT_EQ(listing_of(item), entries());
		EXPECT_EQ(item.get_argv(), nullptr);
	}
}

TEST(commandline_item, nothing_is_read_behind_a_null_program) {
	std::vector<char const *> const only_null{nullptr};
	for (unsigned int const count : {0U, 1U, 2U, UINT_MAX}) {
		commandline_item item(count, only_null.data());
		EXPECT_TRUE(item.load());
		EXPECT_EQ(listing_of(item), entries());
	}
}

TEST(commandline_item, array_of_main_needs_no_cast) {
	char name[] = "p";
	char argument[] = "-a=1";
	char *argv[] = {name, argument, nullptr};
	int const argc = 2;
	commandline_item item(argc, argv);
	item.load();
	EXPECT_EQ(item.get_value("a")->second.as_int(), 1);
}

TEST(commandline_item, load_keeps_what_is_there_and_unload_empties) {
	string_block block({"p", "-a=1", "-b"});
	commandline_item item(block.count(), block.pointers());
	EXPECT_EQ(listing_of(item), entries());
	item.set("a", "old", 0);
	item.set("hand", "kept", 0);
	item.load();
	entries const expected{
	    value("a", "1"), passage("application"), value("application.name", "p"), value("application.name.raw", ""),
	    value("b", ""),  value("hand", "kept")};
	EXPECT_EQ(listing_of(item), expected);
	item.load();
	EXPECT_EQ(listing_of(item), expected);
	item.unload();
	EXPECT_EQ(listing_of(item), entries());
	EXPECT_EQ(item.get_id(), "command line");
	EXPECT_EQ(item.get_argc(), 3);
}

TEST(commandline_item, base_operations_reach_it) {
	string_block block({"p", "-a=1"});
	commandline_item item(block.count(), block.pointers());
	base_config_item &base = item;
	std::list<quor::memory::pointers::rc_pointer<base_config_item>> const items;
	EXPECT_TRUE(base.load(items));
	EXPECT_NE(base.get_value("a"), nullptr);
	base.unload();
	EXPECT_TRUE(item.load(items));
	EXPECT_NE(item.get_value("a"), nullptr);
	EXPECT_TRUE(base.save());
	EXPECT_TRUE(base.save(items));
	EXPECT_NE(item.get_value("a"), nullptr);
}

TEST(commandline_item, copies_are_deep_and_start_fresh) {
	string_block block({"p", "-a=1"});
	quor::memory::pointers::rc_pointer<commandline_item> const source(
	    quor::generic::abilities::create_dynamic<commandline_item>(block.count(), block.pointers()));
	source->load();
	entries const expected = listing_of(*source);
	commandline_item copy(*source);
	EXPECT_EQ(copy.get_ref_count(), 0U);
	EXPECT_FALSE(copy.is_created_dynamic());
	EXPECT_EQ(copy.get_id(), "command line");
	EXPECT_EQ(copy.get_argc(), 2);
	EXPECT_EQ(copy.get_argv(), block.pointers());
	EXPECT_EQ(listing_of(copy), expected);
	copy.set("a", "2", 0);
	EXPECT_EQ(listing_of(*source), expected);
	source->unload();
	EXPECT_EQ(copy.get_value("a")->second.as_utf8(), "2");

	base_config_item const &base = copy;
	quor::memory::pointers::rc_pointer<base_config_item> const clone(base.clone());
	EXPECT_TRUE(clone->is_created_dynamic());
	EXPECT_EQ(clone->get_ref_count(), 1U);
	EXPECT_EQ(clone->get_id(), "command line");
	EXPECT_EQ(listing_of(*clone), listing_of(copy));
	auto *const typed = dynamic_cast<commandline_item *>(clone.get());
	ASSERT_NE(typed, nullptr);
	EXPECT_EQ(typed->get_argv(), block.pointers());
	EXPECT_EQ(typed->get_argc(), 2);
}

TEST(commandline_item, assignment_replaces_all_but_count_and_mark) {
	string_block block({"p", "-a=1"});
	commandline_item source(block.count(), block.pointers());
	source.load();
	quor::memory::pointers::rc_pointer<commandline_item> const target(
	    quor::generic::abilities::create_dynamic<commandline_item>(0U, nullptr));
	target->set("old", "x", 0);
	EXPECT_EQ(&(*target = source), target.get());
	EXPECT_EQ(target->get_ref_count(), 1U);
	EXPECT_TRUE(target->is_created_dynamic());
	EXPECT_EQ(target->get_argc(), 2);
	EXPECT_EQ(target->get_argv(), block.pointers());
	EXPECT_EQ(listing_of(*target), listing_of(source));
	source.set("a", "2", 0);
	EXPECT_EQ(target->get_value("a")->second.as_utf8(), "1");
	auto const &same = *target;
	*target = same;
	EXPECT_EQ(target->get_value("a")->second.as_utf8(), "1");
}

} // namespace
