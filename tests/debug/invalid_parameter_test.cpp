#include <gtest/gtest.h>

#include <string>

#include <quor/quor.hpp>

#include "support/stop_handler.hpp"

namespace {

using quor::debug::ignore_invalid_parameter;
using quor::debug::invalid_parameter;
using quor::debug::invalid_parameter_handler;
using quor::debug::set_invalid_parameter_handler;

std::string last_call;

void remember(char const *what, char const *file, unsigned int line) {
	last_call = std::string(what) + "|" + file + "|" + std::to_string(line);
}

void raise(char const *what, char const * /*file*/, unsigned int /*line*/) {
	throw std::string(what);
}

TEST(invalid_parameter, installed_handler_gets_the_three_arguments) {
	invalid_parameter_handler const previous = set_invalid_parameter_handler(&remember);
	last_call.clear();
	invalid_parameter("text", "strings\\unichar", 4000000000U);
	EXPECT_EQ(last_call, "text|strings\\unichar|4000000000");
	invalid_parameter("", "", 0);
	EXPECT_EQ(last_call, "||0");
	set_invalid_parameter_handler(previous);
}

TEST(invalid_parameter, installing_gives_the_previous_handler) {
	invalid_parameter_handler const standard = set_invalid_parameter_handler(&remember);
	EXPECT_NE(standard, nullptr);
	EXPECT_EQ(set_invalid_parameter_handler(&raise), &remember);
	EXPECT_EQ(set_invalid_parameter_handler(nullptr), &raise);
	EXPECT_EQ(set_invalid_parameter_handler(standard), standard) << "null installs the default";
}

TEST(invalid_parameter, throwing_handler_is_passed_through) {
	invalid_parameter_handler const previous = set_invalid_parameter_handler(&raise);
	EXPECT_THROW(invalid_parameter("stop", "file", 1), std::string);
	set_invalid_parameter_handler(previous);
}

TEST(invalid_parameter, ignoring_handler_returns) {
	invalid_parameter_handler const previous = set_invalid_parameter_handler(&ignore_invalid_parameter);
	invalid_parameter("nothing", "happens", 1);
	EXPECT_EQ(set_invalid_parameter_handler(previous), &ignore_invalid_parameter);
}

TEST(invalid_parameter_death, default_handler_writes_one_line_and_aborts) {
	GTEST_FLAG_SET(death_test_style, "threadsafe");
	EXPECT_DEATH(invalid_parameter("string subscript out of range", "strings\\unichar", 12),
	             "quor: invalid parameter: string subscript out of range \\(strings.unichar, line 12\\)\n");
}

TEST(invalid_parameter, checked_index_of_the_library_reaches_the_handler) {
	quor_test::stop_handler const stops(quor_test::on_stop::throws);
	EXPECT_THROW(quor::strings::character_index(quor::strings::ustring8("\xC3\xA9\xC3\xA9\xC3\xA9"), 5),
	             quor_test::stopped);
	EXPECT_EQ(stops.count(), 1U);
}

} // namespace
