#ifndef QUOR_TESTS_REFERENCE_CONFIG_SOURCES_HPP
#define QUOR_TESTS_REFERENCE_CONFIG_SOURCES_HPP

// What the configuration makes of command lines and environments, once more: a tree
// filled argument by argument from lists of tokens, with nothing clever.

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "reference/config_node.hpp"
#include "reference/config_tokens.hpp"

namespace quor_reference {

// Key and value of a text such as "key = value".
inline std::pair<std::string, std::string> config_assignment(std::string const &text) {
	std::string key;
	std::string value;
	bool in_key = true;
	for (config_piece const &piece : config_pieces::of(text, 0)) {
		if (in_key && piece.is_mark("=")) {
			in_key = false;
		} else if (!in_key && piece.kind == "line end") {
			break;
		} else if (!piece.is_gap()) {
			(in_key ? key : value) += *piece.text;
		}
	}
	return {key, value};
}

inline void load_environment(config_node &tree, std::vector<std::string> const &strings) {
	for (std::string const &entry : strings) {
		auto const [key, value] = config_assignment(entry);
		tree.set(key, value, 0);
	}
}

class config_command_line {
public:
	// The first argument is the program; `slashes` tells whether its path is cut at "/".
	config_command_line(std::vector<std::string> arguments, bool slashes)
	    : m_arguments(std::move(arguments)), m_slashes(slashes) {}

	// Fills the tree and gives what is written to the standard output stream.
	std::string load(config_node &tree) {
		m_tree = &tree;
		m_output.clear();
		m_last_text.clear();
		if (!m_arguments.empty()) {
			load_name(m_arguments[0]);
		}
		m_at = 1;
		while (m_at < m_arguments.size()) {
			load_argument(m_arguments[m_at]);
			m_at += 1;
		}
		return m_output;
	}

private:
	static bool begins_with(std::string const &text, char c) { return !text.empty() && text[0] == c; }
	static bool is_key(std::string const &text) { return begins_with(text, '-') || begins_with(text, '/'); }

	// An empty piece at the very end doesn't count.
	static std::vector<std::string> cut(std::string const &text, std::string const &separators) {
		std::vector<std::string> pieces(1);
		for (char const c : text) {
			if (separators.find(c) != std::string::npos) {
				pieces.emplace_back();
			} else {
				pieces.back() += c;
			}
		}
		if (pieces.back().empty()) {
			pieces.pop_back();
		}
		return pieces;
	}

	void load_name(std::string const &path) {
		auto const directories = cut(path, m_slashes ? "\\/" : "\\");
		std::string const name = directories.empty() ? "" : directories.back();
		m_tree->set("application.name", name, 0);
		auto const parts = cut(name, ".");
		if (parts.size() > 1) {
			m_tree->set("application.name.extention", parts.back(), 0);
		}
		std::string raw;
		for (std::size_t i = 0; i + 1 < parts.size(); ++i) {
			raw += parts[i];
		}
		m_tree->set("application.name.raw", raw, 0);
	}

	// The text that a token brings into a key or value: blanks bring the last one again.
	std::string const &taken(config_piece const &piece) {
		if (piece.text.has_value()) {
			m_last_text = *piece.text;
		}
		return m_last_text;
	}

	std::string whole(std::string const &argument) {
		std::string value;
		for (config_piece const &piece : config_pieces::of(argument, 0)) {
			value += taken(piece);
		}
		return value;
	}

	void load_argument(std::string const &argument) {
		if (!is_key(argument)) {
			m_output += "Warning! unknown key:" + argument + "\nIgnoring key and continuing\n";
			return;
		}
		auto const pieces = config_pieces::of(argument, 1);
		std::string key;
		bool ended = false;
		std::size_t next = 0;
		while (!ended && next != pieces.size()) {
			config_piece const &piece = pieces[next++];
			std::string const &text = taken(piece);
			if (piece.is_mark("=") || piece.is_mark(":") || piece.is_mark(":=") || piece.is("other", "$")) {
				ended = true;
			} else if (piece.is_mark(">=") || piece.is_mark("<=") || piece.is_mark("+=") || piece.is_mark("-=") ||
			           piece.is_mark("*=") || piece.is_mark("/=")) {
				key += text[0];
				ended = true;
			} else {
				key += text;
			}
		}
		std::vector<config_piece> const rest(pieces.begin() + static_cast<std::ptrdiff_t>(next), pieces.end());
		if (m_last_text == "$") {
			std::string value;
			for (config_piece const &piece : rest) {
				value += taken(piece);
			}
			m_tree->set(key, value, 0);
		} else if (ended) {
			load_list(key, rest);
		} else {
			load_following(key);
		}
	}

	void load_list(std::string const &key, std::vector<config_piece> const &pieces) {
		std::vector<std::string> values(1);
		for (config_piece const &piece : pieces) {
			std::string const &text = taken(piece);
			if (piece.is("other", ",")) {
				values.emplace_back();
			} else {
				values.back() += text;
			}
		}
		store(key, values);
	}

	void load_following(std::string const &key) {
		bool const has_next = m_at + 1 < m_arguments.size();
		if (!has_next || is_key(m_arguments[m_at + 1])) {
			auto const [name, value] = config_assignment(key);
			m_tree->set(name, value, 1);
			return;
		}
		m_at += 1;
		std::vector<std::string> values{whole(m_arguments[m_at])};
		while (m_at + 1 < m_arguments.size() && !begins_with(m_arguments[m_at + 1], '-')) {
			m_at += 1;
			values.push_back(whole(m_arguments[m_at]));
		}
		store(key, values);
	}

	void store(std::string const &key, std::vector<std::string> const &values) {
		if (values.size() == 1) {
			m_tree->set(key, values[0], 0);
		} else {
			m_tree->set_array(key, values);
		}
	}

	std::vector<std::string> m_arguments;
	bool m_slashes;
	config_node *m_tree = nullptr;
	std::string m_output;
	std::string m_last_text;
	std::size_t m_at = 1;
};

} // namespace quor_reference

#endif
