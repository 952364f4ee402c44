#ifndef QUOR_TESTS_REFERENCE_XML_EVENTS_HPP
#define QUOR_TESTS_REFERENCE_XML_EVENTS_HPP

// The rules of the event parser once more, one byte at a time and with nothing clever:
// what the library's parser is compared with on random input.

#include <cstddef>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace reference {

struct xml_event {
	std::string kind;
	std::string first;
	std::string second;

	bool operator==(xml_event const &other) const {
		return kind == other.kind && first == other.first && second == other.second;
	}
};

struct xml_result {
	int code = 0;
	unsigned int line = 0;
	std::string text;
	std::vector<xml_event> events;
};

class xml_events {
public:
	// The names in `open` are still open from earlier; those left open come back in it.
	static xml_result parse(std::string const &text, std::vector<std::string> &open) {
		xml_events run(text, open);
		run.whole();
		return run.m_result;
	}

	static xml_result parse(std::string const &text) {
		std::vector<std::string> open;
		return parse(text, open);
	}

private:
	struct stopped {};

	xml_events(std::string const &text, std::vector<std::string> &open) : m_text(text), m_open(open) {}

	static bool one_of(char c, char const *set) {
		for (; *set != '\0'; ++set) {
			if (*set == c) {
				return true;
			}
		}
		return false;
	}
	static bool space(char c) { return one_of(c, " \t\r\n"); }
	static bool digit(char c) { return one_of(c, "0123456789"); }
	static bool hex(char c) { return digit(c) || one_of(c, "abcdefABCDEF"); }
	static bool letter(char c) { return one_of(c, "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"); }

	bool ended() const { return m_at >= m_text.size(); }

	[[noreturn]] void stop(int code, std::string const &text = std::string()) {
		m_result.code = code;
		m_result.line = m_line;
		m_result.text = text;
		throw stopped();
	}

	// The character here; the end is fault 1.
	char need() {
		if (ended()) {
			stop(1);
		}
		return m_text[m_at];
	}
	[[noreturn]] void unexpected() {
		char const c = need();
		stop(5, std::string(1, c));
	}

	void event(std::string const &kind, std::string const &first, std::string const &second = std::string()) {
		m_result.events.push_back({kind, first, second});
	}

	std::string white_space() {
		std::string run;
		while (!ended() && space(m_text[m_at])) {
			if (m_text[m_at] == '\n') {
				++m_line;
			}
			run += m_text[m_at];
			++m_at;
		}
		return run;
	}

	// Ends on the last character of the name.
	std::string name() {
		if (!letter(need())) {
			unexpected();
		}
		std::string result(1, m_text[m_at]);
		while (m_at + 1 < m_text.size()) {
			char const next = m_text[m_at + 1];
			if (!letter(next) && !digit(next) && next != '_') {
				break;
			}
			result += next;
			++m_at;
		}
		return result;
	}

	static unsigned int number(std::string const &digits, unsigned int radix) {
		unsigned int value = 0;
		for (char const c : digits) {
			unsigned int const d =
			    digit(c) ? static_cast<unsigned int>(c - '0') : static_cast<unsigned int>((c | 0x20) - 'a') + 10U;
			if (d >= radix) {
				break;
			}
			value = value * radix + d;
			if (value > 255) {
				return 255;
			}
		}
		return value;
	}

	// Begins on "&", ends on ";".
	char entity() {
		++m_at;
		if (need() == '#') {
			++m_at;
			bool const is_hex = !ended() && m_text[m_at] == 'x';
			if (is_hex) {
				++m_at;
			}
			std::string digits;
			while (!ended() && (is_hex ? hex(m_text[m_at]) : digit(m_text[m_at]))) {
				digits += m_text[m_at];
				++m_at;
			}
			if (need() != ';') {
				unexpected();
			}
			if (is_hex) {
				return static_cast<char>(number(digits, 16));
			}
			// A leading zero means octal, and what stands behind it are the digits.
			bool const octal = digits.size() > 1 && digits[0] == '0';
			return static_cast<char>(octal ? number(digits.substr(1), 8) : number(digits, 10));
		}
		switch (m_text[m_at]) {
		case 'a':
			++m_at;
			if (need() == 'm') {
				return rest("mp;", '&');
			}
			return rest("pos;", '\'');
		case 'g':
			++m_at;
			return rest("t;", '>');
		case 'l':
			++m_at;
			return rest("t;", '<');
		case 'n':
			++m_at;
			return rest("bsp;", ' ');
		case 'q':
			++m_at;
			return rest("uot;", '"');
		default:
			stop(7);
		}
	}

	// What must stand from the second letter on. A difference is reported at that letter.
	char rest(std::string const &expected, char result) {
		std::size_t const second = m_at;
		for (std::size_t i = 0; i != expected.size(); ++i) {
			m_at = second + i;
			if (ended()) {
				m_at = second;
				stop(1);
			}
			if (m_text[m_at] != expected[i]) {
				m_at = second;
				unexpected();
			}
		}
		return result;
	}

	std::string value() {
		char const quote = need();
		if (quote != '"' && quote != '\'') {
			stop(6);
		}
		++m_at;
		std::string result;
		while (!ended()) {
			char const c = m_text[m_at];
			if (c == '<') {
				stop(5, "<");
			} else if (c == '&') {
				result += entity();
			} else if (c == quote) {
				return result;
			} else {
				result += c;
			}
			++m_at;
		}
		return result;
	}

	void whole() {
		try {
			header();
			body();
			m_result.code = m_open.empty() ? 0 : 1;
			m_result.line = 0;
		} catch (stopped const &) {
		}
	}

	void header() {
		if (m_text.size() >= 4 && m_text[3] == '<') {
			m_at = 3;
		}
		if (m_text.compare(m_at, 5, "<?xml") != 0) {
			stop(4);
		}
		m_at += 5;
		while (m_at + 1 < m_text.size()) {
			if (m_text[m_at] == '?' && m_text[m_at + 1] == '>') {
				break;
			}
			if (m_text[m_at] == '<' || m_text[m_at] == '>') {
				stop(4);
			}
			++m_at;
		}
		for (int i = 0; i != 2; ++i) {
			if (ended()) {
				stop(3);
			}
			++m_at;
		}
		white_space();
		if (ended()) {
			stop(3);
		}
	}

	void body() {
		while (!ended()) {
			std::string const run = white_space();
			if (!run.empty() && !m_in_tag) {
				event("space", run);
			}
			if (ended()) {
				break;
			}
			char const c = m_text[m_at];
			if (c == '<') {
				markup();
			} else if (c == '>') {
				if (!m_in_tag) {
					unexpected();
				}
				m_in_tag = false;
				++m_at;
			} else if (c == '/' && m_in_tag) {
				empty_end();
			} else if (m_in_tag) {
				attribute();
			} else {
				text();
			}
		}
	}

	bool comment_follows() {
		std::size_t const begin = m_at;
		for (char const c : {'!', '-', '-'}) {
			if (need() != c) {
				m_at = begin;
				return false;
			}
			++m_at;
		}
		return true;
	}

	void markup() {
		if (m_in_tag) {
			unexpected();
		}
		m_in_tag = true;
		++m_at;
		if (need() == '/') {
			++m_at;
			std::string const tag = name();
			if (!m_open.empty()) {
				if (m_open.back() != tag) {
					stop(2, tag);
				}
				m_open.pop_back();
			}
			if (m_at + 1 == m_text.size()) {
				stop(1);
			}
			event("end", tag);
		} else if (comment_follows()) {
			std::string comment;
			while (m_at + 2 < m_text.size() && m_text.compare(m_at, 3, "-->") != 0) {
				comment += m_text[m_at];
				++m_at;
			}
			if (m_at + 2 >= m_text.size()) {
				m_at = m_text.size();
				stop(1);
			}
			m_at += 2;
			m_in_tag = false;
			event("comment", comment);
		} else {
			if (m_open.empty() && m_root_seen) {
				stop(10);
			}
			std::string const tag = name();
			m_open.push_back(tag);
			m_names.clear();
			event("start", tag);
			m_root_seen = true;
		}
		++m_at;
	}

	void empty_end() {
		++m_at;
		if (ended()) {
			stop(5);
		}
		if (m_text[m_at] != '>') {
			unexpected();
		}
		if (m_open.empty()) {
			stop(2);
		}
		event("end", m_open.back());
		m_in_tag = false;
		m_open.pop_back();
		m_names.clear();
		++m_at;
	}

	void attribute() {
		std::string const key = name();
		if (!m_names.insert(key).second) {
			stop(9, key);
		}
		++m_at;
		white_space();
		if (need() != '=') {
			stop(8, key);
		}
		++m_at;
		white_space();
		std::string const read = value();
		event("attribute", key, read);
		if (ended()) {
			stop(6, key);
		}
		++m_at;
	}

	void text() {
		std::string run;
		while (!ended() && m_text[m_at] != '<') {
			char const c = m_text[m_at];
			if (c == '&') {
				run += entity();
			} else if (space(c) && m_at + 1 < m_text.size() && space(m_text[m_at + 1])) {
				break;
			} else {
				run += c;
			}
			++m_at;
		}
		event("character", run);
	}

	std::string const &m_text;
	std::vector<std::string> &m_open;
	std::size_t m_at = 0;
	unsigned int m_line = 0;
	bool m_in_tag = false;
	bool m_root_seen = false;
	std::set<std::string> m_names;
	xml_result m_result;
};

} // namespace reference

#endif
