// Files that mean harm: large, deep, full of faults.

#include <gtest/gtest.h>

#include <random>

#include "run_command.hpp"
#include "support/temporary_directory.hpp"

namespace {

using quor_test::command_result;
using quor_test::run_command;
using quor_test::temporary_directory;

// Of exceptions, each of which is a long time to the sanitizers.
#ifdef QUOR_TEST_SANITIZED
constexpr std::size_t many_faults = 10000;
constexpr std::size_t much_garbage = 1 << 18;
#else
constexpr std::size_t many_faults = 100000;
constexpr std::size_t much_garbage = 2 << 20;
#endif

std::string const head = "<?xml version=\"1.0\"?>\n<xmc version=\"1.1\">\n<catalog name=\"c\" lang=\"en\">\n";
std::string const tail = "</catalog>\n</xmc>\n";

command_result check(std::string const &text) {
	temporary_directory const directory;
	directory.write("a.xmc", text);
	return run_command({"catalog", "check", (directory.root() / "a.xmc").string()});
}

std::string repeated(std::string const &part, std::size_t count) {
	std::string result;
	for (; count != 0; --count) {
		result += part;
	}
	return result;
}

bool has(std::string const &text, std::string const &part) {
	return text.find(part) != std::string::npos;
}

TEST(check_hostile, ten_megabytes_of_garbage_give_one_answer) {
	std::mt19937 random(7);
	std::string text(10 << 20, ' ');
	for (char &each : text) {
		each = static_cast<char>(random());
	}
	command_result const result = check(text);
	EXPECT_EQ(1, result.status);
	EXPECT_LT(result.out.size(), 100000u);
	EXPECT_TRUE(has(result.out, "[syntax]"));
}

TEST(check_hostile, garbage_behind_a_sound_beginning_is_bounded) {
	std::mt19937 random(7);
	std::string text;
	std::string const parts[] = {"<msg ", "<msg>",      "<",         ">",   "\"", "=", "&",
	                             "name",  "</catalog>", "<catalog>", "-->", "<!", "x"};
	while (text.size() < much_garbage) {
		text += parts[random() % std::size(parts)];
	}
	command_result const result = check(head + text);
	EXPECT_EQ(1, result.status);
	EXPECT_LT(result.out.size(), 100000u);
}

TEST(check_hostile, very_many_faults_are_counted) {
	std::string const counted = ": " + std::to_string(many_faults) + " errors, 0 warnings\n";
	std::string const more = "and " + std::to_string(many_faults - 100) + " findings more\n";
	std::string const wrong_element = repeated("<msg name=\"m\"><b/></msg>\n", many_faults);
	command_result result = check(head + wrong_element + tail);
	EXPECT_EQ(1, result.status);
	EXPECT_TRUE(has(result.out, more)) << result.out.substr(result.out.size() - 200);
	EXPECT_TRUE(has(result.out, counted));
	EXPECT_LT(result.out.size(), 100000u);

	std::string const wrong_syntax = repeated("<msg name=m>x</msg>\n", many_faults);
	result = check(head + wrong_syntax + tail);
	EXPECT_EQ(1, result.status);
	EXPECT_TRUE(has(result.out, counted));
	EXPECT_LT(result.out.size(), 100000u);

	// A fault that is told by looking back for an entity.
	result = check(head + repeated("<msg !>x</msg>\n", many_faults) + tail);
	EXPECT_TRUE(has(result.out, counted));
}

TEST(check_hostile, deep_nesting_is_no_matter) {
	std::size_t const depth = 300000;
	command_result const closed =
	    check(head + "<msg name=\"m\">" + repeated("<b>", depth) + repeated("</b>", depth) + "</msg>" + tail);
	EXPECT_EQ(1, closed.status);
	EXPECT_TRUE(has(closed.out, "<b> can't stand in <msg>"));
	command_result const open = check(head + "<msg name=\"m\">" + repeated("<msg name=\"m\">", depth));
	EXPECT_EQ(1, open.status);
	EXPECT_LT(open.out.size(), 100000u);
}

TEST(check_hostile, a_long_name_is_not_repeated_with_every_fault) {
	std::string const name(1 << 20, 'x');
	std::string const text = "<?xml?><xmc version=\"1.1\"> <catalog name=\"" + name + "\" lang=\"en\">" +
	                         repeated("<msg name=\"m\"><b/></msg>", 20000) + "<msg name=\"" + name + "\">" +
	                         repeated("<arg type=\"x\"/>", 20000) + "</msg>" + tail;
	command_result const result = check(text);
	EXPECT_EQ(1, result.status);
	EXPECT_TRUE(has(result.out, ": 20000 errors, 40000 warnings\n"));
	EXPECT_LT(result.out.size(), 200000u);
}

TEST(check_hostile, many_languages_are_no_matter) {
	std::string text = "<?xml?><xmc version=\"1.1\"> ";
	for (unsigned i = 0; i != 20000; ++i) {
		std::string id;
		for (unsigned bit = 0; bit != 15; ++bit) {
			id += static_cast<char>(((i >> bit) & 1U) != 0 ? 'A' : 'a');
		}
		text += "<catalog name=\"c\" lang=\"" + id + "\"/><catalog name=\"d\"/>";
	}
	command_result const result = check(text + "</xmc>");
	EXPECT_EQ(1, result.status);
	EXPECT_TRUE(has(result.out, ": 0 errors, 39999 warnings\n")) << result.out.substr(result.out.size() - 200);
}

TEST(check_hostile, zero_bytes_are_shown) {
	command_result const result = check(head + "<msg na" + std::string(1, '\0') + "me=\"m\">x</msg>" + tail);
	EXPECT_EQ(1, result.status);
	EXPECT_FALSE(has(result.out, std::string(1, '\0')));
}

TEST(check_hostile, escape_characters_never_reach_the_terminal) {
	for (std::string const evil : {"\x1B]0;x\x07", "\x1B[2J",
	                               "\xC2\x9B"
	                               "2J",
	                               "\xE2\x80\xAE", "\xFF\xFE", "\x7F"}) {
		command_result const result =
		    check(head + "<msg name=\"" + evil + "\"><b/></msg><msg name=\"o\"><arg name=\"n\" type=\"" + evil +
		          "\"/></msg>" + tail);
		EXPECT_EQ(1, result.status);
		EXPECT_FALSE(has(result.out + result.err, evil)) << result.out;
		EXPECT_TRUE(has(result.out, "[type-unknown]"));
	}
}

} // namespace
