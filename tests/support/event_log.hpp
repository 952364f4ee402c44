#ifndef QUOR_TESTS_SUPPORT_EVENT_LOG_HPP
#define QUOR_TESTS_SUPPORT_EVENT_LOG_HPP

// Writes down the events of a parser, in the form in which the reference gives them.

#include <ostream>
#include <string>
#include <vector>

#include <quor/functor/delegate.hpp>
#include <quor/functor/member_function.hpp>
#include <quor/parser/xml_parser.hpp>

#include "reference/xml_events.hpp"

namespace reference {

inline void PrintTo(xml_event const &event, std::ostream *out) {
	*out << event.kind << " [" << event.first << "] [" << event.second << ']';
}

} // namespace reference

namespace quor_test {

using event_text = QUOR_2_9::strings::ustring8;
using text_function = void(event_text const &);
using attribute_function = void(event_text const &, event_text const &);

class event_log {
public:
	event_log() = default;
	event_log(event_log const &) = delete;
	event_log &operator=(event_log const &) = delete;

	void bind(QUOR_2_9::parser::xml_parser &parser) {
		using member = QUOR_2_9::functor::member_function_t<event_log, text_function>;
		using attribute_member = QUOR_2_9::functor::member_function_t<event_log, attribute_function>;
		parser.on_element_start() = member(this, &event_log::start);
		parser.on_element_end() = member(this, &event_log::end);
		parser.on_attribute() = attribute_member(this, &event_log::attribute);
		parser.on_character() = member(this, &event_log::character);
		parser.on_space() = member(this, &event_log::space);
		parser.on_comment() = member(this, &event_log::comment);
	}

	std::vector<reference::xml_event> events;

private:
	void start(event_text const &name) { events.push_back({"start", name, ""}); }
	void end(event_text const &name) { events.push_back({"end", name, ""}); }
	void attribute(event_text const &name, event_text const &value) { events.push_back({"attribute", name, value}); }
	void character(event_text const &run) { events.push_back({"character", run, ""}); }
	void space(event_text const &run) { events.push_back({"space", run, ""}); }
	void comment(event_text const &body) { events.push_back({"comment", body, ""}); }
};

} // namespace quor_test

#endif
