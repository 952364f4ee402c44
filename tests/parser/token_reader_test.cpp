// Tokens one by one are those that the public list holds.

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <quor/parser/xml_token_stream.hpp>

#include "parser/token_reader.hpp"
#include "support/random_xml.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::parser::token_reader;
using quor::parser::xml_token_stream;
using quor::strings::ustring8;

struct reading {
	std::vector<std::pair<int, std::string>> tokens;
	int code = 0;
	unsigned int line = 0;
	std::string text;

	void fail(xml_token_stream::parse_error const &error) {
		code = error.code();
		line = error.line();
		text = error.text();
	}
};

reading all_of(xml_token_stream const &stream, xml_token_stream::parse_error const &error) {
	reading result;
	for (auto const &token : stream) {
		result.tokens.emplace_back(token.type(), token.value());
	}
	result.fail(error);
	return result;
}

// Reads so many tokens one by one.
reading read(std::string const &text, std::size_t count) {
	reading result;
	token_reader reader(text);
	try {
		auto it = reader.begin();
		for (; count != 0 && it != token_reader::end(); --count) {
			result.tokens.emplace_back(it->type(), it->value());
			++it;
		}
		reader.finish();
		EXPECT_TRUE(it == token_reader::end());
	} catch (xml_token_stream::parse_error const &error) {
		result.fail(error);
	}
	return result;
}

void compare(std::string const &text) {
	SCOPED_TRACE(testing::PrintToString(text.substr(0, 200)));
	xml_token_stream stream;
	auto const error = stream.parse(ustring8(text));
	reading const expected = all_of(stream, error);
	for (std::size_t const count : {std::size_t(-1), expected.tokens.size() / 2, std::size_t(0)}) {
		reading const seen = read(text, count);
		EXPECT_EQ(seen.code, expected.code);
		EXPECT_EQ(seen.line, expected.line);
		EXPECT_EQ(seen.text, expected.text);
		// Tokens right in front of a fault may be missing.
		std::size_t const size = std::min(count, expected.tokens.size());
		ASSERT_LE(seen.tokens.size(), size);
		EXPECT_GE(seen.tokens.size() + (expected.code != 0 ? 3 : 0), size);
		EXPECT_TRUE(std::equal(seen.tokens.begin(), seen.tokens.end(), expected.tokens.begin()));
	}
}

TEST(token_reader, random_documents_read_like_the_public_list) {
	quor_test::random_xml random(21);
	for (int i = 0; i != 3000 && !HasFailure(); ++i) {
		compare(random.changed(random.document()));
	}
}

TEST(token_reader, values_of_every_size_are_whole) {
	for (std::size_t const size : {1U, 14U, 15U, 16U, 17U, 127U, 128U, 2046U, 2047U, 2048U, 2049U, 300000U}) {
		std::string const name(size, 'n');
		std::string text("<?xml?><");
		for (char const *const piece : {" ", "='", "'>", "<!--", "--></", ">"}) {
			text.append(name).append(piece);
		}
		compare(text);
	}
}

TEST(token_reader, steps_with_several_tokens_give_all_of_them) {
	for (std::string const text :
	     {"<?xml?><a> <b/> </a>", "<?xml?><a>\n</a>", "<?xml?><a><!--c--> x</a>", "<?xml?><a b='1' c='&amp;'/>",
	      "<?xml?><a> &lt;&gt; </a> ", "<?xml?><a>", "<?xml?><a></b>", "<?xml?><a b='1' b='2'/>", "<?xml?>", ""}) {
		compare(text);
	}
}

} // namespace
