// Work and memory grow with the text: twice the text, about twice the allocations.

#include <new>
#include <string>

#include <gtest/gtest.h>

#include <quor/parser/xml_token_stream.hpp>

#include "parser/token_reader.hpp"
#include "support/allocation_counter.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::parser::token_reader;
using quor::parser::xml_parser;
using quor::parser::xml_token_stream;
using quor::strings::ustring8;

ustring8 repeated(std::string const &piece, std::size_t count) {
	ustring8 text;
	for (std::size_t i = 0; i != count; ++i) {
		text += piece;
	}
	return text;
}

// A kind of text that can be made in any size.
struct shape {
	char const *name;
	ustring8 (*make)(std::size_t count);
};

constexpr std::size_t small = 4096;

shape const shapes[] = {
    {"empty elements", [](std::size_t n) -> ustring8 { return "<?xml?><r>" + repeated("<a/>", n) + "</r>"; }},
    {"nested elements", [](std::size_t n) -> ustring8 { return "<?xml?>" + repeated("<a>", n) + repeated("</a>", n); }},
    {"open elements", [](std::size_t n) -> ustring8 { return "<?xml?>" + repeated("<a>", n); }},
    {"attributes in a tag",
     [](std::size_t n) {
	     ustring8 text("<?xml?><a");
	     for (std::size_t i = 0; i != n; ++i) {
		     text += " a" + std::to_string(i) + "='1'";
	     }
	     return text + "/>";
     }},
    {"a long name", [](std::size_t n) -> ustring8 { return "<?xml?><" + repeated("name", n) + "/>"; }},
    {"a long attribute name", [](std::size_t n) -> ustring8 { return "<?xml?><a " + repeated("name", n) + "='1'/>"; }},
    {"a long value", [](std::size_t n) -> ustring8 { return "<?xml?><a b='" + repeated("name", n) + "'/>"; }},
    {"a long text", [](std::size_t n) -> ustring8 { return "<?xml?><a>" + repeated("name", n) + "</a>"; }},
    {"a long comment", [](std::size_t n) -> ustring8 { return "<?xml?><!--" + repeated("name", n) + "-->"; }},
    {"a comment without end", [](std::size_t n) -> ustring8 { return "<?xml?><!--" + repeated("-- >", n); }},
    {"a long header", [](std::size_t n) -> ustring8 { return "<?xml" + repeated("????", n); }},
    {"a long number", [](std::size_t n) -> ustring8 { return "<?xml?>&#" + repeated("9999", n) + ";"; }},
    {"zero bytes", [](std::size_t n) -> ustring8 { return "<?xml?>" + ustring8(4 * n, '\0'); }},
    {"white space", [](std::size_t n) -> ustring8 { return "<?xml?><a>" + repeated(" \n\t ", n) + "</a>"; }},
    {"split text", [](std::size_t n) -> ustring8 { return "<?xml?><a>" + repeated("xy  ", n) + "</a>"; }},
    {"entities", [](std::size_t n) -> ustring8 { return "<?xml?><a>" + repeated("&lt;", n) + "</a>"; }},
    {"no end", [](std::size_t n) -> ustring8 { return "<?xml?><a>" + repeated("<b>x", n); }},
};

template <class Parser>
std::pair<std::size_t, std::size_t> cost(ustring8 const &text) {
	Parser parser;
	quor_test::allocation_counter const counter;
	parser.parse(text);
	return {counter.count(), counter.bytes()};
}

template <class Parser>
void expect_linear(std::size_t bytes_for_each) {
	for (shape const &one : shapes) {
		SCOPED_TRACE(one.name);
		ustring8 const text = one.make(small);
		ustring8 const twice = one.make(2 * small);
		auto const [count, bytes] = cost<Parser>(text);
		auto const [count_twice, bytes_twice] = cost<Parser>(twice);
		// A few allocations and some block sizes are there for any text.
		EXPECT_LE(count_twice, count * 22 / 10 + 20);
		EXPECT_LE(bytes_twice, bytes * 22 / 10 + 4096);
		EXPECT_LE(bytes_twice, twice.size() * bytes_for_each + 4096);
	}
}

TEST(parser_growth, xml_parser_is_linear) {
	expect_linear<xml_parser>(20);
}

TEST(parser_growth, xml_token_stream_is_linear) {
	expect_linear<xml_token_stream>(80);
}

// Reads a text token by token, as a parser reads it at once.
class whole_reading {
public:
	// NOLINTNEXTLINE(readability-convert-member-functions-to-static): a parser's member
	xml_parser::parse_error parse(ustring8 const &text) const {
		try {
			token_reader reader(text);
			for (auto it = reader.begin(); it != token_reader::end(); ++it) {
			}
			reader.finish();
		} catch (xml_parser::parse_error const &error) {
			return error;
		}
		return {xml_parser::parse_error::error_none, 0, ustring8()};
	}
};

TEST(parser_growth, token_reader_is_linear_and_small) {
	expect_linear<whole_reading>(20);
}

TEST(parser_growth, token_reader_takes_no_memory_for_tokens) {
	ustring8 const text = "<?xml?><r>" + repeated("<a b='1'/>text<!-- c -->", 100000) + "</r>";
	quor_test::allocation_counter const counter;
	EXPECT_EQ(whole_reading().parse(text).code(), 0);
	EXPECT_LE(counter.bytes(), 1000U);
}

TEST(parser_growth, xml_parser_short_names_and_texts_allocate_nothing_but_the_stack) {
	ustring8 const text = "<?xml?><r>" + repeated("<a><b/>text</a><!-- c -->  &amp;", 1000) + "</r>";
	xml_parser const parser;
	quor_test::allocation_counter const counter;
	EXPECT_EQ(parser.parse(text).code(), 0);
	EXPECT_LE(counter.count(), 4U);
}

TEST(parser_growth, deep_and_wide_documents_are_read_and_freed_without_recursion) {
	constexpr std::size_t many = 1000000;
	{
		xml_token_stream stream;
		EXPECT_EQ(stream.parse("<?xml?>" + repeated("<a>", many)).code(), 1);
		EXPECT_EQ(stream.size(), 2 * many - 1);
		xml_token_stream const copy(stream);
		EXPECT_EQ(copy.size(), stream.size());
	}
	xml_parser parser;
	EXPECT_EQ(parser.parse("<?xml?>" + repeated("<a>", many) + repeated("</a>", many)).code(), 0);
}

// Whatever an attribute ran out of memory for, the next text is read like by a new parser.
TEST(parser_growth, xml_parser_reads_on_after_a_failed_allocation) {
	ustring8 const text = "<?xml?><a " + std::string(100, 'b') + "='1' " + std::string(90, 'c') + "='2'/>";
	std::size_t failures = 0;
	for (bool happened = true; happened;) {
		xml_parser const parser;
		{
			quor_test::allocation_failure const failure(failures);
			try {
				EXPECT_EQ(parser.parse(text).code(), 0);
			} catch (std::bad_alloc const &) {
				++failures;
			}
			happened = failure.happened();
		}
		parser.parse("<?xml?></a x='1'>");
		parser.parse("<?xml?></a " + std::string(100, 'b') + "='1'>");
	}
	EXPECT_GT(failures, 1U);
}

} // namespace
