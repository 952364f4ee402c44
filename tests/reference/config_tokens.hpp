#ifndef QUOR_TESTS_REFERENCE_CONFIG_TOKENS_HPP
#define QUOR_TESTS_REFERENCE_CONFIG_TOKENS_HPP

// The tokens of the configuration texts, cut slowly: one list of all of them, each with
// the kind as a word.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quor_reference {

struct config_piece {
	std::string kind;                // "letters", "digits", "string", "blanks", "line end", "mark" or "other"
	std::optional<std::string> text; // nothing for blanks
	std::size_t begin = 0;
	std::size_t end = 0; // behind a string that isn't closed one or two beyond the text's end

	bool is(std::string const &expected_kind, std::string const &expected_text) const {
		return kind == expected_kind && text == expected_text;
	}
	bool is_mark(std::string const &expected) const { return is("mark", expected); }
	// What separates words and is left out of keys and values that are assigned.
	bool is_gap() const { return kind == "blanks" || kind == "line end" || is_mark("\t"); }
};

class config_pieces {
public:
	static std::vector<config_piece> of(std::string const &text, std::size_t from) {
		config_pieces cutter(text, from);
		while (cutter.m_at < cutter.m_text.size()) {
			std::size_t const begin = cutter.m_at;
			cutter.cut();
			cutter.m_pieces.back().begin = begin;
			cutter.m_pieces.back().end = cutter.m_at;
		}
		return cutter.m_pieces;
	}

private:
	config_pieces(std::string const &text, std::size_t from) : m_text(text), m_at(from) {}

	static bool one_of(char c, std::string const &set) { return set.find(c) != std::string::npos; }
	static bool is_letter(char c) { return one_of(c, "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"); }
	static bool is_digit(char c) { return one_of(c, "0123456789"); }

	// A zero byte stands behind the text.
	char at(std::size_t index) const { return index < m_text.size() ? m_text[index] : '\0'; }

	std::string run(bool (*belongs)(char)) {
		std::string result;
		while (m_at < m_text.size() && belongs(m_text[m_at])) {
			result += m_text[m_at++];
		}
		return result;
	}

	void add(std::string const &kind, std::string const &text) { m_pieces.push_back({kind, text, 0, 0}); }

	void cut() {
		char const here = at(m_at);
		if (here == ' ') {
			run([](char c) { return c == ' '; });
			m_pieces.push_back({"blanks", std::nullopt, 0, 0});
		} else if (is_digit(here)) {
			add("digits", run(is_digit));
		} else if (is_letter(here)) {
			add("letters", run(is_letter));
		} else if (here == '"') {
			add("string", quoted());
		} else if (here == '\n') {
			add("line end", "\n");
			m_at += 1;
		} else if (here == '\r' && at(m_at + 1) == '\n') {
			add("line end", "\n");
			m_at += 2;
		} else if (!cut_mark()) {
			add("other", std::string(1, here));
			m_at += 1;
		}
	}

	bool cut_mark() {
		for (char const *mark : {"==", ">=", "<=", ":=", "//", "+=", "-=", "*/", "*=", "/=", "=",  ">",
		                         "<",  ":",  "#",  ".",  "[",  "]",  "+",  "-",  "*",  "/",  "\t", "\r"}) {
			std::string const spelling(mark);
			if (m_text.substr(m_at, spelling.size()) == spelling) {
				add("mark", spelling);
				m_at += spelling.size();
				return true;
			}
		}
		return false;
	}

	std::string quoted() {
		std::string contents;
		m_at += 1;
		while (m_at < m_text.size() && m_text[m_at] != '"') {
			if (m_text[m_at] == '\\') {
				contents += m_text[m_at];
				m_at += 1;
			}
			contents += at(m_at);
			m_at += 1;
		}
		m_at += 1;
		return contents;
	}

	std::string m_text;
	std::size_t m_at;
	std::vector<config_piece> m_pieces;
};

} // namespace quor_reference

#endif
