// The compact list holds what the public list holds, in much less memory.

#include <gtest/gtest.h>

#include <quor/parser/xml_token_stream.hpp>

#include "parser/compact_token_list.hpp"
#include "support/random_xml.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::parser::compact_token_list;
using quor::parser::xml_token_stream;
using quor::strings::ustring8;

template <class List>
std::vector<std::pair<int, std::string>> plain(List const &list) {
	std::vector<std::pair<int, std::string>> result;
	auto const end = list.end();
	for (auto it = list.begin(); it != end; ++it) {
		result.emplace_back(it->type(), std::string(it->value()));
	}
	return result;
}

void compare(std::string const &text) {
	SCOPED_TRACE(testing::PrintToString(text.substr(0, 200)));
	xml_token_stream stream;
	compact_token_list compact;
	auto const expected = stream.parse(ustring8(text));
	auto const error = compact.parse(ustring8(text));
	EXPECT_EQ(error.code(), expected.code());
	EXPECT_EQ(error.line(), expected.line());
	EXPECT_EQ(error.text(), expected.text());
	EXPECT_EQ(plain(compact), plain(stream));
}

TEST(compact_token_list, parse_random_documents_equals_the_public_list) {
	quor_test::random_xml random(21);
	for (int i = 0; i != 3000 && !HasFailure(); ++i) {
		compare(random.changed(random.document()));
	}
}

TEST(compact_token_list, parse_values_of_every_size_keeps_them) {
	for (std::size_t const size : {1U, 14U, 15U, 16U, 17U, 127U, 128U, 2046U, 2047U, 2048U, 2049U, 300000U}) {
		std::string const name(size, 'n');
		std::string text("<?xml?><");
		for (char const *const piece : {" ", "='", "'>", "<!--", "--></", ">"}) {
			text.append(name).append(piece);
		}
		compare(text);
	}
}

TEST(compact_token_list, parse_again_replaces_the_list) {
	compact_token_list list;
	EXPECT_TRUE(list.begin() == list.end());
	EXPECT_EQ(list.parse("<?xml?><a>").code(), 1);
	EXPECT_EQ(list.parse("<?xml?><b/>").code(), 0);
	EXPECT_EQ(plain(list), (std::vector<std::pair<int, std::string>>{{0, "b"}, {4, ""}, {1, "b"}}));
}

TEST(compact_token_list, bytes_are_in_proportion_to_the_text) {
	for (std::string const piece : {"<a/>", "<a>", "</a>", "x<a/>", " ", "<a b='1'/>", "<!---->"}) {
		std::string text = "<?xml?><r>";
		for (int i = 0; i != 10000; ++i) {
			text += piece;
		}
		compact_token_list list;
		list.parse(ustring8(text));
		EXPECT_LE(list.bytes(), text.size() * 3 / 2) << piece;
	}
}

} // namespace
