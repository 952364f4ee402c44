// The parser against the slow reference, on random documents with random faults.

#include <gtest/gtest.h>

#include <quor/parser/xml_parser.hpp>

#include "reference/xml_events.hpp"
#include "support/event_log.hpp"
#include "support/random_xml.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::parser::xml_parser;
using quor::strings::ustring8;

void expect_equal(reference::xml_result const &expected, xml_parser::parse_error const &error,
                  quor_test::event_log const &log) {
	EXPECT_EQ(error.code(), expected.code);
	EXPECT_EQ(error.line(), expected.line);
	EXPECT_EQ(error.text(), expected.text);
	EXPECT_EQ(log.events, expected.events);
}

void compare(std::string const &text) {
	SCOPED_TRACE(testing::PrintToString(text));
	reference::xml_result const expected = reference::xml_events::parse(text);
	xml_parser parser;
	quor_test::event_log log;
	log.bind(parser);
	expect_equal(expected, parser.parse(ustring8(text)), log);

	// The same in the middle of a longer text, whose rest is not looked at.
	std::string const longer = "x" + text + "\">;--></a>";
	xml_parser second;
	quor_test::event_log second_log;
	second_log.bind(second);
	auto const begin = longer.begin() + 1;
	auto const end = begin + static_cast<std::ptrdiff_t>(text.size());
	expect_equal(expected, second.parse(begin, end), second_log);
}

TEST(xml_parser_random, parse_well_formed_documents_agrees_with_reference) {
	quor_test::random_xml random(1);
	for (int i = 0; i != 3000; ++i) {
		compare(random.document());
		if (HasFailure()) {
			return;
		}
	}
}

TEST(xml_parser_random, parse_changed_documents_agrees_with_reference) {
	quor_test::random_xml random(2);
	for (int i = 0; i != 20000; ++i) {
		compare(random.changed(random.document()));
		if (HasFailure()) {
			return;
		}
	}
}

TEST(xml_parser_random, parse_changed_catalog_files_agrees_with_reference) {
	quor_test::random_xml random(3);
	for (int i = 0; i != 5000; ++i) {
		compare(random.changed(random.catalog_file()));
		if (HasFailure()) {
			return;
		}
	}
}

TEST(xml_parser_random, parse_every_cut_of_a_document_agrees_with_reference) {
	std::string const text =
	    "\xEF\xBB\xBF<?xml version=\"1.0\"?>\n <a b = \"1&amp;&#x41;\" c='&#065;'>one  &quot;two\n\n"
	    "<!-- x -- y --><b/>&apos;&gt;&nbsp;&lt;/ </a b='2' > t";
	for (std::size_t size = 0; size <= text.size(); ++size) {
		compare(text.substr(0, size));
	}
}

// The names of a tag are kept in one way while they are few and short, in another beyond.
TEST(xml_parser_random, parse_tags_with_any_number_of_attributes_agrees_with_reference) {
	for (std::size_t const longest : {1U, 9U, 60U, 300U}) {
		std::vector<std::string> names;
		std::string tag = "<?xml?><a";
		for (std::size_t i = 0; i != 70; ++i) {
			names.push_back(std::string("n").append(std::to_string(i)).append(i % longest, 'x'));
			auto const behind = [](std::string text, std::string const &name, char const *end) {
				return text.append(" ").append(name).append("='1'").append(end);
			};
			tag = behind(tag, names.back(), "");
			compare(std::string(tag).append("/>"));
			for (std::size_t const again : {std::size_t(0), i / 2, i}) {
				compare(behind(tag, names[again], "/>"));
				compare(behind(std::string(tag).append("></a"), names[again], ">"));
				compare(behind(std::string(tag).append("><b"), names[again], "/></a>"));
			}
		}
		if (HasFailure()) {
			return;
		}
	}
}

// Every text of up to four of these pieces behind a header.
TEST(xml_parser_random, parse_all_short_texts_agrees_with_reference) {
	std::vector<std::string> const pieces = {"<", ">", "/", "a", "=", "'", "&", " ", "!", "-", ";", "\n", "#"};
	std::vector<std::string> texts = {"<?xml?>"};
	for (int length = 0; length != 5; ++length) {
		std::vector<std::string> longer;
		for (std::string const &text : texts) {
			compare(text);
			for (std::string const &piece : pieces) {
				longer.push_back(text + piece);
			}
			if (HasFailure()) {
				return;
			}
		}
		texts.swap(longer);
	}
}

TEST(xml_parser_random, parse_with_one_object_keeps_open_elements_as_reference) {
	quor_test::random_xml random(4);
	for (int round = 0; round != 500; ++round) {
		xml_parser parser;
		quor_test::event_log log;
		log.bind(parser);
		std::vector<std::string> open;
		for (int i = 0; i != 4; ++i) {
			std::string const text = random.changed(random.document());
			SCOPED_TRACE(testing::PrintToString(text));
			log.events.clear();
			expect_equal(reference::xml_events::parse(text, open), parser.parse(ustring8(text)), log);
		}
		if (HasFailure()) {
			return;
		}
	}
}

} // namespace
