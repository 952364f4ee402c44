#ifndef QUOR_TESTS_REFERENCE_CONFIG_FILE_TOKENS_HPP
#define QUOR_TESTS_REFERENCE_CONFIG_FILE_TOKENS_HPP

// The tokens of a configuration text, cut byte by byte with nothing clever: what the slow
// reader of files stands on.

#include <cstddef>
#include <string>

namespace reference {

// The kinds that a reader of files tells apart; everything else is text.
enum class cfg_kind { text, comma, equals, newline, blank, tab, comment, open, close, end };

struct cfg_token {
	cfg_kind kind = cfg_kind::end;
	std::string text;
};

class cfg_tokens {
public:
	explicit cfg_tokens(std::string const &text) : m_text(text) {}

	std::size_t pos = 0;

	cfg_token next() {
		if (pos >= m_text.size()) {
			return {cfg_kind::end, ""};
		}
		char const c = at(pos);
		char const d = at(pos + 1);
		if (c == ' ') {
			while (at(pos) == ' ') {
				++pos;
			}
			return {cfg_kind::blank, ""};
		}
		if (c == '"') {
			return string();
		}
		std::string const pair = std::string(1, c) + d;
		for (char const *operation : {"==", "<=", ">=", ":=", "+=", "-=", "*=", "/=", "*/"}) {
			if (pair == operation) {
				return taken(2, cfg_kind::text, pair);
			}
		}
		if (pair == "//") {
			return taken(2, cfg_kind::comment, pair);
		}
		if (pair == "\r\n") {
			return taken(2, cfg_kind::newline, "\n");
		}
		switch (c) {
		case '=':
			return taken(1, cfg_kind::equals, "=");
		case '#':
			return taken(1, cfg_kind::comment, "#");
		case '[':
			return taken(1, cfg_kind::open, "[");
		case ']':
			return taken(1, cfg_kind::close, "]");
		case '\t':
			return taken(1, cfg_kind::tab, "\t");
		case '\n':
			return taken(1, cfg_kind::newline, "\n");
		case ',':
			return taken(1, cfg_kind::comma, ",");
		default:
			// A letter or digit of a run is as good as the run.
			return taken(1, cfg_kind::text, std::string(1, c));
		}
	}

private:
	// Behind the text stands a zero byte.
	char at(std::size_t index) const { return index < m_text.size() ? m_text[index] : '\0'; }

	cfg_token taken(std::size_t count, cfg_kind kind, std::string const &text) {
		pos += count;
		return {kind, text};
	}

	cfg_token string() {
		std::string contents;
		++pos;
		while (pos < m_text.size() && at(pos) != '"') {
			if (at(pos) == '\\') {
				contents += '\\';
				++pos;
			}
			contents += at(pos);
			++pos;
		}
		++pos;
		return {cfg_kind::text, contents};
	}

	std::string const &m_text;
};

} // namespace reference

#endif
