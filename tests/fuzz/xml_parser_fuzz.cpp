// The event parser and the token lists over it. Any bytes are an input; a header is put
// in front of those that have none, so that most inputs reach the body.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include <quor/parser/xml_token_stream.hpp>

#include "reference/xml_events.hpp"
#include "support/event_log.hpp"

namespace {

using QUOR_2_9::parser::xml_parser;
using QUOR_2_9::parser::xml_token_stream;
using QUOR_2_9::strings::ustring8;
using parse_error = xml_parser::parse_error;
using token = xml_token_stream::token;

void check(bool holds, char const *what) {
	if (!holds) {
		std::cerr << "fails: " << what << '\n';
		std::abort();
	}
}

bool same(parse_error const &left, parse_error const &right) {
	return left.code() == right.code() && left.line() == right.line() && left.text() == right.text();
}

void check_error(parse_error const &error, std::string const &text) {
	check(error.code() >= 0 && error.code() <= 10, "code");
	check(error.text().empty() || text.find(error.text()) != std::string::npos, "the fault's text is in the input");
	bool const has_line = error.code() != 0 && error.code() != 4;
	check(has_line || error.line() == 0, "no line without a fault");
}

// Ends without a start are allowed with nothing open; all others match.
void check_nesting(std::vector<reference::xml_event> const &events, bool whole) {
	std::vector<std::string> open;
	for (reference::xml_event const &event : events) {
		if (event.kind == "start") {
			open.push_back(event.first);
		} else if (event.kind == "end" && !open.empty()) {
			check(open.back() == event.first, "an end matches its start");
			open.pop_back();
		}
	}
	check(!whole || open.empty(), "nothing is open after a success");
}

// Without the attributes ends the tokens are the events.
void check_tokens(xml_token_stream const &stream, std::vector<reference::xml_event> const &events) {
	static char const *const kinds[] = {"start", "end", "", "", "", "comment", "space", "character"};
	auto it = stream.begin();
	auto const end = stream.end();
	for (reference::xml_event const &event : events) {
		while (it != end && it->type() == token::token_attributes_end) {
			check(it->value().empty(), "an attributes end has no value");
			++it;
		}
		check(it != end, "a token for each event");
		if (event.kind == "attribute") {
			check(it->type() == token::token_attribute_name && it->value() == event.first, "attribute name");
			++it;
			check(it != end && it->type() == token::token_attribute_value && it->value() == event.second, "its value");
		} else {
			check(event.kind == kinds[it->type()] && it->value() == event.first, "kind and value");
		}
		++it;
	}
	check(it == end, "no more tokens than events");
}

void run(std::string const &text) {
	reference::xml_result const expected = reference::xml_events::parse(text);
	xml_parser parser;
	quor_test::event_log log;
	log.bind(parser);
	parse_error const error = parser.parse(ustring8(text));
	check(error.code() == expected.code && error.line() == expected.line && error.text() == expected.text,
	      "the fault is the reference's");
	check(log.events == expected.events, "the events are the reference's");
	check_error(error, text);
	check_nesting(log.events, error.code() == 0);

	xml_parser second;
	quor_test::event_log second_log;
	second_log.bind(second);
	check(same(second.parse(text.begin(), text.end()), error) && second_log.events == log.events,
	      "a text and its iterators are alike");
	xml_token_stream stream;
	check(same(stream.parse(ustring8(text)), error), "the list's fault is the parser's");
	check_tokens(stream, log.events);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const *data, std::size_t size) {
	std::string const text(data, data + size);
	run(text);
	run("<?xml?>" + text);
	return 0;
}
