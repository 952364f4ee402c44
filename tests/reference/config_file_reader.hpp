#ifndef QUOR_TESTS_REFERENCE_CONFIG_FILE_READER_HPP
#define QUOR_TESTS_REFERENCE_CONFIG_FILE_READER_HPP

// The reader of configuration files once more, step by step and with nothing clever: what
// the library's reader is compared with on random files.

#include <cstddef>
#include <string>
#include <vector>

#include "reference/config_file_tokens.hpp"

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
		cfg_reader reader(text);
		while (reader.m_tokens.pos < text.size()) {
			reader.statement();
		}
		return reader.m_contents;
	}

	// Where a comment ends that begins before `pos`.
	static std::size_t comment_end(std::string const &text, std::size_t pos) {
		cfg_reader reader(text);
		reader.m_tokens.pos = pos;
		reader.comment();
		return reader.m_tokens.pos;
	}

private:
	explicit cfg_reader(std::string const &text) : m_tokens(text) {}

	static bool blank(cfg_token const &token) {
		return token.kind == cfg_kind::blank || token.kind == cfg_kind::tab || token.kind == cfg_kind::newline;
	}

	void comment() {
		std::size_t remembered = m_tokens.pos;
		cfg_token token = m_tokens.next();
		while (token.kind != cfg_kind::end && token.kind != cfg_kind::newline) {
			remembered = m_tokens.pos;
			token = m_tokens.next();
		}
		m_tokens.pos = remembered;
	}

	void statement() {
		cfg_token token = m_tokens.next();
		while (token.kind == cfg_kind::comment || blank(token)) {
			if (token.kind == cfg_kind::comment) {
				comment();
			}
			token = m_tokens.next();
		}
		if (token.kind == cfg_kind::open) {
			section();
			return;
		}
		std::string key;
		while (token.kind != cfg_kind::equals && token.kind != cfg_kind::end) {
			if (!blank(token)) {
				key += token.text;
			}
			token = m_tokens.next();
		}
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
		std::string name;
		for (;;) {
			cfg_token const token = m_tokens.next();
			if (token.kind == cfg_kind::close || token.kind == cfg_kind::end) {
				break;
			}
			if (!blank(token)) {
				name += token.text;
			}
		}
		m_prefix = name.empty() ? "" : name + ".";
	}

	void scalar(std::string const &key) {
		std::string value;
		for (;;) {
			cfg_token const token = m_tokens.next();
			if (token.kind == cfg_kind::newline || token.kind == cfg_kind::end) {
				break;
			}
			if (token.kind == cfg_kind::comment) {
				comment();
			} else if (!blank(token)) {
				value += token.text;
			}
		}
		if (!value.empty()) {
			m_contents.statements.push_back({m_prefix + key, false, {value}});
		}
	}

	void array(std::string const &key) {
		std::string value;
		bool waiting = false; // behind a comma, for a token with text
		for (;;) {
			cfg_token const token = m_tokens.next();
			if (token.kind == cfg_kind::end || (token.kind == cfg_kind::newline && !waiting)) {
				break;
			}
			if (token.kind == cfg_kind::comment) {
				comment();
			} else if (token.kind == cfg_kind::comma) {
				m_list.push_back(value);
				value = "";
				waiting = true;
			} else if (!blank(token)) {
				value += token.text;
				waiting = false;
			}
		}
		if (!value.empty()) {
			m_list.push_back(value);
			m_contents.statements.push_back({m_prefix + key, true, m_list});
			m_list.clear();
		}
	}

	cfg_tokens m_tokens;
	std::string m_prefix;
	std::vector<std::string> m_list;
	cfg_contents m_contents;
};

} // namespace reference

#endif
