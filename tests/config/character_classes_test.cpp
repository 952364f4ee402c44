#include <quor/config/character_classes.hpp>

#include <string_view>

#include <gtest/gtest.h>

namespace {

using QUOR_2_9::config::is_blank_char;
using QUOR_2_9::config::is_key_separator;
using QUOR_2_9::config::is_token_delimiter;

// Every byte is in the class or not, as the list says; zero is in none.
template <class Predicate>
void expect_class(Predicate predicate, std::string_view members) {
	for (int value = 0; value != 256; ++value) {
		auto const unit = static_cast<char>(static_cast<unsigned char>(value));
		EXPECT_EQ(predicate(unit), members.find(unit) != std::string_view::npos) << "byte " << value;
	}
}

TEST(character_classes, key_separators_are_dot_and_both_slashes) {
	expect_class([](char unit) { return is_key_separator(unit); }, ".\\/");
}

TEST(character_classes, token_delimiters_are_the_listed_bytes) {
	expect_class([](char unit) { return is_token_delimiter(unit); }, " +-*^/%=;(),<>~&|{}\n\t[]?$\r");
}

TEST(character_classes, blanks_are_tab_line_ends_and_blank) {
	expect_class([](char unit) { return is_blank_char(unit); }, "\t\n\r ");
}

TEST(character_classes, predicates_are_constant_expressions) {
	static_assert(is_key_separator('/') && !is_key_separator('\0') && !is_key_separator(':'));
	static_assert(is_token_delimiter('?') && !is_token_delimiter('\0') && !is_token_delimiter('.'));
	static_assert(is_blank_char(' ') && !is_blank_char('\0') && !is_blank_char('\v'));
}

} // namespace
