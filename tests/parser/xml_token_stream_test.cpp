#include <gtest/gtest.h>

#include <memory>

#include <quor/parser/xml_token_stream.hpp>

#include "reference/xml_events.hpp"
#include "support/random_xml.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::parser::xml_parser;
using quor::parser::xml_token_stream;
using quor::strings::ustring8;
using token = xml_token_stream::token;

using plain_token = std::pair<int, std::string>;
using plain_tokens = std::vector<plain_token>;

plain_tokens plain(xml_token_stream const &stream) {
	plain_tokens result;
	for (token const &item : stream) {
		result.emplace_back(item.type(), item.value());
	}
	return result;
}

plain_tokens tokens_of(std::string const &text) {
	xml_token_stream stream;
	stream.parse(ustring8(text));
	EXPECT_EQ(stream.size(), plain(stream).size());
	return plain(stream);
}

// The rules once more, on the reference's events.
plain_tokens expected_tokens(std::vector<reference::xml_event> const &events) {
	plain_tokens result;
	bool open = false;
	for (reference::xml_event const &event : events) {
		if (event.kind == "attribute") {
			result.emplace_back(2, event.first);
			result.emplace_back(3, event.second);
			continue;
		}
		if (event.kind == "comment") {
			result.emplace_back(5, event.first);
			continue;
		}
		if (open) {
			result.emplace_back(4, "");
		}
		open = event.kind == "start";
		int const type = event.kind == "start" ? 0 : event.kind == "end" ? 1 : event.kind == "space" ? 6 : 7;
		result.emplace_back(type, event.first);
	}
	return result;
}

TEST(xml_token_stream, parse_gives_the_tokens_in_order) {
	struct row {
		std::string text;
		plain_tokens tokens;
	};
	std::vector<row> const rows = {
	    {"<a x=\"1\"><b/>t</a>",
	     {{0, "a"}, {2, "x"}, {3, "1"}, {4, ""}, {0, "b"}, {4, ""}, {1, "b"}, {7, "t"}, {1, "a"}}},
	    {"<a/>", {{0, "a"}, {4, ""}, {1, "a"}}},
	    {"<a></a>", {{0, "a"}, {4, ""}, {1, "a"}}},
	    {"<a>", {{0, "a"}}},
	    {"<a b='1'>", {{0, "a"}, {2, "b"}, {3, "1"}}},
	    {"<a  b='1'\n c='2'/>", {{0, "a"}, {2, "b"}, {3, "1"}, {2, "c"}, {3, "2"}, {4, ""}, {1, "a"}}},
	    {"<a> </a>", {{0, "a"}, {4, ""}, {6, " "}, {1, "a"}}},
	    {"<a>t</a>", {{0, "a"}, {4, ""}, {7, "t"}, {1, "a"}}},
	    {"<a><b>", {{0, "a"}, {4, ""}, {0, "b"}}},
	    {"<a><!--c--></a>", {{0, "a"}, {5, "c"}, {4, ""}, {1, "a"}}},
	    {"<a> <!--c--></a>", {{0, "a"}, {4, ""}, {6, " "}, {5, "c"}, {1, "a"}}},
	    {"<!--c--><a/>", {{5, "c"}, {0, "a"}, {4, ""}, {1, "a"}}},
	    {"<a></a b='1'>", {{0, "a"}, {4, ""}, {1, "a"}, {2, "b"}, {3, "1"}}},
	    {"t", {{7, "t"}}},
	    {"</a>", {{1, "a"}}},
	};
	for (row const &expected : rows) {
		SCOPED_TRACE(expected.text);
		EXPECT_EQ(tokens_of("<?xml?>" + expected.text), expected.tokens);
	}
}

TEST(xml_token_stream, parse_tokens_equal_the_events_of_random_documents) {
	quor_test::random_xml random(11);
	for (int i = 0; i != 3000; ++i) {
		std::string const text = random.changed(random.document());
		SCOPED_TRACE(testing::PrintToString(text));
		EXPECT_EQ(tokens_of(text), expected_tokens(reference::xml_events::parse(text).events));
		if (HasFailure()) {
			return;
		}
	}
}

TEST(xml_token_stream, parse_returns_the_fault_and_keeps_the_tokens_before_it) {
	xml_token_stream stream;
	xml_parser::parse_error const error = stream.parse("<?xml?>\n\n<a b='1' b='2'/>");
	EXPECT_EQ(error.code(), 9);
	EXPECT_EQ(error.line(), 2U);
	EXPECT_EQ(error.text(), "b");
	EXPECT_EQ(plain(stream), (plain_tokens{{0, "a"}, {2, "b"}, {3, "1"}}));
}

TEST(xml_token_stream, parse_twice_appends) {
	xml_token_stream stream;
	std::string const text = "<?xml?><a/>";
	EXPECT_EQ(stream.size(), 0U);
	EXPECT_EQ(stream.parse(ustring8(text)).code(), 0);
	EXPECT_EQ(stream.size(), 3U);
	EXPECT_EQ(stream.parse(text.begin(), text.end()).code(), 0);
	EXPECT_EQ(stream.size(), 6U);
	EXPECT_EQ(plain(stream), (plain_tokens{{0, "a"}, {4, ""}, {1, "a"}, {0, "a"}, {4, ""}, {1, "a"}}));
}

TEST(xml_token_stream, parse_again_begins_with_closed_attributes) {
	xml_token_stream stream;
	EXPECT_EQ(stream.parse("<?xml?><a").code(), 1);
	EXPECT_EQ(stream.parse("<?xml?><b>").code(), 1);
	EXPECT_EQ(plain(stream), (plain_tokens{{0, "a"}, {0, "b"}}));
}

TEST(xml_token_stream, copy_has_its_own_tokens_and_parses_into_itself) {
	auto source = std::make_unique<xml_token_stream>();
	EXPECT_EQ(source->parse("<?xml?><a>").code(), 1);
	xml_token_stream copy(*source);
	EXPECT_EQ(plain(copy), (plain_tokens{{0, "a"}}));
	EXPECT_EQ(source->parse("<?xml?>s</a>").code(), 0);
	EXPECT_EQ(copy.size(), 1U);
	source.reset();
	EXPECT_EQ(copy.parse("<?xml?>t</a>").code(), 0);
	EXPECT_EQ(plain(copy), (plain_tokens{{0, "a"}, {7, "t"}, {1, "a"}}));
}

TEST(xml_token_stream, assignment_replaces_tokens_and_parses_into_itself) {
	xml_token_stream assigned;
	EXPECT_EQ(assigned.parse("<?xml?><x>").code(), 1);
	{
		xml_token_stream source;
		EXPECT_EQ(source.parse("<?xml?><a>").code(), 1);
		assigned = source;
		EXPECT_EQ(source.size(), 1U);
	}
	EXPECT_EQ(assigned.parse("<?xml?>t</a>").code(), 0);
	EXPECT_EQ(plain(assigned), (plain_tokens{{0, "a"}, {7, "t"}, {1, "a"}}));
	xml_token_stream const &self = assigned;
	assigned = self;
	EXPECT_EQ(assigned.parse("<?xml?><b/>").code(), 0);
	EXPECT_EQ(assigned.size(), 6U);
}

TEST(xml_token_stream, iterators_walk_both_ways_and_change_tokens) {
	xml_token_stream stream;
	stream.parse("<?xml?><a/>");
	auto it = stream.begin();
	*it = token(token::token_comment, "changed");
	EXPECT_EQ((++it)->type(), token::token_attributes_end);
	EXPECT_EQ((--it)->value(), "changed");
	EXPECT_EQ(std::distance(std::as_const(stream).begin(), std::as_const(stream).end()), 3);
}

TEST(xml_token_stream, token_holds_type_and_value) {
	token const one(token::token_space, " ");
	token two(token::token_character, "t");
	two = one;
	EXPECT_EQ(two.type(), 6);
	EXPECT_EQ(two.value(), " ");
	token const copy(two);
	EXPECT_EQ(copy.type(), token::token_space);
	int const values[] = {token::token_element_start,   token::token_element_end,    token::token_attribute_name,
	                      token::token_attribute_value, token::token_attributes_end, token::token_comment,
	                      token::token_space,           token::token_character};
	for (int i = 0; i != 8; ++i) {
		EXPECT_EQ(values[i], i);
	}
}

} // namespace
