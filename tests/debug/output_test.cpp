#include <gtest/gtest.h>

#include <string>

#include <quor/quor.hpp>

namespace {

using quor::debug::output;
using quor::debug::output_handler;
using quor::debug::set_output_handler;

std::string written;

void collect(char const *text) {
	written += text;
}

void raise(char const *text) {
	throw std::string(text);
}

TEST(output, installed_handler_gets_every_piece_as_it_stands) {
	output_handler const previous = set_output_handler(&collect);
	written.clear();
	output("Failure -- ");
	output("");
	output("caf\xC3\xA9\n");
	EXPECT_EQ(written, "Failure -- caf\xC3\xA9\n");
	set_output_handler(previous);
}

TEST(output, installing_gives_the_previous_handler) {
	output_handler const standard = set_output_handler(&collect);
	EXPECT_NE(standard, nullptr);
	EXPECT_EQ(set_output_handler(&raise), &collect);
	EXPECT_EQ(set_output_handler(nullptr), &raise);
	EXPECT_EQ(set_output_handler(standard), standard) << "null installs the default";
}

TEST(output, throwing_handler_is_passed_through) {
	output_handler const previous = set_output_handler(&raise);
	EXPECT_THROW(output("stop"), std::string);
	set_output_handler(previous);
}

} // namespace
