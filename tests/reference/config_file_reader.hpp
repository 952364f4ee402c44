#ifndef QUOR_TESTS_REFERENCE_CONFIG_FILE_READER_HPP
#define QUOR_TESTS_REFERENCE_CONFIG_FILE_READER_HPP

// The reader of configuration files once more, step by step and with nothing clever: what
// the library's reader is compared with on random files.

#include <cstddef>
#include <string>
#include <vector>

#include "reference/config_tokens.hpp"

namespace reference {

// What one statement stores under a whole key.
struct cfg_statement {
	std::string key;
	bool is_array = false;
	std::vector<std::string> values; // one for a scalar
};

struct cfg_contents {
	std::vector<cfg_statement> statements;
	std::size_t one_byte_keys = 0; // each of them is a stop
};

class cfg_reader {
public:
	static cfg_contents read(std::string const &text) {
		cfg_reader reader(text, 0);
		while (reader.m_next != reader.m_pieces.size()) {
			reader.statement();
		}
		return reader.m_contents;
	}

	// Where a comment ends that begins before `pos`.
	static std::size_t comment_end(std::string const &text, std::size_t pos) {
		cfg_reader reader(text, pos);
		reader.comment();
		return reader.m_next == 0 ? pos : reader.m_pieces[reader.m_next - 1].end;
	}

private:
	using piece = quor_reference::config_piece;

	cfg_reader(std::string const &text, std::size_t from) : m_pieces(quor_reference::config_pieces::of(text, from)) {}

	static bool is_comment(piece const &token) { return token.is_mark("#") || token.is_mark("//"); }
	static bool is_line_end(piece const &token) { return token.kind == "line end"; }

	bool at_end() const { return m_next == m_pieces.size(); }

	// Stops before the line end.
	void comment() {
		while (!at_end() && !is_line_end(m_pieces[m_next])) {
			++m_next;
		}
	}

	void statement() {
		while (!at_end() && (is_comment(m_pieces[m_next]) || m_pieces[m_next].is_gap())) {
			if (is_comment(m_pieces[m_next++])) {
				comment();
			}
		}
		if (!at_end() && m_pieces[m_next].is_mark("[")) {
			++m_next;
			section();
			return;
		}
		std::string const key = text_up_to("=");
		if (key.empty()) {
			return;
		}
		if (key.size() == 1) {
			++m_contents.one_byte_keys;
			scalar(key);
		} else if (key.substr(key.size() - 2) == "[]") {
			array(key.substr(0, key.size() - 2));
		} else {
			scalar(key);
		}
	}

	void section() {
		std::string const name = text_up_to("]");
		m_prefix = name.empty() ? "" : name + ".";
	}

	// All text before a mark, which is taken too.
	std::string text_up_to(std::string const &mark) {
		std::string text;
		while (!at_end()) {
			piece const &token = m_pieces[m_next++];
			if (token.is_mark(mark)) {
				break;
			}
			if (!token.is_gap()) {
				text += *token.text;
			}
		}
		return text;
	}

	void scalar(std::string const &key) {
		std::string value;
		while (!at_end()) {
			piece const &token = m_pieces[m_next++];
			if (is_line_end(token)) {
				break;
			}
			if (is_comment(token)) {
				comment();
			} else if (!token.is_gap()) {
				value += *token.text;
			}
		}
		if (!value.empty()) {
			m_contents.statements.push_back({m_prefix + key, false, {value}});
		}
	}

	void array(std::string const &key) {
		std::string value;
		bool waiting = false; // behind a comma, for a token with text
		while (!at_end()) {
			piece const &token = m_pieces[m_next++];
			if (is_line_end(token) && !waiting) {
				break;
			}
			if (is_comment(token)) {
				comment();
			} else if (token.is("other", ",")) {
				m_list.push_back(value);
				value = "";
				waiting = true;
			} else if (!token.is_gap()) {
				value += *token.text;
				waiting = false;
			}
		}
		if (!value.empty()) {
			m_list.push_back(value);
			m_contents.statements.push_back({m_prefix + key, true, m_list});
			m_list.clear();
		}
	}

	std::vector<piece> m_pieces;
	std::size_t m_next = 0;
	std::string m_prefix;
	std::vector<std::string> m_list;
	cfg_contents m_contents;
};

} // namespace reference

#endif
